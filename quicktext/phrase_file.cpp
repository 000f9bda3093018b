#include "quicktext/phrase_file.h"

#include <algorithm>
#include <optional>

#include "platform/desktop.h"
#include "platform/locale.h"
#include "platform/text.h"

namespace dorvalin {
namespace {

using platform::TheDesktop;

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kNextMarker = "#NEXT#";
constexpr std::string_view kRtfMarker = "#RTF#";

/// What the bytes hold in front of their first marker, and behind it.
struct Section {
  std::string_view lines;
  std::string_view marker;  ///< empty without one
  std::string_view rest;
};

/// A marker is a line of its own; blanks around it do not count.
bool CutsAt(std::size_t at, std::string_view marker, std::string_view bytes, Section& section) {
  auto rest = bytes.substr(at);
  if (!rest.starts_with(marker)) return false;
  rest.remove_prefix(marker.size());
  while (rest.starts_with(' ')) rest.remove_prefix(1);
  auto lines = bytes.substr(0, at);
  while (lines.ends_with(' ')) lines.remove_suffix(1);
  if (!lines.empty() && !lines.ends_with(kLineEnd)) return false;
  if (!rest.empty() && !rest.starts_with(kLineEnd)) return false;
  section = {lines, marker, rest.substr(std::min(rest.size(), kLineEnd.size()))};
  return true;
}

// Most elements hold no number sign, so this goes over them in one step.
Section CutAtMarker(std::string_view bytes) {
  Section section{.lines = bytes, .marker = {}, .rest = {}};
  auto at = bytes.find('#');
  while (at != bytes.npos && !CutsAt(at, kNextMarker, bytes, section) &&
         !CutsAt(at, kRtfMarker, bytes, section)) {
    at = bytes.find('#', at + 1);
  }
  return section;
}

std::string_view WithoutCutLine(std::string_view bytes) {
  const auto last = bytes.rfind(kLineEnd);
  return bytes.substr(0, last == bytes.npos ? 0 : last + kLineEnd.size());
}

class PhraseReader {
 public:
  explicit PhraseReader(std::u16string_view group) : group_(group) {}

  void Add(std::string_view lines) {
    if (lines.empty()) return;
    if (lines.ends_with(kLineEnd)) lines.remove_suffix(kLineEnd.size());
    auto& text = inRtf_ ? rtf_ : text_;
    if (text) {
      text->append(u"\r\n").append(locale_.FromAnsi(lines));
    } else {
      text = locale_.FromAnsi(lines);
    }
  }

  void Mark(std::string_view marker) {
    if (marker == kNextMarker) EndElement();
    if (marker == kRtfMarker) inRtf_ = true;
  }

  void EndElement() {
    if (text_ || rtf_) {
      auto phrase = std::make_shared_for_overwrite<CPhrase>();
      if (text_) phrase->Text = std::move(*text_);
      if (rtf_) phrase->RTFText = std::move(*rtf_);
      phrase->Group = group_;
      phrases_.push_back(std::move(phrase));
    }
    text_.reset();
    rtf_.reset();
    inRtf_ = false;
  }

  /// Every line brings the break in front of itself, and only the end of the element takes the
  /// first one away again: an element that was not read to its end begins with it.
  void LeaveElementUnfinished() {
    for (auto* text : {&text_, &rtf_}) {
      if (*text) (*text)->insert(0, u"\r\n");
    }
    EndElement();
  }

  PhraseCollection Take() { return std::move(phrases_); }

 private:
  platform::Locale& locale_ = TheDesktop().locale();
  std::u16string_view group_;
  PhraseCollection phrases_;
  std::optional<std::u16string> text_;
  std::optional<std::u16string> rtf_;
  bool inRtf_ = false;
};

void AppendLine(std::string& bytes, std::string_view line) { bytes.append(line).append(kLineEnd); }

}  // namespace

PhraseCollection PhrasesFromBytes(std::string_view bytes, FileEnd end, std::u16string_view group) {
  PhraseReader reader(group);
  if (end == FileEnd::Lost) bytes = WithoutCutLine(bytes);
  while (!bytes.empty()) {
    const Section section = CutAtMarker(bytes);
    reader.Add(section.lines);
    reader.Mark(section.marker);
    bytes = section.rest;
  }
  if (end == FileEnd::Lost) {
    reader.LeaveElementUnfinished();
  } else {
    reader.EndElement();
  }
  return reader.Take();
}

std::string BytesFromPhrases(const PhraseCollection& phrases) {
  auto& locale = TheDesktop().locale();
  std::string bytes;
  for (const auto& phrase : phrases) {
    if (phrase != phrases.front()) AppendLine(bytes, kNextMarker);
    AppendLine(bytes, locale.ToAnsi(phrase->Text));
    if (phrase->RTFText.empty()) continue;
    AppendLine(bytes, kRtfMarker);
    AppendLine(bytes, locale.ToAnsi(phrase->RTFText));
  }
  return bytes;
}

std::u16string EscapeMarkers(std::u16string_view text) {
  const auto escaped = platform::ReplaceAll(text, u"#NEXT#", u"_NEXT_");
  return platform::ReplaceAll(escaped, u"#RTF#", u"_RTF_");
}

}  // namespace dorvalin
