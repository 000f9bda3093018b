// What the program says in a box of its own.
#pragma once

#include <string_view>

namespace dorvalin {

/// A plain box with an OK button, under the program's name.
void ShowPlainMessage(std::u16string_view text);

}  // namespace dorvalin
