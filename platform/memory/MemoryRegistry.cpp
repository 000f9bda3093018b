#include "platform/memory/MemoryRegistry.h"

#include <algorithm>

#include "platform/memory/names.h"

namespace platform {

MemoryRegistry::NamedValue* MemoryRegistry::Key::FindValue(std::u16string_view wanted) {
  const auto hit = std::ranges::find_if(
      values, [&](const NamedValue& value) { return SameName(value.first, wanted); });
  return hit == values.end() ? nullptr : &*hit;
}

MemoryRegistry::Key* MemoryRegistry::FindKey(RegistryRoot root, std::u16string_view path) {
  Key* key = &roots_[root];
  for (const auto part : PathParts(path)) {
    const auto child = key->children.find(NameKey(part));
    if (child == key->children.end()) return nullptr;
    key = &child->second;
  }
  return key;
}

MemoryRegistry::Key& MemoryRegistry::MakeKey(RegistryRoot root, std::u16string_view path) {
  Key* key = &roots_[root];
  for (const auto part : PathParts(path)) {
    const auto [child, isNew] = key->children.try_emplace(NameKey(part));
    if (isNew) child->second.name = part;
    key = &child->second;
  }
  return *key;
}

std::optional<RegistryValue> MemoryRegistry::Get(RegistryRoot root, std::u16string_view path,
                                                 std::u16string_view name) {
  if (faults_.Fails("Registry.Get")) return std::nullopt;
  Key* key = FindKey(root, path);
  const NamedValue* value = key ? key->FindValue(name) : nullptr;
  return value ? std::optional(value->second) : std::nullopt;
}

bool MemoryRegistry::Set(RegistryRoot root, std::u16string_view path, std::u16string_view name,
                         const RegistryValue& value) {
  if (faults_.Fails("Registry.Set")) return false;
  Key& key = MakeKey(root, path);
  if (NamedValue* old = key.FindValue(name)) {
    old->second = value;
  } else {
    key.values.emplace_back(name, value);
  }
  return true;
}

bool MemoryRegistry::DeleteValue(RegistryRoot root, std::u16string_view path,
                                 std::u16string_view name) {
  if (faults_.Fails("Registry.DeleteValue")) return false;
  Key* key = FindKey(root, path);
  return key && std::erase_if(key->values, [&](const NamedValue& value) {
                  return SameName(value.first, name);
                }) > 0;
}

bool MemoryRegistry::DeleteKey(RegistryRoot root, std::u16string_view path) {
  if (faults_.Fails("Registry.DeleteKey")) return false;
  const auto parts = PathParts(path);
  const Key* key = FindKey(root, path);
  if (parts.empty() || !key || !key->children.empty()) return false;
  const auto leaf = parts.back();
  const auto parent = path.substr(0, static_cast<std::size_t>(leaf.data() - path.data()));
  return FindKey(root, parent)->children.erase(NameKey(leaf)) > 0;
}

std::optional<std::vector<std::u16string>> MemoryRegistry::Keys(RegistryRoot root,
                                                                std::u16string_view path) {
  const Key* key = faults_.Fails("Registry.Keys") ? nullptr : FindKey(root, path);
  if (!key) return std::nullopt;
  std::vector<std::u16string> names;
  for (const auto& [upper, child] : key->children) names.push_back(child.name);
  return names;
}

std::optional<std::vector<std::pair<std::u16string, RegistryValue>>> MemoryRegistry::Values(
    RegistryRoot root, std::u16string_view path) {
  const Key* key = faults_.Fails("Registry.Values") ? nullptr : FindKey(root, path);
  return key ? std::optional(key->values) : std::nullopt;
}

}  // namespace platform
