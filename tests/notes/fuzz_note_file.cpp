#include <cstdint>

#include "tests/notes/hostile_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  dorvalin::TryNoteFile({reinterpret_cast<const char*>(data), size});
  return 0;
}
