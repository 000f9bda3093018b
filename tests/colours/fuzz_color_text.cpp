#include <cstdint>

#include "tests/colours/hostile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  dorvalin::TryColorText({reinterpret_cast<const char*>(data), size});
  return 0;
}
