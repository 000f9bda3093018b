#include "core/FirstStart.h"

#include "core/ProgramState.h"
#include "core/UpperFloors.h"
#include "core/messages.h"
#include "core/modRegTools.h"
#include "platform/desktop.h"
#include "platform/shell.h"

namespace dorvalin {
namespace {

constexpr std::u16string_view kAutostartKey = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run";

}  // namespace

bool IsFirstStart() { return RegGetString(kProgramKey, u"FirstStart", u"").empty(); }

void RunFirstStartActions() {
  // Written before the welcome window opens: a failure inside that window must not repeat all this.
  RegSetString(kProgramKey, u"FirstStart", u"NO");
  RegSetString(kAutostartKey, kProductName, u"\"" + State().AppPath + State().ExeName + u"\"");
  RegSetString(ProgramKey(u"\\UserData"), u"FirstName", platform::TheDesktop().shell().LogonName());
  if (platform::Form* welcome = LoadFormByName("frmFirstStart")) welcome->Show();
}

}  // namespace dorvalin
