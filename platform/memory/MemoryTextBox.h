// Text boxes of the in-process desktop; the rich one shares everything but its text.
#pragma once

#include <type_traits>

#include "platform/drawing.h"
#include "platform/memory/ControlNode.h"
#include "platform/memory/EditText.h"
#include "platform/memory/EditView.h"
#include "platform/memory/MemoryDesktop.h"

namespace platform {

template <class Port, class Edit>
class TextBoxOf : public ControlOf<Port> {
 public:
  TextBoxOf(MemoryDesktop& desktop, MemoryNode* parent, const Rect& bounds,
            const TextBoxStyle& style)
      : ControlOf<Port>(desktop, parent, bounds),
        edit_(desktop.clipboard(), {.multiLine = style.multiLine, .readOnly = style.readOnly}),
        margin_(style.border ? 3 : 1) {}

  std::u16string Text() const override { return this->Alive() ? edit_.Text() : u""; }
  void SetText(std::u16string_view text) override {
    if (!this->Fails("TextBox.SetText") && text != edit_.Text()) {
      Apply([&] { edit_.SetText(text); });
    }
  }
  int SelStart() const override { return edit_.Start(); }
  int SelLength() const override { return edit_.Length(); }
  void Select(int start, int length) override {
    if (!this->Fails("TextBox.Select")) Apply([&] { edit_.Select(start, length); });
  }
  void ReplaceSelection(std::u16string_view text) override {
    if (this->Fails("TextBox.ReplaceSelection")) return;
    Apply([&] { edit_.ReplaceSelection(text); });
  }

 protected:
  static constexpr bool kRich = std::is_same_v<Port, RichTextBox>;
  Edit& TheEdit() { return edit_; }
  const Edit& TheEdit() const { return edit_; }

  /// Makes a change and tells what came of it.
  template <class Change>
  void Apply(Change&& change) {
    const int revision = edit_.Revision();
    const int start = edit_.Start(), length = edit_.Length();
    change();
    const bool moved = start != edit_.Start() || length != edit_.Length();
    const auto changed = revision != edit_.Revision() ? this->events.Change : nullptr;
    if (kRich && moved) this->Raise(this->events.SelectionChange);
    this->Raise(changed);
  }

  void PaintOn(Surface& screen, const Rect& place, const Rect& clip) override {
    const Rect part = place.Intersected(clip);
    if (part.Empty()) return;
    FillRect(screen, part, this->Background().value_or(0xFFFFFF));
    if (margin_ > 1) DrawEdge(screen, place, Edge::Sunken, {});
    PaintEdit(screen, place.Grown(-margin_), edit_,
              {this->ShownFont(), this->TextColour(), this->OwnsFocus()});
  }
  void OnPointerInput(const PointerInput& input, const MouseEvent& event) override {
    const bool press = input.kind == PointerInput::Kind::Press && input.button == Button::Left;
    const bool drags = input.kind == PointerInput::Kind::Move && event.left;
    if (press || drags) {
      const int at = PositionAt(edit_, event.at - Point{margin_, margin_},
                                this->Place().Width() - 2 * margin_, this->ShownFont());
      if (press) pressedAt_ = at;
      Apply([&] { edit_.Select(std::min(at, pressedAt_), std::abs(at - pressedAt_)); });
    }
  }
  void OnOwnKey(const KeyEvent& event) override {
    Apply([&] { edit_.OnKey(event.virtualKey, event.modifiers); });
  }
  void OnOwnChar(char16_t unit) override {
    Apply([&] { edit_.OnChar(unit); });
  }
  Pointer Shape() const override { return {StandardPointer::IBeam, {}}; }

 private:
  Edit edit_;
  int margin_;
  int pressedAt_ = 0;
};

using MemoryTextBox = TextBoxOf<TextBox, EditText>;

}  // namespace platform
