// Where the system keeps its special folders.
#pragma once

#include <string>
#include <string_view>

namespace dorvalin {

/// Numbers of the folders that the program asks for.
inline constexpr int kDocumentsFolder = 5;
inline constexpr int kApplicationDataFolder = 26;

/// The folder's path, created where the system can; the default where neither shell nor registry
/// knows it.
[[nodiscard]] std::u16string GetSpecialFolder(int folder, std::u16string_view otherwise = {});

}  // namespace dorvalin
