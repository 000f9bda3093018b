#include "platform/win32/Win32TopWindow.h"

#include "platform/win32/IconHandle.h"
#include "platform/win32/Win32Screen.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

constexpr DWORD kDialogFrame = WS_POPUP | WS_CAPTION | WS_SYSMENU;

struct Frame {
  DWORD style;
  DWORD extended;
};

Frame FrameOf(const TopWindowOptions& options) {
  Frame frame{WS_POPUP | WS_CLIPCHILDREN, 0};
  const bool dialog = options.frame == FrameStyle::Dialog;
  if (dialog) {
    frame.style |= kDialogFrame;
    frame.extended |= WS_EX_DLGMODALFRAME;
  }
  if (options.inTaskBar) {
    frame.extended |= WS_EX_APPWINDOW;
  } else if (!dialog) {
    frame.extended |= WS_EX_TOOLWINDOW;
  }
  if (!options.activatable) frame.extended |= WS_EX_NOACTIVATE;
  if (options.unseen) frame.extended |= WS_EX_LAYERED;
  if (options.topMost) frame.extended |= WS_EX_TOPMOST;
  return frame;
}

constexpr UINT kPassActivationOn = WM_APP + 1;
constexpr BYTE kHardlyThere = 1;  // of 255; at 0 the pointer would not meet the window

bool HasExtendedStyle(HWND window, DWORD style) {
  return (::GetWindowLongPtrW(window, GWL_EXSTYLE) & style) != 0;
}

// Never shown; a window that it owns has no button in the task bar and yet a whole title bar.
HWND HiddenOwner() {
  static const OwnedWindow owner(::CreateWindowExW(0, L"STATIC", nullptr, WS_POPUP, 0, 0, 0, 0,
                                                   nullptr, nullptr, ::GetModuleHandleW(nullptr),
                                                   nullptr));
  return owner.get();
}

HWND OwnerOf(const TopWindowOptions& options) {
  if (const auto* owner = static_cast<Win32TopWindow*>(options.owner)) return owner->Handle();
  const bool hideButton = options.frame == FrameStyle::Dialog && !options.inTaskBar;
  return hideButton ? HiddenOwner() : nullptr;
}

bool CanTakeFocus(HWND window) {
  return window && ::IsWindowVisible(window) && ::IsWindowEnabled(window);
}

}  // namespace

Win32TopWindow::Win32TopWindow(TopWindowEvents& events)
    : PaneOf(events, false), topEvents_(events) {}

bool Win32TopWindow::Make(const TopWindowOptions& options) {
  const Frame frame = FrameOf(options);
  const bool made = PaneWindow::Make({.className = kWindowClass,
                                      .style = frame.style,
                                      .extendedStyle = frame.extended,
                                      .parent = OwnerOf(options),
                                      .caption = options.caption});
  if (!made) return false;
  tips_.emplace(Handle());
  if (options.unseen) ::SetLayeredWindowAttributes(Handle(), 0, kHardlyThere, LWA_ALPHA);
  return true;
}

void Win32TopWindow::SetVisible(bool visible) {
  if (visible == Visible()) return;
  visible ? Show(ShowMode::NoActivate) : Hide();
}

void Win32TopWindow::Show(ShowMode mode) {
  if (!Handle()) return;
  const UINT order = mode == ShowMode::Activate ? 0 : SWP_NOZORDER;
  // What has no frame paints itself whole as soon as it is seen.
  const bool framed = (::GetWindowLongPtrW(Handle(), GWL_STYLE) & WS_CAPTION) != 0;
  const UINT erasing = framed ? 0 : SWP_DEFERERASE;
  ::SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW | order | erasing);
  UpdateSeen();
  if (mode == ShowMode::Activate && Handle()) BringToForeground(Handle());
}

void Win32TopWindow::Hide() {
  if (!Handle()) return;
  ::ShowWindow(Handle(), SW_HIDE);
  UpdateSeen();
}

