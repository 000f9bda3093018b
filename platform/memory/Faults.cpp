#include "platform/memory/Faults.h"

#include <utility>

namespace platform {

void Faults::FailNth(int n, Failure how) {
  failing_ = calls_ + n;
  failingHow_ = how;
}

void Faults::FailNext(std::string call, Failure how) {
  next_.insert_or_assign(std::move(call), how);
}

void Faults::FailAlways(std::string call, Failure how) {
  always_.insert_or_assign(std::move(call), how);
}

void Faults::Clear() {
  failing_ = 0;
  next_.clear();
  always_.clear();
}

std::optional<Failure> Faults::Ask(std::string_view call) {
  ++calls_;
  if (calls_ == failing_) {
    failedNth_ = call;
    return failingHow_;
  }
  if (const auto once = next_.find(call); once != next_.end()) {
    const Failure how = once->second;
    next_.erase(once);
    return how;
  }
  const auto always = always_.find(call);
  return always == always_.end() ? std::nullopt : std::optional(always->second);
}

}  // namespace platform
