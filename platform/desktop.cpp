#include "platform/desktop.h"

#include <cassert>

namespace platform {
namespace {
Desktop* current = nullptr;
}

Desktop& TheDesktop() {
  assert(current != nullptr);
  return *current;
}

DesktopScope::DesktopScope(Desktop& desktop) : former_(current) { current = &desktop; }
DesktopScope::~DesktopScope() { current = former_; }

}  // namespace platform
