// The window of another program that has the keyboard, as far as typing needs to know it.
#pragma once

#include "platform/win32/KeyBatch.h"

namespace platform {

class TypingTarget {
 public:
  /// Injects the batch and returns when the program in the foreground has taken it, as far as that
  /// can be seen. False: not all of it was injected.
  bool Take(const KeyBatch& batch);

 private:
  [[nodiscard]] bool TakesKeys(DWORD thread) const;
  void AwaitEnd(DWORD thread, bool shared);

  bool begun_ = false;
  bool mute_ = false;  // nothing shows that the target takes its keys
};

}  // namespace platform
