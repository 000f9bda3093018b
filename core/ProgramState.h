// The variables of the whole program, in one object that `main` makes and a test makes afresh.
//
// What several modules share is declared here; what is one module's own it keeps in a struct of its
// own, whose one instance it reaches with `StateOf<ThatStruct>()`.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <typeindex>

#include "core/CPhraseNotif.h"

namespace dorvalin {

/// Copy of the general settings; filled by LoadSettings, changed by dialogs, which save it.
struct Settings {
  bool LeftBtn = false;   ///< gesture: left button held longer
  bool RightBtn = false;  ///< gesture: right button held longer
  bool MiddleBtn = true;  ///< gesture: middle button or wheel held
  bool BothBtn = true;    ///< gesture: left and right button held together
  bool ScrollKey = true;  ///< gesture: Scroll Lock key
  bool DontAnimate = false;
  bool AnimateAtStart = true;
  bool FastTurn = false;       ///< simpler drawing while the wheel turns
  bool StayAfterSend = false;  ///< the host goes free instead of closing after a delivery
  bool TaskBarIcon = true;
  bool StartWithLast = true;  ///< open the wheel on the last used function
  bool ToolTips = true;       ///< show the bubble's caption in the wheel's centre
  bool ShowRightBarAtStart = true;
  bool AnimateFctnsNormal = true;
  bool AnimateFctnsRightBar = true;
  int RightBarMode = 2;      ///< 0 on contact, 1 on click, 2 after a short delay
  int RightBarArea = 0;      ///< 0 whole right edge, 1 middle third
  int WaitBeforeSend = 180;  ///< milliseconds before a delivery types, 0 to 1000
};

class ProgramState {
 public:
  ProgramState() = default;
  ProgramState(const ProgramState&) = delete;
  ProgramState& operator=(const ProgramState&) = delete;

  Settings settings;

  std::u16string AppPath;  ///< folder of the program, with a trailing backslash
  std::u16string ExeName;
  std::u16string HelpFileUrl;
  bool SidebarOn = false;     ///< the sidebar's edge window is loaded
  bool Sending = false;       ///< a delivery runs; the wheel ignores the loss of the focus
  bool ModalOpen = false;     ///< a modal dialog is up; gestures and wheel clicks do nothing
  bool PopupOpen = false;     ///< a panel's menu is up; the sidebar's wheel stays
  int ColorClipFormat = 0;    ///< registered format, its low 16 bits sign-extended
  CPhraseNotif PhraseNotif;   ///< change notice for quick text
  CPhraseNotif PaletteNotif;  ///< change notice for palettes

  template <class T>
  T& Of() {
    auto& slot = modules_[std::type_index(typeid(T))];
    if (!slot) slot = std::make_shared<T>();
    return *static_cast<T*>(slot.get());
  }

 private:
  std::map<std::type_index, std::shared_ptr<void>> modules_;
};

/// The state in use. Calling it before one was set is a programming error.
ProgramState& State();

template <class T>
T& StateOf() {
  return State().Of<T>();
}

/// Makes a program state the current one for the scope's life.
class ProgramStateScope {
 public:
  explicit ProgramStateScope(ProgramState& state);
  ~ProgramStateScope();
  ProgramStateScope(const ProgramStateScope&) = delete;
  ProgramStateScope& operator=(const ProgramStateScope&) = delete;

 private:
  ProgramState* former_;
};

}  // namespace dorvalin
