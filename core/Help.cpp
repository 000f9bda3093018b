#include "core/Help.h"

#include <string>

#include "core/ProgramState.h"
#include "core/frmEmpty.h"
#include "core/messages.h"
#include "platform/desktop.h"
#include "platform/shell.h"

namespace dorvalin {

void OpenHelpTopic(std::u16string_view topic) {
  const std::u16string commandLine =
      u"\"" + State().AppPath + u"TOHelp.exe\" " + std::u16string(topic);
  if (platform::TheDesktop().shell().Run(commandLine)) return;
  ShowWarning(u"Die Hilfedatei TOHelp.exe konnte nicht geöffnet werden", frmEmpty::WindowOrNull());
}

void ShowHelp(const platform::Modifiers& shift, std::u16string_view topic) {
  OpenHelpTopic(shift.Any() ? u"main" : topic);
}

}  // namespace dorvalin
