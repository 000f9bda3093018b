#include "platform/win32/NativeWindow.h"

#include "platform/win32/Pointers.h"
#include "platform/win32/ToolTips.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

constexpr const wchar_t* kObjectProperty = L"DorvalinWindow.Object";
constexpr UINT_PTR kSubclassId = 1;

NativeWindow* ObjectOf(HWND window) {
  return static_cast<NativeWindow*>(::GetPropW(window, kObjectProperty));
}

bool OfThisProgram(HWND window) {
  DWORD process = 0;
  ::GetWindowThreadProcessId(window, &process);
  return process == ::GetCurrentProcessId();
}

HWND FirstChild(HWND window) { return ::GetWindow(window, GW_CHILD); }
HWND NextSibling(HWND window) { return ::GetWindow(window, GW_HWNDNEXT); }

}  // namespace

NativeWindow::~NativeWindow() {
  // The events' owner may be gone already: nothing is told of this end.
  const HWND window = handle_;
  // The system may give its number to another window.
  SetToolTip({});
  Detach();
  if (window) ::DestroyWindow(window);
}

NativeWindow* NativeWindow::Of(HWND window) {
  // Another running copy of the program has the same property on its windows.
  return window && OfThisProgram(window) ? ObjectOf(window) : nullptr;
}

NativeWindow* NativeWindow::Around(HWND window) {
  for (; window; window = ::GetAncestor(window, GA_PARENT)) {
    if (NativeWindow* object = Of(window)) return object;
  }
  return nullptr;
}

NativeWindow* NativeWindow::RootOf(HWND window) { return Of(::GetAncestor(window, GA_ROOT)); }

Rect NativeWindow::ScreenBounds() const {
  RECT bounds{};
  if (handle_) ::GetWindowRect(handle_, &bounds);
  return RectOf(bounds);
}

Rect NativeWindow::Bounds() const {
  RECT bounds = RectOf(ScreenBounds());
  if (handle_) {
    ::MapWindowPoints(HWND_DESKTOP, ::GetAncestor(handle_, GA_PARENT),
                      reinterpret_cast<POINT*>(&bounds), 2);
  }
  return RectOf(bounds);
}

