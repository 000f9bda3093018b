#pragma once

#include <string_view>

namespace dorvalin {

/// Reads the bytes as a group's file. Ends the process if a promise of the reader is broken.
void TryPhraseFile(std::string_view bytes);

}  // namespace dorvalin
