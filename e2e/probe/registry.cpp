#include <windows.h>

#include <cstring>

#include "e2e/probe/commands.h"
#include "e2e/probe/json.h"

namespace probe {
namespace {

constexpr std::wstring_view kRoot = L"HKCU\\";
constexpr DWORD kLongestText = 4096;

std::wstring PathOf(const std::wstring& key) {
  if (!key.starts_with(kRoot)) throw Refusal("only the user's own keys are known");
  return key.substr(kRoot.size());
}

}  // namespace

std::string RegistryGet(const Words& words) {
  const std::wstring path = PathOf(words.at(0));
  wchar_t value[kLongestText];
  DWORD size = sizeof value;
  DWORD type = 0;
  const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), words.at(1).c_str(),
                                      RRF_RT_REG_SZ | RRF_RT_REG_DWORD, &type, value, &size);
  if (status == ERROR_FILE_NOT_FOUND) return "null";
  if (status) throw Refusal("the value cannot be read");
  if (type == REG_SZ) return JsonText(value);
  DWORD number = 0;
  std::memcpy(&number, value, sizeof number);
  return std::to_string(number);
}

std::string RegistrySet(const Words& words) {
  const std::wstring path = PathOf(words.at(0));
  const std::wstring& name = words.at(1);
  const std::wstring& value = words.at(3);
  LSTATUS status = 0;
  if (words.at(2) == L"dword") {
    const auto number = static_cast<DWORD>(std::stoll(value));
    status = RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), REG_DWORD, &number,
                             sizeof number);
  } else {
    const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    status =
        RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), REG_SZ, value.c_str(), size);
  }
  if (status) throw Refusal("the value was not written");
  return "true";
}

std::string RegistryDelete(const Words& words) {
  return JsonBool(!RegDeleteTreeW(HKEY_CURRENT_USER, PathOf(words.at(0)).c_str()));
}

}  // namespace probe
