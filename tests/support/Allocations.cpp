#include "tests/support/Allocations.h"

#include <cstdlib>
#include <new>

namespace {
std::size_t taken = 0;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  ++taken;
  return std::malloc(size == 0 ? 1 : size);
}
void* operator new(std::size_t size) {
  if (void* memory = operator new(size, std::nothrow)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace dorvalin {

std::size_t Allocations() { return taken; }

}  // namespace dorvalin
