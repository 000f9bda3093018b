// Recognises the access gestures by sampling the buttons and Scroll Lock at each tick of 150 ms and
// counting the ticks of a hold. No hook: a hold over any window counts.
//
//   counter   0        idle, the button is up
//             1 to t-1 counting
//             -1       decided: fired or refused; nothing more until the button is up
#pragma once

#include "core/ProgramState.h"
#include "platform/input.h"

namespace dorvalin {

inline constexpr int kGestureTick = 150;  ///< milliseconds

class AccessGestures {
 public:
  enum class Verdict { Nothing, ShowWheel };

  /// Samples once. An idle tick costs one platform call for each gesture that is switched on.
  [[nodiscard]] Verdict Tick(const Settings& settings, platform::Input& input);

  int BothCount = 0;
  int MiddleCount = 0;
  int RightCount = 0;
  int LeftCount = 0;
  int ScrollHold = 0;  ///< ticks left in which Scroll Lock is not looked at
  /// Where the pointer was at the first tick of a hold. All holds share it: a second button that
  /// goes down moves it, and the older hold then measures its travel from there.
  platform::Point StartPos;

 private:
  struct Hold {
    int threshold;  ///< ticks
    int limit;      ///< pixels of travel that refuse the hold
  };
  bool Watch(bool down, int& count, const Hold& hold, bool scrollFired, platform::Input& input);
  bool Count(int& count, const Hold& hold, platform::Input& input);
  bool WatchScrollLock(platform::Input& input);
};

}  // namespace dorvalin
