// Windows, pointer and keyboard.
#include "platform/drawing.h"
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

namespace key = platform::key;
using Log = std::vector<std::string>;

class Windows : public Conformance {};
class OurWindow : public WithWindow {};

TEST_F(OurWindow, IsCoveredByAnEllipseOnlyInsideOfIt) {
  Listener round;
  const auto front = NewWindow(round);
  // Wine lets a window fall behind its like when its region changes while it is shown.
  ASSERT_TRUE(front->SetEllipseRegion(Rect::At({0, 0}, kOurs.Size())));
  front->Show(ShowMode::Activate);
  Settle();
  // Wine without a window manager makes the display's window of a region anew, and the active
  // window loses its turn by that; Windows leaves order and activation alone.
  if (under().OnWine()) front->Show(ShowMode::Activate);
  const Point corner = kOurs.Origin() + Point{4, 4};
  EXPECT_EQ(desktop().windows().WindowAt(corner), window.get());
  EXPECT_EQ(desktop().windows().WindowAt(kOurs.Middle()), front.get());
  Click(corner);
  EXPECT_EQ(listener.Count("left down"), 1);
  EXPECT_EQ(round.Count("left down"), 0);
  ASSERT_TRUE(front->SetEllipseRegion(std::nullopt));
  front->Show(ShowMode::Activate);
  Settle();
  EXPECT_EQ(desktop().windows().WindowAt(corner), front.get());
}

TEST_F(OurWindow, KeepsThePointerFromAPressToTheReleaseUnlessItEndsTheCapture) {
  Listener besideListener;
  const auto beside = NewWindow(besideListener, {420, 60, 520, 220});
  beside->Show(ShowMode::NoActivate);
  platform::MouseEvent beforeRelease;
  const auto pressAndReleaseBeside = [&] {
    PointAt(*window);
    under().Press(Button::Left);
    Settle();
    PointAt(*beside);
    Settle();
    beforeRelease = listener.lastMouse;
    under().Release(Button::Left);
    Settle();
  };
  pressAndReleaseBeside();
  EXPECT_EQ(beforeRelease.at, beside->Bounds().Middle() - kOurs.Origin());
  EXPECT_TRUE(beforeRelease.left);
  EXPECT_EQ(listener.Count("left up"), 1);
  EXPECT_EQ(besideListener.Count("left up"), 0);
  Rest();
  listener.onMouseDown = [&] { window->ReleaseCapture(); };
  pressAndReleaseBeside();
  EXPECT_EQ(listener.Count("left up"), 1);
  EXPECT_EQ(besideListener.Count("left up"), 1);
}

TEST_F(OurWindow, GetsTheSecondPressOfADoubleClickAsOne) {
  PointAt(*window);
  listener.log.clear();
  for (int n = 0; n < 3; ++n) under().Click();
  Settle();
  EXPECT_EQ(listener.log,
            (Log{"left down", "left up", "left double", "left up", "left down", "left up"}));
}

TEST_F(OurWindow, AddsUpThePartsOfAWheelNotch) {
  PointAt(*window);
  listener.log.clear();
  // A part, two that fill one notch and begin another, a turn back that forgets it.
  for (const int turn : {40, 40, 80, -100, -20, -240, 120}) {
    under().TurnWheel(turn);
    Settle();
  }
  EXPECT_EQ(listener.log, (Log{"wheel 1", "wheel -1", "wheel -2", "wheel 1"}));
  EXPECT_EQ(listener.lastMouse.at, kOurs.Middle() - kOurs.Origin());
}

TEST_F(OurWindow, IsUnderThePointBehindItsVisibleChildren) {
  Listener outer, inner;
  const auto pane = NewPane(*window, {10, 10, 110, 110}, outer);
  const auto child = NewPane(*pane, {20, 20, 60, 60}, inner);
  EXPECT_EQ(child->ScreenBounds(), (Rect{90, 90, 130, 130}));
  const auto there = [&] { return desktop().windows().WindowAt(kOurs.Origin() + Point{35, 35}); };
  EXPECT_EQ(there(), child.get());
  child->SetVisible(false);
  EXPECT_EQ(there(), pane.get());
  pane->SetVisible(false);
  EXPECT_EQ(there(), window.get());
  window->Hide();
  Settle();
  EXPECT_EQ(there(), nullptr);
}

