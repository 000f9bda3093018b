#include "platform/raster.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>

namespace platform {
namespace {

/// What a raster operation does to one pixel.
template <RasterOp op>
constexpr Pixel Combined([[maybe_unused]] Pixel d, [[maybe_unused]] Pixel s) {
  if constexpr (op == RasterOp::SrcCopy) return s;
  if constexpr (op == RasterOp::SrcInvert) return s ^ d;
  if constexpr (op == RasterOp::SrcAnd) return s & d;
  if constexpr (op == RasterOp::SrcPaint) return s | d;
  if constexpr (op == RasterOp::SrcErase) return s & ~d;
  if constexpr (op == RasterOp::NotSrcCopy) return ~s;
  if constexpr (op == RasterOp::DstInvert) return ~d;
  if constexpr (op == RasterOp::Blackness) return 0;
  if constexpr (op == RasterOp::Whiteness) return ~Pixel{0};
}

using RowFunction = void (*)(Pixel* destination, const Pixel* source, std::ptrdiff_t count);

template <RasterOp op>
void CombineRow(Pixel* destination, const Pixel* source, std::ptrdiff_t count) {
  if constexpr (op == RasterOp::SrcCopy) {
    std::memmove(destination, source, static_cast<std::size_t>(count) * sizeof(Pixel));
  } else if (destination <= source) {
    for (std::ptrdiff_t i = 0; i < count; ++i)
      destination[i] = Combined<op>(destination[i], source[i]);
  } else {
    // A source that starts before its overlapping destination is read from its end.
    for (std::ptrdiff_t i = count; i-- > 0;)
      destination[i] = Combined<op>(destination[i], source[i]);
  }
}

RowFunction RowFunctionFor(RasterOp op) {
  switch (op) {
    case RasterOp::SrcCopy:
      return CombineRow<RasterOp::SrcCopy>;
    case RasterOp::SrcInvert:
      return CombineRow<RasterOp::SrcInvert>;
    case RasterOp::SrcAnd:
      return CombineRow<RasterOp::SrcAnd>;
    case RasterOp::SrcPaint:
      return CombineRow<RasterOp::SrcPaint>;
    case RasterOp::SrcErase:
      return CombineRow<RasterOp::SrcErase>;
    case RasterOp::NotSrcCopy:
      return CombineRow<RasterOp::NotSrcCopy>;
    case RasterOp::DstInvert:
      return CombineRow<RasterOp::DstInvert>;
    case RasterOp::Blackness:
      return CombineRow<RasterOp::Blackness>;
    case RasterOp::Whiteness:
      return CombineRow<RasterOp::Whiteness>;
  }
  return CombineRow<RasterOp::SrcCopy>;
}

bool ReadsSource(RasterOp op) {
  return op != RasterOp::DstInvert && op != RasterOp::Blackness && op != RasterOp::Whiteness;
}

/// The pixels that a possibly negative extent covers, half-open.
struct Extent {
  int begin;
  int end;
};
Extent Ordered(int from, int to) {
  return from <= to ? Extent{from, to} : Extent{to + 1, from + 1};
}
Rect Ordered(const Rect& r) {
  const Extent x = Ordered(r.left, r.right);
  const Extent y = Ordered(r.top, r.bottom);
  return {x.begin, y.begin, x.end, y.end};
}

void CombineArea(Surface& destination, const Rect& area, RowFunction combine) {
  for (int y = area.top; y < area.bottom; ++y) {
    Pixel* row = destination.Row(y) + area.left;
    combine(row, row, area.Width());
  }
}

/// `area` lies inside both surfaces, the source's at `offset` from it.
void CombineAreas(Surface& destination, const Rect& area, const Surface& source, Point offset,
                  RowFunction combine) {
  // Rows that are still to be read must not be written before, within one surface.
  const bool upwards = offset.y < 0;
  for (int i = 0; i < area.Height(); ++i) {
    const int y = upwards ? area.bottom - 1 - i : area.top + i;
    combine(destination.Row(y) + area.left, source.Row(y + offset.y) + area.left + offset.x,
            area.Width());
  }
}

/// One direction of a stretch: which source pixel each destination pixel shows. Both sides are
/// counted from their corner in the direction in which they extend.
class Axis {
 public:
  enum class Merging { KeepFirst, KeepLast };
  static constexpr int kNone = -1;

  /// `limit` is the size of the source surface; what lies outside of it is not shown.
  Axis(int to, int toSize, int from, int fromSize, int limit, Merging merging)
      : to_(to),
        toStep_(toSize < 0 ? -1 : 1),
        toCount_(std::abs(toSize)),
        from_(from),
        fromStep_(fromSize < 0 ? -1 : 1),
        fromCount_(std::abs(fromSize)),
        merging_(merging) {
    if (fromStep_ > 0) {
      seenBegin_ = std::max(0, -from);
      seenEnd_ = std::min(fromCount_, limit - from);
    } else {
      seenBegin_ = std::max(0, from - limit + 1);
      seenEnd_ = std::min(fromCount_, from + 1);
    }
  }

