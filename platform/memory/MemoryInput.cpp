#include "platform/memory/MemoryInput.h"

#include <algorithm>

#include "platform/memory/DragSession.h"
#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/MemoryWindows.h"
#include "platform/text.h"

namespace platform {
namespace {

/// What the system calls a key that stands for a typed character.
constexpr int kPacketKey = 0xE7;

bool IsLetter(int virtualKey) { return virtualKey >= 'A' && virtualKey <= 'Z'; }

/// The character that a key types by its number alone.
char16_t CharacterOf(int virtualKey, Modifiers held) {
  if (held.alt) return 0;
  const auto unit = static_cast<char16_t>(virtualKey);
  if (held.control) {
    if (IsLetter(virtualKey)) return static_cast<char16_t>(virtualKey - 'A' + 1);
    return virtualKey == key::kEnter ? u'\n' : u'\0';
  }
  if (IsLetter(virtualKey)) return held.shift ? unit : LowerUnit(unit);
  if (virtualKey >= '0' && virtualKey <= '9') return held.shift ? u'\0' : unit;
  switch (virtualKey) {
    case key::kBack:
    case key::kTab:
    case key::kEnter:
    case key::kEscape:
    case key::kSpace:
      return unit;
    default:
      return 0;
  }
}

}  // namespace

bool MemoryInput::ButtonDown(Button button) {
  return !desktop_.faults().Fails("Input.ButtonDown") && buttons_[static_cast<std::size_t>(button)];
}

bool MemoryInput::KeyDown(int virtualKey) {
  return !desktop_.faults().Fails("Input.KeyDown") && keys_[static_cast<std::size_t>(virtualKey)];
}

Modifiers MemoryInput::ModifiersDown() {
  return desktop_.faults().Fails("Input.ModifiersDown") ? Modifiers{} : HeldModifiers();
}

Modifiers MemoryInput::HeldModifiers() const {
  return {keys_[key::kShift], keys_[key::kControl], keys_[key::kAlt]};
}

Point MemoryInput::PointerPosition() {
  return desktop_.faults().Fails("Input.PointerPosition") ? Point{} : pointer_;
}

void MemoryInput::MovePointer(Point p) {
  if (!desktop_.faults().Fails("Input.MovePointer")) HandMoves(p);
}

void MemoryInput::SetWaitPointer(bool wait) {
  if (!desktop_.faults().Fails("Input.SetWaitPointer")) waits_ = wait;
}

Pointer MemoryInput::ShownPointer() {
  const MemoryNode* node = desktop_.windows().NodeAt(pointer_);
  if (node == nullptr) return {};
  return waits_ ? Pointer{StandardPointer::Hourglass, {}} : node->Shape();
}

void MemoryInput::InjectKey(int virtualKey, int /*scanCode*/, bool /*extended*/, KeyEdge edge) {
  if (!desktop_.faults().Fails("Input.InjectKey")) HandKey(virtualKey, edge);
}

bool MemoryInput::Type(const std::vector<KeyStroke>& strokes) {
  if (desktop_.faults().Fails("Input.Type")) return false;
  for (const KeyStroke& stroke : strokes) {
    for (int n = 0; n < stroke.count; ++n) TypeOne(stroke);
  }
  return true;
}

void MemoryInput::TypeOne(const KeyStroke& stroke) {
  KeyInput input{stroke.virtualKey, CharacterOf(stroke.virtualKey, stroke.modifiers),
                 stroke.modifiers};
  if (stroke.virtualKey == 0) input = {kPacketKey, stroke.unit, stroke.modifiers};
  SendKey(input);
  input.down = false;
  SendKey(input);
}

MouseEvent MemoryInput::State() const {
  return {pointer_, HeldModifiers(), buttons_[0], buttons_[1], buttons_[2]};
}

void MemoryInput::HandMoves(Point to) {
  const Size screen = desktop_.screen().SizeNow();
  pointer_ = {std::clamp(to.x, 0, screen.width - 1), std::clamp(to.y, 0, screen.height - 1)};
  Send({PointerInput::Kind::Move, Button::Left, State()});
}

void MemoryInput::HandPresses(Button button) {
  buttons_.set(static_cast<std::size_t>(button));
  Send({PointerInput::Kind::Press, button, State()});
}

void MemoryInput::HandReleases(Button button) {
  buttons_.reset(static_cast<std::size_t>(button));
  Send({PointerInput::Kind::Release, button, State()});
}

void MemoryInput::HandTurnsWheel(int by) {
  PointerInput turn{PointerInput::Kind::Wheel, Button::Middle, State()};
  turn.turn = by;
  Send(turn);
}

void MemoryInput::Send(PointerInput input) {
  input.time = desktop_.clock().SinceStart();
  const DesktopWindow* hit = desktop_.stack().At(input.state.at);
  const bool waits = desktop_.drags().Active() || moved_ != nullptr ||
                     desktop_.windows().Captured() != nullptr || (hit != nullptr && hit->Ours());
  if (!waits) return Route(input);
  desktop_.pump().Post([this, input] { Route(input); });
}

void MemoryInput::Route(const PointerInput& input) {
  if (desktop_.drags().Active()) return desktop_.drags().OnPointer(input);
  if (moved_ != nullptr) {
    return moved_->Move(Rect::At(input.state.at - grip_, moved_->Place().Size()));
  }
  if (MemoryNode* captured = desktop_.windows().Captured()) {
    return desktop_.windows().Deliver(*captured, input);
  }
  DesktopWindow* hit = desktop_.stack().At(input.state.at);
  if (hit != nullptr && hit->TakesInput()) hit->OnPointer(input);
}

void MemoryInput::HandKey(int virtualKey, KeyEdge edge, char16_t unit) {
  const bool down = edge == KeyEdge::Down;
  const bool repeats = keys_[static_cast<std::size_t>(virtualKey)];
  keys_.set(static_cast<std::size_t>(virtualKey), down);
  if (virtualKey == key::kScrollLock && down && !repeats) scrollLock_ = !scrollLock_;
  const Modifiers held = HeldModifiers();
  SendKey({virtualKey, unit != 0 ? unit : CharacterOf(virtualKey, held), held, down});
}

void MemoryInput::SendKey(const KeyInput& input) {
  if (desktop_.drags().Active()) {
    return desktop_.pump().Post([this, input] { desktop_.drags().OnKey(input); });
  }
  DesktopWindow* active = desktop_.stack().Active();
  if (active != nullptr && !active->Ours()) return active->OnKey(input);
  desktop_.pump().Post([this, input] {
    DesktopWindow* now = desktop_.stack().Active();
    // Keys that were meant for us are lost when we are no longer there.
    if (now != nullptr && now->Ours()) now->OnKey(input);
  });
}

void MemoryInput::MoveWithPointer(MemoryTopWindow& window) {
  moved_ = &window;
  grip_ = pointer_ - window.Place().Origin();
  desktop_.windows().ReleaseCapture(window);
  while (moved_ != nullptr && buttons_[0] && desktop_.pump().WaitAndDispatch()) {
  }
  moved_ = nullptr;
}

void MemoryInput::Forget(const MemoryTopWindow& window) {
  if (moved_ == &window) moved_ = nullptr;
}

}  // namespace platform
