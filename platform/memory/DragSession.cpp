#include "platform/memory/DragSession.h"

#include <utility>

#include "platform/memory/MemoryClipboard.h"
#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/MemoryInput.h"
#include "platform/memory/MemoryPump.h"
#include "platform/memory/WindowStack.h"

namespace platform {

DropEffect DragSession::Run(const DataContent& data, DropEffect allowed, DragFeedback* feedback) {
  if (active_) return DropEffect::None;
  Begin(CopyOf(data), allowed);
  feedback_ = feedback;
  if (!desktop_.input().AnyButtonDown()) Drop();
  while (active_ && desktop_.pump().WaitAndDispatch()) {
  }
  if (active_) End(DropEffect::None);
  feedback_ = nullptr;
  return result_;
}

void DragSession::BeginByOther(DataContent data, DropEffect allowed) {
  Begin(std::move(data), allowed);
}

void DragSession::Begin(DataContent data, DropEffect allowed) {
  active_ = true;
  data_ = std::move(data);
  allowed_ = allowed;
  effect_ = result_ = DropEffect::None;
  at_ = desktop_.input().PointerPosition();
}

DragEvent DragSession::EventFor(DragState state, const DataSource* data) const {
  return {data, state, at_, desktop_.input().HeldModifiers(), allowed_};
}

void DragSession::OnPointer(const PointerInput& input) {
  at_ = input.state.at;
  if (input.kind == PointerInput::Kind::Move) Over();
  const bool left = input.button == Button::Left || !desktop_.input().AnyButtonDown();
  if (input.kind == PointerInput::Kind::Release && left) Drop();
}

void DragSession::OnKey(const KeyInput& input) {
  if (input.virtualKey != key::kEscape) return Over();
  if (!input.down) return;
  LeaveTarget();
  End(DropEffect::None);
}

void DragSession::LeaveTarget() {
  if (target_ != nullptr) {
    std::exchange(target_, nullptr)->OnDragOver(EventFor(DragState::Leave, nullptr));
  }
}

void DragSession::Over() {
  DesktopWindow* hit = desktop_.stack().At(at_);
  if (hit != nullptr && !hit->TakesInput()) hit = nullptr;
  if (hit != target_) LeaveTarget();
  const bool enters = hit != target_;
  target_ = hit;
  const OfferedData offered(data_);
  effect_ = DropEffect::None;
  if (hit != nullptr) {
    effect_ = hit->OnDragOver(EventFor(enters ? DragState::Enter : DragState::Over, &offered));
  }
  // Pointers are not shown here; the source is asked for them all the same.
  if (feedback_ != nullptr) static_cast<void>(feedback_->PointerFor(effect_));
}

void DragSession::Drop() {
  Over();
  if (target_ == nullptr || effect_ == DropEffect::None) {
    // A target that would take nothing is left, not dropped on.
    LeaveTarget();
    return End(DropEffect::None);
  }
  const OfferedData offered(data_);
  End(std::exchange(target_, nullptr)->OnDropped(EventFor(DragState::Over, &offered)));
}

void DragSession::End(DropEffect result) {
  active_ = false;
  result_ = result;
}

void DragSession::Forget(const DesktopWindow& window) {
  if (target_ == &window) target_ = nullptr;
}

}  // namespace platform
