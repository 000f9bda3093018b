// What all native controls share: keys, focus, font and colours.
#pragma once

#include "platform/controls.h"
#include "platform/win32/PaneWindow.h"
#include "platform/win32/WindowOf.h"

namespace platform {

class ControlWindow : public NativeWindow {
 public:
  /// Whether the parent's canvas is the control's background as long as it has none of its own.
  enum class Background { Own, Parents };
  explicit ControlWindow(Background background) : background_(background) {}

  void SetFont(const Font& font);
  void SetColours(std::optional<Colour> text, std::optional<Colour> background);

  std::optional<LRESULT> Receive(const WindowMessage& message) override;
  std::optional<LRESULT> Reflect(const WindowMessage& message) override;
  void ParentRefreshed() override;

 protected:
  virtual ControlEvents& Events() = 0;
  /// A notification by its code, from WM_COMMAND.
  virtual void OnCommand(int /*code*/) {}
  virtual LRESULT OnNotify(const NMHDR&) { return 0; }
  virtual void OnScroll() {}

  void TellClick() { Tell(Events().Click); }
  void TellDoubleClick() { Tell(Events().DoubleClick); }
  void TellChange() { Tell(Events().Change); }
  void TellSelectionChange() { Tell(Events().SelectionChange); }

  /// Style bits that every child has.
  static constexpr DWORD kChild = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;
  bool MakeChild(HWND parent, const Rect& bounds, const wchar_t* className, DWORD style,
                 std::u16string_view caption = {}, DWORD extendedStyle = 0);

  bool ShowsParent() const { return background_ == Background::Parents && !backgroundColour_; }
  PaneWindow* Parent() const;
  void SetWindowText(std::u16string_view text);
  [[nodiscard]] std::u16string WindowText() const;
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  template <typename T>
  LRESULT SendPointer(UINT message, WPARAM wParam, T* pointer) const {
    return Send(message, wParam, reinterpret_cast<LPARAM>(pointer));
  }

  OwnedFont font_;
  std::optional<Colour> textColour_;
  std::optional<Colour> backgroundColour_;

 private:
  static void Tell(const std::function<void()>& handler) {
    if (handler) handler();
  }
  std::optional<LRESULT> KeyDown(const WindowMessage& message);
  std::optional<LRESULT> Char(const WindowMessage& message);
  LRESULT FocusChanged(const WindowMessage& message, bool gained);
  std::optional<LRESULT> Colours(HDC dc);

  Background background_;
  OwnedBrush brush_;
};

template <typename PortType>
class ControlOf : public WindowOf<PortType, ControlWindow> {
 public:
  using WindowOf<PortType, ControlWindow>::WindowOf;
  void SetFont(const Font& font) override { ControlWindow::SetFont(font); }
  void SetColours(std::optional<Colour> text, std::optional<Colour> background) override {
    ControlWindow::SetColours(text, background);
  }

 protected:
  ControlEvents& Events() override { return this->events; }
};

}  // namespace platform
