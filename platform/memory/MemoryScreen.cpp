#include "platform/memory/MemoryScreen.h"

#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/WindowStack.h"
#include "platform/raster.h"

namespace platform {
namespace {

constexpr Colour kBackground = 0xA56E3A;

Colour ClassicColour(SystemColour colour) {
  switch (colour) {
    case SystemColour::Window:
    case SystemColour::HighlightText:
    case SystemColour::ButtonHighlight:
      return 0xFFFFFF;
    case SystemColour::WindowText:
    case SystemColour::ButtonText:
    case SystemColour::TipText:
      return 0x000000;
    case SystemColour::Highlight:
      return 0x6A240A;
    case SystemColour::ButtonFace:
      return 0xC8D0D4;
    case SystemColour::ButtonShadow:
    case SystemColour::GrayText:
      return 0x808080;
    case SystemColour::DarkShadow:
      return 0x404040;
    case SystemColour::Light:
      return 0xC8D0D4;
    case SystemColour::TipBackground:
      return 0xE1FFFF;
  }
  return 0;
}

}  // namespace

platform::Size MemoryScreen::Size() {
  return desktop_.faults().Fails("Screen.Size") ? platform::Size{} : size_;
}

int MemoryScreen::Depth() { return desktop_.faults().Fails("Screen.Depth") ? 0 : depth_; }

Colour MemoryScreen::SystemColourOf(SystemColour colour) {
  const auto set = colours_.find(colour);
  return set != colours_.end() ? set->second : ClassicColour(colour);
}

Surface MemoryScreen::Compose() {
  Surface screen(size_);
  ComposeInto(screen, screen.Area());
  return screen;
}

void MemoryScreen::ComposeInto(Surface& screen, const Rect& area) {
  FillRect(screen, area.Intersected(screen.Area()), kBackground);
  for (DesktopWindow* window : desktop_.stack().Order()) {
    if (window->Shown() && !window->Area().Intersected(area).Empty()) window->Paint(screen);
  }
}

const Surface& MemoryScreen::Composed(const Rect& area) {
  if (scratch_.Size() != size_) scratch_ = Surface(size_);
  ComposeInto(scratch_, area);
  return scratch_;
}

std::optional<Surface> MemoryScreen::Capture(const Rect& area) {
  if (desktop_.faults().Fails("Screen.Capture")) return std::nullopt;
  Surface part(area.Size());
  BitBlt(part, part.Area(), Composed(area), area.Origin(), RasterOp::SrcCopy);
  return part;
}

std::optional<Colour> MemoryScreen::ColourAt(Point p) {
  if (desktop_.faults().Fails("Screen.ColourAt")) return std::nullopt;
  if (!Rect::At({0, 0}, size_).Contains(p)) return std::nullopt;
  return ColourFromPixel(Composed(Rect::At(p, {1, 1})).At(p) & 0xFFFFFF);
}

}  // namespace platform
