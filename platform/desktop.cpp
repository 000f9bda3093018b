#include "platform/desktop.h"

#include <cassert>

#include "platform/Form.h"
#include "platform/pictures.h"

namespace platform {
namespace {
Desktop* currentDesktop = nullptr;
Forms* currentForms = nullptr;

class NoPictures : public Pictures {
 public:
  std::optional<Surface> Load(std::u16string_view) override { return std::nullopt; }
};
}  // namespace

Desktop& TheDesktop() {
  assert(currentDesktop != nullptr);
  return *currentDesktop;
}

Forms& TheForms() {
  assert(currentForms != nullptr);
  return *currentForms;
}

Pictures& Desktop::pictures() {
  static NoPictures none;
  return none;
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
