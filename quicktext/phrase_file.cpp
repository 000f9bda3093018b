#include "quicktext/phrase_file.h"

#include <algorithm>

#include "platform/desktop.h"
#include "platform/locale.h"

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
      inElement_ = true;
      (inRtf_ ? rtf_ : text_).append(kLineEnd).append(line);
    }
  }

  void EndElement() {
    // Every line brought the break in front of itself, the first one too.
    KeepElement(kLineEnd.size());
    inRtf_ = false;
  }

  void LeaveElementUnfinished() { KeepElement(0); }

  PhraseCollection Take() { return std::move(phrases_); }

 private:
  void KeepElement(std::size_t cut) {
    if (inElement_) {
      auto phrase = std::make_shared<CPhrase>();
      phrase->Text = FromAnsi(text_, cut);
      phrase->RTFText = FromAnsi(rtf_, cut);
      phrase->Group = group_;
      phrases_.push_back(std::move(phrase));
    }
    inElement_ = false;
    text_.clear();
    rtf_.clear();
  }

  std::u16string FromAnsi(std::string_view bytes, std::size_t cut) {
    return locale_.FromAnsi(bytes.substr(std::min(cut, bytes.size())));
  }

  platform::Locale& locale_ = TheDesktop().locale();
  std::u16string_view group_;
  PhraseCollection phrases_;
  std::string text_;
  std::string rtf_;
  bool inElement_ = false;
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

}  // namespace dorvalin
