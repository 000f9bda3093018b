// The arithmetic of core/colours.h for one channel, or for eight at once where the processor can:
// a mix is written once and runs on both.
#pragma once

#include <cstdint>

#include "core/colours.h"
#include "platform/surface.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace dorvalin {

inline std::uint8_t Mix(std::uint8_t a, std::uint8_t b, std::uint8_t weight) {
  return MixByte(a, b, weight);
}
inline std::uint8_t Scaled(std::uint8_t weight, std::uint8_t by) { return ScaleByte(weight, by); }
inline std::uint8_t InvertedMask(std::uint8_t mask) { return static_cast<std::uint8_t>(~mask); }

#ifdef __SSE2__

/// Two pixels as eight channels of 16 bits, each 0 to 255.
struct EightChannels {
  __m128i lanes;
};

/// (value + 1) x 257 / 65536, which is value / 255 for all that a mix can give.
inline EightChannels DividedBy255(__m128i valueAndOne) {
  return {_mm_mulhi_epu16(valueAndOne, _mm_set1_epi16(257))};
}
inline EightChannels Inverted(EightChannels weight) {
  return {_mm_xor_si128(weight.lanes, _mm_set1_epi16(255))};
}
/// The top bytes stay without weight.
inline EightChannels InvertedMask(EightChannels mask) {
  return {_mm_xor_si128(mask.lanes, _mm_set1_epi64x(0x000000FF00FF00FF))};
}
inline EightChannels Mix(EightChannels a, EightChannels b, EightChannels weight) {
  // The one is added to the part that is the same for all pixels when a colour is mixed in.
  const __m128i partOfA = _mm_mullo_epi16(a.lanes, weight.lanes);
  const __m128i partOfB = _mm_mullo_epi16(b.lanes, Inverted(weight).lanes);
  return DividedBy255(_mm_add_epi16(_mm_add_epi16(partOfA, _mm_set1_epi16(1)), partOfB));
}
inline EightChannels Scaled(EightChannels weight, std::uint8_t by) {
  return DividedBy255(
      _mm_add_epi16(_mm_mullo_epi16(weight.lanes, _mm_set1_epi16(by)), _mm_set1_epi16(1)));
}

inline EightChannels LowPixels(__m128i four) {
  return {_mm_unpacklo_epi8(four, _mm_setzero_si128())};
}
inline EightChannels HighPixels(__m128i four) {
  return {_mm_unpackhi_epi8(four, _mm_setzero_si128())};
}
inline __m128i FourPixels(EightChannels low, EightChannels high) {
  return _mm_packus_epi16(low.lanes, high.lanes);
}
inline __m128i LoadFour(const platform::Pixel* pixels) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(pixels));
}
inline void StoreFour(platform::Pixel* pixels, __m128i four) {
  _mm_storeu_si128(reinterpret_cast<__m128i*>(pixels), four);
}

#endif

}  // namespace dorvalin