TEST_F(OurWindow, TellsAllWhoAreSeenWithItThatTheyAre) {
  Listener outer, inner;
  window->Hide();
  listener.log.clear();
  const auto pane = NewPane(*window, {10, 10, 110, 110}, outer);
  const auto child = NewPane(*pane, {20, 20, 60, 60}, inner);
  child->SetVisible(false);
  EXPECT_TRUE(inner.log.empty()) << "it was not seen before either";
  window->Show(ShowMode::NoActivate);
  Settle();
  EXPECT_EQ(listener.Count("seen"), 1);
  EXPECT_EQ(outer.Count("seen"), 1);
  EXPECT_EQ(inner.Count("seen"), 0);
  EXPECT_TRUE(pane->Seen());
  EXPECT_FALSE(child->Seen());
  child->SetVisible(true);
  EXPECT_EQ(inner.Count("seen"), 1);
  pane->SetVisible(false);
  EXPECT_EQ(outer.Count("gone"), 1);
  EXPECT_EQ(inner.Count("gone"), 1);
  EXPECT_TRUE(child->Visible()) << "its own flag stays";
  EXPECT_FALSE(child->Seen());
  window->Hide();
  EXPECT_EQ(listener.Count("gone"), 1);
  EXPECT_EQ(outer.Count("gone"), 1);
}

TEST_F(Windows, WhatWasDrawnOutOfSightIsThereOnceItIsSeen) {
  constexpr platform::Colour kBack = 0x302010, kFront = 0xA0B0C0, kBehind = 0x00C000,
                             kInner = 0x4050F0, kLater = 0xF00000, kPaper = 0x80F0F0;
  Listener listener, frontListener, behindListener, innerListener;
  const auto window = NewWindow(listener);
  const auto front = NewPane(*window, {10, 10, 90, 90}, frontListener);
  const auto behind = NewPane(*window, {50, 50, 150, 150}, behindListener);
  const auto inner = NewPane(*front, {60, 0, 160, 20}, innerListener);
  const auto label = desktop().controls().NewLabel(*window, {160, 10, 190, 40}, u"", {});
  const auto box = desktop().controls().NewTextBox(*window, {160, 50, 190, 80}, {});
  label->SetColours(std::nullopt, kPaper);
  box->SetColours(std::nullopt, kPaper);
  const auto fill = [](platform::Pane& pane, platform::Colour colour) {
    platform::FillRect(pane.Canvas(), pane.Canvas().Area(), colour);
    pane.Refresh();
  };
  fill(*inner, kInner);
  fill(*behind, kBehind);
  fill(*front, kFront);
  fill(*window, kBack);
  const auto shows = [&](Point p, platform::Colour colour) {
    return Until(
        [&] { return desktop().screen().ColourAt(kOurs.Origin() + p).value_or(~colour) == colour; },
        1s);
  };
  window->Show(ShowMode::NoActivate);
  EXPECT_TRUE(shows({5, 5}, kBack));
  EXPECT_TRUE(shows({20, 20}, kFront));
  EXPECT_TRUE(shows({70, 70}, kFront)) << "the first made is in front";
  EXPECT_TRUE(shows({120, 120}, kBehind));
  EXPECT_TRUE(shows({80, 20}, kInner));
  EXPECT_TRUE(shows({100, 20}, kBack)) << "none is seen outside of its parent";
  EXPECT_TRUE(shows({175, 25}, kPaper));
  EXPECT_TRUE(shows({175, 65}, kPaper));
  front->SetVisible(false);
  EXPECT_TRUE(shows({70, 70}, kBehind));
  fill(*front, kLater);
  front->SetVisible(true);
  EXPECT_TRUE(shows({70, 70}, kLater));
  EXPECT_TRUE(shows({80, 20}, kInner));
}

TEST_F(Windows, WhoIsToldOfBeingSeenMayHideMakeAndCloseWindows) {
  Listener listener, first, second, last, late;
  const auto window = NewWindow(listener);
  const auto pane = NewPane(*window, {10, 10, 50, 50}, first);
  const auto hidden = NewPane(*window, {60, 10, 90, 50}, second);
  const auto closing = NewPane(*window, {100, 10, 150, 50}, last);
  std::unique_ptr<platform::Pane> made;
  first.onVisible = [&] {
    hidden->SetVisible(false);
    made = NewPane(*pane, {0, 0, 20, 20}, late);
  };
  last.onVisible = [&] { window->Close(); };
  window->Show(ShowMode::Activate);
  Settle();
  EXPECT_EQ(first.Count("seen"), 1);
  EXPECT_EQ(second.log, Log{}) << "it was never seen";
  EXPECT_EQ(late.log, Log{}) << "it has been seen from its making on";
  EXPECT_FALSE(window->Visible());
  EXPECT_FALSE(made->Seen());
}

