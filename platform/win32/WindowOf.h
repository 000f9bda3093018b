// Joins a window port with the native window that carries it out.
#pragma once

#include "platform/win32/NativeWindow.h"

namespace platform {

template <typename PortType, typename Native>
class WindowOf : public PortType, public Native {
 public:
  using Native::Native;

  Window& Port() override { return *this; }
  Rect Bounds() const override { return Native::Bounds(); }
  void SetBounds(const Rect& bounds) override { Native::SetBounds(bounds); }
  Rect ScreenBounds() const override { return Native::ScreenBounds(); }
  bool Visible() const override { return Native::Visible(); }
  void SetVisible(bool visible) override { Native::SetVisible(visible); }
  bool Seen() const override { return Native::Seen(); }
  bool Enabled() const override { return Native::Enabled(); }
  void SetEnabled(bool enabled) override { Native::SetEnabled(enabled); }
  void Focus() override { Native::Focus(); }
  bool HasFocus() const override { return Native::HasFocus(); }
  void SetToolTip(std::u16string_view text) override { Native::SetToolTip(text); }
};

}  // namespace platform
