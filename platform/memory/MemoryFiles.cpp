#include "platform/memory/MemoryFiles.h"

#include <algorithm>

#include "platform/memory/names.h"
#include "platform/text.h"

namespace platform {
namespace {

struct SplitName {
  std::u16string_view folder;
  std::u16string_view name;
};

SplitName SplitLast(std::u16string_view path) {
  const auto parts = PathParts(path);
  if (parts.empty()) return {};
  const auto name = parts.back();
  return {path.substr(0, static_cast<std::size_t>(name.data() - path.data())), name};
}

bool IsForbidden(char16_t unit) {
  return unit < u' ' || std::u16string_view(u"<>:\"/|?*").find(unit) != std::u16string_view::npos;
}

bool NameIsAllowed(std::u16string_view name) {
  return !name.empty() && std::ranges::none_of(name, IsForbidden);
}

/// Numbered 1 whatever else is in the folder: nothing is opened by it here.
std::u16string ShortNameOf(std::u16string_view name) {
  const auto dot = std::min(name.rfind(u'.'), name.size());
  std::u16string_view extension = name.substr(std::min(dot + 1, name.size()));
  const bool isShort = dot <= 8 && extension.size() <= 3 && name.find(u' ') == name.npos;
  if (isShort) return {};
  std::u16string result = Upper(name.substr(0, dot));
  std::erase(result, u' ');
  result = result.substr(0, 6) + u"~1";
  if (!extension.empty()) result.append(u".").append(Upper(extension.substr(0, 3)));
  return result;
}

FolderEntry NewEntry(std::u16string_view name, std::uint32_t attributes, const DateTime& now) {
  return {std::u16string(name), attributes, 0, now, now, now, ShortNameOf(name)};
}

/// What a drive says of itself: nothing of its medium where it has none or is not asked for it.
Drive DriveData(const Drive& drive, bool isAsked) {
  if (drive.ready && isAsked) return drive;
  Drive silent;
  silent.letter = drive.letter;
  silent.kind = drive.kind;
  return silent;
}

/// Has one of the attributes.
bool HasAny(const FolderEntry& entry, std::uint32_t attributes) {
  return (entry.attributes & attributes) != 0;
}

}  // namespace

MemoryFiles::MemoryFiles(Faults& faults, Clock& clock) : faults_(faults), clock_(clock) {
  AddDrive({u'C', DriveKind::Fixed, true, u"System", u"NTFS", 0x1234ABCD});
}

void MemoryFiles::AddDrive(const Drive& drive) {
  Volume& volume = volumes_[drive.letter];
  volume.drive = drive;
  volume.root.entry = NewEntry({}, kAttributeFolder, clock_.Now());
}

MemoryFiles::Node* MemoryFiles::FindNode(std::u16string_view path) {
  const auto parts = PathParts(path);
  if (parts.empty() || parts[0].size() != 2 || parts[0][1] != u':' || path.starts_with(u'\\')) {
    return nullptr;
  }
  const auto volume = volumes_.find(UpperUnit(parts[0][0]));
  if (volume == volumes_.end() || !volume->second.drive.ready) return nullptr;
  Node* node = &volume->second.root;
  for (std::size_t i = 1; i < parts.size(); ++i) {
    const auto child = node->children.find(NameKey(parts[i]));
    if (child == node->children.end()) return nullptr;
    node = &child->second;
  }
  return path.ends_with(u'\\') && !node->entry.IsFolder() ? nullptr : node;
}

MemoryFiles::Node* MemoryFiles::MakeNode(Node& folder, std::u16string_view name,
                                         std::uint32_t attributes) {
  Node& node = folder.children[NameKey(name)];
  node.entry = NewEntry(name, attributes, clock_.Now());
  return &node;
}

MemoryFiles::Node* MemoryFiles::FolderFor(std::u16string_view path) {
  const auto [folder, name] = SplitLast(path);
  Node* parent = FindNode(folder);
  return parent && parent->entry.IsFolder() && NameIsAllowed(name) ? parent : nullptr;
}

MemoryFiles::Node* MemoryFiles::MakeFile(std::u16string_view path) {
  if (Node* old = FindNode(path)) return old->entry.IsFolder() ? nullptr : old;
  Node* parent = FolderFor(path);
  return parent ? MakeNode(*parent, SplitLast(path).name, kAttributeArchive) : nullptr;
}

void MemoryFiles::Put(std::u16string_view path, std::string_view bytes) {
  PutFolder(SplitLast(path).folder);
  Node* file = MakeFile(path);
  file->bytes = bytes;
  file->entry.size = bytes.size();
  file->entry.modified = clock_.Now();
}

void MemoryFiles::PutFolder(std::u16string_view path) {
  const auto [folder, name] = SplitLast(path);
  if (folder.empty() || FindNode(path)) return;
  PutFolder(folder);
  MakeNode(*FindNode(folder), name, kAttributeFolder);
}

void MemoryFiles::Remove(std::u16string_view path) {
  const auto [folder, name] = SplitLast(path);
  if (Node* parent = FindNode(folder)) parent->children.erase(NameKey(name));
}

void MemoryFiles::SetAttributes(std::u16string_view path, std::uint32_t attributes) {
  FolderEntry& entry = FindNode(path)->entry;
  entry.attributes = (entry.attributes & kAttributeFolder) | attributes;
}

void MemoryFiles::SetModified(std::u16string_view path, const DateTime& when) {
  FindNode(path)->entry.modified = when;
}

std::optional<std::string> MemoryFiles::BytesOf(std::u16string_view path) const {
  const Node* node = FindNode(path);
  return node && !node->entry.IsFolder() ? std::optional(node->bytes) : std::nullopt;
}

std::optional<std::uint32_t> MemoryFiles::Attributes(std::u16string_view path) {
  const Node* node = faults_.Fails("Files.Attributes") ? nullptr : FindNode(path);
  return node ? std::optional(node->entry.attributes) : std::nullopt;
}

std::optional<DateTime> MemoryFiles::ModifiedTime(std::u16string_view path) {
  const Node* node = faults_.Fails("Files.ModifiedTime") ? nullptr : FindNode(path);
  return node ? std::optional(node->entry.modified) : std::nullopt;
}

std::vector<FolderEntry> MemoryFiles::List(std::u16string_view pattern) {
  if (faults_.Fails("Files.List")) return {};
  const auto [path, wanted] = SplitLast(pattern);
  const Node* folder = FindNode(path);
  if (!folder) return {};
  std::vector<FolderEntry> entries;
  const auto offer = [&, &wantedName = wanted](const FolderEntry& entry) {
    if (MatchesPattern(entry.name, wantedName)) entries.push_back(entry);
  };
  const bool isRoot = PathParts(path).size() == 1;
  if (!isRoot) {
    offer(NewEntry(u".", kAttributeFolder, folder->entry.modified));
    offer(NewEntry(u"..", kAttributeFolder, folder->entry.modified));
  }
  for (const auto& [key, child] : folder->children) offer(child.entry);
  return entries;
}

FileContent MemoryFiles::Read(std::u16string_view path) {
  const auto failure = faults_.Ask("Files.Read");
  const Node* file = FindNode(path);
  if (!file || file->entry.IsFolder()) return {};
  if (!failure) return {FileStatus::Done, file->bytes};
  if (failure->status == FileStatus::CannotOpen) return {};
  return {failure->status, file->bytes.substr(0, failure->bytesDone)};
}

FileStatus MemoryFiles::Write(std::u16string_view path, std::string_view bytes) {
  const auto failure = faults_.Ask("Files.Write");
  if (failure && failure->status == FileStatus::CannotOpen) return FileStatus::CannotOpen;
  Node* file = MakeFile(path);
  if (!file || HasAny(file->entry, kAttributeReadOnly)) return FileStatus::CannotOpen;
  file->bytes = failure ? bytes.substr(0, failure->bytesDone) : bytes;
  file->entry.size = file->bytes.size();
  file->entry.modified = clock_.Now();
  return failure ? failure->status : FileStatus::Done;
}

bool MemoryFiles::Delete(std::u16string_view path) {
  if (faults_.Fails("Files.Delete")) return false;
  const Node* file = FindNode(path);
  if (!file || HasAny(file->entry, kAttributeReadOnly | kAttributeFolder)) return false;
  Remove(path);
  return true;
}

bool MemoryFiles::Copy(std::u16string_view source, std::u16string_view target) {
  if (faults_.Fails("Files.Copy")) return false;
  const Node* from = FindNode(source);
  if (!from || from->entry.IsFolder()) return false;
  const FolderEntry properties = from->entry;
  const std::string bytes = from->bytes;
  Node* to = MakeFile(target);
  if (!to || to == from) return false;
  if (HasAny(to->entry, kAttributeReadOnly | kAttributeHidden)) return false;
  to->bytes = bytes;
  to->entry.attributes = properties.attributes;
  to->entry.size = properties.size;
  to->entry.modified = properties.modified;
  return true;
}

bool MemoryFiles::Rename(std::u16string_view from, std::u16string_view to) {
  if (faults_.Fails("Files.Rename")) return false;
  const Node* node = FindNode(from);
  const Node* taken = FindNode(to);
  Node* target = FolderFor(to);
  const auto [oldFolder, oldName] = SplitLast(from);
  Node* source = FindNode(oldFolder);
  if (!node || !source || !target || (taken && taken != node)) return false;
  const bool isIntoItself = NameKey(to).starts_with(NameKey(from) + u"\\");
  if (isIntoItself || UpperUnit(from[0]) != UpperUnit(to[0])) return false;
  auto moved = source->children.extract(NameKey(oldName));
  const auto newName = SplitLast(to).name;
  moved.key() = NameKey(newName);
  moved.mapped().entry.name = newName;
  moved.mapped().entry.shortName = ShortNameOf(newName);
  target->children.insert(std::move(moved));
  return true;
}

bool MemoryFiles::CreateFolder(std::u16string_view path) {
  if (faults_.Fails("Files.CreateFolder") || FindNode(path)) return false;
  Node* parent = FolderFor(path);
  if (parent) MakeNode(*parent, SplitLast(path).name, kAttributeFolder);
  return parent != nullptr;
}

std::vector<platform::Drive> MemoryFiles::Drives() {
  std::vector<Drive> drives;
  if (faults_.Fails("Files.Drives")) return drives;
  for (const auto& [letter, volume] : volumes_) {
    const bool isAsked = volume.drive.kind != DriveKind::Removable;
    drives.push_back(DriveData(volume.drive, isAsked));
  }
  return drives;
}

std::optional<Drive> MemoryFiles::DriveAt(char16_t letter) {
  if (faults_.Fails("Files.DriveAt")) return std::nullopt;
  const auto volume = volumes_.find(UpperUnit(letter));
  if (volume == volumes_.end()) return std::nullopt;
  return DriveData(volume->second.drive, true);
}

}  // namespace platform
