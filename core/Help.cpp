#include "core/Help.h"

#include <string>

#include "core/ProgramState.h"
#include "core/frmEmpty.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/shell.h"

namespace dorvalin {

void OpenHelpTopic(std::u16string_view topic) {
  const std::u16string commandLine =
      u"\"" + State().AppPath + u"TOHelp.exe\" " + std::u16string(topic);
  auto& desktop = platform::TheDesktop();
  if (desktop.shell().Run(commandLine)) return;
  desktop.dialogs().ShowMessage({.text = u"Die Hilfedatei TOHelp.exe konnte nicht geöffnet werden",
                                 .title = std::u16string(kProductName),
                                 .icon = platform::MessageIcon::Exclamation,
                                 .owner = frmEmpty::WindowOrNull()});
}

void ShowHelp(const platform::Modifiers& shift, std::u16string_view topic) {
  OpenHelpTopic(shift.Any() ? u"main" : topic);
}

}  // namespace dorvalin