void Win32TopWindow::SetTopMost(bool topMost) {
  if (!Handle()) return;
  ::SetWindowPos(Handle(), topMost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

bool Win32TopWindow::SetEllipseRegion(const std::optional<Rect>& box) {
  if (!Handle()) return false;
  if (!box) return ::SetWindowRgn(Handle(), nullptr, TRUE) != 0;
  OwnedRegion region(::CreateEllipticRgn(box->left, box->top, box->right, box->bottom));
  if (!region || !::SetWindowRgn(Handle(), region.get(), TRUE)) return false;
  // The system owns a region that a window has taken.
  static_cast<void>(region.release());
  return true;
}

void Win32TopWindow::SetCaption(std::u16string_view caption) {
  if (Handle()) ::SetWindowTextW(Handle(), Terminated(caption));
}

void Win32TopWindow::SetIcon(const Icon& icon) {
  if (!Handle()) return;
  OwnedIcon handle = IconHandleOf(icon);
  ::SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(handle.get()));
  ::SendMessageW(Handle(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(handle.get()));
  icon_ = std::move(handle);
}

Size Win32TopWindow::ClientSize() const {
  RECT client{};
  if (Handle()) ::GetClientRect(Handle(), &client);
  return RectOf(client).Size();
}

void Win32TopWindow::SetClientSize(Size size) {
  if (!Handle()) return;
  RECT bounds{0, 0, size.width, size.height};
  ::AdjustWindowRectEx(&bounds, static_cast<DWORD>(::GetWindowLongPtrW(Handle(), GWL_STYLE)), FALSE,
                       static_cast<DWORD>(::GetWindowLongPtrW(Handle(), GWL_EXSTYLE)));
  NativeWindow::SetBounds(Rect::At(ScreenBounds().Origin(), RectOf(bounds).Size()));
}

void Win32TopWindow::StartMove() {
  if (!Handle()) return;
  POINT at{};
  ::GetCursorPos(&at);
  ::ReleaseCapture();
  ::SendMessageW(Handle(), WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(at.x, at.y));
}

std::optional<LRESULT> Win32TopWindow::Receive(const WindowMessage& message) {
  switch (message.id) {
    case WM_ACTIVATE:
      return Activated(message);
    case WM_MOUSEACTIVATE:
      return AnswerClick();
    case WM_CANCELMODE:
      // Sent before the window is disabled, which takes the keyboard from its children.
      KeepFocus();
      return std::nullopt;
    case WM_ENABLE:
      if (message.wParam && ::GetActiveWindow() == Handle() && !::GetFocus()) RestoreFocus();
      return std::nullopt;
    case kPassActivationOn:
      PassActivationOn();
      return 0;
    case WM_DISPLAYCHANGE:
    case WM_SETTINGCHANGE:
      ForgetScreenMode();
      return std::nullopt;
    case WM_DESTROY:
      drops_.Revoke();
      return std::nullopt;
    case WM_CLOSE:
      topEvents_.OnCloseRequest();
      return 0;
    default:
      return PaneWindow::Receive(message);
  }
}

std::optional<LRESULT> Win32TopWindow::AnswerClick() const {
  // The style alone keeps the system from choosing the window, but not a click from activating it.
  return Activatable() ? std::nullopt : std::optional<LRESULT>(MA_NOACTIVATE);
}

bool Win32TopWindow::Activatable() const { return !HasExtendedStyle(Handle(), WS_EX_NOACTIVATE); }

// Wine chooses such a window all the same when the one before it goes. The next one that a user
// could choose gets the activation then.
void Win32TopWindow::PassActivationOn() {
  if (::GetForegroundWindow() != Handle()) return;
  for (HWND next = Handle(); (next = ::GetWindow(next, GW_HWNDNEXT)) != nullptr;) {
    if (CanTakeFocus(next) && !HasExtendedStyle(next, WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW)) {
      BringToForeground(next);
      return;
    }
  }
}

LRESULT Win32TopWindow::Activated(const WindowMessage& message) {
  const bool gained = LOWORD(message.wParam) != WA_INACTIVE;
  if (gained && !Activatable()) ::PostMessageW(Handle(), kPassActivationOn, 0, 0);
  gained ? RestoreFocus() : KeepFocus();
  topEvents_.OnActivate(gained ? Activation::Gained : Activation::Lost);
  return 0;
}

void Win32TopWindow::KeepFocus() {
  const HWND focused = ::GetFocus();
  if (focused == Handle()) lastFocus_ = nullptr;
  if (::IsChild(Handle(), focused)) lastFocus_ = focused;
}

void Win32TopWindow::RestoreFocus() {
  const bool childCan = ::IsChild(Handle(), lastFocus_) && CanTakeFocus(lastFocus_);
  ::SetFocus(childCan ? lastFocus_ : Handle());
}

bool Win32TopWindow::PreviewKey(const MSG& message) {
  NativeWindow* target = Around(message.hwnd);
  KeyEvent event{static_cast<int>(message.wParam), ModifiersOfMessage()};
  topEvents_.OnPreviewKey(event, target && target != this ? &target->Port() : nullptr);
  return event.handled;
}

}  // namespace platform
