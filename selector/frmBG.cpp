#include "selector/frmBG.h"

#include <cmath>
#include <utility>

#include "artwork/pictures.h"
#include "core/Help.h"
#include "core/ProgramState.h"
#include "core/UpperFloors.h"
#include "core/modRegTools.h"
#include "look/modFadeInCircularly.h"
#include "platform/desktop.h"
#include "platform/drawing.h"
#include "platform/screen.h"
#include "selector/Sidebar.h"
#include "selector/WheelPainter.h"
#include "selector/frmAni.h"
#include "selector/frmMenu.h"

namespace dorvalin {
namespace {

using platform::Button;
using platform::MouseEvent;
using platform::Point;
using platform::Rect;
using platform::ShowMode;
using platform::TheDesktop;
using platform::TheForms;

constexpr HiResTime kFrameTime = HiResSeconds(0.015);
constexpr int kOpeningSteps = 5;
constexpr int kColumnSteps = 7;
constexpr int kBubbleSteps = 4;
constexpr int kFadeStep = 20;  // pixels
constexpr HiResTime kFadeTime = HiResSeconds(0.02);
constexpr int kWatchInterval = 1;  // milliseconds

const Settings& Set() { return State().settings; }

int LastFunction() {
  if (!Set().StartWithLast) return kMenuFunction;
  return RegGetLong(kProgramKey, u"LastFunction", kDefaultFunction);
}

// What is shown where the screen cannot be read: the colour of a plain window, no black box.
platform::Surface CaptureScreen(const Rect& area) {
  auto& screen = TheDesktop().screen();
  if (auto captured = screen.Capture(area)) return std::move(*captured);
  platform::Surface plain(area.Size());
  FillRect(plain, plain.Area(), screen.SystemColourOf(platform::SystemColour::ButtonFace));
  return plain;
}

platform::Pointer HandPointer() { return {.picture = PictureBytes(Picture::curHand)}; }

}  // namespace

frmBG* PointerWheel() { return static_cast<frmBG*>(Floors().PointerWheel); }
frmBG* SideWheel() { return static_cast<frmBG*>(Floors().SideWheel); }

void OpenPointerWheel() {
  frmBG* wheel = TheForms().Load(std::make_unique<frmBG>(false));
  if (wheel != nullptr) static_cast<void>(wheel->Init(frmBG::Reuse::No));
}

frmBG::frmBG(bool vertical) : FunctionWheel("frmBG", {.topMost = true}), Vertical(vertical) {}

void frmBG::OnLoad() {
  (Vertical ? Floors().SideWheel : Floors().PointerWheel) = this;
  auto& pump = TheDesktop().pump();
  tmrLooseFocus_ = pump.NewTimer(kWatchInterval, [this] { LooseFocusTick(); });
  tmrMouseOut_ = pump.NewTimer(kWatchInterval, [this] { MouseOutTick(); });
  Window().SetAcceptsDrops(true);
}

void frmBG::OnUnload() {
  Opened = false;
  // The menu is not remembered as the last function, unless the wheel opened on it and nothing else
  // was used.
  const int last = ActiveBubble > kMenuFunction ? ActiveBubble : LastActive_;
  if (last != 0) RegSetLong(kProgramKey, u"LastFunction", last);
  tmrLooseFocus_->SetEnabled(false);
  tmrMouseOut_->SetEnabled(false);
  if (Host != nullptr) Host->Unload();
  Host = nullptr;
  State().Sending = false;
  (Vertical ? Floors().SideWheel : Floors().PointerWheel) = nullptr;
}

bool frmBG::Init(Reuse reuse) {
  Opened = true;
  Ready_ = false;
  Host = nullptr;
  if (reuse == Reuse::No) ActiveBubble = 0;
  watch_.ArmedFocus = false;
  InitBG(reuse);
  if (!Loaded()) return false;
  // The ring came to the front with its activation.
  if (Vertical) Window().SetTopMost(true);
  const int last = LastFunction();
  const bool animate = Set().AnimateAtStart && !Set().DontAnimate;
  if (Vertical && reuse == Reuse::No) {
    if (animate) SlideColumn(Slide::In);
    TheDesktop().pump().DoEvents();
    if (PointerLeftEdge()) Unload();
  } else if (!Vertical && animate) {
    AnimateOpening(last);
  }
  if (!Loaded()) return false;
  Radius_ = kRestRadius;
  if (reuse == Reuse::No) {
    SetActiveBubble(last, Vertical);
    WatchFocus();
  } else {
    DrawMe(false, 255);
  }
  LastActive_ = last;
  TheDesktop().pump().DoEvents();
  Ready_ = true;
  return Loaded();
}

void frmBG::InitBG(Reuse reuse) {
  const Point pointer = TheDesktop().input().PointerPosition();
  const auto screen = TheDesktop().screen().Size();
  const auto size = Vertical ? kColumnSize : kRingSize;
  // Off the screen while the screen is captured, so that it does not capture itself.
  Window().SetBounds(Rect::At({Window().Bounds().left, -size.height}, size));
  if (reuse == Reuse::No) Show(Vertical ? ShowMode::NoActivate : ShowMode::Activate);
  TheDesktop().pump().DoEvents();
  if (!Loaded()) return;
  Rect place = PlaceColumn(screen);
  if (!Vertical) {
    const RingPlace ring = PlaceRing(pointer, screen);
    place = ring.bounds;
    Flipped_ = ring.flipped;
  }
  picBG_ = CaptureScreen(place);
  Window().SetBounds(place);
}

void frmBG::StandOn(platform::Surface screen) {
  if (screen.Empty()) return;
  picBG_ = std::move(screen);
  DrawMe(false, 255);
}

void frmBG::SetActiveBubble(int index, bool quiet, frmMenu* host) {
  if (index == ActiveBubble) {
    if (Host != nullptr) ShowHost(quiet);
    return;
  }
  LastActive_ = ActiveBubble;
  if (Host != nullptr) {
    Host->Unload();
    TheDesktop().pump().DoEvents();
    // A click on another bubble meanwhile has opened its host already.
    if (!Loaded() || Host != nullptr) return;
  }
  const int old = std::exchange(ActiveBubble, index);
  if (old == 0 || Set().DontAnimate) {
    Rotation_ = TargetRotation(index, Flipped_);
    DrawMe(false, 255);
  } else if (Vertical) {
    SlideBubble(old);
  } else {
    TurnRing(TargetRotation(index, Flipped_));
  }
  OpenHost(index, host);
  // A column that closed meanwhile keeps its new host hidden, for the next time it comes.
  if (Visible() && Host != nullptr) ShowHost(quiet);
}

void frmBG::OpenHost(int index, frmMenu* handedIn) {
  Host = handedIn != nullptr ? handedIn : TheForms().Load(std::make_unique<frmMenu>());
  if (Host == nullptr) return;
  if (handedIn == nullptr) Host->DoLoad();
  Host->SetVertical(Vertical);
  Host->Init(index, Flipped_, handedIn != nullptr ? frmMenu::Reuse::Yes : frmMenu::Reuse::No);
  if (Visible() && (Vertical ? Set().AnimateFctnsRightBar : Set().AnimateFctnsNormal)) {
    Animating_ = true;
    FadeInMenu();
    Animating_ = false;
  }
}

void frmBG::ShowHost(bool quiet) { Host->Show(quiet ? ShowMode::NoActivate : ShowMode::Activate); }

void frmBG::FadeInMenu() {
  if (Host == nullptr) return;
  Host->InFG();
  const Rect host = Host->Window().Bounds();
  const Point centre = BubbleCentre(ActiveBubble) + Window().Bounds().Origin() - host.Origin();
  FadeInCircle(Host->Window(), centre, host.Size(), kFadeStep, kFadeTime);
}

Point frmBG::BubbleCentre(int index) const {
  if (FunctionOf(index) == nullptr) return {kRingSize.width / 2, kRingSize.height / 2};
  return Places()[index - 1];
}

BubblePlaces frmBG::Places() const {
  return Vertical ? ColumnPlaces(ActiveBubble, slide_) : RingPlaces(Radius_, Rotation_);
}

void frmBG::DrawMe(bool fast, int opacity) {
  if (!Loaded()) return;
  WheelFrame frame{.background = &picBG_,
                   .places = Places(),
                   .active = ActiveBubble,
                   .hover = HoverBubble_,
                   .opacity = opacity,
                   .plainMasks = fast && Set().FastTurn,
                   .caption = {}};
  if (Set().ToolTips && !Vertical && !fast && HoverBubble_ > 0) {
    frame.caption = FunctionOf(HoverBubble_)->caption;
  }
  PaintWheel(Window().Canvas(), frame);
  Window().Refresh();
}

// One frame of a motion. The thread is held until its time is over, without a pump.
template <class Step>
void frmBG::Frame(Step step) {
  const HiResTime start = HiResTimer();
  step();
  SpinUntil(start + kFrameTime);
}

void frmBG::AnimateOpening(int function) {
  ActiveBubble = function;
  Rotation_ = TargetRotation(function, Flipped_);
  Animating_ = true;
  for (int s = 1; s <= kOpeningSteps; ++s) {
    Radius_ = (s + 3) * kRestRadius / 9;
    Frame([&] { DrawMe(true, static_cast<int>(std::nearbyint(s / 6.0 * 255))); });
  }
  ActiveBubble = 0;
  Animating_ = false;
}

void frmBG::TurnRing(double target) {
  RingTurn turn(Rotation_, target);
  Animating_ = true;
  while (const auto next = turn.Next()) {
    Rotation_ = *next;
    Frame([&] { DrawMe(true, 255); });
  }
  Rotation_ = turn.Target();
  Animating_ = false;
  FinishMotion();
}

void frmBG::SlideBubble(int from) {
  slide_.oldBubble = from;
  Animating_ = true;
  for (int j = 1; j <= kBubbleSteps; ++j) {
    slide_.old = 2 * j;
    slide_.active = 10 - 2 * j;
    Frame([&] { DrawMe(true, 255); });
  }
  slide_ = {};
  Animating_ = false;
  FinishMotion();
}

void frmBG::SlideColumn(Slide direction) {
  Animating_ = true;
  for (int j = 1; j <= kColumnSteps; ++j) {
    const int step = direction == Slide::In ? kColumnSteps - j : j;
    slide_.all = static_cast<int>(std::nearbyint(step * double{kColumnSize.width} / kColumnSteps));
    Frame([&] { DrawMe(true, 255); });
  }
  Animating_ = false;
}

void frmBG::FinishMotion() {
  if (Set().FastTurn) DrawMe(true, 255);
  HoverBubble_ = 0;
  DrawMe(false, 255);
}

void frmBG::CloseMe() {
  if (!Vertical) {
    Unload();
    return;
  }
  tmrLooseFocus_->SetEnabled(false);
  if (Host != nullptr) Host->Hide();
  // A delivery has hidden the column before; nobody would see it slide out.
  if (Visible() && !Set().DontAnimate) SlideColumn(Slide::Out);
  Hide();
  slide_.all = 0;
}

void frmBG::ShowMe() {
  watch_.ArmedFocus = false;
  InitBG(Reuse::No);
  if (!Loaded()) return;
  if (Set().AnimateAtStart && !Set().DontAnimate) SlideColumn(Slide::In);
  TheDesktop().pump().DoEvents();
  if (!Visible()) return;
  if (PointerLeftEdge()) return Hide();
  DrawMe(false, 255);
  if (Host != nullptr) {
    Host->PanelShownAgain();
    if (Set().AnimateFctnsRightBar) FadeInMenu();
  }
  // A click or a delivery has closed it again while its host faded in.
  if (!Visible()) return;
  if (Host != nullptr) {
    Host->InFG();
    Host->Show(ShowMode::NoActivate);
  }
  WatchFocus();
}

void frmBG::WatchFocus() {
  // A column that was closed meanwhile stays loaded, without the watch.
  if (Vertical ? Visible() : Loaded()) tmrLooseFocus_->SetEnabled(true);
}

bool frmBG::PointerLeftEdge() const {
  return TheDesktop().input().PointerPosition().x < SidebarEdge();
}

void frmBG::OnActivate(platform::Activation activation) {
  if (activation != platform::Activation::Gained || State().Sending || State().ModalOpen) return;
  if (tmrLooseFocus_->Enabled() && Host != nullptr) Host->Show(ShowMode::Activate);
}

void frmBG::OnFormKey(platform::KeyEvent& event) {
  if (Host != nullptr) {
    Host->DoKeyDown(event);
  } else if (event.virtualKey == platform::key::kF1) {
    event.handled = true;
    OpenHelpTopic(u"main");
  }
}

void frmBG::OnMouseMove(const MouseEvent& event) {
  if (Animating_) return;
  const int bubble = BubbleAt(Places(), event.at);
  if (bubble == HoverBubble_) return;
  SetHover(bubble);
  tmrMouseOut_->SetEnabled(true);
}

void frmBG::SetHover(int bubble) {
  HoverBubble_ = bubble;
  const bool clickable = bubble != 0 && bubble != ActiveBubble;
  Window().SetPointer(clickable ? HandPointer() : platform::Pointer{});
  DrawMe(false, 255);
}

void frmBG::MouseOutTick() {
  const Point pointer = TheDesktop().input().PointerPosition();
  if (TheDesktop().windows().WindowAt(pointer) == &Window()) return;
  tmrMouseOut_->SetEnabled(false);
  SetHover(0);
}

void frmBG::OnMouseDown(Button button, const MouseEvent& event) {
  if (State().ModalOpen || Animating_ || !Ready_) return;
  const int bubble = BubbleAt(Places(), event.at);
  if (bubble == 0) {
    CloseMe();
  } else if (button == Button::Left) {
    tmrMouseOut_->SetEnabled(false);
    HoverBubble_ = 0;
    SetActiveBubble(bubble, false);
  }
}

// Somebody drags something onto a bubble to open its panel and drop it there; the wheel itself
// takes nothing.
platform::DropEffect frmBG::OnDrag(const platform::DragEvent& event) {
  if (event.state == platform::DragState::Leave || Animating_) return platform::DropEffect::None;
  const int bubble = BubbleAt(Places(), event.at);
  if (bubble != 0) SetActiveBubble(bubble, false);
  return platform::DropEffect::None;
}

bool frmBG::IsOurs(const platform::TopWindow* window) const {
  return window != nullptr &&
         (window == &Window() || (Host != nullptr && window == &Host->Window()));
}

bool frmBG::PointerOverOurs() const {
  const Point pointer = TheDesktop().input().PointerPosition();
  const bool inside = Window().Bounds().Contains(pointer) ||
                      (Host != nullptr && Host->Window().Bounds().Contains(pointer));
  return inside && TheDesktop().windows().WindowAt(pointer) != nullptr;
}

FocusSample frmBG::SampleFocus() const {
  auto& input = TheDesktop().input();
  const auto foreground = TheDesktop().windows().ForegroundWindow();
  FocusSample sample{.anyButtonDown = input.ButtonDown(Button::Left) ||
                                      input.ButtonDown(Button::Right) ||
                                      input.ButtonDown(Button::Middle),
                     .oursInForeground = IsOurs(foreground.ours)};
  sample.otherInForeground = foreground.present && !sample.oursInForeground;
  // A press on a window of ours can be seen before its click has brought the activation here.
  if (sample.anyButtonDown && sample.otherInForeground && PointerOverOurs()) {
    sample.otherInForeground = false;
  }
  return sample;
}

SidebarZone frmBG::Zone() const {
  return {.wheel = Window().Bounds(),
          .hasHost = Host != nullptr,
          .host = Host != nullptr ? Host->Window().Bounds() : Rect{}};
}

void frmBG::LooseFocusTick() {
  if (State().Sending || State().ModalOpen || Animating_) return;
  auto verdict = dorvalin::WatchFocus(watch_, SampleFocus());
  if (verdict == FocusVerdict::Stay && Vertical) {
    auto& input = TheDesktop().input();
    const bool inZone =
        InSidebarZone(Zone(), input.PointerPosition(), input.ButtonDown(Button::Left));
    verdict = WatchZone(watch_, inZone, State().PopupOpen);
  }
  if (verdict == FocusVerdict::Stay) return;
  tmrLooseFocus_->SetEnabled(false);
  CloseMe();
}

void frmBG::SetInLine() {
  frmMenu* kept = std::exchange(Host, nullptr);
  if (kept == nullptr) return;
  tmrMouseOut_->SetEnabled(false);
  tmrLooseFocus_->SetEnabled(false);
  // It goes in any case; no click during the pumps may open another panel on it.
  Animating_ = true;
  kept->Hide();
  TheDesktop().pump().DoEvents();
  if (Loaded() && kept->Loaded()) return HandOver(*this, *kept, picBG_, Rotation_);
  // One of the two went meanwhile; the other would be left without its partner.
  kept->Unload();
  Unload();
}

}  // namespace dorvalin
