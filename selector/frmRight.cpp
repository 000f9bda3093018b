#include "selector/frmRight.h"

#include "core/ProgramState.h"
#include "platform/desktop.h"
#include "platform/drawing.h"
#include "platform/screen.h"
#include "selector/frmBG.h"

namespace dorvalin {
namespace {

using platform::Rect;
using platform::TheDesktop;

constexpr int kDelay = 400;  // milliseconds

struct LoadedEdge {
  frmRight* form = nullptr;
};

}  // namespace

std::optional<Rect> EdgeArea(int rightBarArea, platform::Size screen) {
  const int x = screen.width - 1;
  if (rightBarArea == 0) return Rect::At({x, 0}, {1, screen.height});
  const int third = screen.height / 3;
  if (rightBarArea == 1) return Rect::At({x, third}, {1, third});
  return std::nullopt;
}

// The target keeps the focus, also when the edge is clicked.
frmRight::frmRight() : Form("frmRight", {.activatable = false, .unseen = true}) {}

frmRight* frmRight::Instance() { return StateOf<LoadedEdge>().form; }

void frmRight::OnLoad() {
  StateOf<LoadedEdge>().form = this;
  State().SidebarOn = true;
  Window().SetAcceptsDrops(true);
  SetSize();
  // Runs from the start: a pointer that rests at the edge already opens the sidebar as well.
  tmrDelay_ = TheDesktop().pump().NewTimer(kDelay, [this] { DelayTick(); });
  tmrDelay_->SetEnabled(true);
}

void frmRight::OnUnload() {
  tmrDelay_.reset();
  State().SidebarOn = false;
  StateOf<LoadedEdge>().form = nullptr;
}

void frmRight::SetSize() {
  const auto area = EdgeArea(State().settings.RightBarArea, TheDesktop().screen().Size());
  if (!area) return;
  Window().SetBounds(*area);
  // Where the desktop cannot make it unseen, it looks like the edge of a window.
  auto& canvas = Window().Canvas();
  FillRect(canvas, canvas.Area(),
           TheDesktop().screen().SystemColourOf(platform::SystemColour::ButtonFace));
  Window().SetTopMost(true);
  Show(platform::ShowMode::NoActivate);
}

void frmRight::OnMouseMove(const platform::MouseEvent&) {
  switch (State().settings.RightBarMode) {
    case kBarAtOnce:
      return ShowRightBar();
    case kBarDelayed:
      return tmrDelay_->SetEnabled(true);
    default:
      return;
  }
}

void frmRight::DelayTick() {
  tmrDelay_->SetEnabled(false);
  if (!Visible()) return;
  if (TheDesktop().input().PointerPosition().x >= Window().Bounds().left) ShowRightBar();
}

platform::DropEffect frmRight::OnDrag(const platform::DragEvent& event) {
  if (event.state == platform::DragState::Enter) ShowRightBar();
  return platform::DropEffect::None;
}

void frmRight::ShowRightBar() {
  frmBG* column = SideWheel();
  if (column == nullptr) {
    column = platform::TheForms().Load(std::make_unique<frmBG>(true));
    if (column != nullptr) static_cast<void>(column->Init(frmBG::Reuse::No));
  } else if (!column->Visible()) {
    column->ShowMe();
  }
}

}  // namespace dorvalin
