// The one push button of the program: skinned, with a hover and a press state, an optional icon and
// the signs of window buttons.
//
//   move in -> Hover | left down: Held, Pressed, Down | dragged out: not Pressed | up inside: Click
//   Space down: Pressed, Down | Space up: Click | Enter, access key: Click
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Form.h"
#include "platform/font.h"
#include "platform/icon.h"
#include "platform/pump.h"
#include "platform/window.h"

namespace dorvalin {

class ctlButton final : private platform::PaneEvents {
 public:
  /// On a window or pane of the caller's, which must outlive it.
  ctlButton(platform::Pane& parent, const platform::Rect& bounds, std::u16string_view caption);
  ctlButton(const ctlButton&) = delete;
  ctlButton& operator=(const ctlButton&) = delete;

  /// Released over the button, or chosen by key.
  std::function<void()> Click;
  /// Pressed. A pop-up that belongs to the button opens here.
  std::function<void()> Down;

  /// Drawn as the button that Enter would choose; Draw shows a change.
  bool LookDefault = false;
  /// Only the caption is drawn.
  bool NoStyle = false;
  /// Drawn as pressed, as a toggle that is on; Draw shows a change.
  bool Pressed = false;
  /// Drawn as the opener of a pop-up that is open; Draw shows a change.
  bool KeptDown = false;

  [[nodiscard]] const platform::Icon& Icon() const { return icon_; }
  /// Stands before the caption; none at first.
  void SetIcon(const platform::Icon& icon);
  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  [[nodiscard]] platform::Colour ForeColor() const { return foreColour_; }
  /// The caption's colour while the button is enabled.
  void SetForeColor(platform::Colour colour);
  [[nodiscard]] const std::u16string& Caption() const { return caption_; }
  /// A text, "&" before its access key, or a sign of WindowGlyphs.h.
  void SetCaption(std::u16string_view caption);
  /// What it shows, once it has been seen. Only where it has a window.
  [[nodiscard]] const platform::Surface& hdc() const { return pane_->Canvas(); }
  void SetVisible(bool visible);
  void SetBounds(const platform::Rect& bounds);
  void SetToolTip(std::u16string_view text);
  void ResetFont();

  /// Repaints it at once where it is seen.
  void Draw();
  /// Ends a press whose release went elsewhere, to the pop-up menu that the press opened.
  void Release();
  /// A short confirmation in green.
  void FlashGreen();

  /// Takes part in the form's Tab order, and its access key raises Click.
  void JoinForm(platform::Form& form);
  /// Null where the desktop gave it no window.
  [[nodiscard]] platform::Window* Window() { return pane_.get(); }

 private:
  void OnMouseDown(platform::Button button, const platform::MouseEvent& event) override;
  void OnMouseUp(platform::Button button, const platform::MouseEvent& event) override;
  void OnMouseMove(const platform::MouseEvent& event) override;
  void OnKeyDown(platform::KeyEvent& event) override;
  void OnKeyUp(platform::KeyEvent& event) override;
  void OnFocus(bool gained) override;
  void OnResize() override { Draw(); }
  void OnVisible(bool /*visible*/) override { Draw(); }
  platform::DropEffect OnDrag(const platform::DragEvent& event) override;

  void Enter();
  void WatchOut();
  void SetPressed(bool pressed);
  void Raise(const std::function<void()>& event);
  void DrawFace();
  void DrawCaption();
  [[nodiscard]] platform::Colour TextColour() const;
  [[nodiscard]] bool Inside(platform::Point p) const;

  std::u16string caption_;
  platform::Font font_;
  platform::Icon icon_;
  platform::Colour foreColour_ = 0;
  bool enabled_ = true;
  bool Hover_ = false;
  bool Held_ = false;
  bool HasFocus_ = false;
  std::unique_ptr<platform::Timer> tmrOut_;
  std::unique_ptr<platform::Timer> tmrFlash_;
  std::unique_ptr<platform::Pane> pane_;
};

}  // namespace dorvalin
