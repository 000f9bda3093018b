#include "platform/win32/TypingTarget.h"

namespace platform {
namespace {

constexpr DWORD kPollPause = 1;  // ms
// For a batch, to a program that is at work; and to one that did not answer the last time, so that
// one that never does (it may run with higher rights) does not cost a long wait again and again.
constexpr DWORD kPatience = 3000;
constexpr DWORD kLittlePatience = 100;

/// The thread whose window has the activation; 0 for none and for one of our own, which could take
/// nothing while we wait.
DWORD OtherForegroundThread() {
  DWORD process = 0;
  const DWORD thread = ::GetWindowThreadProcessId(::GetForegroundWindow(), &process);
  return process == ::GetCurrentProcessId() ? 0 : thread;
}

template <typename Condition>
bool WaitUntil(Condition holds, DWORD milliseconds) {
  const DWORD start = ::GetTickCount();
  while (!holds()) {
    if (::GetTickCount() - start >= milliseconds) return false;
    ::Sleep(kPollPause);
  }
  return true;
}

/// Shares the keyboard state of another thread while it lives.
class SharedInput {
 public:
  explicit SharedInput(DWORD thread)
      : thread_(thread),
        shared_(thread && ::AttachThreadInput(::GetCurrentThreadId(), thread, TRUE)) {}
  ~SharedInput() {
    if (shared_) ::AttachThreadInput(::GetCurrentThreadId(), thread_, FALSE);
  }
  SharedInput(const SharedInput&) = delete;
  SharedInput& operator=(const SharedInput&) = delete;
  explicit operator bool() const { return shared_; }

 private:
  DWORD thread_;
  bool shared_;
};

}  // namespace

void WaitForOtherForeground(DWORD milliseconds) {
  WaitUntil([] { return OtherForegroundThread() != 0; }, milliseconds);
}

bool TypingTarget::Take(KeyBatch& batch) {
  const SharedInput shared(OtherForegroundThread());
  const bool sent = batch.Send();
  if (sent && shared) answers_ = WaitUntil(MarkerTaken, answers_ ? kPatience : kLittlePatience);
  ReleaseMarker();
  return sent;
}

}  // namespace platform
