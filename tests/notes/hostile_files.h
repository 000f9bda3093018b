#pragma once

#include "notes/note_file.h"
#include "tests/support/DataDesktop.h"
#include "tests/support/hostile.h"

namespace dorvalin {

/// Reads the bytes as a category's file. Ends the process if a promise of the reader is broken.
inline void TryNoteFile(std::string_view bytes) {
  constexpr std::size_t kLeastNote = 20;
  platform::DataDesktop desktop;
  platform::DesktopScope scope(desktop);
  const auto read = NotesFromBytes(bytes);
  std::size_t size = 0;
  for (const auto& note : read.notes) {
    size += kLeastNote + note->Text.size() + note->Link.size() + note->File.size() +
            note->PreviewID.size();
  }
  Require(size <= bytes.size(), "notes that are not in the file");

  const auto saved = BytesFromNotes(read.notes);
  const auto again = NotesFromBytes(saved);
  Require(again.isWhole, "a saved category is not whole");
  Require(again.notes.size() == read.notes.size(), "a saved category has another number of notes");
  Require(BytesFromNotes(again.notes) == saved, "a saved note differs");
}

}  // namespace dorvalin
