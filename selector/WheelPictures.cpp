#include "selector/WheelPictures.h"

#include "artwork/pictures.h"
#include "core/ProgramState.h"
#include "platform/raster.h"
#include "selector/WheelGeometry.h"

namespace dorvalin {
namespace {

struct Sheet {
  platform::Surface picSrc;
};

// The first function's row comes from a strip of its own, which replaces the row of the sheet.
platform::Surface UnpackSheet() {
  auto sheet = PictureSurface(Picture::picSrc);
  const auto strip = PictureSurface(Picture::picComm);
  if (!sheet.Empty() && !strip.Empty()) {
    BitBlt(sheet, platform::Rect::At({0, kBubbleSize}, strip.Size()), strip, {0, 0},
           platform::RasterOp::SrcCopy);
  }
  return sheet;
}

}  // namespace

platform::Point SpriteAt(int function, BubbleLook look) {
  return {static_cast<int>(look), function * kBubbleSize};
}

const platform::Surface& BubbleSheet() {
  Sheet& sheet = StateOf<Sheet>();
  if (sheet.picSrc.Empty()) sheet.picSrc = UnpackSheet();
  return sheet.picSrc;
}

}  // namespace dorvalin