void NativeWindow::SetBounds(const Rect& bounds) {
  if (!handle_) return;
  ::SetWindowPos(handle_, nullptr, bounds.left, bounds.top, bounds.Width(), bounds.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

bool NativeWindow::Visible() const {
  return handle_ && (::GetWindowLongPtrW(handle_, GWL_STYLE) & WS_VISIBLE) != 0;
}

void NativeWindow::SetVisible(bool visible) {
  if (!handle_ || visible == Visible()) return;
  ::ShowWindow(handle_, visible ? SW_SHOWNA : SW_HIDE);
  UpdateSeen();
}

bool NativeWindow::Enabled() const { return handle_ && ::IsWindowEnabled(handle_); }

void NativeWindow::SetEnabled(bool enabled) {
  if (handle_) ::EnableWindow(handle_, enabled);
}

void NativeWindow::Focus() {
  if (!handle_ || !::IsWindowVisible(handle_) || !::IsWindowEnabled(handle_)) return;
  const HWND root = ::GetAncestor(handle_, GA_ROOT);
  if (!::IsWindowEnabled(root)) return;
  if (::GetForegroundWindow() != root) BringToForeground(root);
  ::SetFocus(handle_);
}

bool NativeWindow::HasFocus() const { return handle_ && ::GetFocus() == handle_; }

void NativeWindow::SetToolTip(std::u16string_view text) {
  if (!handle_) return;
  NativeWindow* root = RootOf(handle_);
  if (root && root->Tips()) root->Tips()->Set(handle_, text);
}

void NativeWindow::UpdateSeen() {
  if (!handle_) return;
  const bool seen = ::IsWindowVisible(handle_);
  if (seen == seen_) return;
  seen_ = seen;
  OnSeen(seen);
  HWND next = nullptr;
  for (HWND child = handle_ ? FirstChild(handle_) : nullptr; child; child = next) {
    next = NextSibling(child);
    if (NativeWindow* object = Of(child)) object->UpdateSeen();
  }
}

bool NativeWindow::RegisterClasses() {
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  description.style = CS_DBLCLKS;
  description.lpfnWndProc = Procedure;
  description.hInstance = ::GetModuleHandleW(nullptr);
  description.lpszClassName = kWindowClass;
  static const bool registered = ::RegisterClassExW(&description) != 0;
  return registered;
}

bool NativeWindow::Make(const WindowMaking& making) {
  if (!RegisterClasses()) return false;
  const Rect& b = making.bounds;
  ::CreateWindowExW(making.extendedStyle, making.className, Wide(making.caption), making.style,
                    b.left, b.top, b.Width(), b.Height(), making.parent, nullptr,
                    ::GetModuleHandleW(nullptr), this);
  seen_ = handle_ && ::IsWindowVisible(handle_);
  return handle_ != nullptr;
}

bool NativeWindow::MakeControl(const WindowMaking& making) {
  const Rect& b = making.bounds;
  const HWND window = ::CreateWindowExW(
      making.extendedStyle, making.className, Wide(making.caption), making.style, b.left, b.top,
      b.Width(), b.Height(), making.parent, nullptr, ::GetModuleHandleW(nullptr), nullptr);
  if (!window) return false;
  Attach(window);
  subclassed_ = ::SetWindowSubclass(window, Subclass, kSubclassId, 0) != 0;
  if (!subclassed_) {
    Detach();
    ::DestroyWindow(window);
    return false;
  }
  seen_ = ::IsWindowVisible(window);
  return true;
}

void NativeWindow::Destroy() {
  if (handle_) ::DestroyWindow(handle_);
}

void NativeWindow::Attach(HWND window) {
  handle_ = window;
  ::SetPropW(window, kObjectProperty, static_cast<HANDLE>(this));
}

void NativeWindow::Detach() {
  if (!handle_) return;
  if (subclassed_) ::RemoveWindowSubclass(handle_, Subclass, kSubclassId);
  ::RemovePropW(handle_, kObjectProperty);
  subclassed_ = false;
  handle_ = nullptr;
}

LRESULT NativeWindow::Default(const WindowMessage& m) {
  if (!handle_) return 0;
  return subclassed_ ? ::DefSubclassProc(handle_, m.id, m.wParam, m.lParam)
                     : ::DefWindowProcW(handle_, m.id, m.wParam, m.lParam);
}

LRESULT NativeWindow::Handle(NativeWindow& target, const WindowMessage& message) noexcept {
  if (message.id == WM_SETCURSOR && WaitPointerSet()) {
    ::SetCursor(CursorOf({StandardPointer::Hourglass, {}}));
    return TRUE;
  }
  if (message.id == WM_NCDESTROY) {
    if (ToolTips* tips = target.Tips()) tips->OwnerGone();
    const HWND window = target.handle_;
    const bool subclassed = target.subclassed_;
    target.Detach();
    return subclassed ? ::DefSubclassProc(window, message.id, message.wParam, message.lParam)
                      : ::DefWindowProcW(window, message.id, message.wParam, message.lParam);
  }
  try {
    if (const auto result = target.Receive(message)) return *result;
    return target.Default(message);
  } catch (...) {
    // What a handler could not do (for want of memory) must not unwind through the system.
    return target.Default(message);
  }
}

LRESULT CALLBACK NativeWindow::Procedure(HWND window, UINT id, WPARAM wParam,
                                         LPARAM lParam) noexcept {
  if (id == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    static_cast<NativeWindow*>(creation->lpCreateParams)->Attach(window);
  }
  NativeWindow* target = ObjectOf(window);
  return target ? Handle(*target, {id, wParam, lParam})
                : ::DefWindowProcW(window, id, wParam, lParam);
}

LRESULT CALLBACK NativeWindow::Subclass(HWND window, UINT id, WPARAM wParam, LPARAM lParam,
                                        UINT_PTR, DWORD_PTR) noexcept {
  NativeWindow* target = ObjectOf(window);
  return target ? Handle(*target, {id, wParam, lParam})
                : ::DefSubclassProc(window, id, wParam, lParam);
}

void BringToForeground(HWND window) {
  if (::SetForegroundWindow(window) && ::GetForegroundWindow() == window) return;
  // The system lets a program come to the front only after input of its own; a pointer move by
  // nothing is such input and changes nothing.
  INPUT nothing{};
  nothing.type = INPUT_MOUSE;
  nothing.mi.dwFlags = MOUSEEVENTF_MOVE;
  ::SendInput(1, &nothing, sizeof(nothing));
  ::SetForegroundWindow(window);
}

Modifiers ModifiersOfMessage() {
  const auto down = [](int key) { return ::GetKeyState(key) < 0; };
  return {.shift = down(VK_SHIFT), .control = down(VK_CONTROL), .alt = down(VK_MENU)};
}

void SwallowCharacter(HWND window) {
  MSG character;
  while (::PeekMessageW(&character, window, WM_CHAR, WM_DEADCHAR, PM_REMOVE) ||
         ::PeekMessageW(&character, window, WM_SYSCHAR, WM_SYSDEADCHAR, PM_REMOVE)) {
  }
}

}  // namespace platform
