// How often memory was taken, for tests that say that something takes none. Linking this in
// replaces the global operator new of the test program.
#pragma once

#include <cstddef>

namespace dorvalin {

/// Calls of operator new since the start of the process.
[[nodiscard]] std::size_t Allocations();

}  // namespace dorvalin
