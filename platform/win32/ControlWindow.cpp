#include "platform/win32/ControlWindow.h"

#include "platform/win32/fonts.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

// A frame surrounds controls that are made before and after it, and has to lie behind them all.
void LowerFrames(const NativeWindow& parent) {
  for (NativeWindow* child : parent.Children()) {
    if (!dynamic_cast<Frame*>(child)) continue;
    ::SetWindowPos(child->Handle(), HWND_BOTTOM, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
}

}  // namespace

void ControlWindow::SetFont(const Font& font) {
  if (!Handle()) return;
  OwnedFont fresh = NewFont(font);
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(fresh.get()), TRUE);
  font_ = std::move(fresh);
}

void ControlWindow::SetColours(std::optional<Colour> text, std::optional<Colour> background) {
  textColour_ = text;
  backgroundColour_ = background;
  brush_.reset(background ? ::CreateSolidBrush(*background) : nullptr);
  if (Seen()) ::InvalidateRect(Handle(), nullptr, TRUE);
}

bool ControlWindow::MakeChild(HWND parent, const Rect& bounds, const wchar_t* className,
                              DWORD style, std::u16string_view caption, DWORD extendedStyle) {
  const WindowMaking making{.className = className,
                            .style = kChild | style,
                            .extendedStyle = extendedStyle,
                            .bounds = bounds,
                            .parent = parent,
                            .caption = std::u16string(caption)};
  if (!(className == kWindowClass ? Make(making) : MakeControl(making))) return false;
  SetFont(Font());
  if (Outer()) LowerFrames(*Outer());
  return true;
}

PaneWindow* ControlWindow::Parent() const { return dynamic_cast<PaneWindow*>(Outer()); }

void ControlWindow::SetWindowText(std::u16string_view text) {
  if (Handle()) ::SetWindowTextW(Handle(), Terminated(text));
}

std::u16string ControlWindow::WindowText() const {
  if (!Handle()) return {};
  std::u16string text(static_cast<std::size_t>(::GetWindowTextLengthW(Handle())), u'\0');
  const int length =
      ::GetWindowTextW(Handle(), WideBuffer(text), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

LRESULT ControlWindow::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
  return Handle() ? ::SendMessageW(Handle(), message, wParam, lParam) : 0;
}

std::optional<LRESULT> ControlWindow::Receive(const WindowMessage& message) {
  switch (message.id) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      return KeyDown(message);
    case WM_CHAR:
      return Char(message);
    case WM_SETFOCUS:
      return FocusChanged(message, true);
    case WM_KILLFOCUS:
      return FocusChanged(message, false);
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> ControlWindow::KeyDown(const WindowMessage& message) {
  if (!Events().KeyDown) return std::nullopt;
  KeyEvent event{static_cast<int>(message.wParam), ModifiersOfMessage()};
  Events().KeyDown(event);
  if (!event.handled) return std::nullopt;
  if (Handle()) SwallowCharacter(Handle());
  return 0;
}

std::optional<LRESULT> ControlWindow::Char(const WindowMessage& message) {
  if (!Events().Char) return std::nullopt;
  CharEvent event{static_cast<char16_t>(message.wParam)};
  Events().Char(event);
  if (event.unit == 0) return 0;
  return Default({message.id, event.unit, message.lParam});
}

LRESULT ControlWindow::FocusChanged(const WindowMessage& message, bool gained) {
  const LRESULT result = Default(message);
  if (Events().Focus) Events().Focus(gained);
  return result;
}

std::optional<LRESULT> ControlWindow::Reflect(const WindowMessage& message) {
  switch (message.id) {
    case WM_COMMAND:
      OnCommand(HIWORD(message.wParam));
      return 0;
    case WM_NOTIFY:
      return OnNotify(*reinterpret_cast<const NMHDR*>(message.lParam));
    case WM_HSCROLL:
    case WM_VSCROLL:
      OnScroll();
      return 0;
    default:
      return Colours(reinterpret_cast<HDC>(message.wParam));
  }
}

std::optional<LRESULT> ControlWindow::Colours(HDC dc) {
  const auto answer = [](HGDIOBJ brush) { return reinterpret_cast<LRESULT>(brush); };
  if (textColour_) ::SetTextColor(dc, *textColour_);
  if (backgroundColour_) {
    ::SetBkColor(dc, *backgroundColour_);
    return answer(brush_.get());
  }
  PaneWindow* parent = ShowsParent() ? Parent() : nullptr;
  if (parent) {
    parent->PaintBehind(Handle(), dc);
    ::SetBkMode(dc, TRANSPARENT);
    return answer(::GetStockObject(NULL_BRUSH));
  }
  if (!textColour_) return std::nullopt;
  ::SetBkColor(dc, ::GetSysColor(COLOR_WINDOW));
  return answer(::GetSysColorBrush(COLOR_WINDOW));
}

void ControlWindow::ParentRefreshed() {
  if (!Handle() || !ShowsParent()) return;
  ::InvalidateRect(Handle(), nullptr, TRUE);
  ::UpdateWindow(Handle());
}

}  // namespace platform
