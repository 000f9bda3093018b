// Windows, pointer and keyboard.
#include "platform/drawing.h"
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

namespace key = platform::key;
using Log = std::vector<std::string>;

class Windows : public Conformance {
 protected:
  std::unique_ptr<platform::Pane> NewPane(platform::Pane& parent, const Rect& bounds,
                                          Listener& listener, bool focusable = false) {
    return desktop().windows().NewPane(parent, bounds, focusable, listener);
  }
};

TEST_F(Windows, AnEllipseLimitsWhatIsSeenAndClicked) {
  Listener behind, round;
  const auto back = NewWindow(behind, kOurs);
  const auto front = NewWindow(round, kOurs);
  back->Show(ShowMode::Activate);
  // Wine lets a window fall behind its like when its region changes while it is shown.
  ASSERT_TRUE(front->SetEllipseRegion(Rect::At({0, 0}, kOurs.Size())));
  front->Show(ShowMode::Activate);
  Settle();
  // Wine without a window manager makes the display's window of a region anew, and the active
  // window loses its turn by that; Windows leaves order and activation alone.
  if (under().OnWine()) front->Show(ShowMode::Activate);
  const Point corner = kOurs.Origin() + Point{4, 4};
  EXPECT_EQ(desktop().windows().WindowAt(corner), back.get());
  EXPECT_EQ(desktop().windows().WindowAt(kOurs.Middle()), front.get());
  Click(corner);
  EXPECT_EQ(behind.Count("left down"), 1);
  EXPECT_EQ(round.Count("left down"), 0);
  ASSERT_TRUE(front->SetEllipseRegion(std::nullopt));
  front->Show(ShowMode::Activate);
  Settle();
  EXPECT_EQ(desktop().windows().WindowAt(corner), front.get());
}

TEST_F(Windows, APressKeepsThePointerUntilTheRelease) {
  Listener listener, other;
  const auto window = NewWindow(listener, kOurs);
  const auto beside = NewWindow(other, {300, 60, 400, 220});
  beside->Show(ShowMode::NoActivate);
  window->Show(ShowMode::Activate);
  Settle();
  under().MoveTo(kOurs.Middle());
  under().Press(Button::Left);
  Settle();
  under().MoveTo({350, 140});
  const Point outside = Point{350, 140} - kOurs.Origin();
  EXPECT_TRUE(Until([&] { return listener.lastMouse.at == outside; }));
  EXPECT_TRUE(listener.lastMouse.left);
  under().Release(Button::Left);
  EXPECT_TRUE(Until([&] { return listener.Count("left up") == 1; }));
  EXPECT_EQ(other.Count("left up"), 0);
}

TEST_F(Windows, AnEndedCaptureLeavesTheReleaseToTheWindowUnderThePointer) {
  Listener listener, other;
  const auto window = NewWindow(listener, kOurs);
  const auto beside = NewWindow(other, {300, 60, 400, 220});
  beside->Show(ShowMode::NoActivate);
  window->Show(ShowMode::Activate);
  listener.onMouseDown = [&] { window->ReleaseCapture(); };
  Settle();
  under().MoveTo(kOurs.Middle());
  under().Press(Button::Left);
  Settle();
  under().MoveTo({350, 140});
  Settle();
  under().Release(Button::Left);
  EXPECT_TRUE(Until([&] { return other.Count("left up") == 1; }));
  EXPECT_EQ(listener.Count("left up"), 0);
}

TEST_F(Windows, TheSecondPressOfADoubleClickIsOne) {
  Listener listener;
  const auto window = NewWindow(listener, kOurs);
  window->Show(ShowMode::Activate);
  Settle();
  listener.log.clear();
  under().MoveTo(kOurs.Middle());
  for (int n = 0; n < 3; ++n) {
    under().Press(Button::Left);
    under().Release(Button::Left);
  }
  Settle();
  EXPECT_EQ(listener.log,
            (Log{"left down", "left up", "left double", "left up", "left down", "left up"}));
}

