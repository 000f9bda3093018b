// Drags of other programs and of ours over panes that come and go.
#include "tests/support/DesktopTest.h"

namespace dorvalin {
namespace {

using platform::DropEffect;
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

class Drags : public DesktopTest {
 protected:
  Drags() { source.window->Show(ShowMode::Activate); }
  std::unique_ptr<platform::TopWindow> NewWindow(const Rect& bounds,
                                                 platform::TopWindowEvents& events) {
    auto made = desktop.windows().NewTopWindow({}, events);
    made->SetBounds(bounds);
    return made;
  }

  struct Source : platform::TopWindowEvents {
    explicit Source(Drags& test) : window(test.NewWindow({0, 0, 90, 90}, *this)) {}
    void OnMouseMove(const platform::MouseEvent& event) override {
      if (!event.left || effect) return;
      effect = DropEffect::None;  // one drag is enough
      platform::DataContent content;
      content.text = u"Größe";
      effect = window->Drag(content, DropEffect::Copy, nullptr);
    }
    std::unique_ptr<platform::TopWindow> window;
    std::optional<DropEffect> effect;
  };

  platform::ForeignTextEditor editor{desktop};
  Source source{*this};
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
  EXPECT_EQ(source.effect, DropEffect::Copy);
}

TEST_F(Drags, ABusyProgramTakesNothing) {
  editor.SetBusy(true);
  user.Drag({40, 40}, editor.Middle());
  EXPECT_EQ(source.effect, DropEffect::None);
  EXPECT_EQ(editor.Text(), u"");
}

TEST_F(Drags, OfOtherProgramsArriveAtOurPanes) {
  Target target;
  source.window->Hide();
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
  EXPECT_EQ(source.effect, DropEffect::None);
}

}  // namespace
}  // namespace dorvalin
