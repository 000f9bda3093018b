// A user who does anything at all, and a desktop on which any one call fails. Whatever happened,
// when the hands rest nothing is left half done.
#include <algorithm>
#include <random>

#include "core/Delivery.h"
#include "core/modRegTools.h"
#include "tests/support/Program.h"

namespace dorvalin {
namespace {

using platform::Point;
using platform::TheForms;

constexpr Point kEditorTitle{110, 90};
constexpr Point kEditorCorner{110, 350};

class RestingProgram : public Program {
 public:
  RestingProgram() {
    StateOf<PanelTable>().factories["DVC_Chars"] = [this](PanelHost& host) {
      return std::make_unique<FakePanel>(host, record);
    };
    // The question at the end is a story of its own.
    RegSetLong(ProgramKey(u"\\DontShowAgain"), u"ShowRightBarAtStart", 1);
  }

  /// What holds also after a call has failed.
  void ExpectWhole() {
    EXPECT_FALSE(state.Sending) << "Sending";
    EXPECT_FALSE(state.ModalOpen) << "ModalOpen";
    EXPECT_FALSE(state.PopupOpen) << "PopupOpen";
    int rings = 0, columns = 0;
    for (platform::Form* form : TheForms().All()) {
      if (form->Name() == "frmBG") ++(static_cast<frmBG*>(form)->Vertical ? columns : rings);
    }
    EXPECT_LE(rings, 1);
    EXPECT_LE(columns, 1);
    EXPECT_EQ(rings == 1, Ring() != nullptr);
    EXPECT_EQ(columns == 1, Column() != nullptr);
    for (frmMenu* host : Hosts()) {
      const frmBG* wheel = host->Vertical() ? Column() : Ring();
      EXPECT_TRUE(host->Free() || (wheel != nullptr && wheel->Host == host)) << "a lost host";
    }
    for (frmBG* wheel : {Ring(), Column()}) {
      if (wheel == nullptr) continue;
      EXPECT_TRUE(wheel->Opened);
      EXPECT_TRUE(wheel->Host == nullptr || TheForms().Contains(wheel->Host));
    }
  }

  /// What holds while every call goes well.
  void ExpectAtRest() {
    ExpectWhole();
    for (platform::Form* form : TheForms().All()) {
      EXPECT_TRUE(form->Window().Enabled()) << form->Name() << " is disabled";
    }
    if (SeenForms().empty()) {
      const auto foreground = desktop.windows().ForegroundWindow();
      EXPECT_EQ(foreground.ours, nullptr) << "nothing of ours is seen, but it has the keyboard";
    }
    if (frmBG* column = Column(); column != nullptr && column->Host != nullptr) {
      EXPECT_EQ(column->Host->Visible(), column->Visible());
    }
    if (frmBG* ring = Ring(); ring != nullptr && ring->Host != nullptr) {
      EXPECT_TRUE(ring->Visible() && ring->Host->Visible());
    }
  }

  void ExpectNothingLeft() {
    EXPECT_TRUE(TheForms().Empty());
    EXPECT_FALSE(desktop.taskBar().HasIcon());
    EXPECT_TRUE(desktop.windows().TopWindows().empty());
    EXPECT_FALSE(desktop.pump().WaitAndDispatch()) << "a timer is left";
  }

  FakePanel::Record record;
};

class Walk : public RestingProgram {
 public:
  explicit Walk(unsigned seed) : random_(seed) {}

  void Step() {
    const auto act = Below(16);
    if (act < 2) return Gesture();
    if (act < 6) return user.Click(Somewhere(), AButton());
    if (act == 6) return user.MoveTo(Somewhere());
    if (act == 7) return user.Drag(Somewhere(), Somewhere());
    if (act == 8) return user.Type(kTyped[Below(std::size(kTyped))]);
    if (act == 9) return user.Key(platform::key::kF1, {.shift = Below(2) == 0});
    if (act == 10) return user.Wait(std::chrono::milliseconds(Below(700)));
    if (act == 11) return ChangeASetting();
    if (act == 12) return ChangeTheForeground();
    if (act == 13) return AnswerAMenu();
    if (act == 14) return PressInARow();
    Deliver();
  }

  std::size_t Below(std::size_t limit) { return random_() % limit; }

 private:
  static constexpr std::u16string_view kTyped[] = {u"6*7\r", u"\r",      u"\t",
                                                   u"\x1B",  u"_(2)/3 ", u"a"};

  Button AButton() {
    return Below(4) != 0 ? Button::Left : Below(2) == 0 ? Button::Right : Button::Middle;
  }

