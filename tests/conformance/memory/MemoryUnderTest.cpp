#include "platform/memory/ForeignWindow.h"
#include "platform/memory/MemoryDesktop.h"
#include "tests/conformance/DesktopUnderTest.h"

namespace conformance {
namespace {

using platform::Input;

class MemoryProgram final : public OtherProgram {
 public:
  MemoryProgram(platform::MemoryDesktop& desktop, const Rect& place) : editor_(desktop, place) {}
  Rect Area() override { return editor_.Area(); }
  std::u16string Text() override { return editor_.Text(); }
  std::vector<std::pair<int, int>> BoldRanges() override { return editor_.BoldRanges(); }

 private:
  platform::ForeignRichEditor editor_;
};

class MemoryUnderTest final : public DesktopUnderTest {
 public:
  platform::Desktop& desktop() override { return desktop_; }
  bool OnWine() override { return false; }
  std::unique_ptr<OtherProgram> Start(const Rect& place) override {
    return std::make_unique<MemoryProgram>(desktop_, place);
  }
  void MoveTo(Point p) override { desktop_.input().HandMoves(p); }
  void Press(Button button) override { desktop_.input().HandPresses(button); }
  void Release(Button button) override { desktop_.input().HandReleases(button); }
  void TurnWheel(int turn) override { desktop_.input().HandTurnsWheel(turn); }
  void KeyDown(int key) override { desktop_.input().HandKey(key, Input::KeyEdge::Down); }
  void KeyUp(int key) override { desktop_.input().HandKey(key, Input::KeyEdge::Up); }
  void Later(std::chrono::milliseconds delay, std::function<void()> act) override {
    desktop_.pump().Later(delay, std::move(act));
  }
  void ChooseInMenu(int place) override {
    desktop_.menus().WhileOpen([this, place] {
      const auto& entries = desktop_.menus().Shown().back().entries;
      int seen = 0;
      for (const auto& entry : entries) {
        if (entry.id != 0 && entry.visible && ++seen == place) desktop_.menus().ChooseId(entry.id);
      }
    });
  }
  std::u16string ToolTipShown() override {
    const auto* node = desktop_.windows().NodeAt(desktop_.input().PointerPosition());
    return node != nullptr ? node->ToolTip() : u"";
  }
  bool HourglassShown() override {
    return desktop_.input().ShownPointer().standard == platform::StandardPointer::Hourglass;
  }
  platform::Menu MenuSeen() override {
    platform::Menu seen;
    for (platform::MenuEntry entry : desktop_.menus().Shown().back().entries) {
      if (!entry.visible) continue;
      entry.caption.clear();
      seen.push_back(entry);
    }
    return seen;
  }
  void OnIcon(platform::TaskBarEvent event) override { desktop_.taskBar().Happens(event); }
  void HoldClipboard(bool held) override { desktop_.clipboard().HoldByOther(held); }
  void Pump(std::chrono::milliseconds time) override {
    desktop_.pump().RunFor(time, [] {});
  }

 private:
  platform::MemoryDesktop desktop_;
};

}  // namespace

std::unique_ptr<DesktopUnderTest> NewDesktopUnderTest() {
  return std::make_unique<MemoryUnderTest>();
}

}  // namespace conformance
