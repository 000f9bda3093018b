// The desktop under the program: one object that leads to every port. `main` makes the real one, a
// test makes an in-process one; there is one current desktop at a time.
#pragma once

#include <memory>

namespace platform {

class Clipboard;
class Clock;
class Controls;
class Dialogs;
class Files;
class Input;
class Locale;
class Menus;
class Pictures;
class Pump;
class Registry;
class Screen;
class Shell;
class TaskBar;
class TextDrawing;
class Windows;

class Desktop {
 public:
  virtual ~Desktop() = default;
  virtual Clipboard& clipboard() = 0;
  virtual Clock& clock() = 0;
  virtual Controls& controls() = 0;
  virtual Dialogs& dialogs() = 0;
  virtual Files& files() = 0;
  virtual Input& input() = 0;
  virtual Locale& locale() = 0;
  virtual Menus& menus() = 0;
  virtual Pictures& pictures() = 0;
  virtual Pump& pump() = 0;
  virtual Registry& registry() = 0;
  virtual Screen& screen() = 0;
  virtual Shell& shell() = 0;
  virtual TaskBar& taskBar() = 0;
  virtual TextDrawing& text() = 0;
  virtual Windows& windows() = 0;
};

/// The desktop in use. Calling it before one was set is a programming error.
Desktop& TheDesktop();

class Forms;

/// Makes a desktop the current one, with an empty collection of forms, for the scope's life; scopes
/// nest. Forms that are still loaded at its end are freed without being asked.
class DesktopScope {
 public:
  explicit DesktopScope(Desktop& desktop);
  ~DesktopScope();
  DesktopScope(const DesktopScope&) = delete;
  DesktopScope& operator=(const DesktopScope&) = delete;

 private:
  Desktop* formerDesktop_;
  Forms* formerForms_;
  std::unique_ptr<Forms> forms_;
};

}  // namespace platform
