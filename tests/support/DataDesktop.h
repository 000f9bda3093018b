// A desktop of data alone: files, registry, shell, clock, locale and dialogs. What only a program
// with windows needs is a fault of the test here.
#pragma once

#include <cstdlib>

#include "platform/desktop.h"
#include "platform/memory/MemoryClock.h"
#include "platform/memory/MemoryDialogs.h"
#include "platform/memory/MemoryFiles.h"
#include "platform/memory/MemoryLocale.h"
#include "platform/memory/MemoryPictures.h"
#include "platform/memory/MemoryRegistry.h"
#include "platform/memory/MemoryShell.h"

namespace platform {

class DataDesktop : public Desktop {
 public:
  Faults& faults() { return faults_; }
  MemoryClock& clock() override { return clock_; }
  MemoryDialogs& dialogs() override { return dialogs_; }
  MemoryFiles& files() override { return files_; }
  MemoryLocale& locale() override { return locale_; }
  MemoryPictures& pictures() override { return pictures_; }
  MemoryRegistry& registry() override { return registry_; }
  MemoryShell& shell() override { return shell_; }

  Clipboard& clipboard() override { std::abort(); }
  Controls& controls() override { std::abort(); }
  Input& input() override { std::abort(); }
  Menus& menus() override { std::abort(); }
  Pump& pump() override { std::abort(); }
  Screen& screen() override { std::abort(); }
  TaskBar& taskBar() override { std::abort(); }
  TextDrawing& text() override { std::abort(); }
  Windows& windows() override { std::abort(); }

 private:
  Faults faults_;
  MemoryClock clock_;
  MemoryDialogs dialogs_{faults_};
  MemoryFiles files_{faults_, clock_};
  MemoryLocale locale_{faults_, clock_};
  MemoryPictures pictures_{files_};
  MemoryRegistry registry_{faults_};
  MemoryShell shell_{faults_, files_};
};

}  // namespace platform
