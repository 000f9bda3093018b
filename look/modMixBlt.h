// Soft mixing of pixels: sprites with soft edges, tints and coloured masks.
//
// Each routine mixes the three channels by themselves; the top byte, which carries nothing, is the
// background's, or 0 where there is none. It returns false, with nothing drawn, on a screen of
// other than 16, 24 or 32 bits. What lies outside the destination or one of the sources is left
// alone. Sources may be the destination itself: they are taken as they were before.
#pragma once

#include <cstdint>

#include "platform/surface.h"

namespace dorvalin {

/// Where in a surface a source begins; it is as large as the area that is drawn.
struct PixelsAt {
  const platform::Surface& surface;
  platform::Point at;
};

/// Bits per pixel of the screen; 0 for a screen with a palette.
[[nodiscard]] int GetDepth();

/// The mask's own channels are the weights: 255 the source, 0 the background.
bool SoftBlt(platform::Surface& destination, const platform::Rect& area, PixelsAt source,
             PixelsAt background, PixelsAt mask);

/// The mask is scaled by alpha first.
bool SoftBltAlpha(platform::Surface& destination, const platform::Rect& area, PixelsAt source,
                  PixelsAt background, PixelsAt mask, std::uint8_t alpha);

/// The inverted mask, scaled by alpha.
bool InvSoftBlt(platform::Surface& destination, const platform::Rect& area, PixelsAt source,
                PixelsAt background, PixelsAt mask, std::uint8_t alpha);

/// One colour over the background, at the weight alpha.
bool ColorBlt(platform::Surface& destination, const platform::Rect& area, PixelsAt background,
              platform::Colour colour, std::uint8_t alpha);

/// One colour over the source where the mask is dark: 0 the colour, 255 the source.
bool KeyBlt(platform::Surface& destination, const platform::Rect& area, PixelsAt source,
            platform::Colour colour, PixelsAt mask);

/// 255 in the mask gives colour a, 0 colour b.
bool TwoColorBlt(platform::Surface& destination, const platform::Rect& area, platform::Colour a,
                 platform::Colour b, PixelsAt mask);

}  // namespace dorvalin
