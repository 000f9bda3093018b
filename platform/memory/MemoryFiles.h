// Drives, folders and files in memory. Names ignore case and keep it; a folder lists its entries in
// alphabetical order; times come from the desktop's clock.
#pragma once

#include <map>

#include "platform/files.h"
#include "platform/memory/Faults.h"

namespace platform {

class MemoryFiles : public Files {
 public:
  /// Begins with the empty fixed drive C:.
  MemoryFiles(Faults& faults, Clock& clock);

  void AddDrive(const Drive& drive);

  // For tests; these never fail on order and ask nothing of the read-only bit.

  /// Makes or replaces a file with its folders.
  void Put(std::u16string_view path, std::string_view bytes);
  /// Makes a folder with its parents.
  void PutFolder(std::u16string_view path);
  /// Takes away a file, or a folder with all that is in it.
  void Remove(std::u16string_view path);
  /// The folder bit stays as it is.
  void SetAttributes(std::u16string_view path, std::uint32_t attributes);
  void SetModified(std::u16string_view path, const DateTime& when);
  /// None where there is no such file.
  [[nodiscard]] std::optional<std::string> BytesOf(std::u16string_view path) const;
  [[nodiscard]] bool Has(std::u16string_view path) const { return FindNode(path) != nullptr; }

  std::optional<std::uint32_t> Attributes(std::u16string_view path) override;
  std::optional<DateTime> ModifiedTime(std::u16string_view path) override;
  std::vector<FolderEntry> List(std::u16string_view pattern) override;
  FileContent Read(std::u16string_view path) override;
  FileStatus Write(std::u16string_view path, std::string_view bytes) override;
  bool Delete(std::u16string_view path) override;
  bool Copy(std::u16string_view source, std::u16string_view target) override;
  bool Rename(std::u16string_view from, std::u16string_view to) override;
  bool CreateFolder(std::u16string_view path) override;
  std::vector<platform::Drive> Drives() override;
  std::optional<Drive> DriveAt(char16_t letter) override;

 private:
  struct Node {
    FolderEntry entry;
    std::string bytes;
    std::map<std::u16string, Node> children;  ///< by their upper-case names
  };
  struct Volume {
    Drive drive;
    Node root;
  };

  Node* FindNode(std::u16string_view path);
  const Node* FindNode(std::u16string_view path) const {
    return const_cast<MemoryFiles*>(this)->FindNode(path);
  }
  /// The folder in which something of that name can be made. Null where it is missing or the name
  /// is not allowed.
  Node* FolderFor(std::u16string_view path);
  /// The file of that name, new if need be. Null where it cannot be made or the name is a folder's.
  Node* MakeFile(std::u16string_view path);
  Node* MakeNode(Node& folder, std::u16string_view name, std::uint32_t attributes);

  Faults& faults_;
  Clock& clock_;
  std::map<char16_t, Volume> volumes_;  ///< by their letters
};

}  // namespace platform
