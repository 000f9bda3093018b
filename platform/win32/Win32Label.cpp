#include "platform/win32/Win32Label.h"

#include "platform/drawing.h"
#include "platform/win32/DibMemory.h"
#include "platform/win32/Pointers.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

UINT FormatOf(Alignment alignment) {
  switch (alignment) {
    case Alignment::Right:
      return DT_RIGHT;
    case Alignment::Centre:
      return DT_CENTER;
    case Alignment::Left:
      break;
  }
  return DT_LEFT;
}

}  // namespace

bool Win32Label::Make(HWND parent, const Rect& bounds, std::u16string_view caption) {
  return MakeChild(parent, bounds, kWindowClass, 0, caption);
}

void Win32Label::SetCaption(std::u16string_view caption) {
  SetWindowText(caption);
  if (Seen()) ::InvalidateRect(Handle(), nullptr, FALSE);
}

std::optional<LRESULT> Win32Label::Receive(const WindowMessage& message) {
  if (const auto what = ButtonMessageOf(message)) return ReceiveButton(*what, message);
  switch (message.id) {
    case WM_PAINT:
      return Paint();
    case WM_ERASEBKGND:
      return 1;
    case WM_SETCURSOR:
      ::SetCursor(CursorOf(pointer_));
      return TRUE;
    default:
      return ControlOf::Receive(message);
  }
}

LRESULT Win32Label::ReceiveButton(const ButtonMessage& what, const WindowMessage& message) {
  const bool left = what.button == Button::Left;
  if (what.event == ButtonEvent::Up) {
    if (left) Release(message);
  } else if (left && what.event == ButtonEvent::Second) {
    TellDoubleClick();
  } else {
    Press(what.button, message);
  }
  return 0;
}

void Win32Label::Press(Button button, const WindowMessage& message) {
  if (button == Button::Left) ::SetCapture(Handle());
  if (MouseDown) MouseDown(button, MouseEventOf(message));
}

void Win32Label::Release(const WindowMessage& message) {
  if (::GetCapture() != Handle()) return;
  ::ReleaseCapture();
  const Rect area = Rect::At({0, 0}, NativeWindow::Bounds().Size());
  if (area.Contains(MouseEventOf(message).at)) TellClick();
}

LRESULT Win32Label::Paint() {
  PAINTSTRUCT paint;
  const HDC dc = ::BeginPaint(Handle(), &paint);
  PaintTree(dc, {0, 0}, Rect::At({0, 0}, NativeWindow::Bounds().Size()));
  ::EndPaint(Handle(), &paint);
  return 0;
}

void Win32Label::PaintTree(HDC dc, Point at, const Rect& clip) {
  Surface surface(NativeWindow::Bounds().Size());
  if (surface.Empty()) return;
  DrawOn(surface);
  CopyTo(dc, surface, at, clip);
}

void Win32Label::DrawOn(Surface& surface) const {
  const HDC dc = DcOf(surface);
  const PaneWindow* parent = ShowsParent() ? Parent() : nullptr;
  if (parent) {
    parent->PaintBehind(Handle(), dc);
  } else {
    FillRect(surface, surface.Area(), backgroundColour_.value_or(::GetSysColor(COLOR_BTNFACE)));
  }
  const Selected font(dc, font_.get());
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, NativeWindow::Enabled() ? textColour_.value_or(::GetSysColor(COLOR_BTNTEXT))
                                             : ::GetSysColor(COLOR_GRAYTEXT));
  RECT area = RectOf(surface.Area());
  const std::u16string caption = WindowText();
  ::DrawTextW(dc, Wide(caption), static_cast<int>(caption.size()), &area,
              FormatOf(style_.alignment) | DT_WORDBREAK | DT_NOPREFIX);
}

}  // namespace platform