TEST_F(OurWindow, HasPanesWhoseCanvasFollowsTheirSizeAndKeepsItsContent) {
  Listener inside;
  const auto pane = NewPane(*window, {0, 0, 40, 30}, inside);
  platform::FillRect(pane->Canvas(), pane->Canvas().Area(), 0x0000FF);
  pane->SetBounds({5, 5, 65, 25});
  EXPECT_EQ(inside.Count("resize"), 1);
  EXPECT_EQ(pane->Canvas().Size(), (platform::Size{60, 20}));
  EXPECT_EQ(pane->Canvas().At({39, 19}) & 0xFFFFFF, 0xFF0000u);
  EXPECT_EQ(pane->Canvas().At({40, 19}) & 0xFFFFFF, 0u);
  pane->SetBounds({9, 9, 69, 29});
  EXPECT_EQ(inside.Count("resize"), 1) << "a move is no resize";
  pane->SetBounds({9, 9, 9, 9});
  EXPECT_TRUE(pane->Canvas().Empty());
}

TEST_F(Windows, AFrameLeavesTheClientAreaItsSize) {
  Listener listener, inside;
  const auto dialog = NewDialog(listener);
  dialog->SetClientSize({200, 100});
  EXPECT_EQ(dialog->ClientSize(), (platform::Size{200, 100}));
  EXPECT_EQ(dialog->Bounds().Origin(), kOurs.Origin());
  EXPECT_GT(dialog->Bounds().Height(), 100);
  EXPECT_EQ(dialog->Canvas().Size(), dialog->ClientSize());
  const auto pane = NewPane(*dialog, {0, 0, 10, 10}, inside);
  EXPECT_GT(pane->ScreenBounds().top, dialog->Bounds().top) << "below the title bar";
}

TEST_F(OurWindow, GivesTheKeyboardToThePaneThatTakesItAndBackToIt) {
  Listener taking, plain;
  const auto field = NewPane(*window, {0, 0, 50, 50}, taking, true);
  const auto button = NewPane(*window, {60, 0, 110, 50}, plain, false);
  EXPECT_TRUE(window->HasFocus());
  Click(*field);
  EXPECT_TRUE(field->HasFocus());
  EXPECT_EQ(taking.Count("focus"), 1);
  Click(*button);
  EXPECT_TRUE(field->HasFocus());
  PressKey('B');
  EXPECT_EQ(taking.Count("key 66"), 1);
  EXPECT_EQ(taking.typed, u"b");
  window->SetEnabled(false);
  window->Hide();
  Settle();
  window->SetEnabled(true);
  Activate(*window);
  EXPECT_TRUE(field->HasFocus()) << "it comes back to the child that had it";
  field->SetVisible(false);
  EXPECT_FALSE(field->HasFocus());
  field->Focus();
  EXPECT_FALSE(field->HasFocus()) << "what is not seen gets no keyboard";
}

TEST_F(OurWindow, SeesKeysBeforeItsChildren) {
  Listener child;
  const auto field = NewPane(*window, {0, 0, 50, 50}, child, true);
  listener.keyToTake = 'Q';
  PressKey(key::kF2);
  field->Focus();
  PressKeys({'Q', 'W'});
  EXPECT_EQ(listener.previewed, (std::vector<std::pair<int, platform::Window*>>{
                                    {key::kF2, nullptr}, {'Q', field.get()}, {'W', field.get()}}));
  EXPECT_EQ(child.Count("key 81"), 0);
  EXPECT_EQ(child.Count("key 87"), 1);
  EXPECT_EQ(child.typed, u"w") << "a key that is taken types nothing";
}

TEST_F(Windows, TopMostWindowsAndOwnedOnesStandInFront) {
  Listener listener;
  const auto bar = desktop().windows().NewTopWindow({.topMost = true}, listener);
  bar->SetBounds({60, 60, 160, 160});
  const auto plain = NewWindow(listener, {60, 60, 160, 160});
  const auto owned = NewWindow(listener, {100, 100, 140, 140}, plain.get());
  const Point edge{70, 70}, middle{120, 120};
  const auto at = [&](Point p) { return desktop().windows().WindowAt(p); };
  bar->Show(ShowMode::NoActivate);
  plain->Show(ShowMode::Activate);
  owned->Show(ShowMode::NoActivate);
  Settle();
  EXPECT_EQ(at(edge), bar.get());
  bar->SetTopMost(false);
  // Wine hears from its display later and puts back what was ordered meanwhile.
  Settle();
  plain->Show(ShowMode::Activate);
  Settle();
  EXPECT_EQ(at(edge), plain.get());
  EXPECT_EQ(at(middle), owned.get());
}

