#pragma once

#include "quicktext/phrase_file.h"
#include "tests/support/DataDesktop.h"
#include "tests/support/hostile.h"

namespace dorvalin {

/// Reads the bytes as a group's file. Ends the process if a promise of the reader is broken.
inline void TryPhraseFile(std::string_view bytes) {
  platform::DataDesktop desktop;
  platform::DesktopScope scope(desktop);
  const auto phrases = PhrasesFromBytes(bytes, FileEnd::Reached, u"G");
  std::size_t characters = 0;
  for (const auto& phrase : phrases) characters += phrase->Text.size() + phrase->RTFText.size();
  Require(characters <= bytes.size(), "text that is not in the file");
  Require(PhrasesFromBytes(bytes, FileEnd::Lost, u"G").size() <= phrases.size(),
          "a broken file has more elements than the whole one");

  const auto again = PhrasesFromBytes(BytesFromPhrases(phrases), FileEnd::Reached, u"G");
  Require(again.size() == phrases.size(), "a saved group has another number of elements");
  for (std::size_t i = 0; i < phrases.size(); ++i) {
    Require(again[i]->Text == phrases[i]->Text, "a saved text differs");
    Require(again[i]->RTFText == phrases[i]->RTFText, "a saved Rich Text source differs");
  }
}

}  // namespace dorvalin
