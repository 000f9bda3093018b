#include "platform/win32/NativeWindow.h"

#include <unordered_map>
#include <vector>

#include "platform/win32/Pointers.h"
#include "platform/win32/ToolTips.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

/// The object of each window. Asked at every message, and for other programs' windows as well: a
/// property kept by the system would have to be fetched from there each time.
std::unordered_map<HWND, NativeWindow*>& Objects() {
  static std::unordered_map<HWND, NativeWindow*> objects;
  return objects;
}

/// Outer before inner ones. By handles: what they are told may end some of them.
void AddWindowsWithin(const NativeWindow& window, std::vector<HWND>& windows) {
  for (const NativeWindow* child : window.Children()) {
    windows.push_back(child->Handle());
    AddWindowsWithin(*child, windows);
  }
}

void ShowTip(const NativeWindow& window, const WindowMessage& message) {
  if (message.id < WM_MOUSEFIRST || message.id > WM_MOUSELAST) return;
  NativeWindow* root = NativeWindow::RootOf(window.Handle());
  if (root && root->Tips()) root->Tips()->Pass(window.Handle(), message);
}

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
  const auto known = Objects().find(window);
  return known == Objects().end() ? nullptr : known->second;
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
  if (!handle_ || bounds == Bounds()) return;
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
  if (!Seen() || !::IsWindowEnabled(handle_)) return;
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
  if (!handle_ || !TellSeen()) return;
  std::vector<HWND> within;
  AddWindowsWithin(*this, within);
  for (const HWND inner : within) {
    if (NativeWindow* object = Of(inner)) object->TellSeen();
  }
  // The system's own controls paint themselves.
  if (Seen() && !former_) PaintWhole();
}

// Through one device context that does not spare the children: asking the system for one after the
// other takes longer than all the painting.
void NativeWindow::PaintWhole() {
  const BorrowedDc dc(handle_, DCX_CACHE | DCX_CLIPSIBLINGS);
  if (!dc.get()) return;
  ::RedrawWindow(handle_, nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN);
  PaintTree(dc.get(), {0, 0}, Rect::At({0, 0}, Bounds().Size()));
}

void NativeWindow::PaintTree(HDC /*dc*/, Point /*at*/, const Rect& /*clip*/) {
  ::RedrawWindow(handle_, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

bool NativeWindow::TellSeen() {
  const bool seen = Seen();
  if (seen == toldSeen_) return false;
  toldSeen_ = seen;
  OnSeen(seen);
  return handle_ != nullptr;
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
  toldSeen_ = Seen();
  return handle_ != nullptr;
}

bool NativeWindow::MakeControl(const WindowMaking& making) {
  const Rect& b = making.bounds;
  const HWND window = ::CreateWindowExW(
      making.extendedStyle, making.className, Wide(making.caption), making.style, b.left, b.top,
      b.Width(), b.Height(), making.parent, nullptr, ::GetModuleHandleW(nullptr), nullptr);
  if (!window) return false;
  Attach(window, making.parent);
  // Not by the system's list of subclasses, which it keeps as a property, to be fetched at every
  // message.
  former_ = reinterpret_cast<WNDPROC>(
      ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
  if (!former_) {
    Detach();
    ::DestroyWindow(window);
    return false;
  }
  toldSeen_ = Seen();
  return true;
}

void NativeWindow::Destroy() {
  if (handle_) ::DestroyWindow(handle_);
}

void NativeWindow::Attach(HWND window, HWND parent) {
  handle_ = window;
  Objects()[window] = this;
  outer_ = Of(parent);
  if (outer_) outer_->children_.push_back(this);
}

void NativeWindow::Detach() {
  if (!handle_) return;
  if (former_) ::SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former_));
  Objects().erase(handle_);
  if (outer_) std::erase(outer_->children_, this);
  for (NativeWindow* child : children_) child->outer_ = nullptr;
  outer_ = nullptr;
  children_.clear();
  handle_ = nullptr;
}

LRESULT NativeWindow::Default(const WindowMessage& m) {
  if (!handle_) return 0;
  return ::CallWindowProcW(former_ ? former_ : ::DefWindowProcW, handle_, m.id, m.wParam, m.lParam);
}

LRESULT NativeWindow::Handle(NativeWindow& target, const WindowMessage& message) noexcept {
  if (message.id == WM_SETCURSOR && WaitPointerSet()) {
    ::SetCursor(CursorOf({StandardPointer::Hourglass, {}}));
    return TRUE;
  }
  if (message.id == WM_NCDESTROY) {
    if (ToolTips* tips = target.Tips()) tips->OwnerGone();
    const HWND window = target.handle_;
    target.Detach();
    return ::CallWindowProcW(target.former_ ? target.former_ : ::DefWindowProcW, window, message.id,
                             message.wParam, message.lParam);
  }
  try {
    ShowTip(target, message);
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
    const HWND parent = creation->style & WS_CHILD ? creation->hwndParent : nullptr;
    static_cast<NativeWindow*>(creation->lpCreateParams)->Attach(window, parent);
    // The system would only store the caption.
    if (View(creation->lpszName).empty()) return TRUE;
  }
  NativeWindow* target = Of(window);
  return target ? Handle(*target, {id, wParam, lParam})
                : ::DefWindowProcW(window, id, wParam, lParam);
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
