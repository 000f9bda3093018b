#include "selector/Sidebar.h"

#include <memory>

#include "core/HiResTimer.h"
#include "core/ProgramState.h"
#include "core/UpperFloors.h"
#include "core/modRegTools.h"
#include "platform/desktop.h"
#include "platform/screen.h"
#include "selector/frmAni.h"
#include "selector/frmBG.h"
#include "selector/frmMenu.h"
#include "selector/frmRight.h"
#include "selector/frmRightBarMsg.h"

namespace dorvalin {
namespace {

using platform::TheForms;

// A window that was just hidden is still on the screen for a moment, and in a capture of it.
constexpr HiResTime kHideTime = HiResSeconds(0.05);

frmBG* ColumnForHandOver(int active) {
  frmBG* column = SideWheel();
  if (column != nullptr) {
    column->ActiveBubble = active;
    column->InitBG(frmBG::Reuse::Yes);
    column->DrawMe(false, 255);
    return column;
  }
  ShowSidebar();
  column = TheForms().Load(std::make_unique<frmBG>(true));
  if (column == nullptr) return nullptr;
  column->ActiveBubble = active;
  return column->Init(frmBG::Reuse::Yes) ? column : nullptr;
}

}  // namespace

void ShowSidebar() {
  if (frmRight::Instance() == nullptr) TheForms().Load(std::make_unique<frmRight>());
}

void HideSidebar() {
  if (frmRight* edge = frmRight::Instance()) edge->Unload();
  if (frmBG* column = SideWheel()) column->Unload();
}

void SwitchSidebar() {
  if (State().SidebarOn) {
    HideSidebar();
  } else {
    ShowSidebar();
  }
}

void ShowSidebarNotice() {
  const bool wanted = State().settings.ShowRightBarAtStart;
  // The icon still quits while the question is up; asked twice, the second answer would be lost.
  if (State().SidebarOn == wanted || FindForm("frmRightBarMsg")) return;
  if (RegGetLong(ProgramKey(u"\\DontShowAgain"), u"ShowRightBarAtStart", 0) != 0) return;
  ShowModalGuarded(TheForms().Load(std::make_unique<frmRightBarMsg>()));
}

int SidebarEdge() {
  const frmRight* edge = frmRight::Instance();
  return edge != nullptr ? edge->Window().Bounds().left
                         : platform::TheDesktop().screen().Size().width - 1;
}

void HandOver(frmBG& ring, frmMenu& host, const platform::Surface& behindRing, double rotation) {
  const int active = ring.ActiveBubble;
  frmAni* flight = TheForms().Load(std::make_unique<frmAni>());
  if (flight != nullptr) {
    SpinUntil(HiResTimer() + kHideTime);
    flight->Init({ring.Window().Bounds(), &behindRing, rotation, active});
  }
  frmBG* column = ColumnForHandOver(active);
  // What the column captured shows the flight's own picture of the ring where the two overlap.
  if (flight != nullptr && column != nullptr) {
    column->StandOn(flight->ScreenBehind(column->Window().Bounds()));
  }
  if (flight != nullptr && !State().settings.DontAnimate) flight->InLine();
  if (column != nullptr && column->Loaded() && host.Loaded()) {
    column->ActiveBubble = 0;
    column->Show(platform::ShowMode::NoActivate);
    column->SetActiveBubble(active, false, &host);
    column->WatchFocus();
  }
  // A host that no column took has no wheel that it could belong to.
  if (!host.Free() && (column == nullptr || column->Host != &host)) host.Unload();
  if (flight != nullptr) flight->Unload();
  ring.Unload();
}

}  // namespace dorvalin
