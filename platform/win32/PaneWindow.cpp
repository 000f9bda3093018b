#include "platform/win32/PaneWindow.h"

#include <algorithm>

#include "platform/raster.h"
#include "platform/win32/DibMemory.h"
#include "platform/win32/DragSource.h"
#include "platform/win32/DropTarget.h"
#include "platform/win32/MouseMessages.h"
#include "platform/win32/Pointers.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

constexpr unsigned BitOf(Button button) { return 1U << static_cast<unsigned>(button); }

// The window that a notification is about, where a parent is told of it.
HWND ChildOf(const WindowMessage& m) {
  switch (m.id) {
    case WM_NOTIFY:
      return reinterpret_cast<const NMHDR*>(m.lParam)->hwndFrom;
    case WM_COMMAND:
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORSTATIC:
      return reinterpret_cast<HWND>(m.lParam);
    default:
      return nullptr;
  }
}

}  // namespace

bool PaneWindow::Make(const WindowMaking& making) {
  making_ = true;
  const bool made = NativeWindow::Make(making);
  making_ = false;
  shown_ = Seen();
  return made;
}

void PaneWindow::Refresh() {
  // What is drawn out of sight is painted when it comes into sight.
  if (canvas_.Empty() || !shown_ || !Seen()) return;
  ShowCanvas();
  for (NativeWindow* child : Children()) child->ParentRefreshed();
  ::GdiFlush();
}

// What is uncovered from now on counts as unpainted again.
void PaneWindow::ShowCanvas() {
  ::ValidateRect(Handle(), nullptr);
  const BorrowedDc dc(Handle());
  CopyTo(dc.get(), canvas_, {0, 0}, canvas_.Area());
}

void PaneWindow::OnSeen(bool seen) {
  shown_ = false;
  events_.OnVisible(seen);
}

void PaneWindow::PaintTree(HDC dc, Point at, const Rect& clip) {
  shown_ = true;
  const Rect place = Rect::At(at, canvas_.Size()).Intersected(clip);
  CopyTo(dc, canvas_, at, clip);
  // The first made is in front.
  std::for_each(Children().rbegin(), Children().rend(), [&](NativeWindow* child) {
    if (child->Visible()) child->PaintTree(dc, at + child->Bounds().Origin(), place);
  });
}

void PaneWindow::SetPointer(const Pointer& pointer) {
  pointer_ = pointer;
  if (Handle() && Handle() == WindowUnderPointer()) ShowPointerAnew();
}

void PaneWindow::ReleaseCapture() {
  if (Handle() && ::GetCapture() == Handle()) ::ReleaseCapture();
}

DropEffect PaneWindow::Drag(const DataContent& data, DropEffect allowed, DragFeedback* feedback) {
  if (!Handle()) return DropEffect::None;
  ReleaseCapture();
  return RunDrag(data, allowed, feedback);
}

void PaneWindow::SetAcceptsDrops(bool accepts) {
  acceptsDrops_ = accepts;
  NativeWindow* root = accepts && Handle() ? RootOf(Handle()) : nullptr;
  if (root && root->Drops()) root->Drops()->Register(root->Handle());
}

std::optional<LRESULT> PaneWindow::Receive(const WindowMessage& message) {
  if (const HWND child = ChildOf(message); child && child != Handle()) {
    return ReceiveForChild(message);
  }
  switch (message.id) {
    case WM_PAINT:
      return Paint();
    case WM_PRINTCLIENT:
      CopyTo(reinterpret_cast<HDC>(message.wParam), canvas_, {0, 0}, canvas_.Area());
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SIZE:
      return Resize();
    case WM_SETFOCUS:
      events_.OnFocus(true);
      return 0;
    case WM_KILLFOCUS:
      events_.OnFocus(false);
      return 0;
    default:
      break;
  }
  if (message.id >= WM_KEYFIRST && message.id <= WM_KEYLAST) return ReceiveKey(message);
  return ReceivePointer(message);
}

