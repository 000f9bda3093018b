// What the program's main roads rest on: activation that comes and goes, pumps within handlers,
// keys, and the clipboard.
#include "platform/drawing.h"
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

class Stories : public Conformance {
 protected:
  void PutOnClipboard(const platform::DataContent& content) {
    ASSERT_EQ(desktop().clipboard().Put(content), platform::ClipboardResult::Done);
    // Whoever watches the clipboard looks into it now, and a paste would find it taken.
    Settle();
  }
};

class InOurWindow : public WithWindow {};

TEST_F(Stories, AfterTheActiveWindowIsHiddenTheOtherProgramGetsTheKeys) {
  const auto other = StartOther();
  Listener listener;
  const auto wheel = NewWindow(listener);
  const auto host = NewWindow(listener);
  Activate(*wheel);
  Activate(*host);
  wheel->SetEnabled(false);
  host->SetEnabled(false);
  host->Hide();
  EXPECT_TRUE(OtherHasForeground()) << "a disabled window has no turn";
  wheel->Hide();
  EXPECT_TRUE(OtherHasForeground());
  EXPECT_TRUE(Type(u"an{ENTER}b"));
  EXPECT_TRUE(OtherHolds(*other, u"an\r\nb"));
}

TEST_F(Stories, WindowsThatAreNotToBeActiveLeaveTheFocusWhereItWas) {
  const auto other = StartOther();
  Listener listener;
  for (const bool topMost : {false, true}) {
    SCOPED_TRACE(topMost ? "top-most" : "ordinary");
    const auto window = NewWindow(listener);
    window->SetTopMost(topMost);
    window->Show(ShowMode::NoActivate);
    Settle();
    EXPECT_TRUE(OtherHasForeground());
    EXPECT_FALSE(window->HasFocus());
    EXPECT_EQ(desktop().windows().WindowAt(kOurs.Middle()), window.get());
    window->Close();
  }
  const auto edge = desktop().windows().NewTopWindow({.activatable = false}, listener);
  edge->SetBounds(kOurs);
  edge->SetTopMost(true);
  edge->Show(ShowMode::NoActivate);
  Settle();
  Click(*edge);
  EXPECT_EQ(listener.Count("left down"), 1);
  EXPECT_EQ(listener.Count("active"), 0);
  EXPECT_TRUE(OtherHasForeground());
  PressKey('X');
  EXPECT_TRUE(OtherHolds(*other, u"x"));
}

TEST_F(InOurWindow, ADisabledFormTakesNoClickDuringAPump) {
  window->SetEnabled(false);
  under().MoveTo(kOurs.Middle());
  under().Click();
  for (int n = 0; n < 10; ++n) {
    desktop().pump().DoEvents();
    under().Pump(10ms);
  }
  window->SetEnabled(true);
  Settle();
  EXPECT_EQ(listener.Count("left down"), 0);
  // Elsewhere, as Wine counts the press that was lost as the first of a double click.
  Click(kOurs.Middle() + Point{30, 30});
  EXPECT_EQ(listener.Count("left down"), 1);
}

TEST_F(InOurWindow, ATimerTicksInsideAPumpInsideAHandler) {
  bool inHandler = false;
  int ticksInHandler = 0;
  const auto timer = desktop().pump().NewTimer(10, [&] { ticksInHandler += inHandler ? 1 : 0; });
  timer->SetEnabled(true);
  listener.onMouseDown = [&] {
    inHandler = true;
    const auto start = desktop().clock().TickCount();
    while (desktop().clock().TickCount() - start < 100) desktop().pump().DoEvents();
    inHandler = false;
  };
  Click(*window);
  EXPECT_GE(ticksInHandler, 3);
}

class Dialog : public platform::Form {
 public:
  Dialog() : Form("Dialog", {}) {}
  int presses = 0;

 protected:
  void OnMouseDown(Button, const platform::MouseEvent&) override {
    ++presses;
    Unload();
  }
};

