#include "platform/memory/ForeignWindow.h"

#include <utility>

#include "platform/drawing.h"
#include "platform/memory/DragSession.h"
#include "platform/memory/EditView.h"
#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/WindowFrame.h"
#include "platform/memory/WindowStack.h"

namespace platform {

ForeignWindow::ForeignWindow(MemoryDesktop& desktop, std::u16string_view title, const Rect& bounds)
    : desktop_(desktop), title_(title), bounds_(bounds) {
  desktop_.stack().Add(*this);
  Show(ShowMode::Activate);
}

ForeignWindow::~ForeignWindow() {
  desktop_.drags().Forget(*this);
  desktop_.stack().Remove(*this);
}

void ForeignWindow::Show(ShowMode mode) {
  shown_ = true;
  if (mode == ShowMode::NoActivate) return;
  desktop_.stack().Raise(*this);
  desktop_.stack().Activate(this);
}

void ForeignWindow::Hide() {
  shown_ = false;
  desktop_.stack().HandOn(*this);
}

void ForeignWindow::SetTopMost(bool topMost) {
  topMost_ = topMost;
  desktop_.stack().Raise(*this);
}

bool ForeignWindow::IsActive() const { return desktop_.stack().Active() == this; }

Rect ForeignWindow::Inside() const { return WindowFrame(bounds_).Inside(); }

void ForeignWindow::Paint(Surface& screen) {
  WindowFrame(bounds_).Paint(screen, title_, IsActive());
  FillRect(screen, Inside(), colour_);
  PaintInside(screen, Inside());
}

void ForeignWindow::OnPointer(const PointerInput& input) {
  if (input.kind != PointerInput::Kind::Press) return;
  desktop_.stack().Raise(*this);
  desktop_.stack().Activate(this);
  if (!busy_) OnPress(input.state.at);
}

void ForeignEditor::OnKey(const KeyInput& input) {
  if (Busy() || !input.down) return;
  ++keysTaken_;
  Edit().OnKey(input.virtualKey, input.modifiers);
  if (input.unit != 0 && !input.modifiers.alt) Edit().OnChar(input.unit);
}

void ForeignEditor::PaintInside(Surface& screen, const Rect& inside) {
  PaintEdit(screen, inside.Grown(-2), Edit(), {.caret = IsActive()});
}

void ForeignEditor::OnPress(Point screen) {
  if (!Inside().Contains(screen)) return;
  Edit().Select(PositionAt(Edit(), screen - Inside().Grown(-2).Origin(), Inside().Width() - 4, {}),
                0);
}

void ForeignEditor::BeginDrag() {
  DataContent content;
  content.text = Edit().Selected();
  Desktop().drags().BeginByOther(std::move(content), DropEffect::Copy);
}

DropEffect ForeignEditor::OnDragOver(const DragEvent& event) {
  if (Busy() || event.data == nullptr || !event.data->OffersText()) return DropEffect::None;
  return event.allowed;
}

DropEffect ForeignEditor::OnDropped(const DragEvent& event) {
  const auto text = Busy() ? std::nullopt : event.data->Text();
  if (!text) return DropEffect::None;
  OnPress(event.at);
  Edit().ReplaceSelection(*text);
  return event.allowed;
}

ForeignTextEditor::ForeignTextEditor(MemoryDesktop& desktop, const Rect& bounds,
                                     std::u16string_view title)
    : ForeignEditor(desktop, title, bounds), edit_(desktop.clipboard(), {.otherProgram = true}) {}

ForeignRichEditor::ForeignRichEditor(MemoryDesktop& desktop, const Rect& bounds,
                                     std::u16string_view title)
    : ForeignEditor(desktop, title, bounds), edit_(desktop.clipboard(), {.otherProgram = true}) {}

}  // namespace platform
