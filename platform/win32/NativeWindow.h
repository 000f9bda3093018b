// The system's side of a window object: the handle, the road of its messages, and what every window
// port asks. When the system's window is gone the object stays as a husk that does nothing.
//
//   system -> window procedure -> NativeWindow::Receive   a message of the window
//                              -> NativeWindow::Reflect   what its parent was told about it
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/handles.h"
#include "platform/window.h"

namespace platform {

struct WindowMessage {
  UINT id = 0;
  WPARAM wParam = 0;
  LPARAM lParam = 0;
};

/// How a window of the system is to be made.
struct WindowMaking {
  const wchar_t* className = nullptr;
  DWORD style = 0;
  DWORD extendedStyle = 0;
  Rect bounds{};
  HWND parent = nullptr;
  std::u16string caption{};
};

class DropRegistration;
class ToolTips;

class NativeWindow {
 public:
  NativeWindow() = default;
  virtual ~NativeWindow();
  NativeWindow(const NativeWindow&) = delete;
  NativeWindow& operator=(const NativeWindow&) = delete;

  HWND Handle() const { return handle_; }
  virtual Window& Port() = 0;

  /// The object of a window of this program, null for any other window.
  static NativeWindow* Of(HWND window);
  /// The innermost object that is this window or around it.
  static NativeWindow* Around(HWND window);
  /// The object at the root of the window's tree.
  static NativeWindow* RootOf(HWND window);

  /// The objects of the windows on it, in the order in which they were made.
  const std::vector<NativeWindow*>& Children() const { return children_; }
  /// The object that it stands on; null for a window on the desktop.
  NativeWindow* Outer() const { return outer_; }

  Rect Bounds() const;
  void SetBounds(const Rect& bounds);
  Rect ScreenBounds() const;
  bool Visible() const;
  void SetVisible(bool visible);
  bool Seen() const { return handle_ && ::IsWindowVisible(handle_); }
  bool Enabled() const;
  void SetEnabled(bool enabled);
  void Focus();
  bool HasFocus() const;
  void SetToolTip(std::u16string_view text);

  /// A message of this window; none for the system's own handling.
  virtual std::optional<LRESULT> Receive(const WindowMessage& message) = 0;
  /// WM_COMMAND, WM_NOTIFY, scroll and colour messages that the parent got for this window.
  virtual std::optional<LRESULT> Reflect(const WindowMessage&) { return std::nullopt; }
  /// The parent's canvas, which may show through, was drawn anew.
  virtual void ParentRefreshed() {}
  /// Tells this window and its children whether they are seen, where that changed, and paints what
  /// came into sight.
  void UpdateSeen();
  /// Paints it and its children at this place of the device context, where it can at once; none of
  /// it outside of `clip`.
  virtual void PaintTree(HDC dc, Point at, const Rect& clip);
  virtual ToolTips* Tips() { return nullptr; }
  /// Of a root: its place in the list of drop targets.
  virtual DropRegistration* Drops() { return nullptr; }
  /// Who takes what is dropped here; null for nobody.
  virtual PaneEvents* DropEvents() { return nullptr; }

 protected:
  /// Makes a window of one of the program's own classes. False: there is none.
  bool Make(const WindowMaking& making);
  /// Makes one of the system's controls, whose messages come through a subclass.
  bool MakeControl(const WindowMaking& making);
  /// Destroys the system's window; its last events come from within.
  void Destroy();
  virtual void OnSeen(bool /*seen*/) {}
  /// What the system's own handling would do with a message.
  LRESULT Default(const WindowMessage& message);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT id, WPARAM wParam, LPARAM lParam) noexcept;
  static LRESULT Handle(NativeWindow& target, const WindowMessage& message) noexcept;
  static bool RegisterClasses();

  /// Tells this window alone. False: nothing changed, or it is gone now.
  bool TellSeen();
  void PaintWhole();

  void Attach(HWND window, HWND parent);
  void Detach();

  HWND handle_ = nullptr;
  NativeWindow* outer_ = nullptr;
  std::vector<NativeWindow*> children_;
  WNDPROC former_ = nullptr;  // of one of the system's controls: its own procedure
  bool toldSeen_ = false;
};

/// The class of the program's own windows; they all share one procedure.
inline constexpr wchar_t kWindowClass[] = L"DorvalinWindow";

/// Gives a top-level window the activation, also from the background.
void BringToForeground(HWND window);

/// The keys that modify others, as of the message at work.
Modifiers ModifiersOfMessage();

/// Takes back the character that a key going down has already put into the queue.
void SwallowCharacter(HWND window);

}  // namespace platform
