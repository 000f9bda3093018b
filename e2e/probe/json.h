// Values written as JSON in UTF-8; lone surrogates become the replacement character.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace probe {

std::string Utf8(std::wstring_view text);
std::wstring Utf16(std::string_view text);

std::string JsonText(std::wstring_view text);
std::string JsonList(const std::vector<std::string>& values);

/// An object; the values are JSON already.
std::string JsonObject(const std::vector<std::pair<std::string, std::string>>& members);

inline std::string JsonBool(bool value) { return value ? "true" : "false"; }

}  // namespace probe
