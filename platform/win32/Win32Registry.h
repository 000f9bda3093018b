#pragma once

#include "platform/registry.h"

namespace platform {

/// Strings are stored with one terminating NUL and handed out without it, whoever wrote them: the
/// system keeps what a writer's length says, with or without it.
class Win32Registry final : public Registry {
 public:
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
};

}  // namespace platform
