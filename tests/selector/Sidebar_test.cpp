// Stories of the column at the right edge of the screen.
#include "selector/Sidebar.h"

#include "core/Delivery.h"
#include "core/modRegTools.h"
#include "selector/frmRightBarMsg.h"
#include "tests/support/Program.h"

namespace dorvalin {
namespace {

using platform::Point;
using platform::Rect;

constexpr Point kEdge{1023, 384};

class AtTheSidebar : public WithProgram {
 protected:
  void SetUp() override {
    StateOf<PanelTable>().factories["DVC_MWNotes"] = [this](PanelHost& host) {
      return std::make_unique<FakePanel>(host, record);
    };
  }
  /// Started in a mode; the tick at load is over.
  void StartIn(int mode) {
    Store(u"RightBarMode", mode);
    ASSERT_EQ(Start(), StartVerdict::Resident);
    user.Wait(500ms);
    ASSERT_EQ(Column(), nullptr);
  }
  bool ColumnIsSeen() { return Column() != nullptr && Column()->Visible(); }
  void Leave() {
    user.MoveTo(editor.Middle());
    user.Wait(50ms);
  }

  FakePanel::Record record;
};

TEST_F(AtTheSidebar, AClickOfAnyButtonOpensItInEveryMode) {
  for (const int mode : {0, 1, 2}) {
    for (const Button button : {Button::Left, Button::Right, Button::Middle}) {
      Program p;
      p.Store(u"RightBarMode", mode);
      // There already when the edge appears: contact would open it.
      p.user.MoveTo(kEdge);
      ASSERT_EQ(p.Start(), StartVerdict::Resident);
      p.user.Press(button);
      EXPECT_EQ(p.Column(), nullptr) << mode;
      p.user.Release(button);
      EXPECT_NE(p.Column(), nullptr) << mode;
    }
  }
}

TEST_F(AtTheSidebar, ContactAloneOpensNothingWhereAClickIsWanted) {
  StartIn(1);
  user.MoveTo(kEdge);
  user.Wait(1000ms);
  EXPECT_EQ(Column(), nullptr);
}

TEST_F(AtTheSidebar, DelayedOpensOnlyForAPointerThatStays) {
  StartIn(2);
  user.MoveTo(kEdge);
  user.Wait(300ms);
  user.MoveTo({1000, 384});
  user.Wait(1000ms);
  EXPECT_EQ(Column(), nullptr);
  user.MoveTo(kEdge);
  user.Wait(410ms);
  EXPECT_TRUE(ColumnIsSeen());
}

TEST_F(AtTheSidebar, APointerThatRestsAtTheEdgeAtTheStartOpensIt) {
  user.MoveTo(kEdge);
  Store(u"RightBarMode", 1);
  ASSERT_EQ(Start(), StartVerdict::Resident);
  user.Wait(390ms);
  EXPECT_EQ(Column(), nullptr);
  user.Wait(60ms);
  EXPECT_TRUE(ColumnIsSeen());
}

TEST_F(AtTheSidebar, TheEdgeIsWholeOrItsMiddleThird) {
  EXPECT_EQ(EdgeArea(0, {1024, 768}), (Rect{1023, 0, 1024, 768}));
  EXPECT_EQ(EdgeArea(1, {1024, 768}), (Rect{1023, 256, 1024, 512}));
  EXPECT_EQ(EdgeArea(7, {1024, 768}), std::nullopt);
  {
    Program unknown;
    unknown.Store(u"RightBarArea", 7);
    ASSERT_EQ(unknown.Start(), StartVerdict::Resident);
    unknown.user.Wait(500ms);
    EXPECT_EQ(unknown.Column(), nullptr)
        << "an edge without a place took every pointer for its own";
  }
  Store(u"RightBarArea", 1);
  StartIn(0);
  user.MoveTo({1023, 100});
  user.Wait(500ms);
  EXPECT_EQ(Column(), nullptr);
  user.MoveTo({1023, 300});
  EXPECT_TRUE(ColumnIsSeen());
}

TEST_F(AtTheSidebar, TheTargetKeepsTheFocusAndTheColumnGoesWithThePointer) {
  StartIn(0);
  user.MoveTo(kEdge);
  EXPECT_TRUE(EditorIsActive());
  frmMenu* host = Host();
  ASSERT_NE(host, nullptr);
  EXPECT_TRUE(host->Visible());
  EXPECT_TRUE(host->Vertical());
  EXPECT_EQ(HostButton(*host, u"Schließen"), nullptr);
  user.MoveTo(host->Window().Bounds().Middle());
  user.Wait(500ms);
  EXPECT_TRUE(ColumnIsSeen());
  Leave();
  EXPECT_FALSE(ColumnIsSeen());
  EXPECT_FALSE(host->Visible());
  user.MoveTo(kEdge);
  EXPECT_TRUE(ColumnIsSeen());
  EXPECT_EQ(Host(), host) << "it comes back with the panel as it was";
  EXPECT_TRUE(host->Visible());
  EXPECT_TRUE(EditorIsActive());
}

// Its panel was left standing alone.
TEST_F(AtTheSidebar, ClosedWhileItsPanelFadesInItStaysClosed) {
  StartIn(0);
  user.MoveTo(kEdge);
  user.Wait(50ms);
  frmMenu* host = Host();
  for (const bool delivers : {false, true}) {
    SCOPED_TRACE(delivers ? "by a delivery" : "by a click beside the bubbles");
    Leave();
    ASSERT_FALSE(ColumnIsSeen());
    user.Later(200ms, [&] {
      ASSERT_TRUE(ColumnIsSeen());
      if (delivers) return SendToTarget(u"x", *host, false, 0);
      // Between bubbles, clear of the host.
      desktop.input().HandMoves(Column()->Window().Bounds().Origin() + Point{44, 36});
      desktop.input().HandPresses(Button::Left);
      desktop.input().HandReleases(Button::Left);
    });
    user.MoveTo(kEdge);
    user.Wait(50ms);
    EXPECT_FALSE(ColumnIsSeen());
    EXPECT_FALSE(host->Visible());
    EXPECT_TRUE(EditorIsActive());
  }
}

TEST_F(AtTheSidebar, ADragHoldsItAndAMenuHoldsIt) {
  StartIn(0);
  user.MoveTo(kEdge);
  user.Wait(50ms);
  state.PopupOpen = true;
  Leave();
  EXPECT_TRUE(ColumnIsSeen());
  state.PopupOpen = false;
  user.MoveTo(Host()->Window().Bounds().Middle());
  user.Press(Button::Left);
  Leave();
  EXPECT_TRUE(ColumnIsSeen());
  user.Release(Button::Left);
  user.Wait(50ms);
  EXPECT_FALSE(ColumnIsSeen());
}

TEST_F(AtTheSidebar, AClickElsewhereClosesItOnceItsPanelHadTheFocus) {
  StartIn(0);
  user.MoveTo(kEdge);
  user.Click(Host()->Window().Bounds().Middle());
  user.Wait(50ms);
  EXPECT_TRUE(ColumnIsSeen());
  EXPECT_FALSE(EditorIsActive());
  user.Click(editor.Middle());
  user.Wait(50ms);
  EXPECT_FALSE(ColumnIsSeen());
  EXPECT_TRUE(EditorIsActive());
}

// The column went away under the user's own press.
TEST_F(AtTheSidebar, APressOnItThatIsSeenBeforeItsActivationDoesNotCloseIt) {
  StartIn(0);
  user.MoveTo(kEdge);
  user.Wait(50ms);
  user.MoveTo(Host()->Window().Bounds().Middle());
  user.Press(Button::Left);
  desktop.stack().Activate(&editor);
  user.Wait(50ms);
  EXPECT_TRUE(ColumnIsSeen());
  user.Release(Button::Left);
  user.Wait(50ms);
  EXPECT_FALSE(ColumnIsSeen()) << "the activation never came";
}

TEST_F(AtTheSidebar, APointerThatLeavesWhileItSlidesInEndsItWithoutAWord) {
  StartIn(0);
  user.Later(30ms, [&] { desktop.input().HandMoves({500, 300}); });
  user.MoveTo(kEdge);
  user.Wait(20ms);
  EXPECT_EQ(Column(), nullptr);
  EXPECT_TRUE(Hosts().empty());
  user.MoveTo(kEdge);
  ASSERT_TRUE(ColumnIsSeen());
  user.Wait(50ms);
  Leave();
  user.Later(30ms, [&] { desktop.input().HandMoves({500, 300}); });
  user.MoveTo(kEdge);
  user.Wait(20ms);
  ASSERT_NE(Column(), nullptr);
  EXPECT_FALSE(ColumnIsSeen());
}

TEST_F(AtTheSidebar, ADragToTheEdgeOpensItInEveryMode) {
  StartIn(1);
  editor.SetText(u"Text");
  editor.Edit().Select(0, 4);
  desktop.input().HandPresses(Button::Left);
  editor.BeginDrag();
  user.MoveTo(kEdge);
  user.Wait(50ms);
  EXPECT_TRUE(ColumnIsSeen());
  user.Release(Button::Left);
}

TEST_F(AtTheSidebar, TakesThePanelOverFromTheRing) {
  Store(u"ShowRightBarAtStart", 0);
  StartIn(0);
  OpenPanel(u"Rechner");
  frmMenu* host = Host();
  user.Type(u"7*7");
  ClickHostButton(*host, u"An Bildschirmrand");
  EXPECT_EQ(Ring(), nullptr);
  ASSERT_NE(Column(), nullptr);
  EXPECT_EQ(Column()->Host, host);
  EXPECT_EQ(Hosts().size(), 1u);
  EXPECT_EQ(Column()->ActiveBubble, 3);
  EXPECT_TRUE(host->Vertical() && host->Visible() && Column()->Visible());
  EXPECT_TRUE(state.SidebarOn);
  EXPECT_EQ(NodesOf<platform::MemoryTextBox>(host->Window())[0]->Text(), u"7×7");
  EXPECT_EQ(host->Window().Bounds().right, Column()->Window().Bounds().left + 17);
  user.MoveTo(host->Window().Bounds().Middle());
  user.Wait(50ms);
  Leave();
  EXPECT_FALSE(ColumnIsSeen()) << "the column watches the pointer from now on";
}

// The bubbles of a ring near the edge once stayed behind the column as a copy.
TEST_F(AtTheSidebar, TheColumnDoesNotShowTheRingItCameFrom) {
  const auto columnFrom = [](Point pointer) {
    Program p;
    p.Store(u"ShowRightBarAtStart", 0);
    p.Start();
    p.OpenWheelAt(pointer);
    p.ClickHostButton(*p.Host(), u"An Bildschirmrand");
    return p.Column()->Window().Canvas().Clone();
  };
  const auto fromAfar = columnFrom({300, 300}), fromNearby = columnFrom({1000, 300});
  ASSERT_EQ(fromAfar.Size(), kColumnSize);
  EXPECT_TRUE(std::equal(fromAfar.Row(0), fromAfar.Row(0) + kColumnSize.width * kColumnSize.height,
                         fromNearby.Row(0)));
}

TEST_F(AtTheSidebar, ThatWasVisitedBeforePutsAPanelThatIsHandedOverAwayAtTheEdge) {
  StartIn(0);
  user.MoveTo(kEdge);
  user.Wait(50ms);
  Leave();
  OpenPanel(u"Rechner");
  frmMenu* host = Host();
  ClickHostButton(*host, u"An Bildschirmrand");
  user.Wait(50ms);
  EXPECT_FALSE(ColumnIsSeen() || host->Visible());
  EXPECT_TRUE(EditorIsActive());
  user.MoveTo(kEdge);
  EXPECT_TRUE(ColumnIsSeen() && host->Visible());
  EXPECT_EQ(Column()->Host, host);
  EXPECT_EQ(Column()->ActiveBubble, 3);
  EXPECT_EQ(Hosts().size(), 1u);
}

TEST_F(AtTheSidebar, ThePanelOfAnotherBubbleStaysInPlaceWhenItIsSetFree) {
  StartIn(0);
  user.MoveTo(kEdge);
  user.Click(Bubble(*Column(), u"Rechner"));
  EXPECT_EQ(Column()->BubbleCentre(3).x, 16) << "it slid toward the host";
  EXPECT_EQ(Column()->BubbleCentre(2).x, 26);
  frmMenu& host = *Host();
  EXPECT_EQ(host.Index(), 3);
  const auto panelAt = [&] {
    return NodesOf<platform::MemoryTextBox>(host.Window())[0]->OnScreen();
  };
  const Rect before = panelAt();
  ClickHostButton(host, u"Freistellen");
  EXPECT_EQ(Column(), nullptr);
  EXPECT_TRUE(host.Free() && host.Visible());
  EXPECT_FALSE(host.Vertical());
  EXPECT_EQ(panelAt(), before);
}

TEST_F(AtTheSidebar, ItsPanelIsToldThatItIsShownAgainAndHasItsMenuBesideTheButton) {
  RegSetLong(kProgramKey, u"LastFunction", 8);
  StartIn(0);
  user.MoveTo(kEdge);
  user.Wait(50ms);
  EXPECT_EQ(record.shownAgain, 0);
  Leave();
  user.MoveTo(kEdge);
  EXPECT_EQ(record.shownAgain, 1);
  ClickHostButton(*Host(), u"Menü");
  ASSERT_EQ(record.menusAt.size(), 1u);
  // The panel's width, the buttons' column less 5; the button's lower edge and 1.
  const Point inHost{3 + 207 + 18 - 5, 3 + (3 + 18 + 17) + 1};
  EXPECT_EQ(record.menusAt[0], Host()->Window().Bounds().Origin() + inHost);
}

TEST_F(AtTheSidebar, SwitchedOffNothingOfItStays) {
  StartIn(0);
  user.MoveTo(kEdge);
  ASSERT_TRUE(ColumnIsSeen());
  ChooseInTaskMenu(u"Seitenleiste aktivieren");
  EXPECT_FALSE(state.SidebarOn);
  EXPECT_EQ(Column(), nullptr);
  EXPECT_TRUE(Hosts().empty());
  user.MoveTo(editor.Middle());
  user.MoveTo(kEdge);
  user.Wait(500ms);
  EXPECT_EQ(Column(), nullptr);
  ChooseInTaskMenu(u"Seitenleiste aktivieren");
  EXPECT_TRUE(state.SidebarOn);
}

TEST_F(AtTheSidebar, AWindowThatCannotBeMadeLeavesTheEdgeWaiting) {
  StartIn(0);
  desktop.faults().FailNext("Windows.NewTopWindow");
  user.MoveTo(kEdge);
  EXPECT_EQ(Column(), nullptr);
  user.MoveTo({1000, 384});
  user.MoveTo(kEdge);
  EXPECT_TRUE(ColumnIsSeen());
}

}  // namespace
}  // namespace dorvalin
