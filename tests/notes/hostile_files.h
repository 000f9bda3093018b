#pragma once

#include <string_view>

namespace dorvalin {

/// Reads the bytes as a category's file. Ends the process if a promise of the reader is broken.
void TryNoteFile(std::string_view bytes);

}  // namespace dorvalin