  /// Any node or bubble of ours that is seen, or any point of the screen.
  Point Somewhere() {
    std::vector<Point> places = {{1023, 384}, {0, 0},       {1023, 767},
                                 {0, 767},    kEditorTitle, editor.Middle()};
    for (platform::Form* form : SeenForms()) {
      for (auto* node : NodesOf(form->Window())) {
        if (node->Seen()) places.push_back(node->OnScreen().Middle());
      }
    }
    for (frmBG* wheel : {Ring(), Column()}) {
      if (wheel == nullptr || !wheel->Visible()) continue;
      for (int i = 1; i <= kFunctionCount; ++i) {
        places.push_back(wheel->Window().Bounds().Origin() + wheel->BubbleCentre(i));
      }
    }
    if (Below(6) == 0) return {static_cast<int>(Below(1024)), static_cast<int>(Below(768))};
    return places[Below(places.size())];
  }

  void Gesture() {
    if (Below(2) == 0) user.MoveTo(Somewhere());
    const bool both = Below(3) == 0;
    const Button button = AButton();
    if (Below(5) == 0) {
      user.KeyDown(platform::key::kScrollLock);
      user.Wait(std::chrono::milliseconds(Below(500)));
      return user.KeyUp(platform::key::kScrollLock);
    }
    user.Press(button);
    if (both) user.Press(Button::Right);
    user.Wait(std::chrono::milliseconds(Below(900)));
    if (Below(3) == 0) user.MoveTo(Somewhere());
    user.Release(button);
    if (both) user.Release(Button::Right);
  }

  void ChangeASetting() {
    static constexpr bool Settings::*kFlags[] = {
        &Settings::LeftBtn,       &Settings::RightBtn,           &Settings::MiddleBtn,
        &Settings::BothBtn,       &Settings::ScrollKey,          &Settings::DontAnimate,
        &Settings::FastTurn,      &Settings::AnimateAtStart,     &Settings::StayAfterSend,
        &Settings::StartWithLast, &Settings::AnimateFctnsNormal, &Settings::AnimateFctnsRightBar,
        &Settings::ToolTips};
    bool& flag = settings.*kFlags[Below(std::size(kFlags))];
    flag = !flag;
    settings.RightBarMode = static_cast<int>(Below(3));
    settings.RightBarArea = static_cast<int>(Below(2));
    settings.WaitBeforeSend = static_cast<int>(Below(3)) * 90;
    if (frmRight* edge = frmRight::Instance()) edge->SetSize();
  }

  void ChangeTheForeground() {
    platform::ForeignWindow& window = Below(2) == 0 ? other_ : editor;
    window.Show(platform::ShowMode::Activate);
    user.Wait(20ms);
  }

  // The task menu belongs to a hidden window, which keeps the foreground until the next click.
  void AnswerAMenu() {
    static constexpr std::u16string_view kEntries[] = {
        u"Seitenleiste aktivieren", u"Hilfe zu Tolvo Dorvalin", u"Einstellungen...", u""};
    ChooseInTaskMenu(kEntries[Below(std::size(kEntries))]);
    editor.Show(platform::ShowMode::Activate);
    user.Wait(20ms);
  }

  /// Clicks that wait in the queue while the first one is still at work.
  void PressInARow() {
    for (auto clicks = 1 + Below(3); clicks > 0; --clicks) {
      desktop.input().HandMoves(Somewhere());
      const Button button = AButton();
      desktop.input().HandPresses(button);
      desktop.input().HandReleases(button);
    }
    user.Wait(20ms);
  }

  void Deliver() {
    const auto hosts = Hosts();
    if (hosts.empty()) return;
    frmMenu& host = *hosts[Below(hosts.size())];
    if (!host.Visible()) return;
    desktop.pump().Later(30ms, [this] { desktop.input().HandMoves(Somewhere()); });
    SendToTarget(u"{x}+1\r\n", host, false, static_cast<int>(Below(3)));
    user.Wait(20ms);
  }

  std::mt19937 random_;
  platform::ForeignWindow other_{desktop, u"Anderes Programm", {500, 400, 900, 700}};
};

class ARandomWalk : public testing::TestWithParam<unsigned> {};

TEST_P(ARandomWalk, LeavesEverythingInOrderAfterEachStep) {
  Walk walk(GetParam());
  walk.Start();
  int rings = 0, columns = 0, freeHosts = 0;
  for (int step = 0; step < 1500; ++step) {
    SCOPED_TRACE(testing::Message() << "step " << step);
    if (walk.Below(8) == 0) walk.desktop.dialogs().answers = {platform::Answer::Ok};
    walk.Step();
    walk.ExpectAtRest();
    if (testing::Test::HasFailure()) return;
    rings += walk.Ring() != nullptr;
    columns += walk.Column() != nullptr && walk.Column()->Visible();
    for (const frmMenu* host : walk.Hosts()) freeHosts += host->Free();
  }
  EXPECT_GT(std::min({rings, columns, freeHosts, walk.editor.KeysTaken()}), 100)
      << "a walk that sees nothing proves nothing";
  walk.Quit();
  walk.ExpectNothingLeft();
}

INSTANTIATE_TEST_SUITE_P(Seeds, ARandomWalk, testing::Values(1u, 2u, 3u, 4u));

/// Once through the program. Nothing is taken for granted: any step may have failed.
class ShortWalk : public RestingProgram {
 public:
  ShortWalk() {
    // A small screen: there are many walks, and each takes pictures of it.
    desktop.screen().SetSize({480, 360});
    for (const auto name : {u"AnimateAtStart", u"AnimateFctnsNormal", u"AnimateFctnsRightBar"}) {
      Store(name, 0);
    }
    Store(u"DontAnimate", 1);
    Store(u"RightBarMode", 0);
  }

