// Failures on order. Every port of the in-process desktop that can fail asks here at the begin of
// each call whether this one is to fail, so that a test can let every single platform call go
// wrong.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace platform {

/// How a call fails. Only reading and writing files looks at the members; every other call fails in
/// the one way it has.
struct Failure {
  FileStatus status = FileStatus::CannotOpen;
  std::size_t bytesDone = 0;  ///< with Broken: what was read or written before
};

class Faults {
 public:
  /// The n-th call (from 1) of any port from now on fails, once.
  void FailNth(int n, Failure how = {});
  /// The next call of this name ("Files.Write") fails, once.
  void FailNext(std::string call, Failure how = {});
  /// Every call of this name fails until Clear.
  void FailAlways(std::string call, Failure how = {});
  void Clear();

  /// Calls so far, failed ones included: a test runs its story once to learn how many there are,
  /// then once more for each with that one failing.
  int Calls() const { return calls_; }
  /// The call that FailNth let fail ("Files.Write"); empty until it has come.
  const std::string& FailedNth() const { return failedNth_; }

  /// Asked by the ports. None: the call goes well.
  [[nodiscard]] std::optional<Failure> Ask(std::string_view call);
  [[nodiscard]] bool Fails(std::string_view call) { return Ask(call).has_value(); }

 private:
  int calls_ = 0;
  int failing_ = 0;  ///< number of the call that FailNth chose; 0 for none
  Failure failingHow_;
  std::string failedNth_;
  std::map<std::string, Failure, std::less<>> next_;
  std::map<std::string, Failure, std::less<>> always_;
};

}  // namespace platform
