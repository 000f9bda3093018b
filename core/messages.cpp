#include "core/messages.h"

#include "platform/desktop.h"
#include "platform/dialogs.h"

namespace dorvalin {

void ShowPlainMessage(std::u16string_view text) {
  platform::TheDesktop().dialogs().ShowMessage(
      {.text = std::u16string(text), .title = std::u16string(kProductName)});
}

void ShowWarning(std::u16string_view text, platform::TopWindow* owner) {
  platform::TheDesktop().dialogs().ShowMessage({.text = std::u16string(text),
                                                .title = std::u16string(kProductName),
                                                .icon = platform::MessageIcon::Exclamation,
                                                .owner = owner});
}

}  // namespace dorvalin
