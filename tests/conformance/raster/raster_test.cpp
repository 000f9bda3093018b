#include <gtest/gtest.h>

#include <iterator>
#include <ostream>
#include <random>

#include "tests/conformance/raster/RasterReference.h"

namespace platform {
namespace {

constexpr RasterOp kOps[] = {RasterOp::SrcCopy,   RasterOp::SrcInvert, RasterOp::SrcAnd,
                             RasterOp::SrcPaint,  RasterOp::SrcErase,  RasterOp::NotSrcCopy,
                             RasterOp::DstInvert, RasterOp::Blackness, RasterOp::Whiteness};

constexpr Size kDestination{48, 40};
constexpr Size kSource{40, 48};

struct Case {
  Rect area;
  Rect from;
  RasterOp op;
  bool sameSurface;
  bool stretched;
};

std::ostream& operator<<(std::ostream& out, const Rect& r) {
  return out << "(" << r.left << ", " << r.top << ") " << r.Width() << " x " << r.Height();
}
std::ostream& operator<<(std::ostream& out, const Case& c) {
  return out << (c.stretched ? "stretched to " : "to ") << c.area << " from " << c.from
             << " operation " << std::hex << static_cast<unsigned>(c.op) << std::dec
             << (c.sameSurface ? ", one surface" : "");
}

class Raster : public testing::Test {
 protected:
  int Between(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }

  Surface Noise(Size size) {
    Surface surface(size);
    for (int y = 0; y < size.height; ++y)
      for (int x = 0; x < size.width; ++x) surface.Row(y)[x] = static_cast<Pixel>(random_());
    return surface;
  }

  /// Sizes and places around those of the surfaces: inside, across each edge, off, empty, negative.
  Rect AnyRect() {
    return Rect::At({Between(-20, 60), Between(-20, 60)}, {Between(-40, 60), Between(-40, 60)});
  }
  RasterOp AnyOp() { return kOps[Between(0, std::size(kOps) - 1)]; }

  /// Both draw the same case on the same pixels; nothing may differ afterwards.
  void ExpectSame(const Case& c) {
    Surface mine = Noise(kDestination);
    Surface reference = mine.Clone();
    const Surface source = Noise(kSource);
    const Surface& from = c.sameSurface ? mine : source;
    const Surface& referenceFrom = c.sameSurface ? reference : source;
    if (c.stretched) {
      StretchBlt(mine, c.area, from, c.from, c.op);
      ReferenceStretchBlt(reference, c.area, referenceFrom, c.from, c.op);
    } else {
      BitBlt(mine, c.area, from, c.from.Origin(), c.op);
      ReferenceBitBlt(reference, c.area, referenceFrom, c.from.Origin(), c.op);
    }
    for (int y = 0; y < mine.Height(); ++y)
      for (int x = 0; x < mine.Width(); ++x)
        if (mine.At({x, y}) != reference.At({x, y})) {
          ADD_FAILURE() << c << ": differs at " << x << ", " << y;
          return;
        }
  }

 private:
  std::mt19937 random_{20};
};

TEST_F(Raster, CopiesAndStretchesAsTheSystemDoes) {
  for (int i = 0; i < 12000 && !HasFailure(); ++i) {
    const Case c{AnyRect(), AnyRect(), AnyOp(), i % 3 == 0, i % 2 == 0};
    const Size source = c.sameSurface ? kDestination : kSource;
    if (!c.stretched || !ReferenceErrs(c.area, source, c.from)) ExpectSame(c);
  }
}

}  // namespace
}  // namespace platform
