#include <cstdint>

#include "tests/quicktext/hostile_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  dorvalin::TryPhraseFile({reinterpret_cast<const char*>(data), size});
  return 0;
}