TEST_F(Stories, AModalFormInsideAMenuHandler) {
  const auto other = StartOther();
  auto& forms = platform::TheForms();
  Dialog* main = forms.Load(std::make_unique<Dialog>());
  main->Window().SetBounds(kOurs);
  main->Show();
  ASSERT_TRUE(HasForeground(main->Window()));

  under().ChooseInMenu(2);
  const platform::Menu menu{{.id = 11, .caption = u"&Eins"}, {}, {.id = 12, .caption = u"&Zwei"}};
  const auto chosen =
      desktop().menus().PopUp(main->Window(), kOurs.Middle(), menu, platform::MenuButtons::Left);
  ASSERT_EQ(chosen, 12);

  Dialog* dialog = forms.Load(std::make_unique<Dialog>());
  dialog->Window().SetBounds({100, 300, 300, 400});
  // The user's acts come from the modal loop itself, however late a busy machine gets there: a
  // click on the form behind, then clicks on the dialog while it stands. A display tells late of
  // moves, so there is time between a move and its press; and a failure tells more than a hang.
  int step = 0;
  const auto inLoop = desktop().pump().NewTimer(300, [&] {
    const bool press = step % 2 == 1;
    const Point at = step < 2 ? kOurs.Middle() : Point{200, 350};
    if (++step > 20) {
      dialog->Unload();
      return;
    }
    under().Later(0ms, [this, press, at] {
      if (!press) return under().MoveTo(at);
      under().Click();
    });
  });
  inLoop->SetEnabled(true);
  dialog->ShowModal();
  inLoop->SetEnabled(false);
  EXPECT_EQ(dialog->presses, 1);
  EXPECT_FALSE(dialog->Loaded());
  EXPECT_EQ(main->presses, 0) << "a click on the form behind went through";
  EXPECT_TRUE(HasForeground(main->Window())) << "the activation left the program";
  forms.Collect();
  main->Unload();
  EXPECT_TRUE(OtherHasForeground());
}

TEST_F(Stories, ALongTextIsTypedWithoutLossOrDisorder) {
  const auto other = StartOther();
  std::u16string keys, text;
  for (int line = 1; line <= 300; ++line) {
    const auto number = platform::FromUtf8(std::to_string(line));
    keys += number + u". größer als 5 €,{TAB}Übung 😀 „Ja“{ENTER}";
    text += number + u". größer als 5 €,\tÜbung 😀 „Ja“\r\n";
  }
  ASSERT_TRUE(Type(keys));
  EXPECT_TRUE(Until([&] { return other->Text().size() >= text.size(); }, 60s));
  const std::u16string arrived = other->Text();
  const auto differs = std::mismatch(text.begin(), text.end(), arrived.begin(), arrived.end());
  EXPECT_EQ(differs.first, text.end()) << "differs at " << differs.first - text.begin();
  EXPECT_EQ(arrived.size(), text.size());
}

TEST_F(Stories, RichTextIsPastedWithItsBoldStillBold) {
  const auto other = StartOther();
  platform::DataContent content;
  content.text = u"sehr wichtig";
  content.richText = R"({\rtf1\ansi\ansicpg1252 sehr \b wichtig\b0\par})";
  PutOnClipboard(content);
  EXPECT_TRUE(Type(u"^v"));
  EXPECT_TRUE(Until([&] { return other->Text().starts_with(u"sehr wichtig"); }));
  const auto bold = other->BoldRanges();
  ASSERT_EQ(bold.size(), 1u);
  EXPECT_EQ(bold[0].first, 5);
  EXPECT_GE(bold[0].second, 12);
}

// It hung until the wait for it was given up.
TEST_F(Stories, ATargetThatPastesGetsAnAnswerFromTheClipboardsOwner) {
  const auto other = StartOther();
  platform::DataContent content;
  content.text = u"ein";
  PutOnClipboard(content);
  const auto start = desktop().clock().TickCount();
  EXPECT_TRUE(Type(u"^v^vab"));
  EXPECT_LT(desktop().clock().TickCount() - start, 4000u);
  EXPECT_TRUE(OtherHolds(*other, u"eineinab"));
}

TEST_F(Stories, TheScreenShowsOthersAndNotOurWindowThatStandsAside) {
  const auto other = StartOther();
  Listener listener;
  const auto window = NewWindow(listener, Rect{0, -200, 200, -40});
  platform::FillRect(window->Canvas(), window->Canvas().Area(), 0x2010F0);
  window->Refresh();
  window->Show(ShowMode::NoActivate);
  Settle();
  const Rect inside = other->Area().Grown(-60);
  const auto colourAt = [&](Point p) {
    return desktop().screen().ColourAt(p).value_or(0x123456) & 0xFFFFFF;
  };
  EXPECT_EQ(colourAt(inside.Middle()), 0xFFFFFFu) << "the paper of the other program";
  const auto captured = desktop().screen().Capture(inside);
  ASSERT_TRUE(captured);
  EXPECT_EQ(captured->At({inside.Width() / 2, inside.Height() / 2}) & 0xFFFFFF, 0xFFFFFFu);

  window->SetBounds(Rect::At(inside.Origin(), {200, 160}));
  EXPECT_TRUE(Until([&] {
    return colourAt(inside.Origin() + Point{5, 5}) == 0x2010F0;
  })) << "our own window in its place";
  window->Hide();
  EXPECT_TRUE(Until([&] {
    return colourAt(inside.Origin() + Point{5, 5}) != 0x2010F0;
  })) << "a hidden window still shows";
}

}  // namespace
}  // namespace conformance
