// The program's pictures, icons and pointers as they lie in their files, from the program's own
// memory: both desktops draw from the same bytes.
#pragma once

#include <cstddef>
#include <span>

#include "platform/icon.h"
#include "platform/surface.h"

namespace dorvalin {

/// Each is named as its file in app/resources.
enum class Picture {
  // 24-bit bitmaps; artwork/README.md shows what lies where in them.
  picSrc,
  picComm,
  picButtons,
  picDot,
  picVerl,
  ctlRoundBrdMask,
  imgNote,
  imgPicErr,
  imgLink,
  // Icons of 16 and 32 pixels; of the last three only one size.
  icoPrograms,
  icoBold,
  icoItalic,
  icoUnderline,
  icoLeft,
  icoCentre,
  icoRight,
  imgLinkIcon,
  imgLgLinkIcon,
  imgPicker,
  // Pointers.
  curHand,
  curUp,
  curDown,
  curNew,
  curFill,
  curEmpty,
  imgCopy,
  imgDrag,
};

/// The whole file. It lives as long as the program.
std::span<const std::byte> PictureBytes(Picture which);

/// The pixels of a bitmap. Empty for an icon or a pointer, or when there is no memory for it.
[[nodiscard]] platform::Surface PictureSurface(Picture which);

/// The image of that width in an icon or pointer. Empty where there is none, as in a bitmap.
[[nodiscard]] platform::Icon PictureIcon(Picture which, int width);

}  // namespace dorvalin
