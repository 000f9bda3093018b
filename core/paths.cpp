#include "core/paths.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/shell.h"
#include "platform/text.h"

namespace dorvalin {
namespace {

using platform::TheDesktop;

std::u16string Numeral(long number, int base) {
  char digits[24];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), number, base).ptr;
  return platform::Upper(std::u16string(std::begin(digits), end));
}

std::u16string WithBackslash(std::u16string_view folder) {
  std::u16string result(folder);
  if (!result.ends_with(u'\\')) result += u'\\';
  return result;
}

}  // namespace

std::optional<std::u16string> CutAtNul(std::u16string_view buffer) {
  const auto end = buffer.find(u'\0');
  return end == buffer.npos ? std::nullopt : std::optional(std::u16string(buffer, 0, end));
}

std::u16string FirstNulField(std::u16string_view buffer) {
  buffer.remove_prefix(std::min(buffer.find_first_not_of(u'\0'), buffer.size()));
  return std::u16string(buffer.substr(0, buffer.find(u'\0')));
}

std::u16string CutExtension(std::u16string_view name) {
  return std::u16string(name.substr(0, name.rfind(u'.')));
}

std::u16string GetExtension(std::u16string_view path) {
  const auto dot = path.rfind(u'.');
  if (dot == path.npos) return {};
  auto extension = platform::Trim(path.substr(dot + 1));
  if (extension.ends_with(u'\\')) extension.remove_suffix(1);
  const bool dotIsInFolder = extension.find(u'\\') != extension.npos;
  return dotIsInFolder ? std::u16string() : platform::Lower(extension);
}

FolderAndName SplitPath(std::u16string_view path, FolderEnd end) {
  path = platform::Trim(path);
  if (path.ends_with(u'\\')) path.remove_suffix(1);
  const auto last = path.rfind(u'\\');
  if (last == path.npos) return {{}, std::u16string(path)};
  const auto folderLength = end == FolderEnd::WithBackslash ? last + 1 : last;
  return {std::u16string(path.substr(0, folderLength)), std::u16string(path.substr(last + 1))};
}

std::u16string JoinPath(std::u16string_view folder, std::u16string_view name) {
  while (folder.ends_with(u'\\')) folder.remove_suffix(1);
  while (name.starts_with(u'\\')) name.remove_prefix(1);
  return std::u16string(folder).append(u"\\").append(name);
}

void MakeFolderPath(std::u16string_view path) {
  // The first element is the drive, which cannot be made.
  for (auto end = path.find(u'\\'); end != path.npos;) {
    end = path.find(u'\\', end + 1);
    const auto folder = path.substr(0, end);
    if (!FolderExists(folder)) (void)TheDesktop().files().CreateFolder(folder);
  }
}

bool FileExists(std::u16string_view path) {
  return TheDesktop().files().Attributes(path).has_value();
}

bool FolderExists(std::u16string_view path) {
  return (TheDesktop().files().Attributes(path).value_or(0) & platform::kAttributeFolder) != 0;
}

std::u16string UniqueFileName(std::u16string_view folder, std::u16string_view name,
                              NumberPlace place) {
  const auto base = WithBackslash(folder);
  // The first dot, so that "notes.tar.gz" stays an archive of its kind.
  const auto split =
      place == NumberPlace::BeforeExtension ? std::min(name.find(u'.'), name.size()) : name.size();
  std::u16string path = base + std::u16string(name);
  for (long n = 1; FileExists(path); ++n) {
    path = base + std::u16string(name.substr(0, split)) + u" (" + Numeral(n, 10) + u")" +
           std::u16string(name.substr(split));
  }
  return path;
}

TemporaryName TempFileName(std::u16string_view folder, std::u16string_view extension) {
  const auto base = WithBackslash(folder);
  const auto now = TheDesktop().clock().Now();
  for (long number = std::lrint(platform::SecondsSinceMidnight(now) * 100);; ++number) {
    const auto name = Numeral(number, 16);
    const auto path = base + name + u"." + std::u16string(extension);
    if (!FileExists(path)) return {path, name};
  }
}

bool ShellCopyFile(platform::TopWindow* owner, std::u16string_view source,
                   std::u16string_view target, bool noConfirmation, bool silent) {
  return TheDesktop().shell().CopyFiles(source, target, {owner, noConfirmation, silent});
}

bool ShellFileOperation(std::u16string_view source, std::u16string_view target) {
  return ShellCopyFile(nullptr, source, target, false, false);
}

}  // namespace dorvalin
