// Bytes that somebody else made: what fuzzers and the suite's own random runs share.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

namespace dorvalin {

/// Ends the process, so that a fuzzer keeps the input.
inline void Require(bool promise, const char* what) {
  if (promise) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

/// The sample with a few bytes changed, left out, doubled, or cut off at the end.
inline std::string Damaged(std::string_view sample, std::mt19937& random) {
  std::string bytes(sample);
  for (auto n = 1 + random() % 4; n-- > 0 && !bytes.empty();) {
    const auto at = random() % bytes.size();
    const auto length = 1 + random() % 8;
    switch (random() % 5) {
      case 0:
        bytes[at] = static_cast<char>(random());
        break;
      case 1:
        bytes[at] = static_cast<char>(random() % 2 ? 0xFF : 0x7F);
        break;
      case 2:
        bytes.erase(at, length);
        break;
      case 3:
        bytes.insert(at, bytes.substr(random() % bytes.size(), length));
        break;
      default:
        bytes.resize(at);
    }
  }
  return bytes;
}

/// Calls `attempt` with this many damaged samples, the same ones in every run.
template <class Attempt>
void TryDamaged(std::string_view sample, int count, Attempt attempt) {
  std::mt19937 random(1);
  for (int i = 0; i < count; ++i) attempt(Damaged(sample, random));
}

}  // namespace dorvalin
