#include "e2e/probe/json.h"

#include <windows.h>

#include <cstdio>

namespace probe {

std::string Utf8(std::wstring_view text) {
  const int units = static_cast<int>(text.size());
  const int size =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), units, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), units, bytes.data(), size, nullptr, nullptr);
  return bytes;
}

std::wstring Utf16(std::string_view text) {
  const int bytes = static_cast<int>(text.size());
  const int size = MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, nullptr, 0);
  std::wstring units(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, units.data(), size);
  return units;
}

std::string JsonText(std::wstring_view text) {
  std::string json = "\"";
  for (const char c : Utf8(text)) {
    if (c == '"' || c == '\\') {
      json += {'\\', c};
    } else if (static_cast<unsigned char>(c) < 0x20) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
      json += escape;
    } else {
      json += c;
    }
  }
  return json + '"';
}

std::string JsonList(const std::vector<std::string>& values) {
  std::string json = "[";
  for (const auto& value : values) json += (json.size() > 1 ? "," : "") + value;
  return json + "]";
}

std::string JsonObject(const std::vector<std::pair<std::string, std::string>>& members) {
  std::string json = "{";
  for (const auto& [name, value] : members) {
    json += (json.size() > 1 ? ",\"" : "\"") + name + "\":" + value;
  }
  return json + "}";
}

}  // namespace probe
