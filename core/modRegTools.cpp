#include "core/modRegTools.h"

#include "platform/desktop.h"
#include "platform/locale.h"

namespace dorvalin {
namespace {

using platform::RegistryValue;
using platform::TheDesktop;

std::u16string_view WithoutTrailingBackslash(std::u16string_view key) {
  if (key.ends_with(u'\\')) key.remove_suffix(1);
  return key;
}

// Texts are stored with a terminating NUL, so every value loses its last byte, whatever its type.
std::u16string TextOfBytes(std::string bytes) {
  if (!bytes.empty()) bytes.pop_back();
  return TheDesktop().locale().FromAnsi(bytes);
}

std::u16string TextOf(const RegistryValue& value) {
  if (const auto* text = std::get_if<std::u16string>(&value)) return *text;
  if (const auto* raw = std::get_if<platform::RegistryBytes>(&value))
    return TextOfBytes(raw->bytes);
  std::string bytes;
  for (auto number = std::get<std::uint32_t>(value); bytes.size() < 4; number >>= 8) {
    bytes.push_back(static_cast<char>(number & 0xFF));
  }
  return TextOfBytes(bytes);
}

}  // namespace

std::u16string ProgramKey(std::u16string_view subkey) {
  return std::u16string(kProgramKey).append(subkey);
}

void RegSetString(std::u16string_view key, std::u16string_view name, std::u16string_view text,
                  RegistryRoot root) {
  TheDesktop().registry().Set(root, WithoutTrailingBackslash(key), name, std::u16string(text));
}

void RegSetLong(std::u16string_view key, std::u16string_view name, std::int32_t number,
                RegistryRoot root) {
  TheDesktop().registry().Set(root, WithoutTrailingBackslash(key), name,
                              static_cast<std::uint32_t>(number));
}

void RegDelete(std::u16string_view key, std::u16string_view name, RegistryRoot root) {
  const auto path = WithoutTrailingBackslash(key);
  if (name.empty()) {
    TheDesktop().registry().DeleteKey(root, path);
  } else {
    TheDesktop().registry().DeleteValue(root, path, name);
  }
}

std::u16string RegGetString(std::u16string_view key, std::u16string_view name,
                            std::u16string_view otherwise, RegistryRoot root) {
  const auto value = TheDesktop().registry().Get(root, WithoutTrailingBackslash(key), name);
  return value ? TextOf(*value) : std::u16string(otherwise);
}

std::int32_t RegGetLong(std::u16string_view key, std::u16string_view name, std::int32_t otherwise,
                        RegistryRoot root) {
  const auto value = TheDesktop().registry().Get(root, WithoutTrailingBackslash(key), name);
  if (!value) return otherwise;
  const auto* number = std::get_if<std::uint32_t>(&*value);
  // Another type reads as 0: only a value that is missing has a default.
  return number ? static_cast<std::int32_t>(*number) : 0;
}

std::vector<std::u16string> RegEnumKeys(std::u16string_view key, RegistryRoot root) {
  return TheDesktop()
      .registry()
      .Keys(root, WithoutTrailingBackslash(key))
      .value_or(std::vector<std::u16string>());
}

std::vector<std::pair<std::u16string, std::u16string>> RegEnumValues(std::u16string_view key,
                                                                     RegistryRoot root) {
  std::vector<std::pair<std::u16string, std::u16string>> texts;
  const auto values = TheDesktop().registry().Values(root, WithoutTrailingBackslash(key));
  if (!values) return texts;
  for (const auto& [name, value] : *values) texts.emplace_back(name, TextOf(value));
  return texts;
}

}  // namespace dorvalin
