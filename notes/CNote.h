// One note of the store that the program shares with Tolvo Merrowe.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/icon.h"
#include "platform/shell.h"
#include "platform/surface.h"

namespace dorvalin {

/// Kinds of notes by the number that their files hold. Above 0 the note owns a copy of its file in
/// the store, below 0 it refers to a file outside.
inline constexpr std::int32_t kTextNote = 0;
inline constexpr std::int32_t kPictureNote = 1;
inline constexpr std::int32_t kPictureReference = -1;
inline constexpr std::int32_t kFileNote = 2;
inline constexpr std::int32_t kFileReference = -2;

class CNote {
 public:
  std::u16string Text;
  std::u16string Link;       ///< an internet address; empty for a plain text note
  std::u16string File;       ///< a bare name in NotesFolder, or a full path for a reference
  std::u16string PreviewID;  ///< name of the preview's file without extension; empty for none
  std::int32_t NoteType = kTextNote;
  bool Changed = false;  ///< the note differs from the category's file

  /// The note's preview, or the stock picture of all notes where there is none that can be loaded.
  [[nodiscard]] platform::Surface PreviewPicture() const;
  /// Deletes the preview and the note's own copy of a file. A file outside the store stays.
  void RemoveAllFiles() const;
  /// A new note without a preview; a file of its own is copied under a new name.
  [[nodiscard]] std::shared_ptr<CNote> Clone() const;
  /// The icon of the note's file by its name alone. Empty where there is none.
  [[nodiscard]] platform::Icon LoadIcon(platform::IconSize size = platform::IconSize::Small) const;
};

using NoteCollection = std::vector<std::shared_ptr<CNote>>;

/// Takes the note out of the collection and deletes its files. Nothing happens if it is not there.
void RemoveNote(const std::shared_ptr<CNote>& note, NoteCollection& notes);

}  // namespace dorvalin