  /// The source pixel for the destination pixel, kNone where the source does not reach. The
  /// destination pixel must lie in the destination's extent.
  int SourceOf(int destination) const {
    const std::int64_t index = (destination - to_) * toStep_;
    const std::int64_t count = toCount_ >= fromCount_ ? Stretched(index) : Shrunk(index);
    return count < 0 ? kNone : from_ + static_cast<int>(count) * fromStep_;
  }

 private:
  /// The source pixel under the middle of the destination pixel; on an edge, the one before it.
  std::int64_t Stretched(std::int64_t index) const {
    const std::int64_t found = ((2 * index + 1) * fromCount_ - 1) / (2LL * toCount_);
    return found >= seenBegin_ && found < seenEnd_ ? found : kNone;
  }
  /// One of the source pixels whose middles fall into the destination pixel, its own end included.
  std::int64_t Shrunk(std::int64_t index) const {
    const std::int64_t first = (2 * index * fromCount_ / toCount_ + 1) / 2;
    const std::int64_t end = (2 * (index + 1) * fromCount_ / toCount_ + 1) / 2;
    const std::int64_t firstSeen = std::max<std::int64_t>(first, seenBegin_);
    const std::int64_t endSeen = std::min<std::int64_t>(end, seenEnd_);
    if (firstSeen >= endSeen) return kNone;
    return merging_ == Merging::KeepFirst ? firstSeen : endSeen - 1;
  }

  int to_, toStep_, toCount_;
  int from_, fromStep_, fromCount_;
  Merging merging_;
  int seenBegin_, seenEnd_;
};

/// Source columns of a run of destination columns, found once for all rows.
constexpr int kChunk = 256;
using Columns = std::array<int, kChunk>;

void StretchColumns(Surface& destination, Extent x, Extent rows, const Surface& source,
                    const Axis& across, const Axis& down, RowFunction combine) {
  Columns columns;
  std::array<Pixel, kChunk> pixels;
  int count = 0;
  while (x.begin < x.end && across.SourceOf(x.begin) == Axis::kNone) ++x.begin;
  for (int at = x.begin; at < x.end; ++at, ++count) {
    columns[count] = across.SourceOf(at);
    if (columns[count] == Axis::kNone) break;
  }
  int gathered = Axis::kNone;
  for (int y = rows.begin; y < rows.end; ++y) {
    const int from = down.SourceOf(y);
    if (from == Axis::kNone) continue;
    if (from != gathered) {
      const Pixel* row = source.Row(from);
      for (int i = 0; i < count; ++i) pixels[i] = row[columns[i]];
      gathered = from;
    }
    combine(destination.Row(y) + x.begin, pixels.data(), count);
  }
}

void Stretch(Surface& destination, const Rect& area, const Surface& source, const Rect& from,
             RowFunction combine) {
  const Axis across(area.left, area.Width(), from.left, from.Width(), source.Width(),
                    Axis::Merging::KeepLast);
  const Axis down(area.top, area.Height(), from.top, from.Height(), source.Height(),
                  Axis::Merging::KeepFirst);
  const Rect seen = Ordered(area).Intersected(destination.Area());
  for (int x = seen.left; x < seen.right; x += kChunk)
    StretchColumns(destination, {x, std::min(x + kChunk, seen.right)}, {seen.top, seen.bottom},
                   source, across, down, combine);
}

}  // namespace

void BitBlt(Surface& destination, const Rect& area, const Surface& source, Point from,
            RasterOp op) {
  const RowFunction combine = RowFunctionFor(op);
  const Rect to = Ordered(area).Intersected(destination.Area());
  if (!ReadsSource(op)) return CombineArea(destination, to, combine);
  const Point offset = from - area.Origin();
  const Point back{-offset.x, -offset.y};
  CombineAreas(destination, to.Intersected(source.Area().Moved(back)), source, offset, combine);
}

void StretchBlt(Surface& destination, const Rect& area, const Surface& source, const Rect& from,
                RasterOp op) {
  const bool nothing = area.Width() == 0 || area.Height() == 0;
  const bool fromNothing = from.Width() == 0 || from.Height() == 0;
  if (!ReadsSource(op) || area.Size() == from.Size())
    return BitBlt(destination, area, source, from.Origin(), op);
  if (nothing || fromNothing || source.Empty()) return;
  const RowFunction combine = RowFunctionFor(op);
  if (&source == &destination) {
    const Surface before = source.Clone();
    if (!before.Empty()) Stretch(destination, area, before, from, combine);
  } else {
    Stretch(destination, area, source, from, combine);
  }
}

}  // namespace platform
