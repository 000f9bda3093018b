#include "core/messages.h"

#include "platform/desktop.h"
#include "platform/dialogs.h"

namespace dorvalin {

void ShowPlainMessage(std::u16string_view text) {
  platform::TheDesktop().dialogs().ShowMessage(
      {.text = std::u16string(text), .title = u"Tolvo Dorvalin"});
}

}  // namespace dorvalin
