#include <windows.h>

#include <map>

#include "e2e/probe/commands.h"
#include "e2e/probe/json.h"

namespace probe {
namespace {

const std::map<std::wstring, HKEY> kRoots = {
    {L"HKCU", HKEY_CURRENT_USER}, {L"HKLM", HKEY_LOCAL_MACHINE}, {L"HKCR", HKEY_CLASSES_ROOT}};

constexpr DWORD kLongestName = 16384;

struct Place {
  HKEY root;
  std::wstring path;
};

Place PlaceOf(const std::wstring& key) {
  const std::size_t end = key.find(L'\\');
  const auto root = kRoots.find(key.substr(0, end));
  if (root == kRoots.end() || end == std::wstring::npos) throw Refusal("the root is unknown");
  return {root->second, key.substr(end + 1)};
}

class OpenKey {
 public:
  explicit OpenKey(const Place& place) {
    if (RegOpenKeyExW(place.root, place.path.c_str(), 0, KEY_READ, &key_)) key_ = nullptr;
  }
  ~OpenKey() {
    if (key_) RegCloseKey(key_);
  }
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;
  explicit operator bool() const { return key_; }
  HKEY Get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

std::string JsonOf(DWORD type, const std::vector<BYTE>& data) {
  if (type == REG_DWORD && data.size() >= sizeof(DWORD)) {
    return std::to_string(*reinterpret_cast<const DWORD*>(data.data()));
  }
  std::wstring text(reinterpret_cast<const wchar_t*>(data.data()), data.size() / sizeof(wchar_t));
  return JsonText(text.substr(0, text.find(L'\0')));
}

// False at the end of the list.
bool ValueAt(HKEY key, DWORD index, std::pair<std::string, std::string>& member) {
  std::wstring name(kLongestName, L'\0');
  DWORD units = kLongestName;
  DWORD type = 0;
  DWORD size = 0;
  if (RegEnumValueW(key, index, name.data(), &units, nullptr, nullptr, nullptr, &size))
    return false;
  std::vector<BYTE> data(size);
  units = kLongestName;
  if (RegEnumValueW(key, index, name.data(), &units, nullptr, &type, data.data(), &size))
    return false;
  member = {JsonText({name.data(), units}), JsonOf(type, data)};
  return true;
}

}  // namespace

std::string RegistryValues(const Words& words) {
  const OpenKey key(PlaceOf(words.at(0)));
  std::vector<std::pair<std::string, std::string>> members;
  std::pair<std::string, std::string> member;
  for (DWORD i = 0; key && ValueAt(key.Get(), i, member); ++i) {
    const std::string& quoted = member.first;
    members.emplace_back(quoted.substr(1, quoted.size() - 2), member.second);
  }
  return JsonObject(members);
}

std::string RegistryKeys(const Words& words) {
  const OpenKey key(PlaceOf(words.at(0)));
  std::vector<std::string> names;
  wchar_t name[256];
  DWORD units = 256;
  for (DWORD i = 0;
       key && !RegEnumKeyExW(key.Get(), i, name, &units, nullptr, nullptr, nullptr, nullptr);
       ++i, units = 256) {
    names.push_back(JsonText({name, units}));
  }
  return JsonList(names);
}

std::string RegistrySet(const Words& words) {
  const auto [root, path] = PlaceOf(words.at(0));
  const std::wstring& name = words.at(1);
  const std::wstring& value = words.at(3);
  LSTATUS status = 0;
  if (words.at(2) == L"dword") {
    const auto number = static_cast<DWORD>(std::stoll(value));
    status = RegSetKeyValueW(root, path.c_str(), name.c_str(), REG_DWORD, &number, sizeof number);
  } else {
    const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    status = RegSetKeyValueW(root, path.c_str(), name.c_str(), REG_SZ, value.c_str(), size);
  }
  if (status) throw Refusal("the value was not written");
  return "true";
}

std::string RegistryDelete(const Words& words) {
  const auto [root, path] = PlaceOf(words.at(0));
  if (words.size() > 1) return JsonBool(!RegDeleteKeyValueW(root, path.c_str(), words[1].c_str()));
  return JsonBool(!RegDeleteTreeW(root, path.c_str()));
}

}  // namespace probe
