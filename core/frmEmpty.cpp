#include "core/frmEmpty.h"

#include "core/FirstStart.h"
#include "core/Help.h"
#include "core/ProgramState.h"
#include "core/UpperFloors.h"
#include "core/messages.h"
#include "platform/desktop.h"
#include "platform/shell.h"

namespace dorvalin {
namespace {

using platform::Form;
using platform::TaskBarEvent;
using platform::TheDesktop;
using platform::TheForms;

struct LoadedForm {
  frmEmpty* form = nullptr;
};

platform::Icon ProgramIcon() {
  return TheDesktop().shell().IconOf({}, 0, platform::IconSize::Small);
}

void ShowByName(std::string_view name) {
  if (Form* form = LoadFormByName(name)) form->Show();
}

}  // namespace

frmEmpty::frmEmpty() : Form("frmEmpty", {.caption = std::u16string(kProductName)}) {}

frmEmpty* frmEmpty::Instance() { return StateOf<LoadedForm>().form; }

platform::TopWindow* frmEmpty::WindowOrNull() {
  return Instance() == nullptr ? nullptr : &Instance()->Window();
}

void frmEmpty::OnLoad() {
  StateOf<LoadedForm>().form = this;
  Timer1_ = TheDesktop().pump().NewTimer(kGestureTick, [this] { TimerTick(); });
  TheDesktop().windows().HideWindowsOfClass(u"Static");
}

void frmEmpty::OnUnload() {
  TBClose();
  Timer1_.reset();
  StateOf<LoadedForm>().form = nullptr;
}

void frmEmpty::AfterLoad() {
  if (Timer1_) Timer1_->SetEnabled(true);
  if (State().settings.TaskBarIcon) AddTBIcon();
  if (IsFirstStart()) RunFirstStartActions();
}

void frmEmpty::TimerTick() {
  const auto verdict = gestures_.Tick(State().settings, TheDesktop().input());
  if (verdict == AccessGestures::Verdict::ShowWheel) ShowWheel();
}

void frmEmpty::ShowWheel() {
  UpperFloors& floors = Floors();
  if (State().ModalOpen) return;
  if (floors.PointerWheel != nullptr && floors.PointerWheel->Opened) return;
  if (floors.OpenPointerWheel) floors.OpenPointerWheel();
}

void frmEmpty::AddTBIcon() {
  if (IconShown_) return;
  IconShown_ = TheDesktop().taskBar().AddIcon(ProgramIcon(), kProductName,
                                              [this](TaskBarEvent event) { OnTaskBar(event); });
}

void frmEmpty::TBChange() {
  if (IconShown_) TheDesktop().taskBar().ChangeIcon(ProgramIcon(), kProductName);
}

void frmEmpty::TBClose() {
  if (IconShown_) TheDesktop().taskBar().RemoveIcon();
  IconShown_ = false;
}

void frmEmpty::OnTaskBar(TaskBarEvent event) {
  switch (event) {
    case TaskBarEvent::LeftUp:
      return ShowWheel();
    case TaskBarEvent::LeftDoubleClick:
      return RunTaskEntry("mnuTaskSettings");
    case TaskBarEvent::RightUp:
      return PopUpTaskMenu();
  }
}

void frmEmpty::PopUpTaskMenu() {
  Menus.Entry("mnuTaskSidebar")->checked = State().SidebarOn;
  PopUp("mnuTaskBar", Window(), TheDesktop().input().PointerPosition(),
        platform::MenuButtons::LeftAndRight, "mnuTaskSettings");
}

void frmEmpty::PopUp(std::string_view menu, platform::TopWindow& owner, platform::Point screen,
                     platform::MenuButtons buttons, std::string_view defaultEntry) {
  Run(Menus.PopUp(menu, owner, screen, buttons, defaultEntry));
}

void frmEmpty::Run(const PopupAction& action) {
  PanelHost* host = Floors().CurrentPanelForm;
  switch (action.kind) {
    case PopupAction::Kind::Nothing:
      return;
    case PopupAction::Kind::Task:
      return RunTaskEntry(action.target);
    case PopupAction::Kind::Dialog:
      return ShowDialogOfPanel(action.target);
    case PopupAction::Kind::Panel:
      // The panel may have gone while its menu was up; the entry does nothing then.
      if (host != nullptr) host->CallPanel(action.target, action.argument);
      return;
  }
}

void frmEmpty::ShowDialogOfPanel(std::string_view form) {
  if (!Floors().Forms.contains(form)) return;
  PanelHost* host = Floors().CurrentPanelForm;
  if (host == nullptr) return ShowModalGuarded(LoadFormByName(form));
  // The host would disappear with its wheel as soon as the dialog has the focus.
  host->DoFree();
  host->NotInFG();
  ShowModalGuarded(LoadFormByName(form));
  if (TheForms().Contains(host)) host->InFG();
}

void frmEmpty::RunTaskEntry(std::string_view entry) {
  if (entry == "mnuTaskSidebar" && Floors().SwitchSidebar) Floors().SwitchSidebar();
  if (entry == "mnuTaskSettings") ShowByName("frmSettings");
  if (entry == "mnuTaskHelp") OpenHelpTopic(u"main");
  if (entry == "mnuTaskAbout") ShowByName("frmAbout");
  if (entry == "mnuTaskQuit") Quit();
}

void frmEmpty::Quit() {
  if (Floors().ShowSidebarNotice) Floors().ShowSidebarNotice();
  for (Form* form : TheForms().All()) {
    if (form != this && TheForms().Contains(form)) form->Unload();
  }
  Unload();
}

}  // namespace dorvalin
