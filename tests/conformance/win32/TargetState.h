// What the other program tells the suite: its text and which parts of it are bold, in a file that
// is replaced as a whole.
#pragma once

#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "platform/text.h"
#include "platform/win32/win.h"

namespace conformance {

struct TargetState {
  std::u16string text;
  std::vector<std::pair<int, int>> boldRanges;
  friend bool operator==(const TargetState&, const TargetState&) = default;
};

// A line with the bold ranges, then the text.
inline void WriteState(const std::wstring& path, const TargetState& state) {
  std::string content;
  for (const auto& [first, end] : state.boldRanges) {
    content += std::to_string(first) + " " + std::to_string(end) + " ";
  }
  content += "\n" + platform::ToUtf8(state.text);
  const std::wstring fresh = path + L".new";
  const HANDLE file = ::CreateFileW(fresh.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  DWORD written = 0;
  ::WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
  ::CloseHandle(file);
  ::MoveFileExW(fresh.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING);
}

inline std::optional<TargetState> ReadState(const std::wstring& path) {
  const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  std::string content(::GetFileSize(file, nullptr), '\0');
  DWORD read = 0;
  ::ReadFile(file, content.data(), static_cast<DWORD>(content.size()), &read, nullptr);
  ::CloseHandle(file);
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
