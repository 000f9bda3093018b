#include "notes/CNotesCategory.h"

#include <algorithm>

#include "core/ProgramState.h"
#include "core/paths.h"
#include "notes/NotesFolder.h"
#include "notes/note_file.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/files.h"

namespace dorvalin {
namespace {

using platform::FileStatus;
using platform::MessageIcon;
using platform::TheDesktop;

/// What a file held before it is written. The program's folder, where the backup goes, is often
/// write-protected: without a backup the old file is not deleted, and its bytes are kept here.
class FormerFile {
 public:
  explicit FormerFile(std::u16string_view path)
      : path_(path), backup_(TempFileName(State().AppPath, u"tmp").path) {
    auto& files = TheDesktop().files();
    hasBackup_ = files.Copy(path_, backup_);
    if (hasBackup_) {
      (void)files.Delete(path_);
    } else {
      content_ = files.Read(path_);
    }
  }

  void Forget() {
    if (hasBackup_) (void)TheDesktop().files().Delete(backup_);
  }

  /// A backup that cannot be copied back stays where it is.
  void PutBack() {
    auto& files = TheDesktop().files();
    if (content_.status == FileStatus::Done) (void)files.Write(path_, content_.bytes);
    if (hasBackup_ && files.Copy(backup_, path_)) Forget();
  }

 private:
  std::u16string path_;
  std::u16string backup_;
  bool hasBackup_ = false;
  platform::FileContent content_;
};

void ShowFileMessage(std::u16string_view file, std::u16string_view what, MessageIcon icon) {
  std::u16string text = u"Die Notizendatei \"";
  text.append(file).append(u"\" konnte leider nicht ").append(what).append(u" werden.");
  TheDesktop().dialogs().ShowMessage({.text = text, .title = u"Merrowe-Ablage", .icon = icon});
}

}  // namespace

void CNotesCategory::Reload() {
  Loaded = false;
  Notes.clear();
  Load();
}

bool CNotesCategory::Load() {
  if (Loaded) return true;
  FileName = NotesFolder() + Name + u".tnc";
  auto& files = TheDesktop().files();
  const auto content = files.Read(FileName);
  // A file that could not be read at all is not one of a new category.
  if (content.status == FileStatus::Done || !content.bytes.empty()) {
    auto read = NotesFromBytes(content.bytes);
    Notes = std::move(read.notes);
    Loaded = read.isWhole;
  }
  if (!Loaded) {
    ShowFileMessage(FileName, u"geladen", MessageIcon::Stop);
    return false;
  }
  Changed = false;
  FileTime = files.ModifiedTime(FileName).value_or(FileTime);
  return true;
}

bool CNotesCategory::FileChangedExternally() const {
  if (!Loaded) return false;
  const auto now = TheDesktop().files().ModifiedTime(FileName);
  return now && *now > FileTime;
}

void CNotesCategory::Save() {
  auto& files = TheDesktop().files();
  FormerFile former(FileName);
  if (files.Write(FileName, BytesFromNotes(Notes)) != FileStatus::Done) {
    former.PutBack();
    ShowFileMessage(FileName, u"gespeichert", MessageIcon::None);
    return;
  }
  former.Forget();
  for (const auto& note : Notes) note->Changed = false;
  Changed = false;
  FileTime = files.ModifiedTime(FileName).value_or(FileTime);
}

bool CNotesCategory::AnythingChanged() const {
  return Changed || std::ranges::any_of(Notes, [](const auto& note) { return note->Changed; });
}

}  // namespace dorvalin
