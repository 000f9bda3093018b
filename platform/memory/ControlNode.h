// What all native controls of the in-process desktop share.
#pragma once

#include <optional>

#include "platform/controls.h"
#include "platform/memory/MemoryNode.h"

namespace platform {

template <class Port>
class ControlOf : public WindowOf<Port> {
 public:
  ControlOf(MemoryDesktop& desktop, MemoryNode* parent, const Rect& bounds, bool focusable = true)
      : WindowOf<Port>(desktop, parent, bounds) {
    this->SetFocusable(focusable);
  }
  void SetFont(const Font& font) override { font_ = font; }
  void SetColours(std::optional<Colour> text, std::optional<Colour> background) override {
    textColour_ = text;
    background_ = background;
  }
  const Font& ShownFont() const { return font_; }

 protected:
  Colour TextColour(Colour otherwise = 0x000000) const { return textColour_.value_or(otherwise); }
  std::optional<Colour> Background() const { return background_; }
  /// The handler may take the control away: nothing of it is touched afterwards.
  void Raise(const std::function<void()>& event) const {
    if (const auto handler = event) handler();
  }
  /// Another choice was made.
  void RaiseChoice() const {
    const auto click = this->events.Click;
    Raise(this->events.Change);
    Raise(click);
  }
  static void Raise(const MouseHandler& event, Button button, const MouseEvent& at) {
    if (const auto handler = event) handler(button, at);
  }

  void OnFocusChange(bool gained) override {
    if (const auto handler = this->events.Focus) handler(gained);
  }
  void OnKeyInput(KeyEvent& event, bool down) override {
    if (!down) return;
    if (const auto handler = this->events.KeyDown) handler(event);
    if (!event.handled && this->Alive()) OnOwnKey(event);
  }
  void OnCharInput(CharEvent& event) override {
    if (const auto handler = this->events.Char) handler(event);
    if (event.unit != 0 && this->Alive()) OnOwnChar(event.unit);
  }
  /// What the control itself does with a key that nobody took.
  virtual void OnOwnKey(const KeyEvent&) {}
  virtual void OnOwnChar(char16_t) {}

 private:
  Font font_;
  std::optional<Colour> textColour_;
  std::optional<Colour> background_;
};

}  // namespace platform
