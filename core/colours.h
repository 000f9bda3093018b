// Arithmetic of colours and channels that every floor shares.
#pragma once

#include <cmath>
#include <cstdint>

#include "platform/surface.h"

namespace dorvalin {

/// `value` / 255, exact for 0 to 65534, without a division.
constexpr std::uint16_t DividedBy255(std::uint16_t value) {
  return static_cast<std::uint16_t>((value + 1 + (value >> 8)) >> 8);
}

/// Between two channel values: weight 255 gives a, 0 gives b.
constexpr std::uint8_t MixByte(std::uint8_t a, std::uint8_t b, std::uint8_t weight) {
  const int sum = a * weight + b * (255 - weight);
  return static_cast<std::uint8_t>(DividedBy255(static_cast<std::uint16_t>(sum)));
}

constexpr std::uint8_t ScaleByte(std::uint8_t a, std::uint8_t weight) {
  return static_cast<std::uint8_t>(DividedBy255(static_cast<std::uint16_t>(a * weight)));
}

/// `first` x weight + `second` x (1 - weight) in each channel, rounded; the weight is 0 to 1.
[[nodiscard]] inline platform::Colour BlendColor(platform::Colour first, platform::Colour second,
                                                 double weight) {
  platform::Colour mixed = 0;
  for (int shift = 0; shift < 24; shift += 8) {
    const int a = (first >> shift) & 0xFF;
    const int b = (second >> shift) & 0xFF;
    mixed |= static_cast<platform::Colour>(std::lrint(a * weight + b * (1 - weight))) << shift;
  }
  return mixed;
}

/// The next integer at or above the value.
[[nodiscard]] inline std::int32_t CeilLong(double value) {
  return static_cast<std::int32_t>(-std::floor(-value));
}

}  // namespace dorvalin
