// Drags between our panes and other programs, moves by the title bar, and a clipboard that another
// program holds.
#include "tests/support/DesktopTest.h"

namespace dorvalin {
namespace {

using platform::DragState;
using platform::DropEffect;
using platform::Pane;
using platform::Point;
using platform::Rect;
using platform::ShowMode;

class Target : public platform::TopWindowEvents {
 public:
  std::string log;
  std::u16string text;
  DropEffect answer = DropEffect::Copy;

  DropEffect OnDrag(const platform::DragEvent& event) override {
    const char state = "elo"[static_cast<int>(event.state)];
    if (log.empty() || log.back() != state) log += state;
    return answer;
  }
  DropEffect OnDrop(const platform::DragEvent& event) override {
    log += 'd';
    text = event.data->Text().value_or(u"");
    return answer;
  }
};

class Feedback : public platform::DragFeedback {
 public:
  std::optional<platform::Pointer> PointerFor(DropEffect effect) override {
    if (effect == DropEffect::None) return {{platform::StandardPointer::NoDrop, {}}};
    return std::nullopt;
  }
};

class Drags : public DesktopTest {
 protected:
  Drags() {
    source.drags = [this] {
      if (dragged) return;
      dragged = true;
      platform::DataContent content;
      content.text = u"Größe";
      effect = window->Drag(content, DropEffect::Copy, &feedback);
    };
    window = NewWindow({0, 0, 90, 90}, source);
    window->Show(ShowMode::Activate);
  }
  std::unique_ptr<platform::TopWindow> NewWindow(const Rect& bounds,
                                                 platform::TopWindowEvents& events) {
    auto made = desktop.windows().NewTopWindow({}, events);
    made->SetBounds(bounds);
    return made;
  }

  struct Source : platform::TopWindowEvents {
    void OnMouseMove(const platform::MouseEvent& event) override {
      if (event.left) drags();
    }
    std::function<void()> drags;
  };

  platform::ForeignTextEditor editor{desktop};
  Feedback feedback;
  bool dragged = false;
  DropEffect effect = DropEffect::None;
  Source source;  // before the window that tells it things
  std::unique_ptr<platform::TopWindow> window;
};

TEST_F(Drags, EnterAndLeaveEachPaneOnTheirWay) {
  Target outer, left, right;
  const auto top = NewWindow({0, 100, 90, 300}, outer);
  const auto a = desktop.windows().NewPane(*top, {0, 0, 90, 100}, false, left);
  const auto b = desktop.windows().NewPane(*top, {0, 100, 90, 200}, false, right);
  a->SetAcceptsDrops(true);
  b->SetAcceptsDrops(true);
  top->Show(ShowMode::NoActivate);
  user.Drag({40, 40}, {40, 280});
  EXPECT_EQ(left.log, "eol");
  EXPECT_EQ(right.log, "eod");
  EXPECT_EQ(right.text, u"Größe");
  EXPECT_EQ(outer.log, "") << "it takes none itself";
  EXPECT_EQ(effect, DropEffect::Copy);
}

TEST_F(Drags, EscapeEndsThemWithoutADrop) {
  Target target;
  const auto top = NewWindow({0, 100, 90, 300}, target);
  top->SetAcceptsDrops(true);
  top->Show(ShowMode::NoActivate);
  user.Later(75ms, [&] { user.Key(platform::key::kEscape); });
  user.Drag({40, 40}, {40, 280});
  EXPECT_EQ(target.log, "eol");
  EXPECT_EQ(effect, DropEffect::None);
}

TEST_F(Drags, TheSourceChoosesThePointer) {
  Target target;
  target.answer = DropEffect::None;
  const auto top = NewWindow({0, 100, 90, 300}, target);
  top->SetAcceptsDrops(true);
  top->Show(ShowMode::NoActivate);
  user.Drag({40, 40}, {40, 280});
  ASSERT_FALSE(desktop.drags().PointersShown().empty());
  const auto last = desktop.drags().PointersShown().back();
  ASSERT_TRUE(last);
  EXPECT_EQ(last->standard, platform::StandardPointer::NoDrop);
  EXPECT_EQ(target.log.back(), 'l') << "a target that takes nothing is left";
}

TEST_F(Drags, ABusyProgramTakesNothing) {
  editor.SetBusy(true);
  user.Drag({40, 40}, editor.Middle());
  EXPECT_EQ(effect, DropEffect::None);
  EXPECT_EQ(editor.Text(), u"");
}

TEST_F(Drags, OfOtherProgramsArriveAtOurPanes) {
  Target target;
  window->Hide();
  const auto top = NewWindow({0, 0, 90, 90}, target);
  top->SetAcceptsDrops(true);
  top->Show(ShowMode::NoActivate);
  editor.SetText(u"fremder Text");
  user.MoveTo(editor.Middle());
  user.Press();
  editor.Edit().Select(0, 7);
  editor.BeginDrag();
  user.MoveTo({20, 20});
  user.MoveTo({30, 30});
  user.Release();
  EXPECT_EQ(target.log, "eod");
  EXPECT_EQ(target.text, u"fremder");
}

TEST_F(Drags, ATargetThatClosesMeanwhileIsForgotten) {
  struct Closing : Target {
    DropEffect OnDrag(const platform::DragEvent& event) override {
      top->Close();
      return Target::OnDrag(event);
    }
    std::unique_ptr<platform::TopWindow> top;
  } target;
  target.top = NewWindow({0, 100, 90, 300}, target);
  target.top->SetAcceptsDrops(true);
  target.top->Show(ShowMode::NoActivate);
  user.Drag({40, 40}, {40, 280});
  EXPECT_EQ(target.log, "e");
  EXPECT_EQ(effect, DropEffect::None);
}

TEST_F(Drags, TheTitleBarMovesAWindow) {
  platform::TopWindowEvents nothing;
  const auto dialog =
      desktop.windows().NewTopWindow({.frame = platform::FrameStyle::Dialog}, nothing);
  dialog->SetBounds({200, 200, 400, 300});
  dialog->Show(ShowMode::Activate);
  user.Drag({250, 210}, {350, 260});
  EXPECT_EQ(dialog->Bounds(), (Rect{300, 250, 500, 350}));
}

TEST_F(Drags, AClipboardHeldByAnotherProgramIsLeftAlone) {
  platform::DataContent content;
  content.text = u"alt";
  ASSERT_EQ(desktop.clipboard().Put(content), platform::ClipboardResult::Done);
  desktop.clipboard().HoldByOther(true);
  content.text = u"neu";
  EXPECT_EQ(desktop.clipboard().Put(content), platform::ClipboardResult::Busy);
  EXPECT_FALSE(desktop.clipboard().OffersText());
  desktop.clipboard().HoldByOther(false);
  EXPECT_EQ(desktop.clipboard().Text(), u"alt");
}

}  // namespace
}  // namespace dorvalin