TEST_F(Windows, PartsOfAWheelNotchAddUp) {
  Listener listener;
  const auto window = NewWindow(listener, kOurs);
  window->Show(ShowMode::Activate);
  ASSERT_TRUE(HasForeground(*window));
  under().MoveTo(kOurs.Middle());
  Settle();
  listener.log.clear();
  // A part, two that fill one notch and begin another, a turn back that forgets it.
  for (const int turn : {40, 40, 80, -100, -20, -240, 120}) {
    under().TurnWheel(turn);
    Settle();
  }
  EXPECT_EQ(listener.log, (Log{"wheel 1", "wheel -1", "wheel -2", "wheel 1"}));
  EXPECT_EQ(listener.lastMouse.at, kOurs.Middle() - kOurs.Origin());
}

TEST_F(Windows, TheInnermostVisibleWindowIsUnderThePoint) {
  Listener listener, outer, inner;
  const auto window = NewWindow(listener, kOurs);
  const auto pane = NewPane(*window, {10, 10, 110, 110}, outer);
  const auto child = NewPane(*pane, {20, 20, 60, 60}, inner);
  window->Show(ShowMode::Activate);
  Settle();
  const Point p = kOurs.Origin() + Point{35, 35};
  EXPECT_EQ(child->ScreenBounds(), (Rect{90, 90, 130, 130}));
  EXPECT_EQ(desktop().windows().WindowAt(p), child.get());
  child->SetVisible(false);
  EXPECT_EQ(desktop().windows().WindowAt(p), pane.get());
  pane->SetVisible(false);
  EXPECT_EQ(desktop().windows().WindowAt(p), window.get());
  window->Hide();
  Settle();
  EXPECT_EQ(desktop().windows().WindowAt(p), nullptr);
}

TEST_F(Windows, BeingSeenIsToldToAllWhoAreSeenWithIt) {
  Listener listener, outer, inner;
  const auto window = NewWindow(listener, kOurs);
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
                             kInner = 0x4050F0, kLater = 0xF00000;
  Listener listener, frontListener, behindListener, innerListener;
  const auto window = NewWindow(listener, kOurs);
  const auto front = NewPane(*window, {10, 10, 90, 90}, frontListener);
  const auto behind = NewPane(*window, {50, 50, 150, 150}, behindListener);
  const auto inner = NewPane(*front, {60, 0, 160, 20}, innerListener);
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
  front->SetVisible(false);
  EXPECT_TRUE(shows({70, 70}, kBehind));
  fill(*front, kLater);
  front->SetVisible(true);
  EXPECT_TRUE(shows({70, 70}, kLater));
  EXPECT_TRUE(shows({80, 20}, kInner));
}

TEST_F(Windows, TheCanvasFollowsTheSizeAndKeepsItsContent) {
  Listener listener, inside;
  const auto window = NewWindow(listener, kOurs);
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
  const auto window = desktop().windows().NewTopWindow(
      {.frame = platform::FrameStyle::Dialog, .caption = u"Dialog"}, listener);
  window->SetBounds(kOurs);
  window->SetClientSize({200, 100});
  EXPECT_EQ(window->ClientSize(), (platform::Size{200, 100}));
  EXPECT_EQ(window->Bounds().Origin(), kOurs.Origin());
  EXPECT_GT(window->Bounds().Height(), 100);
  EXPECT_EQ(window->Canvas().Size(), window->ClientSize());
  const auto pane = NewPane(*window, {0, 0, 10, 10}, inside);
  EXPECT_GT(pane->ScreenBounds().top, window->Bounds().top) << "below the title bar";
}

TEST_F(Windows, APressGivesTheKeyboardToThoseThatTakeIt) {
  Listener listener, taking, plain;
  const auto window = NewWindow(listener, kOurs);
  const auto field = NewPane(*window, {0, 0, 50, 50}, taking, true);
  const auto button = NewPane(*window, {60, 0, 110, 50}, plain, false);
  window->Show(ShowMode::Activate);
  ASSERT_TRUE(HasForeground(*window));
  EXPECT_TRUE(window->HasFocus());
  Click(*field);
  EXPECT_TRUE(field->HasFocus());
  EXPECT_EQ(taking.Count("focus"), 1);
  Click(*button);
  EXPECT_TRUE(field->HasFocus());
  PressKey('B');
  EXPECT_EQ(taking.Count("key 66"), 1);
  EXPECT_EQ(taking.typed, u"b");
  field->SetVisible(false);
  EXPECT_FALSE(field->HasFocus());
  field->Focus();
  EXPECT_FALSE(field->HasFocus()) << "what is not seen gets no keyboard";
}

