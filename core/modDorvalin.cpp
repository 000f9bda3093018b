#include "core/modDorvalin.h"

#include <memory>
#include <string>

#include "core/ProgramState.h"
#include "core/SettingsStore.h"
#include "core/UpperFloors.h"
#include "core/frmEmpty.h"
#include "core/messages.h"
#include "platform/data.h"
#include "platform/desktop.h"
#include "platform/shell.h"

namespace dorvalin {
namespace {

using platform::TheDesktop;

struct AccessRoad {
  bool on;
  std::u16string_view line;
};

std::u16string SecondInstanceNotice() {
  const Settings& settings = State().settings;
  const AccessRoad roads[] = {
      {settings.BothBtn,
       u"- Drücken Sie gleichzeitig die linke und die rechte Maustaste und halten Sie sie "
       u"gedrückt"},
      {settings.MiddleBtn,
       u"- Drücken Sie die mittlere Maustaste/das Mausrad und halten Sie sie/es gedrückt"},
      {settings.LeftBtn, u"- Drücken Sie die linke Maustaste und halten Sie sie länger gedrückt"},
      {settings.RightBtn, u"- Drücken Sie die rechte Maustaste und halten Sie sie länger gedrückt"},
      {settings.ScrollKey,
       u"- Drücken Sie die Rollen-/ScrollLock-Taste auf der Tastatur und halten Sie sie gedrückt"},
      // Tests this process, in which the sidebar is never on yet: the line does not show.
      {State().SidebarOn, u"- Bewegen Sie die Maus an den rechten Bildschirmrand"},
  };
  std::u16string notice =
      u"Tolvo Dorvalin läuft bereits im Hintergrund und ist wartet darauf, aufgerufen zu werden. "
      u"Um Dorvalin jetzt aufzurufen, haben Sie folgende Möglichkeiten:";
  for (const AccessRoad& road : roads) {
    if (road.on) (notice += u"\r\n") += road.line;
  }
  return notice;
}

void FillPaths() {
  ProgramState& state = State();
  state.AppPath = TheDesktop().shell().ProgramFolder();
  if (state.AppPath.empty() || state.AppPath.back() != u'\\') state.AppPath += u'\\';
  state.ExeName = u"Dorvalin.exe";
  state.HelpFileUrl = u"mk:@MSITStore:" + state.AppPath + u"Dorvalin.chm::/";
}

// Format numbers travel as 16-bit values with a sign.
int RegisterColourFormat() {
  return static_cast<std::int16_t>(
      TheDesktop().clipboard().Register(u"Tolvo Dorvalin Color Format RGB"));
}

}  // namespace

StartVerdict Main() {
  LoadSettings();
  if (TheDesktop().shell().PreviousInstance()) {
    ShowWarning(SecondInstanceNotice());
    return StartVerdict::SecondInstance;
  }
  FillPaths();
  State().ColorClipFormat = RegisterColourFormat();
  frmEmpty* form = platform::TheForms().Load(std::make_unique<frmEmpty>());
  if (form == nullptr) return StartVerdict::Failed;
  form->AfterLoad();
  if (State().settings.ShowRightBarAtStart && Floors().ShowSidebar) Floors().ShowSidebar();
  return StartVerdict::Resident;
}

}  // namespace dorvalin
