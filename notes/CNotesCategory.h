// A category of notes: one file in Merrowe's store, which that product may write at any time as
// well.
#pragma once

#include <string>

#include "notes/CNote.h"
#include "platform/clock.h"

namespace dorvalin {

class CNotesCategory {
 public:
  std::u16string FileName;  ///< full path; set by Load
  std::u16string Name;      ///< the file's name without its extension
  bool Loaded = false;
  NoteCollection Notes;  ///< in the order of the file
  bool Changed = false;  ///< the collection differs from the file
  /// When the file was last changed, as of the last load or save.
  platform::DateTime FileTime;

  /// Forgets the notes and loads them afresh.
  void Reload();
  /// True also where the category was loaded before. Tells the user when the file is missing or
  /// ends too early; the notes read so far are kept then.
  bool Load();
  /// The file on the disk is younger than what was loaded.
  [[nodiscard]] bool FileChangedExternally() const;
  /// Writes the file. Tells the user when that fails; the old file is put back then, and what was
  /// changed stays marked as changed.
  void Save();
  /// The category or one of its notes differs from the file.
  [[nodiscard]] bool AnythingChanged() const;
};

}  // namespace dorvalin
