// Where Tolvo Merrowe keeps its notes.
#pragma once

#include <string>
#include <string_view>

namespace dorvalin {

inline constexpr std::u16string_view kMerroweKey = u"Software\\Tolvo\\Merrowe";
/// What NotesFolder holds when the store is not there.
inline constexpr std::u16string_view kNoNotesFolder = u"|";

/// Ends in a backslash. Empty until looked up, kNoNotesFolder where there is none.
[[nodiscard]] std::u16string& NotesFolder();
/// Sets NotesFolder.
void FindNotesFolder();

}  // namespace dorvalin
