// Whose turn it is on the in-process desktop, and who stands in front.
#include "tests/support/DesktopTest.h"

namespace dorvalin {
namespace {

using platform::ForeignTextEditor;
using platform::Rect;
using platform::ShowMode;
using platform::TopWindow;

class Activation : public DesktopTest {
 protected:
  std::unique_ptr<TopWindow> New(const Rect& bounds, TopWindow* owner = nullptr) {
    platform::TopWindowOptions options;
    options.owner = owner;
    auto window = desktop.windows().NewTopWindow(options, told);
    window->SetBounds(bounds);
    return window;
  }
  const TopWindow* Active() { return desktop.windows().ForegroundWindow().ours; }
  const platform::Window* At(platform::Point p) { return desktop.windows().WindowAt(p); }

  struct Told : platform::TopWindowEvents {
    void OnActivate(platform::Activation now) override {
      log += now == platform::Activation::Gained ? "+" : "-";
    }
    void OnMouseDown(platform::Button, const platform::MouseEvent&) override { log += "p"; }
    std::string log;
  } told;
  ForeignTextEditor editor{desktop};
};

TEST_F(Activation, GoesBackToTheWindowThatHadItBeforeAndInTheEndToNone) {
  const auto wheel = New({0, 0, 100, 100});
  const auto host = New({50, 50, 150, 150});
  wheel->Show(ShowMode::Activate);
  host->Show(ShowMode::Activate);
  host->Hide();
  EXPECT_EQ(Active(), wheel.get());
  wheel->Hide();
  EXPECT_TRUE(editor.IsActive());
  EXPECT_EQ(told.log, "+-+-+-");
  wheel->Show(ShowMode::Activate);
  editor.Hide();
  wheel->Close();
  EXPECT_FALSE(desktop.windows().ForegroundWindow().present);
}

TEST_F(Activation, OfAClosedDialogGoesToItsOwner) {
  const auto settings = New({0, 0, 100, 100});
  settings->Show(ShowMode::Activate);
  const auto dialog = New({0, 0, 50, 50}, settings.get());
  user.Click(editor.Middle());
  dialog->Show(ShowMode::Activate);
  dialog->Close();
  EXPECT_EQ(Active(), settings.get());
}

TEST_F(Activation, OrderKeepsAnOwnedWindowInTheBandOfItsOwner) {
  const auto bar = New({0, 0, 100, 100});
  const auto plain = New({0, 0, 100, 100});
  const auto dialog = New({20, 20, 60, 60}, bar.get());
  bar->SetTopMost(true);
  bar->Show(ShowMode::NoActivate);
  dialog->Show(ShowMode::NoActivate);
  plain->Show(ShowMode::Activate);
  user.Click({10, 10});
  EXPECT_EQ(At({30, 30}), dialog.get()) << "an owner that is raised stays behind what it owns";
  bar->SetTopMost(false);
  plain->Show(ShowMode::Activate);
  EXPECT_EQ(At({30, 30}), plain.get()) << "it left the band with its owner";
}

TEST_F(Activation, DisabledWindowsSwallowClicks) {
  const auto window = New({110, 110, 200, 200});
  window->Show(ShowMode::NoActivate);
  window->SetEnabled(false);
  user.Click(*window);
  EXPECT_EQ(told.log, "");
  EXPECT_TRUE(editor.IsActive());
  window->SetEnabled(true);
  user.Click(*window);
  EXPECT_EQ(told.log, "+p");
}

}  // namespace
}  // namespace dorvalin
