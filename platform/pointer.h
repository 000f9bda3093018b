// The looks of the mouse pointer.
#pragma once

#include <cstddef>
#include <span>

namespace platform {

enum class StandardPointer { Default, IBeam, Hourglass, NoDrop, SizeAll, SizeWE };

struct Pointer {
  StandardPointer standard = StandardPointer::Default;
  /// A whole .cur file that lives as long as the program; empty for a standard one.
  std::span<const std::byte> picture;
  bool Custom() const { return !picture.empty(); }
};

}  // namespace platform
