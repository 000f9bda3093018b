// A text with caret and selection, as typed and pasted into by a user: what text boxes and other
// programs' editors have in common. Lines end in CR LF, which the caret never parts.
#pragma once

#include <string>
#include <string_view>

#include "platform/font.h"
#include "platform/input.h"
#include "platform/memory/MemoryClipboard.h"

namespace platform {

class EditText {
 public:
  struct Rules {
    bool multiLine = true;
    bool readOnly = false;
    bool otherProgram = false;  ///< copies are not ours
  };
  EditText(MemoryClipboard& clipboard, Rules rules) : clipboard_(clipboard), rules_(rules) {}
  virtual ~EditText() = default;

  const std::u16string& Text() const { return text_; }
  int Start() const { return std::min(anchor_, caret_); }
  int Length() const { return std::max(anchor_, caret_) - Start(); }
  int Caret() const { return caret_; }
  /// Grows with every change of the text.
  int Revision() const { return revision_; }
  bool ReadOnly() const { return rules_.readOnly; }
  bool MultiLine() const { return rules_.multiLine; }
  std::u16string Selected() const { return text_.substr(Start(), Length()); }

  void SetText(std::u16string_view text);
  /// Clipped to the text.
  void Select(int start, int length);
  void ReplaceSelection(std::u16string_view text);

  /// What the user types. True when it meant something here.
  bool OnKey(int virtualKey, Modifiers modifiers);
  bool OnChar(char16_t unit);
  virtual void Copy();
  virtual void Paste();
  /// How a character looks where it is shown.
  virtual Font FontAt(int /*position*/, const Font& base) const { return base; }
  virtual Colour ColourAt(int /*position*/, Colour base) const { return base; }

 protected:
  /// A part of the text was replaced by `inserted` units that stand at `at` now.
  virtual void OnReplaced(int /*at*/, int /*removed*/, int /*inserted*/) {}
  MemoryClipboard& TheClipboard() { return clipboard_; }
  bool OfOtherProgram() const { return rules_.otherProgram; }
  void PutOnClipboard(DataContent content);

 private:
  bool OnClipboardKey(int virtualKey, Modifiers modifiers);
  void MoveCaret(int to, bool extend);
  void DeleteTo(int to);
  int Size() const { return static_cast<int>(text_.size()); }
  int Before(int at) const;
  int Behind(int at) const;
  int WordBefore(int at) const;
  int WordBehind(int at) const;
  int LineStart(int at) const;
  int LineEnd(int at) const;
  int Vertically(int lines) const;

  MemoryClipboard& clipboard_;
  Rules rules_;
  std::u16string text_;
  int anchor_ = 0;
  int caret_ = 0;
  int revision_ = 0;
};

}  // namespace platform
