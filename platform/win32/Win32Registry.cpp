#include "platform/win32/Win32Registry.h"

#include <algorithm>
#include <cstring>

#include "platform/win32/handles.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

// The longest names that the system allows, with the terminator.
constexpr DWORD kKeyNameSize = 256;
constexpr DWORD kValueNameSize = 16384;

struct CloseKey {
  void operator()(HKEY h) const { ::RegCloseKey(h); }
};
using OwnedKey = Owned<HKEY, CloseKey>;

HKEY HandleOf(RegistryRoot root) {
  switch (root) {
    case RegistryRoot::ClassesRoot:
      return HKEY_CLASSES_ROOT;
    case RegistryRoot::LocalMachine:
      return HKEY_LOCAL_MACHINE;
    default:
      return HKEY_CURRENT_USER;
  }
}

OwnedKey OpenKey(RegistryRoot root, std::u16string_view key, REGSAM access) {
  HKEY handle = nullptr;
  const LSTATUS status = ::RegOpenKeyExW(HandleOf(root), Terminated(key), 0, access, &handle);
  return OwnedKey(status == ERROR_SUCCESS ? handle : nullptr);
}

OwnedKey CreateKey(RegistryRoot root, std::u16string_view key) {
  HKEY handle = nullptr;
  const LSTATUS status = ::RegCreateKeyExW(HandleOf(root), Terminated(key), 0, nullptr, 0,
                                           KEY_WRITE, nullptr, &handle, nullptr);
  return OwnedKey(status == ERROR_SUCCESS ? handle : nullptr);
}

std::u16string TextOf(const std::string& bytes) {
  std::u16string text(bytes.size() / sizeof(char16_t), u'\0');
  std::memcpy(text.data(), bytes.data(), text.size() * sizeof(char16_t));
  if (!text.empty() && text.back() == u'\0') text.pop_back();
  return text;
}

std::uint32_t NumberOf(const std::string& bytes) {
  std::uint32_t number = 0;
  std::memcpy(&number, bytes.data(), std::min(bytes.size(), sizeof(number)));
  return number;
}

RegistryValue ValueOf(DWORD type, std::string bytes) {
  switch (type) {
    case REG_SZ:
    case REG_EXPAND_SZ:
    case REG_MULTI_SZ:
      return TextOf(bytes);
    case REG_DWORD:
      if (bytes.empty()) break;
      return NumberOf(bytes);
    default:
      break;
  }
  return RegistryBytes{std::move(bytes)};
}

std::optional<RegistryValue> Query(HKEY key, const wchar_t* name) {
  DWORD type = REG_NONE;
  DWORD size = 0;
  std::string bytes;
  LSTATUS status = ::RegQueryValueExW(key, name, nullptr, &type, nullptr, &size);
  // Again where somebody made it longer between the two questions.
  do {
    if (status != ERROR_SUCCESS && status != ERROR_MORE_DATA) return {};
    bytes.resize(size);
    status =
        ::RegQueryValueExW(key, name, nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()), &size);
  } while (status == ERROR_MORE_DATA);
  if (status != ERROR_SUCCESS) return {};
  bytes.resize(size);
  return ValueOf(type, std::move(bytes));
}

/// A value as it is stored.
struct Stored {
  DWORD type;
  const void* bytes;
  std::size_t size;
};

Stored StoredOf(const std::u16string& text) {
  return {REG_SZ, text.c_str(), (text.size() + 1) * sizeof(char16_t)};
}
Stored StoredOf(const std::uint32_t& number) { return {REG_DWORD, &number, sizeof(number)}; }
Stored StoredOf(const RegistryBytes& raw) {
  return {REG_BINARY, raw.bytes.data(), raw.bytes.size()};
}

}  // namespace

std::optional<RegistryValue> Win32Registry::Get(RegistryRoot root, std::u16string_view key,
                                                std::u16string_view name) {
  const OwnedKey opened = OpenKey(root, key, KEY_QUERY_VALUE);
  if (!opened) return {};
  return Query(opened.get(), Terminated(name));
}

bool Win32Registry::Set(RegistryRoot root, std::u16string_view key, std::u16string_view name,
                        const RegistryValue& value) {
  const OwnedKey opened = CreateKey(root, key);
  if (!opened) return false;
  const Stored stored = std::visit([](const auto& v) { return StoredOf(v); }, value);
  return ::RegSetValueExW(opened.get(), Terminated(name), 0, stored.type,
                          static_cast<const BYTE*>(stored.bytes),
                          static_cast<DWORD>(stored.size)) == ERROR_SUCCESS;
}

bool Win32Registry::DeleteValue(RegistryRoot root, std::u16string_view key,
                                std::u16string_view name) {
  const OwnedKey opened = OpenKey(root, key, KEY_SET_VALUE);
  return opened && ::RegDeleteValueW(opened.get(), Terminated(name)) == ERROR_SUCCESS;
}

bool Win32Registry::DeleteKey(RegistryRoot root, std::u16string_view key) {
  // An empty name would mean the root itself.
  return !key.empty() && ::RegDeleteKeyW(HandleOf(root), Terminated(key)) == ERROR_SUCCESS;
}

std::optional<std::vector<std::u16string>> Win32Registry::Keys(RegistryRoot root,
                                                               std::u16string_view key) {
  const OwnedKey opened = OpenKey(root, key, KEY_ENUMERATE_SUB_KEYS);
  if (!opened) return {};
  std::vector<std::u16string> names;
  wchar_t name[kKeyNameSize];
  for (DWORD i = 0;; ++i) {
    DWORD length = kKeyNameSize;
    if (::RegEnumKeyExW(opened.get(), i, name, &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      return names;
    }
    names.push_back(Text(name));
  }
}

std::optional<std::vector<std::pair<std::u16string, RegistryValue>>> Win32Registry::Values(
    RegistryRoot root, std::u16string_view key) {
  const OwnedKey opened = OpenKey(root, key, KEY_QUERY_VALUE);
  if (!opened) return {};
  std::vector<std::pair<std::u16string, RegistryValue>> values;
  std::u16string name(kValueNameSize, u'\0');
  for (DWORD i = 0;; ++i) {
    DWORD length = kValueNameSize;
    if (::RegEnumValueW(opened.get(), i, WideBuffer(name), &length, nullptr, nullptr, nullptr,
                        nullptr) != ERROR_SUCCESS) {
      return values;
    }
    if (auto value = Query(opened.get(), WideBuffer(name))) {
      values.emplace_back(name.substr(0, length), std::move(*value));
    }
  }
}

}  // namespace platform
