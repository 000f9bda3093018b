#include "core/modSpclFolder.h"

#include <algorithm>

#include "core/modRegTools.h"
#include "platform/desktop.h"
#include "platform/shell.h"

namespace dorvalin {
namespace {

constexpr std::u16string_view kShellFolders =
    u"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

/// Where the registry names a folder; a folder of all users falls back to the user's own.
struct RegisteredFolder {
  int folder;
  std::u16string_view ownValue;
  std::u16string_view commonValue = {};
};

constexpr RegisteredFolder kRegisteredFolders[] = {
    {2, u"Programs"},
    {kDocumentsFolder, u"Personal"},
    {7, u"Startup"},
    {11, u"Start Menu"},
    {16, u"Desktop"},
    {20, u"Fonts"},
    {22, u"Start Menu", u"Common Start Menu"},
    {23, u"Programs", u"Common Programs"},
    {24, u"Startup", u"Common Startup"},
    {25, u"Desktop", u"Common Desktop"},
    {kApplicationDataFolder, u"AppData"},
};

std::u16string FromRegistry(int folder) {
  const auto* entry = std::ranges::find(kRegisteredFolders, folder, &RegisteredFolder::folder);
  if (entry == std::end(kRegisteredFolders)) return {};
  if (!entry->commonValue.empty()) {
    auto common = RegGetString(kShellFolders, entry->commonValue, {}, RegistryRoot::LocalMachine);
    if (!common.empty()) return common;
  }
  return RegGetString(kShellFolders, entry->ownValue, {});
}

std::u16string WithoutQuotes(std::u16string_view path) {
  if (path.starts_with(u'"')) path.remove_prefix(1);
  if (path.ends_with(u'"')) path.remove_suffix(1);
  return std::u16string(path);
}

}  // namespace

std::u16string GetSpecialFolder(int folder, std::u16string_view otherwise) {
  const auto known = platform::TheDesktop().shell().SpecialFolder(folder);
  std::u16string path = known ? *known : FromRegistry(folder);
  if (path.empty()) path = otherwise;
  return WithoutQuotes(path);
}

}  // namespace dorvalin
