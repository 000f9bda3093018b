// The folder of the user's own files of one kind, filled once from what is delivered with the
// program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dorvalin {

/// Finds the folder "Tolvo\Dorvalin\<name>" in the user's application data, or <name> beside the
/// program where that is not known. A folder that is missing is made and filled with everything
/// that lies in <name> beside the program; one that is there stays as it is, be it empty.
[[nodiscard]] std::u16string PrepareStoreFolder(std::u16string_view name);

/// Names without their extensions of the files that match a pattern, in the order of the file
/// system.
[[nodiscard]] std::vector<std::u16string> TitlesIn(std::u16string_view folder,
                                                   std::u16string_view pattern);

}  // namespace dorvalin