TEST_F(Windows, TheKeyboardComesBackToTheChildThatHadIt) {
  Listener listener, taking;
  const auto window = NewWindow(listener, kOurs);
  const auto field = NewPane(*window, {0, 0, 50, 50}, taking, true);
  window->Show(ShowMode::Activate);
  ASSERT_TRUE(HasForeground(*window));
  field->Focus();
  window->SetEnabled(false);
  window->Hide();
  Settle();
  window->SetEnabled(true);
  window->Show(ShowMode::Activate);
  ASSERT_TRUE(HasForeground(*window));
  EXPECT_TRUE(field->HasFocus());
}

class PreviewListener : public Listener {
 public:
  int taken = 0;
  std::vector<std::pair<int, platform::Window*>> previewed;
  void OnPreviewKey(platform::KeyEvent& event, platform::Window* focused) override {
    previewed.emplace_back(event.virtualKey, focused);
    event.handled = event.virtualKey == taken;
  }
};

TEST_F(Windows, TheWindowSeesKeysBeforeItsChildren) {
  PreviewListener listener;
  Listener child;
  const auto window = NewWindow(listener, kOurs);
  const auto field = NewPane(*window, {0, 0, 50, 50}, child, true);
  listener.taken = 'Q';
  window->Show(ShowMode::Activate);
  ASSERT_TRUE(HasForeground(*window));
  PressKey(key::kF2);
  field->Focus();
  PressKey('Q');
  PressKey('W');
  const std::vector<std::pair<int, platform::Window*>> expected{
      {key::kF2, nullptr}, {'Q', field.get()}, {'W', field.get()}};
  EXPECT_EQ(listener.previewed, expected);
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
    const auto free = NewWindow(listener, kOurs);
    const auto other = NewWindow(listener, kOurs);
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
  const auto dialog = desktop().windows().NewTopWindow(
      {.frame = platform::FrameStyle::Dialog, .caption = u"Dialog"}, listener);
  const auto plain = NewWindow(listener, kOurs);
  dialog->SetBounds(kOurs.Moved({300, 0}));
  dialog->Show(ShowMode::Activate);
  plain->Show(ShowMode::Activate);
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
  const auto window = desktop().windows().NewTopWindow(
      {.frame = platform::FrameStyle::Dialog, .caption = u"Dialog"}, listener);
  window->SetBounds(kOurs);
  window->Show(ShowMode::Activate);
  ASSERT_TRUE(HasForeground(*window));
  Click({kOurs.right - 12, kOurs.top + 12});
  EXPECT_EQ(listener.Count("close"), 1) << "the close box";
  under().KeyDown(key::kAlt);
  PressKey(key::kF4);
  under().KeyUp(key::kAlt);
  EXPECT_TRUE(Until([&] { return listener.Count("close") == 2; })) << "Alt+F4";
  EXPECT_TRUE(window->Visible());
}

TEST_F(Windows, ClosedWindowsAreHusks) {
  Listener listener, inside;
  const auto window = NewWindow(listener, kOurs);
  const auto pane = NewPane(*window, {0, 0, 50, 50}, inside, true);
  const auto box = desktop().controls().NewTextBox(*window, {0, 60, 50, 80}, {});
  window->Show(ShowMode::Activate);
  window->Close();
  window->Close();
  window->Show(ShowMode::Activate);
  window->SetBounds({1, 2, 3, 4});
  pane->Focus();
  pane->Refresh();
  box->SetText(u"x");
  Settle();
  EXPECT_FALSE(window->Visible());
  EXPECT_FALSE(pane->HasFocus());
  EXPECT_EQ(box->Text(), u"");
  EXPECT_NE(desktop().windows().WindowAt(kOurs.Middle()), window.get());
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
