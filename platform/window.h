// Windows as values and events, without handles.
//
//   Window        anything with a place: every control is one
//     Pane        draws itself on a surface and gets pointer, keyboard, focus and drag events
//       TopWindow a window on the desktop
//
// The desktop makes them (Windows::NewTopWindow, NewPane, and controls.h); whoever asked for one
// owns it. Children must not outlive their TopWindow's Close(): after it they are husks on which
// every call does nothing. Events come only while somebody pumps or from within a call that changes
// the window; a window may be closed, but not destroyed, inside one of its own events (forms see to
// that by keeping closed windows until the loop is back at its top).
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/data.h"
#include "platform/geometry.h"
#include "platform/icon.h"
#include "platform/input.h"
#include "platform/pointer.h"
#include "platform/surface.h"

namespace platform {

class Window {
 public:
  virtual ~Window() = default;
  /// Screen pixels for a TopWindow, the parent's client pixels for a child.
  [[nodiscard]] virtual Rect Bounds() const = 0;
  virtual void SetBounds(const Rect& bounds) = 0;
  [[nodiscard]] virtual Rect ScreenBounds() const = 0;
  /// Its own flag; it is seen only when its parents are visible too.
  [[nodiscard]] virtual bool Visible() const = 0;
  /// For a child, which is painted at once where it then is; a TopWindow is shown by Show and Hide.
  virtual void SetVisible(bool visible) = 0;
  /// Whether it and all around it are visible.
  [[nodiscard]] virtual bool Seen() const = 0;
  [[nodiscard]] virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  /// Gives it the keyboard, activating its TopWindow. Nothing happens while it is not seen or
  /// disabled.
  virtual void Focus() = 0;
  [[nodiscard]] virtual bool HasFocus() const = 0;
  /// Shown when the pointer rests; empty for none.
  virtual void SetToolTip(std::u16string_view text) = 0;
};

struct MouseEvent {
  Point at;  ///< the window's client pixels; can be outside while a button is held
  Modifiers modifiers;
  bool left = false;  ///< buttons held during a move
  bool right = false;
  bool middle = false;
};

/// A key going down or up. `handled` set by a handler keeps it from everyone behind.
struct KeyEvent {
  int virtualKey = 0;
  Modifiers modifiers;
  bool handled = false;
};

/// A character about to be typed. A handler may change it; 0 swallows it.
struct CharEvent {
  char16_t unit = 0;
};

enum class DropEffect { None = 0, Copy = 1, Move = 2 };
enum class DragState { Enter = 0, Leave = 1, Over = 2 };

/// A drag of this or another program over a pane.
struct DragEvent {
  const DataSource* data = nullptr;  ///< valid during the event; none when leaving
  DragState state = DragState::Over;
  Point at;
  Modifiers modifiers;
  DropEffect allowed = DropEffect::Copy;
};

/// Told to the source while it drags.
class DragFeedback {
 public:
  virtual ~DragFeedback() = default;
  /// The pointer to show for the effect under it; none: the system's own pointers.
  virtual std::optional<Pointer> PointerFor(DropEffect effect) = 0;
};

/// What a pane tells its owner. Handlers do nothing unless overridden.
class PaneEvents {
 public:
  virtual ~PaneEvents() = default;
  virtual void OnMouseDown(Button, const MouseEvent&) {}
  /// Comes also for a release outside: a pressed button keeps the pointer at its window.
  virtual void OnMouseUp(Button, const MouseEvent&) {}
  virtual void OnMouseMove(const MouseEvent&) {}
  /// In place of the second press of a double click; the release follows.
  virtual void OnDoubleClick(Button button, const MouseEvent& event) { OnMouseDown(button, event); }
  /// Notches away from the user are positive.
  virtual void OnMouseWheel(int /*notches*/, const MouseEvent&) {}
  virtual void OnKeyDown(KeyEvent&) {}
  virtual void OnKeyUp(KeyEvent&) {}
  virtual void OnChar(CharEvent&) {}
  virtual void OnFocus(bool /*gained*/) {}
  /// The canvas has the new size already; its old content is kept where it fits.
  virtual void OnResize() {}
  /// It came to be seen or went, itself or through a parent.
  virtual void OnVisible(bool /*visible*/) {}
  /// The effect that a drop here would have; leaving needs none.
  virtual DropEffect OnDrag(const DragEvent&) { return DropEffect::None; }
  virtual DropEffect OnDrop(const DragEvent&) { return DropEffect::None; }
};

class Pane : public Window {
 public:
  /// What the window shows, of its client size; persistent: a repaint by the system needs no event.
  [[nodiscard]] virtual Surface& Canvas() = 0;
  /// Shows the canvas on the screen now.
  virtual void Refresh() = 0;
  virtual void SetPointer(const Pointer& pointer) = 0;
  /// The pointer's moves and releases come here while a button is held, without asking for it; this
  /// ends that.
  virtual void ReleaseCapture() = 0;
  /// Drags until the button is up or Escape; runs a nested loop. The effect that the target chose.
  virtual DropEffect Drag(const DataContent& data, DropEffect allowed, DragFeedback* feedback) = 0;
  /// Whether drags over it are reported at all; off at first.
  virtual void SetAcceptsDrops(bool accepts) = 0;
};

enum class ShowMode { Activate, NoActivate };
enum class Activation { Gained, Lost };

class TopWindowEvents : public PaneEvents {
 public:
  virtual void OnActivate(Activation) {}
  /// The user wants it closed (the close box, Alt+F4).
  virtual void OnCloseRequest() {}
  /// Every key of the window and its children comes here first, the child that has the keyboard
  /// beside it (none when it is the window itself).
  virtual void OnPreviewKey(KeyEvent&, Window* /*focused*/) {}
};

enum class FrameStyle { Borderless, Dialog };  ///< Dialog: title bar with a close box, fixed size

struct TopWindowOptions {
  FrameStyle frame = FrameStyle::Borderless;
  std::u16string caption{};
  class TopWindow* owner = nullptr;  ///< stays behind this window; may be none
  bool inTaskBar = false;
  bool topMost = false;  ///< made in the top-most band
  /// False: neither a click nor another window's going makes it the active one.
  bool activatable = true;
  /// True: the pointer meets it, but what it covers shows through, as far as the desktop can mix
  /// windows.
  bool unseen = false;
};

class TopWindow : public Pane {
 public:
  /// Activate brings it to the top of its band (top-most or not) and gives it the activation.
  /// NoActivate only shows it, behind those that came in front of it while it was hidden. A new
  /// window stands at the top of its band.
  virtual void Show(ShowMode mode) = 0;
  /// The activation goes to the window that had it before, of whichever program.
  virtual void Hide() = 0;
  /// To the top of the top-most band, or out of it; not shown, moved, sized or activated.
  virtual void SetTopMost(bool topMost) = 0;
  /// Only what lies inside the ellipse (half-open box, window pixels) is seen and takes clicks;
  /// none for the whole window.
  virtual bool SetEllipseRegion(const std::optional<Rect>& box) = 0;
  virtual void SetCaption(std::u16string_view caption) = 0;
  virtual void SetIcon(const Icon& icon) = 0;
  [[nodiscard]] virtual Size ClientSize() const = 0;
  /// Sets the bounds so that the client area has this size; the place stays.
  virtual void SetClientSize(Size size) = 0;
  /// Moves with the pointer until the button is up, as by a press on the title bar.
  virtual void StartMove() = 0;
  /// Destroys it on the desktop with all children; the object stays as a husk.
  virtual void Close() = 0;
};

/// Whose window has the activation. A message box or another dialog of the system that this program
/// has up is nobody's of ours: it reads as another program's window.
struct Foreground {
  const TopWindow* ours = nullptr;  ///< when it is one of this program's
  bool present = false;             ///< false in the moments when no window has it
};

class Windows {
 public:
  virtual ~Windows() = default;
  /// Hidden at first. `events` must live as long as the window is not closed. Null on failure.
  [[nodiscard]] virtual std::unique_ptr<TopWindow> NewTopWindow(const TopWindowOptions& options,
                                                                TopWindowEvents& events) = 0;
  /// Visible at first. `focusable`: it can have the keyboard, and a press gives it.
  [[nodiscard]] virtual std::unique_ptr<Pane> NewPane(Pane& parent, const Rect& bounds,
                                                      bool focusable, PaneEvents& events) = 0;
  [[nodiscard]] virtual Foreground ForegroundWindow() = 0;
  /// The innermost window of this program at the point, null where another program's window or none
  /// is on top.
  [[nodiscard]] virtual const Window* WindowAt(Point screen) = 0;
  /// Hides every top-level window of this thread whose class name begins so.
  virtual void HideWindowsOfClass(std::u16string_view prefix) = 0;
};

}  // namespace platform
