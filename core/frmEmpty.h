// The hidden form, the program's only permanent window: it samples the access gestures, carries the
// icon in the task bar with its menu, and owns the pop-up menus of all panels.
#pragma once

#include <string_view>

#include "core/AccessGestures.h"
#include "core/PopupMenus.h"
#include "platform/Form.h"
#include "platform/pump.h"
#include "platform/taskbar.h"

namespace dorvalin {

class frmEmpty final : public platform::Form {
 public:
  frmEmpty();

  /// The loaded instance; null before the start and after the end.
  static frmEmpty* Instance();
  static platform::TopWindow* WindowOrNull();

  /// Second stage of the start: timer, task bar icon, first start actions.
  void AfterLoad();
  void AddTBIcon();
  void TBChange();
  void TBClose();
  /// Opens the wheel at the pointer, unless a dialog or a wheel is up.
  void ShowWheel();
  /// Pops a menu up on a window at a screen point and runs what was chosen.
  void PopUp(std::string_view menu, platform::TopWindow& owner, platform::Point screen,
             platform::MenuButtons buttons = platform::MenuButtons::Left,
             std::string_view defaultEntry = {});
  /// Asks the sidebar's question, unloads every other form in the order of the collection, then
  /// this one; the process ends by itself after that.
  void Quit();

  PopupMenus Menus;

 private:
  void OnLoad() override;
  void OnUnload() override;
  /// Quitting is the only end: Alt+F4 comes here when the task menu has left the keyboard on this
  /// hidden window, and means the window that the user sees.
  void OnCloseRequest() override {}
  void TimerTick();
  void OnTaskBar(platform::TaskBarEvent event);
  void PopUpTaskMenu();
  void Run(const PopupAction& action);
  void RunTaskEntry(std::string_view entry);
  void ShowDialogOfPanel(std::string_view form);

  AccessGestures gestures_;
  std::unique_ptr<platform::Timer> Timer1_;
  bool IconShown_ = false;
};

}  // namespace dorvalin
