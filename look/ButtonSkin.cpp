#include "look/ButtonSkin.h"

#include "artwork/pictures.h"
#include "core/ProgramState.h"

namespace dorvalin {
namespace {

constexpr platform::Size kCell{76, 30};
constexpr BorderCells kRaised{6, 6, 6, 8};
constexpr BorderCells kSunken{6, 8, 6, 6};

struct Skin {
  platform::Surface picButtons = PictureSurface(Picture::picButtons);
};

}  // namespace

SkinCell CellOf(const ButtonState& state) {
  const bool ready = state.isDefault && state.enabled;
  if (state.pressed) return {30, kSunken};
  if (state.keptDown) return {150, kSunken};
  if (ready && state.hover) return {120, kRaised};
  if (ready) return {60, kRaised};
  if (state.hover) return {0, kRaised};
  return {90, kRaised};
}

void DrawSkin(platform::Surface& surface, const platform::Rect& area, const ButtonState& state) {
  const platform::Surface& strip = StateOf<Skin>().picButtons;
  if (strip.Empty()) return;
  const SkinCell cell = CellOf(state);
  StretchBorder(surface, area, strip, platform::Rect::At({0, cell.top}, kCell), cell.margins,
                platform::RasterOp::SrcCopy, true);
}

}  // namespace dorvalin
