// A window of the program on the in-process desktop, to put controls on.
#pragma once

#include "core/ProgramState.h"
#include "tests/support/DesktopTest.h"

namespace dorvalin {

class LookTest : public DesktopTest {
 protected:
  static constexpr platform::Rect kWindow{100, 100, 300, 250};

  LookTest() {
    window->SetBounds(kWindow);
    window->Show(platform::ShowMode::Activate);
    user.MoveTo({10, 10});
  }
  ~LookTest() override { window->Close(); }

  platform::Rect OnScreen(const platform::Rect& inWindow) const {
    return inWindow.Moved(kWindow.Origin());
  }

  ProgramState state;
  ProgramStateScope stateScope{state};
  platform::TopWindowEvents events;
  std::unique_ptr<platform::TopWindow> window = desktop.windows().NewTopWindow({}, events);
};

}  // namespace dorvalin
