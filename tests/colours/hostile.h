#pragma once

#include <string_view>

namespace dorvalin {

// Both end the process if a promise of the reader is broken.

/// Reads the bytes as a palette's file.
void TryPaletteFile(std::string_view bytes);
/// Reads the bytes as a colour's text in every notation.
void TryColorText(std::string_view bytes);

}  // namespace dorvalin
