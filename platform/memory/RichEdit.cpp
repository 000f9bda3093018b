#include "platform/memory/RichEdit.h"

#include <algorithm>

#include "platform/memory/Rtf.h"

namespace platform {
namespace {

void Apply(const RichSelection& properties, RichFormat& format) {
  Font& font = format.font;
  font.bold = properties.bold.value_or(font.bold);
  font.italic = properties.italic.value_or(font.italic);
  font.underline = properties.underline.value_or(font.underline);
  font.strikeOut = properties.strikeOut.value_or(font.strikeOut);
  font.face = properties.face.value_or(font.face);
  font.points = properties.points.value_or(font.points);
  format.colour = properties.colour.value_or(format.colour);
}

RichSelection PropertiesOf(const RichFormat& format) {
  const Font& font = format.font;
  return {font.bold, font.italic, font.underline, font.strikeOut,
          font.face, font.points, format.colour,  format.alignment};
}

template <class T>
void KeepWhatAgrees(std::optional<T>& common, const std::optional<T>& other) {
  if (common != other) common.reset();
}

void KeepWhatAgrees(RichSelection& common, const RichSelection& other) {
  KeepWhatAgrees(common.bold, other.bold);
  KeepWhatAgrees(common.italic, other.italic);
  KeepWhatAgrees(common.underline, other.underline);
  KeepWhatAgrees(common.strikeOut, other.strikeOut);
  KeepWhatAgrees(common.face, other.face);
  KeepWhatAgrees(common.points, other.points);
  KeepWhatAgrees(common.colour, other.colour);
  KeepWhatAgrees(common.alignment, other.alignment);
}

}  // namespace

void RichEdit::SetStandardFont(const Font& font) {
  standard_.font = font;
  for (RichFormat& format : formats_) format.font = font;
}

RichFormat RichEdit::FormatForTyping() const {
  if (typing_ && typing_->first == Start() && Length() == 0) return typing_->second;
  if (formats_.empty()) return standard_;
  const int from = Length() > 0 ? Start() : std::max(0, Start() - 1);
  return formats_[std::min(from, static_cast<int>(formats_.size()) - 1)];
}

void RichEdit::OnReplaced(int at, int removed, int inserted) {
  // Called when the text is changed already and the caret stands behind the new part.
  RichFormat format = standard_;
  if (typing_ && typing_->first == at) {
    format = typing_->second;
  } else if (!formats_.empty()) {
    format = formats_[removed > 0 ? at : std::max(0, at - 1)];
  }
  formats_.erase(formats_.begin() + at, formats_.begin() + at + removed);
  formats_.insert(formats_.begin() + at, inserted, format);
  typing_.reset();
  if (formats_.empty() && removed > 0) typing_ = {0, format};
}

RichContent RichEdit::Part(int start, int length) const {
  return {Text().substr(start, length),
          {formats_.begin() + start, formats_.begin() + start + length}};
}

std::string RichEdit::RichText() const {
  return WriteRtf(Part(0, static_cast<int>(Text().size())));
}

bool RichEdit::SetRichText(std::string_view source) {
  SetText(u"");
  typing_.reset();
  const bool taken = InsertRichText(source);
  Select(0, 0);
  return taken;
}

bool RichEdit::InsertRichText(std::string_view source) {
  const auto content = ReadRtf(source, standard_);
  if (!content) return false;
  const int at = Start();
  ReplaceSelection(content->text);
  std::copy(content->formats.begin(), content->formats.end(), formats_.begin() + at);
  return true;
}

RichSelection RichEdit::Properties() const {
  if (Length() == 0) return PropertiesOf(FormatForTyping());
  RichSelection common = PropertiesOf(formats_[Start()]);
  for (int n = Start() + 1; n < Start() + Length(); ++n) {
    KeepWhatAgrees(common, PropertiesOf(formats_[n]));
  }
  return common;
}

void RichEdit::SetProperties(const RichSelection& properties) {
  if (Length() == 0) {
    RichFormat format = FormatForTyping();
    Apply(properties, format);
    format.alignment = properties.alignment.value_or(format.alignment);
    typing_ = {Start(), format};
  }
  for (int n = Start(); n < Start() + Length(); ++n) Apply(properties, formats_[n]);
  if (properties.alignment) AlignLines(*properties.alignment);
}

void RichEdit::AlignLines(Alignment alignment) {
  const auto end = static_cast<int>(Text().size());
  int from = Start();
  while (from > 0 && Text()[from - 1] != u'\n') --from;
  const int last = std::max(Start(), Start() + Length() - 1);
  for (int n = from; n < end; ++n) {
    formats_[n].alignment = alignment;
    if (n >= last && Text()[n] == u'\n') return;
  }
}

std::vector<std::pair<int, int>> RichEdit::BoldRanges() const {
  std::vector<std::pair<int, int>> ranges;
  for (int n = 0; n < static_cast<int>(formats_.size()); ++n) {
    if (!formats_[n].font.bold) continue;
    if (!ranges.empty() && ranges.back().second == n) {
      ++ranges.back().second;
    } else {
      ranges.emplace_back(n, n + 1);
    }
  }
  return ranges;
}

void RichEdit::Copy() {
  DataContent content;
  content.text = Selected();
  content.richText = WriteRtf(Part(Start(), Length()));
  PutOnClipboard(std::move(content));
}

void RichEdit::Paste() {
  const auto source =
      OfOtherProgram() ? TheClipboard().Content().richText : TheClipboard().RichText();
  if (!source || !InsertRichText(*source)) EditText::Paste();
}

Font RichEdit::FontAt(int position, const Font& base) const {
  return position < static_cast<int>(formats_.size()) ? formats_[position].font : base;
}

Colour RichEdit::ColourAt(int position, Colour base) const {
  return position < static_cast<int>(formats_.size()) ? formats_[position].colour : base;
}

}  // namespace platform
