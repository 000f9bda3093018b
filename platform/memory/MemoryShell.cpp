#include "platform/memory/MemoryShell.h"

#include <algorithm>

#include "platform/text.h"

namespace platform {
namespace {

std::u16string Join(std::u16string_view folder, std::u16string_view name) {
  std::u16string path(folder);
  if (!path.ends_with(u'\\')) path += u'\\';
  return path.append(name);
}

std::u16string_view FolderOf(std::u16string_view path) {
  const auto last = path.rfind(u'\\');
  return path.substr(0, last == path.npos ? 0 : last + 1);
}

std::u16string ExtensionOf(std::u16string_view path) {
  const auto name = path.substr(FolderOf(path).size());
  const auto dot = name.rfind(u'.');
  return dot == name.npos ? std::u16string() : Lower(name.substr(dot + 1));
}

Icon SquareIcon(IconSize size, std::uint32_t colour) {
  const int side = size == IconSize::Small ? 16 : 32;
  const auto count = static_cast<std::size_t>(side * side);
  return std::make_shared<IconPixels>(
      IconPixels{{side, side}, std::vector<std::uint32_t>(count, 0xFF000000u | colour)});
}

std::uint32_t ColourOf(std::u16string_view extension) {
  std::uint32_t colour = 0x808080;
  for (const char16_t unit : extension) colour = colour * 31 + unit;
  return colour & 0xFFFFFF;
}

}  // namespace

bool MemoryShell::Open(std::u16string_view verb, std::u16string_view target,
                       std::u16string_view arguments) {
  if (faults_.Fails("Shell.Open")) return false;
  opened.push_back({std::u16string(verb), std::u16string(target), std::u16string(arguments)});
  return true;
}

bool MemoryShell::Run(std::u16string_view commandLine) {
  if (faults_.Fails("Shell.Run")) return false;
  run.emplace_back(commandLine);
  return true;
}

bool MemoryShell::CopyEntry(std::u16string_view sourceFolder, const FolderEntry& entry,
                            std::u16string_view targetFolder) {
  if (entry.name == u"." || entry.name == u"..") return true;
  const std::u16string source = Join(sourceFolder, entry.name);
  const std::u16string target = Join(targetFolder, entry.name);
  if (!entry.IsFolder()) return files_.Copy(source, target);
  files_.PutFolder(target);
  return std::ranges::all_of(files_.List(Join(source, u"*")), [&](const FolderEntry& child) {
    return CopyEntry(source, child, target);
  });
}

bool MemoryShell::CopyFiles(std::u16string_view source, std::u16string_view target,
                            const CopyOptions& options) {
  copies.push_back(options);
  if (faults_.Fails("Shell.CopyFiles")) return false;
  const bool isPattern = source.find_first_of(u"*?") != source.npos;
  const auto entries = files_.List(source);
  if (!isPattern && entries.empty()) return false;
  const bool namesTheCopy = !isPattern && !entries[0].IsFolder() && !files_.Has(target);
  if (namesTheCopy) return files_.Copy(source, target);
  if (!entries.empty()) files_.PutFolder(target);
  return std::ranges::all_of(entries, [&](const FolderEntry& entry) {
    return CopyEntry(FolderOf(source), entry, target);
  });
}

std::optional<std::u16string> MemoryShell::SpecialFolder(int number) {
  const auto folder = specialFolders.find(number);
  if (faults_.Fails("Shell.SpecialFolder") || folder == specialFolders.end()) return std::nullopt;
  if (!folder->second.empty()) files_.PutFolder(folder->second);
  return folder->second;
}

Icon MemoryShell::FileIcon(std::u16string_view path, IconSize size, bool byAttributes) {
  if (faults_.Fails("Shell.FileIcon") || (!byAttributes && !files_.Has(path))) return {};
  return SquareIcon(size, ColourOf(ExtensionOf(path)));
}

Icon MemoryShell::IconOf(std::u16string_view path, int index, IconSize size) {
  if (faults_.Fails("Shell.IconOf")) return {};
  const auto file = iconsOfFiles.find(std::u16string(path));
  const int count = path.empty() ? programIcons : file == iconsOfFiles.end() ? 0 : file->second;
  const bool isThere = index >= 0 && index < count;
  return isThere ? SquareIcon(size, (0x3366CCu + 0x112233u * index) & 0xFFFFFF) : Icon();
}

std::u16string MemoryShell::TypeName(std::u16string_view path) {
  if (faults_.Fails("Shell.TypeName")) return {};
  if (files_.Attributes(path).value_or(0) & kAttributeFolder) return u"Dateiordner";
  const auto extension = ExtensionOf(path);
  const auto known = typeNames.find(extension);
  if (known != typeNames.end()) return known->second;
  if (extension.empty()) return u"Datei";
  return Upper(extension) + u"-Datei";
}

std::optional<VersionInformation> MemoryShell::Version(std::u16string_view path) {
  const auto version = versions.find(std::u16string(path));
  const bool isMissing = faults_.Fails("Shell.Version") || version == versions.end();
  return isMissing ? std::nullopt : std::optional(version->second);
}

std::u16string MemoryShell::ExpandEnvironment(std::u16string_view text) {
  std::u16string result(text);
  for (const auto& [name, value] : environment) {
    const std::u16string variable = std::u16string(u"%").append(name).append(u"%");
    result = ReplaceAll(result, variable, value, Case::Ignore);
  }
  return result;
}

}  // namespace platform
