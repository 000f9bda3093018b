// The text of a group's file: lines in the ANSI code page, each ended by CR LF.
//
//   <lines of the element's text>
//   #RTF#                              only if the element is formatted
//   <lines of its Rich Text source>
//   #NEXT#                             only if another element follows
//
// Lines end at CR LF alone, so a single CR or LF stays what it is inside a line.
#pragma once

#include <string>
#include <string_view>

#include "quicktext/CPhrase.h"

namespace dorvalin {

enum class FileEnd {
  Reached,
  Lost  ///< reading failed: the last line may be cut and is left out, its element stays unfinished
};

[[nodiscard]] PhraseCollection PhrasesFromBytes(std::string_view bytes, FileEnd end,
                                                std::u16string_view group);
[[nodiscard]] std::string BytesFromPhrases(const PhraseCollection& phrases);

/// Replaces what would end or format an element in the file by "_NEXT_" and "_RTF_". Nothing ever
/// turns these back. Elements that are not typed in the editor are stored without it.
[[nodiscard]] std::u16string EscapeMarkers(std::u16string_view text);

}  // namespace dorvalin