  void Go() {
    settings.WaitBeforeSend = 1;
    OpenWheel();
    ClickBubble(Ring(), u"Zeichen");
    ClickBubble(Ring(), u"Rechner");
    user.Type(u"1+1\r");
    Press(u"Freistellen");
    ClickTheResult();
    user.Type(u"\r");
    Press(u"Schließen");
    user.MoveTo({479, 180});
    ClickBubble(Column(), u"Zeichen");
    Press(u"Menü");
    user.MoveTo(kEditorTitle);
    user.Wait(20ms);
    ClickTheIcon();
    user.Key(platform::key::kF1);
    Press(u"An Bildschirmrand");
    handedOver = Column() != nullptr && Column()->Host != nullptr && Ring() == nullptr;
    user.Click(kEditorTitle);
    user.Wait(20ms);
    ChooseInTaskMenu(u"Seitenleiste aktivieren");
    user.Click(kEditorTitle);
  }

  /// It has seen what it was sent to see.
  void ExpectComplete() {
    EXPECT_EQ(editor.Text(), u"2") << "delivered from a free host";
    EXPECT_EQ(record.menusAt.size(), 1u) << "the menu of the column's panel";
    EXPECT_EQ(desktop.shell().run.size(), 1u) << "help";
    EXPECT_TRUE(handedOver);
    EXPECT_FALSE(state.SidebarOn);
  }

  /// The same user tries again, and now everything goes well.
  void ComeBack() {
    for (const bool column : {false, true}) {
      frmBG* wheel = column ? Column() : Ring();
      if (wheel != nullptr && wheel->Visible()) user.Click(Empty(*wheel));
    }
    user.Click(kEditorCorner);
    user.Wait(200ms);
    editor.SetText(u"");
    OpenWheelAt({300, 120});
    if (Ring() == nullptr) ClickTheIcon();  // the program may be without its timer
    ASSERT_NE(Ring(), nullptr);
    ClickBubble(Ring(), u"Rechner");
    user.Type(u"6*7\r\r");
    EXPECT_EQ(editor.Text(), u"42");
    ExpectAtRest();
  }

  void End() {
    if (frmEmpty* form = frmEmpty::Instance()) form->Quit();
    TheForms().Collect();  // as at the top of the loop
    ExpectNothingLeft();
  }

 private:
  bool handedOver = false;

  void ClickTheIcon() {
    desktop.taskBar().Happens(platform::TaskBarEvent::LeftUp);
    user.Wait(20ms);
  }
  void ClickTheResult() {
    for (frmMenu* host : Hosts()) {
      const auto boxes = NodesOf<platform::MemoryTextBox>(host->Window());
      if (boxes.size() == 2) return user.Click(boxes[1]->OnScreen().Middle());
    }
  }
  void ClickBubble(frmBG* wheel, std::u16string_view caption) {
    if (wheel != nullptr) user.Click(Bubble(*wheel, caption));
  }
  void Press(std::u16string_view tip) {
    const auto hosts = Hosts();
    if (hosts.empty()) return;
    if (auto* button = HostButton(*hosts.back(), tip)) user.Click(button->OnScreen().Middle());
  }
};

TEST(AShortWalk, RecoversFromEveryCallThatFails) {
  int calls = 0;
  {
    ShortWalk walk;
    const int before = walk.desktop.faults().Calls();
    walk.Start();
    walk.Go();
    calls = walk.desktop.faults().Calls() - before;
    walk.ExpectComplete();
    walk.ExpectAtRest();
    walk.ComeBack();
    walk.End();
    ASSERT_FALSE(HasFailure());
  }
  for (int n = 1; n <= calls; ++n) {
    ShortWalk walk;
    walk.desktop.faults().FailNth(n);
    if (walk.Start() == StartVerdict::Resident) {
      walk.Go();
      walk.ExpectWhole();
      walk.desktop.faults().Clear();
      walk.ComeBack();
      walk.End();
    }
    ASSERT_FALSE(HasFailure()) << "call " << n << " of " << calls << ", "
                               << walk.desktop.faults().FailedNth();
  }
}

}  // namespace
}  // namespace dorvalin
