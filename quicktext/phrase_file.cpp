#include "quicktext/phrase_file.h"

#include "platform/desktop.h"
#include "platform/locale.h"
#include "platform/text.h"

namespace dorvalin {
namespace {

using platform::TheDesktop;

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kNextMarker = "#NEXT#";
constexpr std::string_view kRtfMarker = "#RTF#";

std::string_view TrimBlanks(std::string_view line) {
  const auto first = line.find_first_not_of(' ');
  if (first == line.npos) return {};
  return line.substr(first, line.find_last_not_of(' ') - first + 1);
}

/// Lines with their breaks. As long as they follow each other in the file they are one piece of it.
class Lines {
 public:
  void Add(std::string_view line) {
    if (!any_) {
      piece_ = line;
    } else if (joined_.empty() && piece_.end() + kLineEnd.size() == line.begin()) {
      piece_ = {piece_.begin(), line.end()};
    } else {
      if (joined_.empty()) joined_ = piece_;
      joined_.append(kLineEnd).append(line);
    }
    any_ = true;
  }

  void Clear() {
    any_ = false;
    joined_.clear();
  }

  bool Any() const { return any_; }
  std::string_view Bytes() const { return joined_.empty() ? piece_ : joined_; }

 private:
  bool any_ = false;
  std::string_view piece_;
  std::string joined_;
};

class PhraseReader {
 public:
  explicit PhraseReader(std::u16string_view group) : group_(group) {}

  void ReadLine(std::string_view line) {
    // Looking at the first character first spares most lines the trimming.
    const bool mayBeMarker = !line.empty() && (line[0] == '#' || line[0] == ' ');
    const auto marker = mayBeMarker ? TrimBlanks(line) : std::string_view();
    if (marker == kNextMarker) {
      EndElement();
    } else if (marker == kRtfMarker) {
      inRtf_ = true;
    } else {
      (inRtf_ ? rtf_ : text_).Add(line);
    }
  }

  void EndElement() {
    KeepElement({});
    inRtf_ = false;
  }

  /// Every line brings the break in front of itself, and only the end of the element takes the
  /// first one away again: an element that was not read to its end begins with it.
  void LeaveElementUnfinished() { KeepElement(u"\r\n"); }

  PhraseCollection Take() { return std::move(phrases_); }

 private:
  void KeepElement(std::u16string_view start) {
    if (text_.Any() || rtf_.Any()) {
      auto phrase = std::make_shared_for_overwrite<CPhrase>();
      phrase->Text = TextOf(text_, start);
      phrase->RTFText = TextOf(rtf_, start);
      phrase->Group = group_;
      phrases_.push_back(std::move(phrase));
    }
    text_.Clear();
    rtf_.Clear();
  }

  std::u16string TextOf(const Lines& lines, std::u16string_view start) {
    if (!lines.Any()) return {};
    auto text = locale_.FromAnsi(lines.Bytes());
    if (!start.empty()) text.insert(0, start);
    return text;
  }

  platform::Locale& locale_ = TheDesktop().locale();
  std::u16string_view group_;
  PhraseCollection phrases_;
  Lines text_;
  Lines rtf_;
  bool inRtf_ = false;
};

void AppendLine(std::string& bytes, std::string_view line) { bytes.append(line).append(kLineEnd); }

}  // namespace

PhraseCollection PhrasesFromBytes(std::string_view bytes, FileEnd end, std::u16string_view group) {
  PhraseReader reader(group);
  while (!bytes.empty()) {
    const auto length = bytes.find(kLineEnd);
    const bool isCut = length == bytes.npos && end == FileEnd::Lost;
    if (isCut) break;
    reader.ReadLine(bytes.substr(0, length));
    bytes.remove_prefix(length == bytes.npos ? bytes.size() : length + kLineEnd.size());
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