std::optional<LRESULT> PaneWindow::ReceivePointer(const WindowMessage& message) {
  if (const auto what = ButtonMessageOf(message)) {
    return what->event == ButtonEvent::Up
               ? Release(what->button, message)
               : Press(what->button, message, what->event == ButtonEvent::Second);
  }
  switch (message.id) {
    case WM_MOUSEMOVE:
      events_.OnMouseMove(MouseEventOf(message));
      return 0;
    case WM_MOUSEWHEEL:
      return Turn(message);
    case WM_CAPTURECHANGED:
      held_ = 0;
      return 0;
    case WM_SETCURSOR:
      return ShowPointer(message);
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> PaneWindow::ReceiveKey(const WindowMessage& message) {
  switch (message.id) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      return KeyDown(message);
    case WM_KEYUP:
    case WM_SYSKEYUP:
      return KeyUp(message);
    case WM_CHAR: {
      CharEvent event{static_cast<char16_t>(message.wParam)};
      events_.OnChar(event);
      return 0;
    }
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> PaneWindow::ReceiveForChild(const WindowMessage& message) {
  NativeWindow* child = Of(ChildOf(message));
  return child ? child->Reflect(message) : std::nullopt;
}

LRESULT PaneWindow::Paint() {
  shown_ = true;
  PAINTSTRUCT paint;
  const HDC dc = ::BeginPaint(Handle(), &paint);
  CopyTo(dc, canvas_, {0, 0}, canvas_.Area());
  ::EndPaint(Handle(), &paint);
  return 0;
}

LRESULT PaneWindow::Resize() {
  RECT client{};
  ::GetClientRect(Handle(), &client);
  const Size size = RectOf(client).Size();
  if (size == canvas_.Size()) return 0;
  Surface fresh(size);
  if (!canvas_.Empty()) BitBlt(fresh, canvas_.Area(), canvas_, {0, 0}, RasterOp::SrcCopy);
  canvas_ = std::move(fresh);
  // The first size is no change, and the events' owner does not have the window yet.
  if (making_) return 0;
  ::InvalidateRect(Handle(), nullptr, FALSE);
  events_.OnResize();
  return 0;
}

LRESULT PaneWindow::Press(Button button, const WindowMessage& message, bool second) {
  if (focusable_) ::SetFocus(Handle());
  if (held_ == 0) ::SetCapture(Handle());
  held_ |= BitOf(button);
  if (second && FollowsPress(button)) {
    lastPress_.reset();
    events_.OnDoubleClick(button, MouseEventOf(message));
  } else {
    lastPress_ = Pressed{button, ::GetMessageTime()};
    events_.OnMouseDown(button, MouseEventOf(message));
  }
  return 0;
}

// The system also counts presses that nobody was told of because the window was disabled.
bool PaneWindow::FollowsPress(Button button) const {
  return lastPress_ && lastPress_->button == button &&
         static_cast<DWORD>(::GetMessageTime() - lastPress_->time) <= ::GetDoubleClickTime();
}

LRESULT PaneWindow::Release(Button button, const WindowMessage& message) {
  held_ &= ~BitOf(button);
  if (held_ == 0) ReleaseCapture();
  events_.OnMouseUp(button, MouseEventOf(message));
  return 0;
}

LRESULT PaneWindow::Turn(const WindowMessage& message) {
  // Unlike the others, this message has screen coordinates.
  POINT at{GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
  ::ScreenToClient(Handle(), &at);
  MouseEvent event =
      MouseEventOf({message.id, GET_KEYSTATE_WPARAM(message.wParam), MAKELPARAM(at.x, at.y)});
  const int notches = wheel_.Take(GET_WHEEL_DELTA_WPARAM(message.wParam));
  if (notches != 0) events_.OnMouseWheel(notches, event);
  return 0;
}

std::optional<LRESULT> PaneWindow::KeyDown(const WindowMessage& message) {
  KeyEvent event{static_cast<int>(message.wParam), ModifiersOfMessage()};
  events_.OnKeyDown(event);
  if (!event.handled) return std::nullopt;
  if (Handle()) SwallowCharacter(Handle());
  return 0;
}

std::optional<LRESULT> PaneWindow::KeyUp(const WindowMessage& message) {
  KeyEvent event{static_cast<int>(message.wParam), ModifiersOfMessage()};
  events_.OnKeyUp(event);
  return event.handled ? std::optional<LRESULT>(0) : std::nullopt;
}

std::optional<LRESULT> PaneWindow::ShowPointer(const WindowMessage& message) {
  const bool ownClient =
      reinterpret_cast<HWND>(message.wParam) == Handle() && LOWORD(message.lParam) == HTCLIENT;
  if (!ownClient) return std::nullopt;
  ::SetCursor(CursorOf(pointer_));
  return TRUE;
}

void PaneWindow::PaintBehind(HWND child, HDC dc) const {
  POINT origin{0, 0};
  ::MapWindowPoints(child, Handle(), &origin, 1);
  CopyTo(dc, canvas_, Point{} - PointOf(origin), canvas_.Area());
}

bool Win32Pane::Make(HWND parent, const Rect& bounds) {
  return PaneWindow::Make({.className = kWindowClass,
                           .style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                           .bounds = bounds,
                           .parent = parent});
}

}  // namespace platform