// A free panel that came back after a delivery covered what the user had put in front meanwhile.
TEST_F(Windows, ShownAgainWithoutActivationOneStaysBehindWhatCameInFront) {
  Listener listener;
  for (const bool topMost : {false, true}) {
    SCOPED_TRACE(topMost ? "top-most" : "ordinary");
    const auto free = NewWindow(listener);
    const auto other = NewWindow(listener);
    free->SetTopMost(topMost);
    other->SetTopMost(topMost);
    const auto inFront = [&] {
      Settle();
      return desktop().windows().WindowAt(kOurs.Middle());
    };
    other->Show(ShowMode::NoActivate);
    free->Show(ShowMode::Activate);
    EXPECT_EQ(inFront(), free.get());
    free->Hide();
    other->Show(ShowMode::Activate);
    free->Show(ShowMode::NoActivate);
    EXPECT_EQ(inFront(), other.get());
    EXPECT_TRUE(HasForeground(*other));
    EXPECT_EQ(free->Bounds(), kOurs);
    free->SetTopMost(topMost);
    EXPECT_EQ(inFront(), topMost ? free.get() : other.get())
        << "only the top-most band has a new top by that";
  }
}

TEST_F(Windows, OneMovesWithThePointerAsByItsTitleBar) {
  Listener listener;
  const auto dialog = NewDialog(listener, kOurs.Moved({300, 0}));
  const auto plain = NewWindow(listener);
  dialog->Show(ShowMode::Activate);
  Activate(*plain);
  int moves = 0;
  listener.onMouseDown = [&] {
    plain->ReleaseCapture();
    plain->StartMove();
    ++moves;
  };
  const Point way{40, 90};
  PlanDrag(kOurs.Middle(), kOurs.Middle() + way);
  ASSERT_TRUE(Until([&] { return moves == 1; }));
  EXPECT_EQ(plain->Bounds(), kOurs.Moved(way + Point{1, 1}));
  const Rect before = dialog->Bounds();
  const Point title = before.Origin() + Point{60, 12};
  PlanDrag(title, title + way);
  EXPECT_TRUE(Until([&] { return dialog->Bounds() == before.Moved(way + Point{1, 1}); }));
  Settle();
  EXPECT_FALSE(desktop().input().ButtonDown(Button::Left));
}

TEST_F(Windows, TheUsersWishToCloseIsAskedAndNoMore) {
  Listener listener;
  const auto window = NewDialog(listener);
  Activate(*window);
  Click({kOurs.right - 12, kOurs.top + 12});
  EXPECT_EQ(listener.Count("close"), 1) << "the close box";
  under().KeyDown(key::kAlt);
  PressKey(key::kF4);
  under().KeyUp(key::kAlt);
  EXPECT_TRUE(Until([&] { return listener.Count("close") == 2; })) << "Alt+F4";
  EXPECT_TRUE(window->Visible());
}

TEST_F(Windows, OneThatIsClosedAlsoByItsOwnHandlerLeavesHusks) {
  for (const bool byHandler : {false, true}) {
    SCOPED_TRACE(byHandler);
    Listener listener, inside;
    const auto window = NewWindow(listener);
    const auto pane = NewPane(*window, {0, 0, 50, 50}, inside, true);
    const auto box = desktop().controls().NewTextBox(*window, {0, 60, 50, 80}, {});
    listener.onMouseDown = [&] { window->Close(); };
    Activate(*window);
    if (byHandler) Click(kOurs.Middle());
    window->Close();
    window->Show(ShowMode::Activate);
    window->SetBounds({1, 2, 3, 4});
    pane->Focus();
    pane->SetBounds({0, 0, 5, 5});
    pane->Refresh();
    box->SetText(u"x");
    Settle();
    EXPECT_FALSE(window->Visible());
    EXPECT_FALSE(pane->Visible());
    EXPECT_FALSE(pane->HasFocus());
    EXPECT_EQ(box->Text(), u"");
    EXPECT_NE(desktop().windows().WindowAt(kOurs.Middle()), window.get());
  }
}

TEST_F(Windows, TimersTickWhileSomebodyPumpsAndEndInTheirOwnTick) {
  int ticks = 0, once = 0;
  const auto timer = desktop().pump().NewTimer(20, [&] { ++ticks; });
  under().Pump(100ms);
  EXPECT_EQ(ticks, 0) << "a new timer rests";
  std::unique_ptr<platform::Timer> single;
  single = desktop().pump().NewTimer(10, [&] {
    ++once;
    single.reset();
  });
  single->SetEnabled(true);
  timer->SetEnabled(true);
  EXPECT_TRUE(Until([&] { return ticks >= 3; }));
  timer->SetEnabled(false);
  const int counted = ticks;
  under().Pump(100ms);
  EXPECT_EQ(ticks, counted);
  EXPECT_EQ(once, 1);
}

}  // namespace
}  // namespace conformance
