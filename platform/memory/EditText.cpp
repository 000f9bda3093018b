#include "platform/memory/EditText.h"

#include <algorithm>
#include <utility>

namespace platform {
namespace {

constexpr char16_t kSelectAll = 1;  // what Ctrl+A types

}  // namespace

void EditText::SetText(std::u16string_view text) {
  Select(0, Size());
  ReplaceSelection(text);
  Select(0, 0);
}

void EditText::Select(int start, int length) {
  anchor_ = std::clamp(start, 0, Size());
  caret_ = std::clamp(anchor_ + std::max(length, 0), anchor_, Size());
}

void EditText::ReplaceSelection(std::u16string_view text) {
  if (!rules_.multiLine) text = text.substr(0, text.find_first_of(u"\r\n"));
  const int start = Start(), length = Length();
  text_.replace(start, length, text);
  anchor_ = caret_ = start + static_cast<int>(text.size());
  ++revision_;
  OnReplaced(start, length, static_cast<int>(text.size()));
}

int EditText::Before(int at) const {
  return at >= 2 && text_.compare(at - 2, 2, u"\r\n") == 0 ? at - 2 : std::max(at - 1, 0);
}

int EditText::Behind(int at) const {
  return text_.compare(at, 2, u"\r\n") == 0 ? at + 2 : std::min(at + 1, Size());
}

int EditText::WordBefore(int at) const {
  while (at > 0 && text_[at - 1] <= u' ') --at;
  while (at > 0 && text_[at - 1] > u' ') --at;
  return at;
}

int EditText::WordBehind(int at) const {
  while (at < Size() && text_[at] > u' ') ++at;
  while (at < Size() && text_[at] <= u' ') ++at;
  return at;
}

int EditText::LineStart(int at) const {
  const auto end = at == 0 ? std::u16string::npos : text_.rfind(u'\n', at - 1);
  return end == std::u16string::npos ? 0 : static_cast<int>(end) + 1;
}

int EditText::LineEnd(int at) const {
  const auto end = text_.find(u'\r', at);
  return end == std::u16string::npos ? Size() : static_cast<int>(end);
}

int EditText::Vertically(int lines) const {
  const int start = LineStart(caret_);
  const int column = caret_ - start;
  if (lines < 0) {
    if (start == 0) return caret_;
    const int above = LineStart(start - 1);
    return std::min(above + column, LineEnd(above));
  }
  const int end = LineEnd(caret_);
  if (end == Size()) return caret_;
  return std::min(end + 2 + column, LineEnd(end + 2));
}

void EditText::MoveCaret(int to, bool extend) {
  caret_ = to;
  if (!extend) anchor_ = to;
}

void EditText::DeleteTo(int to) {
  if (Length() == 0) caret_ = to;
  if (Length() > 0) ReplaceSelection(u"");
}

bool EditText::OnKey(int virtualKey, Modifiers held) {
  if (held.alt) return false;
  const bool collapse = Length() > 0 && !held.shift;
  const int end = Start() + Length();
  switch (virtualKey) {
    case key::kLeft:
      if (held.control) return MoveCaret(WordBefore(caret_), held.shift), true;
      return MoveCaret(collapse ? Start() : Before(caret_), held.shift), true;
    case key::kRight:
      if (held.control) return MoveCaret(WordBehind(caret_), held.shift), true;
      return MoveCaret(collapse ? end : Behind(caret_), held.shift), true;
    case key::kUp:
      return MoveCaret(Vertically(-1), held.shift), true;
    case key::kDown:
      return MoveCaret(Vertically(1), held.shift), true;
    case key::kHome:
      return MoveCaret(held.control ? 0 : LineStart(caret_), held.shift), true;
    case key::kEnd:
      return MoveCaret(held.control ? Size() : LineEnd(caret_), held.shift), true;
    default:
      return OnClipboardKey(virtualKey, held);
  }
}

bool EditText::OnClipboardKey(int virtualKey, Modifiers held) {
  const bool copies = held.control && (virtualKey == 'C' || virtualKey == key::kInsert);
  const bool cuts =
      (held.control && virtualKey == 'X') || (held.shift && virtualKey == key::kDelete);
  const bool pastes =
      (held.control && virtualKey == 'V') || (held.shift && virtualKey == key::kInsert);
  if ((copies || cuts) && Length() > 0) Copy();
  if (!rules_.readOnly && cuts) ReplaceSelection(u"");
  if (!rules_.readOnly && pastes) Paste();
  if (!rules_.readOnly && virtualKey == key::kDelete && !cuts) DeleteTo(Behind(caret_));
  return copies || cuts || pastes || virtualKey == key::kDelete;
}

bool EditText::OnChar(char16_t unit) {
  if (unit == kSelectAll) return Select(0, Size()), true;
  if (rules_.readOnly) return false;
  if (unit == key::kBack) return DeleteTo(Before(caret_)), true;
  const bool lineEnd = unit == u'\r' || unit == u'\n';
  const bool layout = lineEnd || unit == u'\t';
  if (unit < u' ' && !(layout && rules_.multiLine)) return false;
  ReplaceSelection(lineEnd ? std::u16string_view(u"\r\n") : std::u16string_view(&unit, 1));
  return true;
}

void EditText::PutOnClipboard(DataContent content) {
  if (rules_.otherProgram) return clipboard_.PutByOther(std::move(content));
  (void)clipboard_.Put(
      content);  // A copy that the clipboard refuses is lost, as the user knows it.
}

void EditText::Copy() {
  DataContent content;
  content.text = Selected();
  PutOnClipboard(std::move(content));
}

void EditText::Paste() {
  // Another program reads what is there, whatever our own calls meet.
  const auto text = rules_.otherProgram ? clipboard_.Content().text : clipboard_.Text();
  if (text) ReplaceSelection(*text);
}

}  // namespace platform
