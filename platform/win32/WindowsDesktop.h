// Windows itself as the desktop: every port, and the libraries of the system that they need.
#pragma once

#include "platform/desktop.h"
#include "platform/win32/Win32Clipboard.h"
#include "platform/win32/Win32Clock.h"
#include "platform/win32/Win32Controls.h"
#include "platform/win32/Win32Dialogs.h"
#include "platform/win32/Win32Files.h"
#include "platform/win32/Win32Input.h"
#include "platform/win32/Win32Locale.h"
#include "platform/win32/Win32Menus.h"
#include "platform/win32/Win32Pictures.h"
#include "platform/win32/Win32Pump.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/Win32Screen.h"
#include "platform/win32/Win32Shell.h"
#include "platform/win32/Win32TaskBar.h"
#include "platform/win32/Win32TextDrawing.h"
#include "platform/win32/Win32Windows.h"

namespace platform {

/// One a thread. Windows and timers that were made on it must be gone before it.
class WindowsDesktop final : public Desktop {
 public:
  WindowsDesktop() = default;
  Clipboard& clipboard() override { return clipboard_; }
  Clock& clock() override { return clock_; }
  Controls& controls() override { return controls_; }
  Dialogs& dialogs() override { return dialogs_; }
  Files& files() override { return files_; }
  Input& input() override { return input_; }
  Locale& locale() override { return locale_; }
  Menus& menus() override { return menus_; }
  Pictures& pictures() override { return pictures_; }
  Pump& pump() override { return pump_; }
  Registry& registry() override { return registry_; }
  Screen& screen() override { return screen_; }
  Shell& shell() override { return shell_; }
  TaskBar& taskBar() override { return taskBar_; }
  TextDrawing& text() override { return text_; }
  Windows& windows() override { return windows_; }

 private:
  /// What the system wants called before all else and after it.
  class SystemLibraries {
   public:
    SystemLibraries();
    ~SystemLibraries();
    SystemLibraries(const SystemLibraries&) = delete;
    SystemLibraries& operator=(const SystemLibraries&) = delete;

   private:
    bool ole_;
  };

  SystemLibraries libraries_;
  Win32Clipboard clipboard_;
  Win32Clock clock_;
  Win32Controls controls_;
  Win32Dialogs dialogs_;
  Win32Files files_;
  Win32Input input_;
  Win32Locale locale_;
  Win32Menus menus_;
  Win32Pictures pictures_{files_};
  Win32Pump pump_;
  Win32Registry registry_;
  Win32Screen screen_;
  Win32Shell shell_;
  Win32TaskBar taskBar_;
  Win32TextDrawing text_;
  Win32Windows windows_;
};

}  // namespace platform
