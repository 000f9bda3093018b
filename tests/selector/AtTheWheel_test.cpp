// Stories of the ring at the pointer.
#include "core/modRegTools.h"
#include "platform/memory/MemoryPlainControls.h"
#include "tests/support/Program.h"

namespace dorvalin {
namespace {

using platform::Point;

class AtTheWheel : public WithProgram {
 protected:
  void SetUp() override {
    Store(u"ShowRightBarAtStart", 0);
    ASSERT_EQ(Start(), StartVerdict::Resident);
  }
  std::int32_t LastFunction() { return RegGetLong(kProgramKey, u"LastFunction", -1); }
  void StoreLastFunction(int function) { RegSetLong(kProgramKey, u"LastFunction", function); }
  /// Without a pump: the click waits in the queue for the program to look.
  void ClickUnseen(Point at) {
    desktop.input().HandMoves(at);
    desktop.input().HandPresses(Button::Left);
    desktop.input().HandReleases(Button::Left);
  }
};

TEST_F(AtTheWheel, AClickElsewhereClosesItButTheGesturesOwnReleaseDoesNot) {
  user.MoveTo({300, 200});
  user.Press(Button::Left);
  user.Hold(Button::Right, 290ms);
  EXPECT_EQ(Ring(), nullptr);
  user.Wait(170ms);
  ASSERT_NE(Ring(), nullptr);
  user.Release(Button::Left);
  user.Release(Button::Right);
  user.Wait(1000ms);
  ASSERT_NE(Host(), nullptr);
  user.Click(Point{580, 460});
  user.Wait(20ms);
  EXPECT_EQ(Ring(), nullptr);
  EXPECT_TRUE(Hosts().empty());
  EXPECT_TRUE(EditorIsActive());
}

TEST_F(AtTheWheel, AnswersWhileAModalDialogIsOpenNeitherToGesturesNorToItsIcon) {
  state.ModalOpen = true;
  OpenWheel();
  desktop.taskBar().Happens(platform::TaskBarEvent::LeftUp);
  user.Wait(100ms);
  EXPECT_EQ(Ring(), nullptr);
  state.ModalOpen = false;
  desktop.taskBar().Happens(platform::TaskBarEvent::LeftUp);
  user.Wait(0ms);
  EXPECT_NE(Ring(), nullptr);
}

TEST_F(AtTheWheel, ARightClickOnABubbleDoesNothingAndBesideTheBubblesCloses) {
  OpenWheel();
  const int before = Ring()->ActiveBubble;
  user.Click(Bubble(*Ring(), u"Rechner"), Button::Right);
  ASSERT_NE(Ring(), nullptr);
  EXPECT_EQ(Ring()->ActiveBubble, before);
  user.Click(Empty(*Ring()), Button::Right);
  EXPECT_EQ(Ring(), nullptr);
}

TEST_F(AtTheWheel, OpensOnTheLastFunction) {
  const struct {
    const char* name;
    bool startWithLast;
    int stored;
    int opens;
  } cases[] = {
      {"nothing stored", true, -1, 2},
      {"with the last", true, 3, 3},
      {"without it: the menu", false, 3, 1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    if (c.stored > 0) StoreLastFunction(c.stored);
    settings.StartWithLast = c.startWithLast;
    OpenWheel();
    ASSERT_NE(Ring(), nullptr);
    EXPECT_EQ(Ring()->ActiveBubble, c.opens);
    EXPECT_EQ(Host()->Index(), c.opens);
    user.Click(Empty(*Ring()));
  }
}

TEST_F(AtTheWheel, NeverRemembersTheMenuAsTheLastFunction) {
  StoreLastFunction(3);
  OpenPanel(u"Menü");
  user.Click(Empty(*Ring()));
  EXPECT_EQ(LastFunction(), 3);
  OpenPanel(u"Dateien");
  user.Click(Empty(*Ring()));
  EXPECT_EQ(LastFunction(), 6);
}

TEST_F(AtTheWheel, AStoredFunctionThatIsNoneOpensAHostWithoutAPanel) {
  for (int stored : {9, -7, 2147483647, -2147483647 - 1}) {
    StoreLastFunction(stored);
    OpenWheel();
    ASSERT_NE(Host(), nullptr) << stored;
    EXPECT_EQ(Host()->aCtrl(), nullptr);
    user.Click(Bubble(*Ring(), u"Rechner"));
    EXPECT_EQ(Host()->Index(), 3);
    user.Click(Empty(*Ring()));
    EXPECT_EQ(LastFunction(), 3);
  }
}

TEST_F(AtTheWheel, TurningEndsOnTheSamePictureHoweverItIsDrawn) {
  const auto pictureAfter = [&](bool dontAnimate, bool fastTurn) {
    settings.DontAnimate = dontAnimate;
    settings.FastTurn = fastTurn;
    StoreLastFunction(2);
    OpenWheelAt({300, 200});
    user.Click(Bubble(*Ring(), u"Dateien"));
    user.MoveTo({10, 700});
    user.Wait(50ms);
    auto picture = Ring()->Window().Canvas().Clone();
    user.Click(Empty(*Ring()));
    user.Wait(50ms);
    return picture;
  };
  const auto plain = pictureAfter(true, false);
  for (const bool fast : {false, true}) {
    const auto turned = pictureAfter(false, fast);
    ASSERT_EQ(turned.Size(), plain.Size());
    EXPECT_TRUE(std::equal(turned.Row(0), turned.Row(0) + 120 * 120, plain.Row(0))) << fast;
  }
}

TEST_F(AtTheWheel, TheCaptionOfTheBubbleUnderThePointerStandsInTheMiddle) {
  OpenWheelAt({300, 200});
  const auto middle = [&] {
    const auto& canvas = Ring()->Window().Canvas();
    return std::vector<platform::Pixel>(canvas.Row(60) + 35, canvas.Row(60) + 85);
  };
  const auto shape = [&] {
    return dynamic_cast<platform::MemoryTopWindow&>(Ring()->Window()).Shape();
  };
  const auto plain = middle();
  user.MoveTo(Bubble(*Ring(), u"Farben"));
  EXPECT_NE(middle(), plain);
  EXPECT_TRUE(shape().Custom());
  // The lower part of the active bubble lies under the host.
  user.MoveTo(Bubble(*Ring(), u"Zeichen") - Point{0, 12});
  EXPECT_FALSE(shape().Custom()) << "the active bubble is no choice";
  user.MoveTo({10, 700});
  user.Wait(50ms);
  EXPECT_EQ(middle(), plain);
  settings.ToolTips = false;
  user.MoveTo(Bubble(*Ring(), u"Farben"));
  EXPECT_EQ(middle(), plain);
}

TEST_F(AtTheWheel, ClicksWhileItsHostFadesInMeanNothing) {
  OpenWheel();
  const Point empty = Empty(*Ring()), bubble = Bubble(*Ring(), u"Rechner");
  user.Click(empty);
  for (const Point at : {empty, bubble}) {
    bool open = false, clicked = false;
    user.Later(100ms, [&, at] {
      clicked = Ring() != nullptr && !open;
      ClickUnseen(at);
    });
    desktop.taskBar().Happens(platform::TaskBarEvent::LeftUp);
    desktop.pump().DoEvents();
    open = true;
    EXPECT_TRUE(clicked) << "while the wheel was still opening";
    ASSERT_NE(Ring(), nullptr);
    EXPECT_EQ(Ring()->ActiveBubble, 2);
    user.Click(empty);
  }
}

TEST_F(AtTheWheel, StandsOnACopyOfTheScreen) {
  editor.SetColour(0x3366CC);
  settings.AnimateFctnsNormal = false;
  OpenWheelAt({300, 300});
  const auto& canvas = Ring()->Window().Canvas();
  EXPECT_EQ(canvas.At({0, 0}), platform::PixelFromColour(0x3366CC));
  EXPECT_EQ(canvas.At({119, 119}), platform::PixelFromColour(0x3366CC));
}

TEST_F(AtTheWheel, ClickingTheActiveBubbleGivesTheKeyboardBackToItsPanel) {
  StoreLastFunction(3);
  OpenWheel();
  frmMenu* host = Host();
  user.Click(Bubble(*Ring(), u"Rechner"));
  EXPECT_EQ(Host(), host);
  user.Type(u"1+1\r");
  EXPECT_EQ(NodesOf<platform::MemoryTextBox>(host->Window())[1]->Text(), u"2");
}

TEST_F(AtTheWheel, F1OpensTheHelpOfTheFunctionAndWithAModifierTheMainPage) {
  StoreLastFunction(3);
  OpenWheel();
  user.Key(platform::key::kF1);
  user.Key(platform::key::kF1, {.control = true});
  EXPECT_EQ(desktop.shell().run,
            (std::vector<std::u16string>{u"\"C:\\Programme\\Dorvalin\\TOHelp.exe\" features_calc",
                                         u"\"C:\\Programme\\Dorvalin\\TOHelp.exe\" main"}));
  desktop.faults().FailAlways("Shell.Run");
  user.Key(platform::key::kF1);
  ASSERT_EQ(desktop.dialogs().shown.size(), 1u);
  const auto& message = desktop.dialogs().shown[0];
  EXPECT_EQ(message.text, u"Die Hilfedatei TOHelp.exe konnte nicht geöffnet werden");
  EXPECT_EQ(message.icon, platform::MessageIcon::Exclamation);
  EXPECT_EQ(message.owner, frmEmpty::WindowOrNull());
}

TEST_F(AtTheWheel, DraggingOverABubbleOpensItsPanelAndTheWheelTakesNothing) {
  editor.SetText(u"Text");
  editor.Edit().Select(0, 4);
  OpenWheelAt({300, 200});
  user.MoveTo({110, 110});
  desktop.input().HandPresses(Button::Left);
  editor.BeginDrag();
  user.MoveTo(Bubble(*Ring(), u"Rechner"));
  user.Wait(50ms);
  EXPECT_EQ(Ring()->ActiveBubble, 3);
  user.Release(Button::Left);
  EXPECT_EQ(editor.Text(), u"Text");
}

TEST_F(AtTheWheel, WithoutAHostItStillHelpsAndOpensAnother) {
  OpenWheel();
  desktop.faults().FailNext("Windows.NewTopWindow");
  user.Click(Bubble(*Ring(), u"Rechner"));
  ASSERT_NE(Ring(), nullptr);
  EXPECT_EQ(Ring()->Host, nullptr);
  user.Key(platform::key::kF1);
  EXPECT_EQ(desktop.shell().run.back(), u"\"C:\\Programme\\Dorvalin\\TOHelp.exe\" main");
  user.Click(Bubble(*Ring(), u"Farben"));
  EXPECT_NE(Ring()->Host, nullptr);
}

// A second click can wait in the queue while the hand-over empties it.
TEST_F(AtTheWheel, AClickDuringTheHandOverNeitherClosesTheRingNorOpensAnotherPanel) {
  for (const bool onBubble : {false, true}) {
    StoreLastFunction(3);
    OpenWheel();
    ClickUnseen(HostButton(*Host(), u"An Bildschirmrand")->OnScreen().Middle());
    ClickUnseen(onBubble ? Bubble(*Ring(), u"Farben") : Empty(*Ring()));
    user.Wait(1s);
    EXPECT_EQ(Ring(), nullptr);
    ASSERT_NE(Column(), nullptr);
    EXPECT_EQ(Column()->ActiveBubble, 3);
    ASSERT_EQ(Hosts().size(), 1u);
    EXPECT_EQ(Column()->Host, Hosts()[0]);
    Column()->Unload();
  }
}

TEST_F(AtTheWheel, AHandOverInWhichTheProgramQuitsLeavesNothing) {
  StoreLastFunction(3);
  OpenWheel();
  ClickUnseen(HostButton(*Host(), u"An Bildschirmrand")->OnScreen().Middle());
  desktop.pump().Post([] { frmEmpty::Instance()->Quit(); });
  user.Wait(1s);
  EXPECT_TRUE(platform::TheForms().Empty());
}

}  // namespace
}  // namespace dorvalin
