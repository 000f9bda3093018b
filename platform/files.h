// Files, folders and drives by their Windows paths ("C:\folder\name.ext"). Bytes in, bytes out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace platform {

inline constexpr std::uint32_t kAttributeReadOnly = 1;
inline constexpr std::uint32_t kAttributeHidden = 2;
inline constexpr std::uint32_t kAttributeSystem = 4;
inline constexpr std::uint32_t kAttributeFolder = 16;
inline constexpr std::uint32_t kAttributeArchive = 32;

struct FolderEntry {
  std::u16string name;  ///< without the folder
  std::uint32_t attributes = 0;
  std::uint64_t size = 0;
  // Local times.
  DateTime modified;
  DateTime created;
  DateTime accessed;
  std::u16string shortName;  ///< the 8.3 name; empty where the name is one itself, or has none
  bool IsFolder() const { return (attributes & kAttributeFolder) != 0; }
};

enum class FileStatus { Done, CannotOpen, Broken };

struct FileContent {
  FileStatus status = FileStatus::CannotOpen;
  std::string bytes;  ///< with Broken: what was read before the failure
};

enum class DriveKind { Unknown, Removable, Fixed, Remote, CdRom, RamDisk };

struct Drive {
  char16_t letter = u'C';
  DriveKind kind = DriveKind::Unknown;
  bool ready = false;
  // Of a drive that is ready.
  std::u16string volumeName;
  std::u16string fileSystem;  ///< "NTFS"
  std::uint32_t serialNumber = 0;
};

class Files {
 public:
  virtual ~Files() = default;
  /// The attribute bits of a file or folder; none where there is nothing of that name.
  [[nodiscard]] virtual std::optional<std::uint32_t> Attributes(std::u16string_view path) = 0;
  [[nodiscard]] virtual std::optional<DateTime> ModifiedTime(std::u16string_view path) = 0;
  /// The entries that match a path with wildcards in its last part ("C:\x\*.dvp"), in the order of
  /// the file system, with "." and ".." where it delivers them.
  [[nodiscard]] virtual std::vector<FolderEntry> List(std::u16string_view pattern) = 0;
  [[nodiscard]] virtual FileContent Read(std::u16string_view path) = 0;
  /// Replaces the whole content in place. CannotOpen: nothing changed. Broken: the file holds the
  /// part that was written before the failure.
  [[nodiscard]] virtual FileStatus Write(std::u16string_view path, std::string_view bytes) = 0;
  [[nodiscard]] virtual bool Delete(std::u16string_view path) = 0;
  /// Overwrites the target. On failure the target is as it was or gone.
  [[nodiscard]] virtual bool Copy(std::u16string_view source, std::u16string_view target) = 0;
  /// Renames a file or folder, or moves it within its drive. A name that exists is never
  /// overwritten, and another spelling of the same name is taken over. On failure nothing changed.
  [[nodiscard]] virtual bool Rename(std::u16string_view from, std::u16string_view to) = 0;
  [[nodiscard]] virtual bool CreateFolder(std::u16string_view path) = 0;
  /// Removable drives are not asked whether there is a medium in them: they are not ready here.
  [[nodiscard]] virtual std::vector<Drive> Drives() = 0;
  /// One drive, asked whatever its kind; none where there is no such drive.
  [[nodiscard]] virtual std::optional<Drive> DriveAt(char16_t letter) = 0;
};

}  // namespace platform
