#pragma once

#include "platform/files.h"

namespace platform {

class Win32Files final : public Files {
 public:
  Win32Files();
  std::optional<std::uint32_t> Attributes(std::u16string_view path) override;
  std::optional<DateTime> ModifiedTime(std::u16string_view path) override;
  std::vector<FolderEntry> List(std::u16string_view pattern) override;
  FileContent Read(std::u16string_view path) override;
  FileStatus Write(std::u16string_view path, std::string_view bytes) override;
  bool Delete(std::u16string_view path) override;
  bool Copy(std::u16string_view source, std::u16string_view target) override;
  bool Rename(std::u16string_view from, std::u16string_view to) override;
  bool CreateFolder(std::u16string_view path) override;
  std::vector<Drive> Drives() override;
  std::optional<Drive> DriveAt(char16_t letter) override;
};

}  // namespace platform
