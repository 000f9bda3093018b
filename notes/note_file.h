// The bytes of a category's file, as Tolvo Merrowe writes them. Numbers are signed, 4 bytes, low
// byte first; a text is its length and its characters in the ANSI code page.
//
//   version                            10000; 0 for a category without notes
//   type, text, link, file, preview    one note after the other
//   0x0FFFFFFF                         the end
#pragma once

#include <string>
#include <string_view>

#include "notes/CNote.h"

namespace dorvalin {

struct ReadNotes {
  NoteCollection notes;
  bool isWhole = false;  ///< false: the file ends too early; the whole notes before that are there
};

/// Never takes more memory than the file's size allows, whatever lengths it names. A file without
/// any bytes is a whole one without notes: new categories begin as such.
[[nodiscard]] ReadNotes NotesFromBytes(std::string_view bytes);
[[nodiscard]] std::string BytesFromNotes(const NoteCollection& notes);

}  // namespace dorvalin
