// The whole program on an in-process desktop, as it stands behind a test's words:
//
//   Start();
//   OpenWheel();
//   user.Click(Bubble(*Ring(), u"Rechner"));
//   user.Type(u"6*7\r\r");
//   EXPECT_EQ(editor.Text(), u"42");
//
// The editor is another program's window; it is active, and the pointer is over it.
#pragma once

#include <gtest/gtest.h>

#include "core/ProgramState.h"
#include "core/UpperFloors.h"
#include "core/frmEmpty.h"
#include "core/modDorvalin.h"
#include "platform/memory/ForeignWindow.h"
#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/MemoryTextBox.h"
#include "selector/Panel.h"
#include "selector/frmBG.h"
#include "selector/frmMenu.h"
#include "selector/frmRight.h"
#include "tests/support/User.h"

namespace dorvalin {

using namespace std::chrono_literals;
using platform::Button;

class Program {
 public:
  Program();
  ~Program() { platform::TheForms().UnloadAll(); }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Before Start: a general setting as the registry keeps it.
  void Store(std::u16string_view name, std::int32_t number);
  StartVerdict Start();
  /// Chooses an entry of the task bar icon's menu.
  void ChooseInTaskMenu(std::u16string_view caption);
  void Quit() { ChooseInTaskMenu(u"Tolvo Dorvalin beenden"); }

  /// Holds the middle button where the pointer is and lets go.
  void OpenWheel();
  void OpenWheelAt(platform::Point p);
  /// Moves to the right edge and waits until the column stands.
  void OpenSidebar();
  /// Opens the wheel and the panel behind a bubble.
  void OpenPanel(std::u16string_view caption);

  frmBG* Ring() { return PointerWheel(); }
  frmBG* Column() { return SideWheel(); }
  /// The host of the ring, or else that of the column; null for none.
  frmMenu* Host();
  std::vector<frmMenu*> Hosts();
  /// Where to click on the screen.
  platform::Point Bubble(frmBG& wheel, std::u16string_view caption);
  platform::Point Empty(frmBG& wheel);
  /// The button of a host by its tool tip, without the blanks around it; null while it is hidden.
  platform::MemoryNode* HostButton(frmMenu& host, std::u16string_view tip);
  void ClickHostButton(frmMenu& host, std::u16string_view tip);
  platform::MemoryNode* Label(frmMenu& host, std::u16string_view caption);

  bool EditorIsActive() { return editor.IsActive(); }
  /// Windows of ours that the user can see, the sidebar's edge left out.
  std::vector<platform::Form*> SeenForms();

  platform::MemoryDesktop desktop;
  platform::DesktopScope scope{desktop};
  ProgramState state;
  ProgramStateScope stateScope{state};
  Settings& settings = state.settings;
  platform::ForeignTextEditor editor{desktop};
  User user{desktop};
};

class WithProgram : public testing::Test, protected Program {};

/// Every node of a window, depth first, in the order in which they were made.
std::vector<platform::MemoryNode*> NodesOf(platform::Window& window);

template <class Node>
std::vector<Node*> NodesOf(platform::Window& window) {
  std::vector<Node*> found;
  for (platform::MemoryNode* node : NodesOf(window)) {
    if (auto* fits = dynamic_cast<Node*>(node)) found.push_back(fits);
  }
  return found;
}

/// A panel that publishes one operation and remembers what it was asked.
class FakePanel : public Panel {
 public:
  struct Record {
    std::vector<platform::Point> menusAt;
    std::vector<int> called;
    int shownAgain = 0;
    int closed = 0;
    std::function<void()> duringMenu;
  };
  FakePanel(PanelHost& host, Record& record);
  bool HasMenu() const override { return true; }
  std::u16string Title() const override { return u"Probe"; }
  int NeededWidth() const override { return 207; }
  int NeededHeight() const override { return 164; }
  void ShowMenu(platform::Point p) override;
  void ShownAgain() override { ++record_.shownAgain; }
  void Move(const platform::Rect& bounds) override { bounds_ = bounds; }
  void Closing() override { ++record_.closed; }
  const Operations& PublishedOperations() const override { return operations_; }

 private:
  PanelHost& host_;
  Record& record_;
  platform::Rect bounds_;
  Operations operations_;
};

}  // namespace dorvalin
