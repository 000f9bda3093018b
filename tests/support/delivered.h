// The files that are delivered with the program, from the source tree.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace dorvalin {

/// Names without extension, and bytes, of the files in a folder.
inline std::map<std::string, std::string> DeliveredFiles(const std::filesystem::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::ifstream file(entry.path(), std::ios::binary);
    files[entry.path().stem().string()] = {std::istreambuf_iterator<char>(file), {}};
  }
  return files;
}

}  // namespace dorvalin
