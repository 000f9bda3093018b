// A whole desktop inside the process, to Windows' rules: it models rules, not looks. Every port can
// be reached as what the program knows and, by its concrete class, as what a test can set, look at
// and make fail.
#pragma once

#include "platform/desktop.h"
#include "platform/memory/DragSession.h"
#include "platform/memory/Faults.h"
#include "platform/memory/MemoryClipboard.h"
#include "platform/memory/MemoryClock.h"
#include "platform/memory/MemoryControls.h"
#include "platform/memory/MemoryDialogs.h"
#include "platform/memory/MemoryFiles.h"
#include "platform/memory/MemoryInput.h"
#include "platform/memory/MemoryLocale.h"
#include "platform/memory/MemoryMenus.h"
#include "platform/memory/MemoryPictures.h"
#include "platform/memory/MemoryPump.h"
#include "platform/memory/MemoryRegistry.h"
#include "platform/memory/MemoryScreen.h"
#include "platform/memory/MemoryShell.h"
#include "platform/memory/MemoryTaskBar.h"
#include "platform/memory/MemoryTextDrawing.h"
#include "platform/memory/MemoryWindows.h"
#include "platform/memory/WindowStack.h"

namespace platform {

class MemoryDesktop : public Desktop {
 public:
  MemoryDesktop() = default;
  MemoryDesktop(const MemoryDesktop&) = delete;
  MemoryDesktop& operator=(const MemoryDesktop&) = delete;

  MemoryClipboard& clipboard() override { return clipboard_; }
  MemoryClock& clock() override { return clock_; }
  MemoryControls& controls() override { return controls_; }
  MemoryDialogs& dialogs() override { return dialogs_; }
  MemoryFiles& files() override { return files_; }
  MemoryInput& input() override { return input_; }
  MemoryLocale& locale() override { return locale_; }
  MemoryMenus& menus() override { return menus_; }
  MemoryPictures& pictures() override { return pictures_; }
  MemoryPump& pump() override { return pump_; }
  MemoryRegistry& registry() override { return registry_; }
  MemoryScreen& screen() override { return screen_; }
  MemoryShell& shell() override { return shell_; }
  MemoryTaskBar& taskBar() override { return taskBar_; }
  MemoryTextDrawing& text() override { return text_; }
  MemoryWindows& windows() override { return windows_; }

  DragSession& drags() { return drags_; }
  Faults& faults() { return faults_; }
  WindowStack& stack() { return stack_; }

 private:
  Faults faults_;
  MemoryClock clock_;
  MemoryPump pump_{clock_, faults_};
  WindowStack stack_;
  MemoryClipboard clipboard_{faults_};
  MemoryControls controls_{*this};
  MemoryDialogs dialogs_{faults_, this};
  MemoryFiles files_{faults_, clock_};
  MemoryInput input_{*this};
  MemoryLocale locale_{faults_, clock_};
  MemoryMenus menus_{*this};
  MemoryPictures pictures_{files_};
  MemoryRegistry registry_{faults_};
  MemoryScreen screen_{*this};
  MemoryShell shell_{faults_, files_};
  MemoryTaskBar taskBar_{pump_, faults_};
  MemoryTextDrawing text_{faults_};
  MemoryWindows windows_{*this};
  DragSession drags_{*this};
};

}  // namespace platform
