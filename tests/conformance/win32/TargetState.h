// What the other program tells the suite: its text and which parts of it are bold, in a file that
// is replaced as a whole.
#pragma once

#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "platform/files.h"
#include "platform/text.h"
#include "platform/win32/wide.h"

namespace conformance {

struct TargetState {
  std::u16string text;
  std::vector<std::pair<int, int>> boldRanges;
  friend bool operator==(const TargetState&, const TargetState&) = default;
};

// A line with the bold ranges, then the text. False: the suite is just reading the former state.
[[nodiscard]] inline bool WriteState(platform::Files& files, const std::u16string& path,
                                     const TargetState& state) {
  std::string content;
  for (const auto& [first, end] : state.boldRanges) {
    content += std::to_string(first) + " " + std::to_string(end) + " ";
  }
  const std::u16string fresh = path + u".new";
  (void)files.Write(fresh, content + "\n" + platform::ToUtf8(state.text));
  return ::MoveFileExW(platform::Wide(fresh), platform::Wide(path), MOVEFILE_REPLACE_EXISTING) != 0;
}

inline std::optional<TargetState> ReadState(platform::Files& files, const std::u16string& path) {
  const std::string content = files.Read(path).bytes;
  const auto lineEnd = content.find('\n');
  if (lineEnd == std::string::npos) return std::nullopt;
  TargetState state;
  std::istringstream ranges(content.substr(0, lineEnd));
  for (std::pair<int, int> range; ranges >> range.first >> range.second;) {
    state.boldRanges.push_back(range);
  }
  state.text = platform::FromUtf8(std::string_view(content).substr(lineEnd + 1));
  return state;
}

}  // namespace conformance
