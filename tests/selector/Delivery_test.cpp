// Stories of a text on its way into the editor.
#include "core/Delivery.h"

#include "tests/support/Program.h"

namespace dorvalin {
namespace {

class ADelivery : public WithProgram {
 protected:
  void SetUp() override {
    Store(u"ShowRightBarAtStart", 0);
    ASSERT_EQ(Start(), StartVerdict::Resident);
  }
  std::chrono::milliseconds TimeOf(const std::function<void()>& action) {
    const auto before = desktop.clock().SinceStart();
    action();
    return std::chrono::duration_cast<std::chrono::milliseconds>(desktop.clock().SinceStart() -
                                                                 before);
  }
};

TEST_F(ADelivery, OfNothingStillWaitsAndCloses) {
  OpenPanel(u"Rechner");
  const auto time = TimeOf([&] { SendToTarget(u"", *Host(), false, 0); });
  EXPECT_GE(time, 180ms);
  EXPECT_EQ(editor.KeysTaken(), 0);
  EXPECT_EQ(Ring(), nullptr);
  EXPECT_TRUE(Hosts().empty());
}

TEST_F(ADelivery, WaitsAsLongAsTheUserWantsAndNoLonger) {
  const struct {
    const char* name;
    int wait;
    std::chrono::milliseconds atLeast, below;
  } cases[] = {
      {"not at all", 0, 0ms, 5ms},
      {"the default", 180, 180ms, 190ms},
      {"the longest", 1000, 1000ms, 1010ms},
      {"more than the settings offer", 2000000000, 1000ms, 1010ms},
      {"less than nothing", -5, 0ms, 5ms},
  };
  settings.DontAnimate = true;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    settings.WaitBeforeSend = c.wait;
    OpenPanel(u"Rechner");
    const auto time = TimeOf([&] { SendToTarget(u"x", *Host(), false, 0); });
    EXPECT_GE(time, c.atLeast);
    EXPECT_LT(time, c.below);
  }
  EXPECT_EQ(editor.Text(), u"xxxxx");
}

TEST_F(ADelivery, WaitsByTheTickCountWhereThereIsNoPerformanceCounter) {
  desktop.clock().TakeAwayPerformanceCounter();
  OpenPanel(u"Rechner");
  const auto time = TimeOf([&] { SendToTarget(u"x", *Host(), false, 0); });
  EXPECT_GE(time, 179ms);
  EXPECT_LT(time, 190ms);
  EXPECT_EQ(editor.Text(), u"x");
}

TEST_F(ADelivery, PutsTheCaretBackByLeftArrows) {
  OpenPanel(u"Rechner");
  SendToTarget(u"ab\r\ncd", *Host(), false, 3);
  EXPECT_EQ(editor.Caret(), 2) << "a line break counts one press";
  const int keys = editor.KeysTaken();
  OpenPanel(u"Rechner");
  SendToTarget(u"x", *Host(), false, 0);
  EXPECT_EQ(editor.KeysTaken(), keys + 1);
}

TEST_F(ADelivery, OfARawTextIsACommand) {
  platform::DataContent content;
  content.text = u"Zwischenablage";
  desktop.clipboard().PutByOther(std::move(content));
  OpenPanel(u"Rechner");
  SendToTarget(u"^v", *Host(), true, 4);
  EXPECT_EQ(editor.Text(), u"Zwischenablage");
  EXPECT_EQ(editor.Caret(), 10);
}

TEST_F(ADelivery, LetsNoClickInWhileItWaits) {
  OpenPanel(u"Rechner");
  frmMenu& host = *Host();
  bool checked = false;
  user.Later(60ms, [&] {
    checked = true;
    EXPECT_TRUE(state.Sending);
    EXPECT_TRUE(SeenForms().empty());
    EXPECT_TRUE(EditorIsActive());
    for (platform::Form* form : platform::TheForms().All()) {
      EXPECT_FALSE(form->Window().Enabled()) << form->Name();
    }
  });
  SendToTarget(u"x", host, false, 0);
  EXPECT_TRUE(checked);
}

TEST_F(ADelivery, AGestureMeanwhileOpensNoSecondWheel) {
  settings.WaitBeforeSend = 1000;
  OpenPanel(u"Rechner");
  user.Later(10ms, [&] { desktop.input().HandPresses(Button::Middle); });
  user.Later(800ms, [&] { desktop.input().HandReleases(Button::Middle); });
  SendToTarget(u"x", *Host(), false, 0);
  EXPECT_EQ(editor.Text(), u"x");
  user.Wait(10ms);
  EXPECT_EQ(Ring(), nullptr);
}

TEST_F(ADelivery, LeavesTheHostFreeAndWithoutTheFocusWhereTheUserWantsItToStay) {
  settings.StayAfterSend = true;
  OpenPanel(u"Rechner");
  frmMenu& host = *Host();
  for (const auto* text : {u"1", u"2", u"3"}) {
    SendToTarget(text, host, false, 0);
    EXPECT_EQ(Ring(), nullptr);
    EXPECT_TRUE(host.Free() && host.Visible());
    EXPECT_TRUE(EditorIsActive());
    EXPECT_FALSE(state.Sending);
  }
  EXPECT_EQ(editor.Text(), u"123");
}

TEST_F(ADelivery, FromAFreeHostNeverCountsAsSendingAndTheHostComesBack) {
  OpenPanel(u"Rechner");
  frmMenu& host = *Host();
  host.DoFree();
  bool checked = false;
  user.Later(60ms, [&] {
    checked = true;
    EXPECT_FALSE(state.Sending);
    EXPECT_FALSE(host.Visible());
  });
  SendToTarget(u"x", host, false, 0);
  EXPECT_TRUE(checked);
  EXPECT_EQ(editor.Text(), u"x");
  EXPECT_TRUE(host.Visible());
  EXPECT_TRUE(EditorIsActive());
}

TEST_F(ADelivery, FromTheSidebarHidesTheColumnAndKeepsItsPanelOrLeavesItFree) {
  ChooseInTaskMenu(u"Seitenleiste aktivieren");
  for (const bool stay : {false, true}) {
    settings.StayAfterSend = stay;
    user.Click(editor.Middle());
    OpenSidebar();
    frmMenu* host = Host();
    ASSERT_NE(host, nullptr);
    SendToTarget(u"x", *host, false, 0);
    EXPECT_EQ(editor.Text(), stay ? u"xx" : u"x");
    EXPECT_EQ(Host(), stay ? nullptr : host);
    EXPECT_EQ(Column() == nullptr, stay);
    EXPECT_TRUE(stay || !Column()->Visible());
    EXPECT_EQ(host->Free() && host->Visible(), stay);
    EXPECT_TRUE(EditorIsActive());
    EXPECT_FALSE(state.Sending);
  }
}

// The activation must pass over the other windows of the program, which are disabled meanwhile.
TEST_F(ADelivery, NeverLandsInAFreeHostThatWasActiveBefore) {
  OpenWheelAt({300, 150});
  user.Click(Bubble(*Ring(), u"Rechner"));
  frmMenu& free = *Host();
  free.DoFree();
  user.Click(NodesOf<platform::MemoryTextBox>(free.Window())[0]->OnScreen().Middle());
  EXPECT_FALSE(EditorIsActive());
  OpenWheelAt({700, 150});
  ASSERT_NE(Host(), nullptr);
  SendToTarget(u"x", *Host(), false, 0);
  EXPECT_EQ(editor.Text(), u"x");
  EXPECT_EQ(NodesOf<platform::MemoryTextBox>(free.Window())[0]->Text(), u"");
}

TEST_F(ADelivery, ToABusyTargetLosesTheKeysWithoutAWord) {
  editor.SetBusy(true);
  OpenPanel(u"Rechner");
  SendToTarget(u"x", *Host(), false, 0);
  desktop.faults().FailAlways("Input.Type");
  OpenPanel(u"Rechner");
  SendToTarget(u"x", *Host(), false, 0);
  EXPECT_EQ(editor.Text(), u"");
  EXPECT_TRUE(desktop.dialogs().shown.empty());
  EXPECT_EQ(Ring(), nullptr);
}

TEST_F(ADelivery, SurvivesTheEndOfTheProgramWhileItWaits) {
  OpenPanel(u"Rechner");
  user.Later(60ms, [&] {
    desktop.menus().Choose(u"Tolvo Dorvalin beenden");
    desktop.taskBar().Happens(platform::TaskBarEvent::RightUp);
  });
  SendToTarget(u"x", *Host(), false, 0);
  EXPECT_TRUE(platform::TheForms().Empty());
  EXPECT_FALSE(state.Sending);
}

}  // namespace
}  // namespace dorvalin
