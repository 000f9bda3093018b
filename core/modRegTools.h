// The settings store: texts and numbers under keys of the registry. No routine reports a failure:
// what cannot be read counts as missing, what cannot be written leaves the old value.
//
// A trailing backslash of a key is ignored.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/registry.h"

namespace dorvalin {

using platform::RegistryRoot;

/// Where the program keeps its settings; subkeys begin with a backslash.
inline constexpr std::u16string_view kProgramKey = u"Software\\Tolvo\\Dorvalin";

/// The key of the program's own settings with this subkey ("\UserData").
[[nodiscard]] std::u16string ProgramKey(std::u16string_view subkey);

void RegSetString(std::u16string_view key, std::u16string_view name, std::u16string_view text,
                  RegistryRoot root = RegistryRoot::CurrentUser);
void RegSetLong(std::u16string_view key, std::u16string_view name, std::int32_t number,
                RegistryRoot root = RegistryRoot::CurrentUser);
/// An empty name deletes the key itself, if it has no subkeys.
void RegDelete(std::u16string_view key, std::u16string_view name,
               RegistryRoot root = RegistryRoot::CurrentUser);

/// A value that exists and is empty gives the empty text, not the default.
[[nodiscard]] std::u16string RegGetString(std::u16string_view key, std::u16string_view name,
                                          std::u16string_view otherwise,
                                          RegistryRoot root = RegistryRoot::CurrentUser);
/// A value that exists with another type gives 0, not the default.
[[nodiscard]] std::int32_t RegGetLong(std::u16string_view key, std::u16string_view name,
                                      std::int32_t otherwise,
                                      RegistryRoot root = RegistryRoot::CurrentUser);

/// Names of the subkeys; empty also where the key cannot be opened.
[[nodiscard]] std::vector<std::u16string> RegEnumKeys(
    std::u16string_view key, RegistryRoot root = RegistryRoot::CurrentUser);
/// Names and texts of the values; empty also where the key cannot be opened.
[[nodiscard]] std::vector<std::pair<std::u16string, std::u16string>> RegEnumValues(
    std::u16string_view key, RegistryRoot root = RegistryRoot::CurrentUser);

}  // namespace dorvalin
