#include "platform/win32/Win32Screen.h"

#include "platform/win32/DibMemory.h"

namespace platform {
namespace {

struct ScreenMode {
  Size size;
  Rect allMonitors;
  int depth;
};

int AskDepth() {
  const BorrowedDc screen(nullptr);
  if (::GetDeviceCaps(screen.get(), RASTERCAPS) & RC_PALETTE) return 0;
  return ::GetDeviceCaps(screen.get(), BITSPIXEL) * ::GetDeviceCaps(screen.get(), PLANES);
}

ScreenMode AskMode() {
  return {.size = {::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)},
          .allMonitors = Rect::At(
              {::GetSystemMetrics(SM_XVIRTUALSCREEN), ::GetSystemMetrics(SM_YVIRTUALSCREEN)},
              {::GetSystemMetrics(SM_CXVIRTUALSCREEN), ::GetSystemMetrics(SM_CYVIRTUALSCREEN)}),
          .depth = AskDepth()};
}

// Every window that is placed asks for the size, every picture that is mixed for the depth, and the
// system is slow to tell.
std::optional<ScreenMode> known;

const ScreenMode& Mode() {
  if (!known) known = AskMode();
  return *known;
}

}  // namespace

void ForgetScreenMode() { known.reset(); }

platform::Size Win32Screen::Size() { return Mode().size; }

int Win32Screen::Depth() { return Mode().depth; }

Colour Win32Screen::SystemColourOf(SystemColour colour) {
  return ::GetSysColor(static_cast<int>(colour));
}

std::optional<Surface> Win32Screen::Capture(const Rect& area) {
  Surface picture(area.Size());
  const BorrowedDc screen(nullptr);
  if (picture.Empty() || !screen.get()) return {};
  const Rect seen = area.Intersected(Mode().allMonitors);
  const Point to = seen.Origin() - area.Origin();
  if (!seen.Empty() && !::BitBlt(DcOf(picture), to.x, to.y, seen.Width(), seen.Height(),
                                 screen.get(), seen.left, seen.top, SRCCOPY)) {
    return {};
  }
  ::GdiFlush();
  return picture;
}

std::optional<Colour> Win32Screen::ColourAt(Point p) {
  const BorrowedDc screen(nullptr);
  const COLORREF colour = ::GetPixel(screen.get(), p.x, p.y);
  if (colour == CLR_INVALID) return {};
  return colour;
}

}  // namespace platform
