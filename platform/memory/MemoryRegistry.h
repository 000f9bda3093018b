// A registry that begins empty. Names ignore case and keep it; subkeys are listed in alphabetical
// order, values in the order in which they were made, as the system's registry does.
#pragma once

#include <map>

#include "platform/memory/Faults.h"
#include "platform/registry.h"

namespace platform {

class MemoryRegistry : public Registry {
 public:
  explicit MemoryRegistry(Faults& faults) : faults_(faults) {}

  std::optional<RegistryValue> Get(RegistryRoot root, std::u16string_view key,
                                   std::u16string_view name) override;
  bool Set(RegistryRoot root, std::u16string_view key, std::u16string_view name,
           const RegistryValue& value) override;
  bool DeleteValue(RegistryRoot root, std::u16string_view key, std::u16string_view name) override;
  bool DeleteKey(RegistryRoot root, std::u16string_view key) override;
  std::optional<std::vector<std::u16string>> Keys(RegistryRoot root,
                                                  std::u16string_view key) override;
  std::optional<std::vector<std::pair<std::u16string, RegistryValue>>> Values(
      RegistryRoot root, std::u16string_view key) override;

 private:
  using NamedValue = std::pair<std::u16string, RegistryValue>;
  struct Key {
    std::u16string name;
    std::map<std::u16string, Key> children;  ///< by their upper-case names
    std::vector<NamedValue> values;

    NamedValue* FindValue(std::u16string_view wanted);
  };

  Key* FindKey(RegistryRoot root, std::u16string_view path);
  Key& MakeKey(RegistryRoot root, std::u16string_view path);

  Faults& faults_;
  std::map<RegistryRoot, Key> roots_;
};

}  // namespace platform
