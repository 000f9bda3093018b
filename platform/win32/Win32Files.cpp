#include "platform/win32/Win32Files.h"

#include <algorithm>
#include <new>

#include "platform/text.h"
#include "platform/win32/handles.h"
#include "platform/win32/times.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::size_t kChunk = 1 << 20;

struct CloseSearch {
  void operator()(HANDLE h) const { ::FindClose(h); }
};
using OwnedSearch = Owned<HANDLE, CloseSearch>;

/// Null where the system says "invalid", so that an owner is empty then.
HANDLE ValidOrNull(HANDLE handle) { return handle == INVALID_HANDLE_VALUE ? nullptr : handle; }

OwnedKernel OpenFile(std::u16string_view path, DWORD access, DWORD share, DWORD disposition) {
  return OwnedKernel(ValidOrNull(::CreateFileW(Terminated(path), access, share, nullptr,
                                               disposition, FILE_ATTRIBUTE_NORMAL, nullptr)));
}

FolderEntry EntryOf(const WIN32_FIND_DATAW& found) {
  FolderEntry entry;
  entry.name = Text(found.cFileName);
  entry.attributes = found.dwFileAttributes;
  entry.size = (std::uint64_t{found.nFileSizeHigh} << 32) | found.nFileSizeLow;
  entry.modified = LocalTimeOf(found.ftLastWriteTime);
  entry.created = LocalTimeOf(found.ftCreationTime);
  entry.accessed = LocalTimeOf(found.ftLastAccessTime);
  entry.shortName = Text(found.cAlternateFileName);
  return entry;
}

/// Done at the end of the file.
FileStatus ReadAll(HANDLE file, std::string& bytes) {
  for (;;) {
    const std::size_t before = bytes.size();
    bytes.resize(before + kChunk);
    DWORD count = 0;
    const bool read = ::ReadFile(file, bytes.data() + before, kChunk, &count, nullptr) != 0;
    bytes.resize(before + (read ? count : 0));
    if (!read) return FileStatus::Broken;
    if (count == 0) return FileStatus::Done;
  }
}

bool WriteAll(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD count = 0;
    const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kChunk));
    if (!::WriteFile(file, bytes.data(), wanted, &count, nullptr) || count == 0) return false;
    bytes.remove_prefix(count);
  }
  return true;
}

bool Move(std::u16string_view from, std::u16string_view to) {
  return ::MoveFileExW(Terminated(from), Terminated(to), 0) != 0;
}

/// By way of another name: Wine does nothing where it finds the file itself under the new one.
bool ChangeCase(std::u16string_view from, std::u16string_view to) {
  const std::u16string between = std::u16string(to) + u".~renamed";
  if (!Move(from, between)) return false;
  if (Move(between, to)) return true;
  (void)Move(between, from);
  return false;
}

DriveKind KindOf(UINT driveType) {
  switch (driveType) {
    case DRIVE_REMOVABLE:
      return DriveKind::Removable;
    case DRIVE_FIXED:
      return DriveKind::Fixed;
    case DRIVE_REMOTE:
      return DriveKind::Remote;
    case DRIVE_CDROM:
      return DriveKind::CdRom;
    case DRIVE_RAMDISK:
      return DriveKind::RamDisk;
    default:
      return DriveKind::Unknown;
  }
}

std::u16string RootOf(char16_t letter) { return {letter, u':', u'\\'}; }

Drive DriveOfKind(char16_t letter) {
  Drive drive;
  drive.letter = letter;
  drive.kind = KindOf(::GetDriveTypeW(Terminated(RootOf(letter))));
  return drive;
}

void AskVolume(Drive& drive) {
  constexpr DWORD kRoom = MAX_PATH + 1;
  wchar_t name[kRoom] = {};
  wchar_t fileSystem[kRoom] = {};
  DWORD serialNumber = 0;
  drive.ready = ::GetVolumeInformationW(Terminated(RootOf(drive.letter)), name, kRoom,
                                        &serialNumber, nullptr, nullptr, fileSystem, kRoom) != 0;
  if (!drive.ready) return;
  drive.volumeName = Text(name);
  drive.fileSystem = Text(fileSystem);
  drive.serialNumber = serialNumber;
}

bool IsPresent(char16_t letter) {
  return letter >= u'A' && letter <= u'Z' && ((::GetLogicalDrives() >> (letter - u'A')) & 1) != 0;
}

}  // namespace

Win32Files::Win32Files() {
  // A drive without a medium is an expected failure, no reason for the system's own message.
  ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

std::optional<std::uint32_t> Win32Files::Attributes(std::u16string_view path) {
  const DWORD attributes = ::GetFileAttributesW(Terminated(path));
  if (attributes == INVALID_FILE_ATTRIBUTES) return {};
  return attributes;
}

std::optional<DateTime> Win32Files::ModifiedTime(std::u16string_view path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!::GetFileAttributesExW(Terminated(path), GetFileExInfoStandard, &data)) return {};
  return LocalTimeOf(data.ftLastWriteTime);
}

std::vector<FolderEntry> Win32Files::List(std::u16string_view pattern) {
  std::vector<FolderEntry> entries;
  WIN32_FIND_DATAW found{};
  const OwnedSearch search(ValidOrNull(::FindFirstFileW(Terminated(pattern), &found)));
  if (!search) return entries;
  do {
    entries.push_back(EntryOf(found));
  } while (::FindNextFileW(search.get(), &found));
  return entries;
}

FileContent Win32Files::Read(std::u16string_view path) {
  FileContent content;
  const OwnedKernel file = OpenFile(path, GENERIC_READ, kShareAll, OPEN_EXISTING);
  if (!file) return content;
  try {
    content.status = ReadAll(file.get(), content.bytes);
  } catch (const std::exception&) {  // More than there is memory for.
    content.status = FileStatus::Broken;
  }
  return content;
}

FileStatus Win32Files::Write(std::u16string_view path, std::string_view bytes) {
  // Not CREATE_ALWAYS, which refuses hidden files and would drop the attributes of others.
  const OwnedKernel file = OpenFile(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
  if (!file) return FileStatus::CannotOpen;
  const bool written = ::SetEndOfFile(file.get()) && WriteAll(file.get(), bytes);
  return written ? FileStatus::Done : FileStatus::Broken;
}

bool Win32Files::Delete(std::u16string_view path) { return ::DeleteFileW(Terminated(path)) != 0; }

bool Win32Files::Copy(std::u16string_view source, std::u16string_view target) {
  return ::CopyFileW(Terminated(source), Terminated(target), FALSE) != 0;
}

bool Win32Files::Rename(std::u16string_view from, std::u16string_view to) {
  const bool isSameName = Lower(from) == Lower(to) && from != to;
  return isSameName ? ChangeCase(from, to) : Move(from, to);
}

bool Win32Files::CreateFolder(std::u16string_view path) {
  return ::CreateDirectoryW(Terminated(path), nullptr) != 0;
}

std::vector<Drive> Win32Files::Drives() {
  std::vector<Drive> drives;
  for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
    if (!IsPresent(letter)) continue;
    Drive& drive = drives.emplace_back(DriveOfKind(letter));
    // Asking would start up the drive, and there may be no medium in it.
    if (drive.kind != DriveKind::Removable) AskVolume(drive);
  }
  return drives;
}

std::optional<Drive> Win32Files::DriveAt(char16_t letter) {
  if (!IsPresent(UpperUnit(letter))) return {};
  Drive drive = DriveOfKind(UpperUnit(letter));
  AskVolume(drive);
  return drive;
}

}  // namespace platform
