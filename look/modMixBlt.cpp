#include "look/modMixBlt.h"

#include "look/channels.h"
#include "platform/desktop.h"
#include "platform/screen.h"

namespace dorvalin {
namespace {

using platform::Pixel;
using platform::Point;
using platform::Rect;
using platform::Surface;

/// The top byte weighs nothing, so that it comes from b.
constexpr Pixel kChannels = 0x00FFFFFF;

/// A source that is the same colour everywhere.
class Flat {
 public:
  explicit Flat(Pixel pixel) : pixel_(pixel) {}
  Rect Reach(const Rect& area) const { return area; }
  void Detach(const Surface&, const Rect&) {}
  const Flat& Row(int, int) const { return *this; }
  Pixel At(int) const { return pixel_; }
#ifdef __SSE2__
  __m128i FourAt(int) const { return _mm_set1_epi32(static_cast<int>(pixel_)); }
#endif

 private:
  Pixel pixel_;
};

class PixelRow {
 public:
  explicit PixelRow(const Pixel* pixels) : pixels_(pixels) {}
  Pixel At(int i) const { return pixels_[i]; }
#ifdef __SSE2__
  __m128i FourAt(int i) const { return LoadFour(pixels_ + i); }
#endif

 private:
  const Pixel* pixels_;
};

/// A source from a surface, by its offset from the destination.
class Plane {
 public:
  Plane(PixelsAt pixels, const Rect& area)
      : surface_(&pixels.surface), offset_(pixels.at - area.Origin()) {}

  /// The part of the area for which there are pixels.
  Rect Reach(const Rect& area) const {
    return area.Intersected(surface_->Area().Moved({-offset_.x, -offset_.y}));
  }
  /// Takes a copy where drawing would overwrite what is still to be read.
  void Detach(const Surface& destination, const Rect& seen) {
    if (surface_ != &destination || offset_ == Point{}) return;
    if (seen.Moved(offset_).Intersected(seen).Empty()) return;
    copy_ = surface_->Clone();
    surface_ = &copy_;
  }
  PixelRow Row(int x, int y) const {
    return PixelRow(surface_->Row(y + offset_.y) + x + offset_.x);
  }

 private:
  const Surface* surface_;
  Point offset_;
  Surface copy_;
};

// What becomes of a mask before it weighs.
struct AsItIs {
  auto operator()(auto mask) const { return mask; }
};
struct ScaledBy {
  std::uint8_t alpha;
  auto operator()(auto mask) const { return Scaled(mask, alpha); }
};
struct InvertedAndScaledBy {
  std::uint8_t alpha;
  auto operator()(auto mask) const { return Scaled(InvertedMask(mask), alpha); }
};

template <typename Weight>
Pixel MixPixel(Pixel a, Pixel b, Pixel mask, Weight weight) {
  Pixel mixed = b & ~kChannels;
  for (int shift = 0; shift < 24; shift += 8) {
    const auto channel = [shift](Pixel p) { return static_cast<std::uint8_t>(p >> shift); };
    mixed |= Pixel{Mix(channel(a), channel(b), weight(channel(mask)))} << shift;
  }
  return mixed;
}

template <typename A, typename B, typename M, typename Weight>
void MixRow(Pixel* out, int count, const A& a, const B& b, const M& mask, Weight weight) {
  int i = 0;
#ifdef __SSE2__
  const __m128i channels = _mm_set1_epi32(static_cast<int>(kChannels));
  for (; i + 4 <= count; i += 4) {
    const __m128i fourA = a.FourAt(i);
    const __m128i fourB = b.FourAt(i);
    const __m128i fourMask = _mm_and_si128(mask.FourAt(i), channels);
    const auto low = Mix(LowPixels(fourA), LowPixels(fourB), weight(LowPixels(fourMask)));
    const auto high = Mix(HighPixels(fourA), HighPixels(fourB), weight(HighPixels(fourMask)));
    StoreFour(out + i, FourPixels(low, high));
  }
#endif
  for (; i < count; ++i) out[i] = MixPixel(a.At(i), b.At(i), mask.At(i), weight);
}

template <typename A, typename B, typename M, typename Weight>
bool MixArea(Surface& destination, const Rect& area, A a, B b, M mask, Weight weight) {
  const int depth = GetDepth();
  if (depth != 16 && depth != 24 && depth != 32) return false;
  const Rect seen = mask.Reach(b.Reach(a.Reach(area.Intersected(destination.Area()))));
  if (seen.Empty()) return true;
  a.Detach(destination, seen);
  b.Detach(destination, seen);
  mask.Detach(destination, seen);
  for (int y = seen.top; y < seen.bottom; ++y)
    MixRow(destination.Row(y) + seen.left, seen.Width(), a.Row(seen.left, y), b.Row(seen.left, y),
           mask.Row(seen.left, y), weight);
  return true;
}

Flat FlatColour(platform::Colour colour) { return Flat(platform::PixelFromColour(colour)); }
Flat FlatWeight(std::uint8_t weight) { return Flat(weight * Pixel{0x010101}); }

}  // namespace

int GetDepth() { return platform::TheDesktop().screen().Depth(); }

bool SoftBlt(Surface& destination, const Rect& area, PixelsAt source, PixelsAt background,
             PixelsAt mask) {
  return MixArea(destination, area, Plane(source, area), Plane(background, area), Plane(mask, area),
                 AsItIs{});
}

bool SoftBltAlpha(Surface& destination, const Rect& area, PixelsAt source, PixelsAt background,
                  PixelsAt mask, std::uint8_t alpha) {
  return MixArea(destination, area, Plane(source, area), Plane(background, area), Plane(mask, area),
                 ScaledBy{alpha});
}

bool InvSoftBlt(Surface& destination, const Rect& area, PixelsAt source, PixelsAt background,
                PixelsAt mask, std::uint8_t alpha) {
  return MixArea(destination, area, Plane(source, area), Plane(background, area), Plane(mask, area),
                 InvertedAndScaledBy{alpha});
}

bool ColorBlt(Surface& destination, const Rect& area, PixelsAt background, platform::Colour colour,
              std::uint8_t alpha) {
  return MixArea(destination, area, FlatColour(colour), Plane(background, area), FlatWeight(alpha),
                 AsItIs{});
}

bool KeyBlt(Surface& destination, const Rect& area, PixelsAt source, platform::Colour colour,
            PixelsAt mask) {
  return MixArea(destination, area, Plane(source, area), FlatColour(colour), Plane(mask, area),
                 AsItIs{});
}

bool TwoColorBlt(Surface& destination, const Rect& area, platform::Colour a, platform::Colour b,
                 PixelsAt mask) {
  return MixArea(destination, area, FlatColour(a), FlatColour(b), Plane(mask, area), AsItIs{});
}

}  // namespace dorvalin
