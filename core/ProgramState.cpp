#include "core/ProgramState.h"

#include <cassert>

namespace dorvalin {
namespace {
ProgramState* current = nullptr;
}

ProgramState& State() {
  assert(current != nullptr);
  return *current;
}

ProgramStateScope::ProgramStateScope(ProgramState& state) : former_(current) { current = &state; }
ProgramStateScope::~ProgramStateScope() { current = former_; }

}  // namespace dorvalin
