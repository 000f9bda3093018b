// An edited text whose characters have formats.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "platform/memory/EditText.h"
#include "platform/memory/RichFormat.h"

namespace platform {

class RichEdit : public EditText {
 public:
  using EditText::EditText;

  /// For new text, and for the text that is there.
  void SetStandardFont(const Font& font);
  [[nodiscard]] std::string RichText() const;
  /// False, and empty, for what is no Rich Text.
  bool SetRichText(std::string_view source);
  /// Replaces the selection. False, and unchanged, for what is no Rich Text.
  bool InsertRichText(std::string_view source);
  [[nodiscard]] RichSelection Properties() const;
  /// Of the selection, or of what is typed next; alignment goes to whole lines.
  void SetProperties(const RichSelection& properties);
  /// First and last+1 position of each bold part.
  [[nodiscard]] std::vector<std::pair<int, int>> BoldRanges() const;

  void Copy() override;
  void Paste() override;
  Font FontAt(int position, const Font& base) const override;
  Colour ColourAt(int position, Colour base) const override;

 protected:
  void OnReplaced(int at, int removed, int inserted) override;

 private:
  [[nodiscard]] RichContent Part(int start, int length) const;
  RichFormat FormatForTyping() const;
  void AlignLines(Alignment alignment);

  std::vector<RichFormat> formats_;
  RichFormat standard_;
  std::optional<std::pair<int, RichFormat>> typing_;  ///< set for text typed at that place
};

}  // namespace platform
