// The hierarchical store of settings. Keys are paths with backslashes below a root.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace platform {

enum class RegistryRoot { ClassesRoot, CurrentUser, LocalMachine };

/// A value of a type that the program does not use, as its raw bytes.
struct RegistryBytes {
  std::string bytes;
  friend bool operator==(const RegistryBytes&, const RegistryBytes&) = default;
};

/// Text goes out as it came in: no terminating NUL is part of it.
using RegistryValue = std::variant<std::u16string, std::uint32_t, RegistryBytes>;

class Registry {
 public:
  virtual ~Registry() = default;
  /// None where key or value is missing or cannot be read.
  [[nodiscard]] virtual std::optional<RegistryValue> Get(RegistryRoot root, std::u16string_view key,
                                                         std::u16string_view name) = 0;
  /// Creates the key where needed. False: the old value stands.
  virtual bool Set(RegistryRoot root, std::u16string_view key, std::u16string_view name,
                   const RegistryValue& value) = 0;
  virtual bool DeleteValue(RegistryRoot root, std::u16string_view key,
                           std::u16string_view name) = 0;
  /// Deletes a key without subkeys.
  virtual bool DeleteKey(RegistryRoot root, std::u16string_view key) = 0;
  /// None where the key cannot be opened.
  [[nodiscard]] virtual std::optional<std::vector<std::u16string>> Keys(
      RegistryRoot root, std::u16string_view key) = 0;
  [[nodiscard]] virtual std::optional<std::vector<std::pair<std::u16string, RegistryValue>>> Values(
      RegistryRoot root, std::u16string_view key) = 0;
};

}  // namespace platform
