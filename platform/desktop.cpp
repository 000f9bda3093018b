#include "platform/desktop.h"

#include <cassert>

#include "platform/Form.h"

namespace platform {
namespace {
Desktop* currentDesktop = nullptr;
Forms* currentForms = nullptr;
}  // namespace

Desktop& TheDesktop() {
  assert(currentDesktop != nullptr);
  return *currentDesktop;
}

Forms& TheForms() {
  assert(currentForms != nullptr);
  return *currentForms;
}

DesktopScope::DesktopScope(Desktop& desktop)
    : formerDesktop_(currentDesktop),
      formerForms_(currentForms),
      forms_(std::make_unique<Forms>()) {
  currentDesktop = &desktop;
  currentForms = forms_.get();
}

DesktopScope::~DesktopScope() {
  forms_.reset();
  currentDesktop = formerDesktop_;
  currentForms = formerForms_;
}

}  // namespace platform
