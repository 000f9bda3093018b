// The system's wide text is the program's UTF-16 under another type name.
#pragma once

#include <string>
#include <string_view>

#include "platform/geometry.h"
#include "platform/win32/win.h"

namespace platform {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

inline const wchar_t* Wide(const char16_t* text) { return reinterpret_cast<const wchar_t*>(text); }
/// Valid as long as the string is.
inline const wchar_t* Wide(const std::u16string& text) { return Wide(text.c_str()); }
inline wchar_t* WideBuffer(std::u16string& text) { return reinterpret_cast<wchar_t*>(text.data()); }
inline std::u16string_view View(const wchar_t* text) {
  return text ? std::u16string_view(reinterpret_cast<const char16_t*>(text))
              : std::u16string_view();
}
inline std::u16string Text(const wchar_t* text) { return std::u16string(View(text)); }

/// A system call wants a terminator that a view does not promise.
class Terminated {
 public:
  explicit Terminated(std::u16string_view text) : text_(text) {}
  operator const wchar_t*() const { return Wide(text_); }

 private:
  std::u16string text_;
};

inline RECT RectOf(const Rect& r) { return {r.left, r.top, r.right, r.bottom}; }
inline Rect RectOf(const RECT& r) {
  return {static_cast<int>(r.left), static_cast<int>(r.top), static_cast<int>(r.right),
          static_cast<int>(r.bottom)};
}
inline POINT PointOf(Point p) { return {p.x, p.y}; }
inline Point PointOf(const POINT& p) { return {static_cast<int>(p.x), static_cast<int>(p.y)}; }

}  // namespace platform
