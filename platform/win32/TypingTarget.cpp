#include "platform/win32/TypingTarget.h"

namespace platform {
namespace {

constexpr DWORD kPollPause = 1;  // ms
// How long the keyboard may be on its way from our windows to the target's, or from one window of
// the target's to the next: keys are lost in the moments in which nobody has it.
constexpr DWORD kActivationWait = 100;
// For a batch. A program that has not taken it by then never lets its keys be seen (something
// between swallows the marker), or hangs.
constexpr DWORD kPatience = 10000;
// In place of the wait where one cannot see what the target takes, as at a console.
constexpr DWORD kBlindPause = 20;

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

/// Shares the keyboard state of another thread while it lives. This one has no windows.
class SharedInput {
 public:
  explicit SharedInput(DWORD thread) : thread_(thread) {
    MSG message;
    ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);  // Makes the queue that is to be shared.
    shared_ = thread && ::AttachThreadInput(::GetCurrentThreadId(), thread, TRUE);
  }
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

bool TypingTarget::Take(const KeyBatch& batch) {
  WaitUntil([this] { return TakesKeys(OtherForegroundThread()); }, kActivationWait);
  begun_ = true;
  const DWORD thread = OtherForegroundThread();
  const SharedInput shared(mute_ ? 0 : thread);
  // A target still at the end of the batch before would be taken for one that is through with this.
  if (shared) WaitUntil([] { return !MarkerTaken(); }, kBlindPause);
  const bool sent = batch.Send();
  if (sent) AwaitEnd(thread, bool(shared));
  ReleaseMarker();
  return sent;
}

// A window that has just got the activation may not have passed the keyboard on to its field yet,
// and would lose the keys. Asked once: some programs have no field that the system knows of.
bool TypingTarget::TakesKeys(DWORD thread) const {
  GUITHREADINFO state{};
  state.cbSize = sizeof(state);
  return thread && (begun_ || (::GetGUIThreadInfo(thread, &state) && state.hwndFocus));
}

void TypingTarget::AwaitEnd(DWORD thread, bool shared) {
  if (!shared) return ::Sleep(kBlindPause);
  const auto over = [thread] { return MarkerTaken() || OtherForegroundThread() != thread; };
  mute_ = !WaitUntil(over, kPatience);
}

}  // namespace platform
