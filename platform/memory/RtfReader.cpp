#include <algorithm>
#include <cctype>
#include <charconv>
#include <map>
#include <utility>

#include "platform/memory/Rtf.h"
#include "platform/text.h"

namespace platform {
namespace {

/// Groups that hold no text of the document.
constexpr std::string_view kPassedOver[] = {"stylesheet", "info",     "pict",     "header",
                                            "footer",     "listtext", "generator"};

class RtfReader {
 public:
  RtfReader(std::string_view source, const RichFormat& standard) : source_(source) {
    group_.format = standard_ = standard;
  }

  RichContent Run() {
    while (at_ < source_.size()) One();
    // The end of the last line ends the text.
    if (content_.text.ends_with(u"\r\n")) {
      content_.text.resize(content_.text.size() - 2);
      content_.formats.resize(content_.text.size());
    }
    return std::move(content_);
  }

 private:
  enum class Place { Text, Fonts, Colours, Nowhere };
  struct Group {
    Place place = Place::Text;
    RichFormat format;
    int unitsToSkip = 1;  ///< \uc: stand-ins behind a Unicode character
  };

  void One() {
    const char c = source_[at_++];
    switch (c) {
      case '{':
        return groups_.push_back(group_);
      case '}':
        return Close();
      case '\\':
        return Control();
      case '\r':
      case '\n':
        return;
      default:
        return Byte(c);
    }
  }

  void Close() {
    if (groups_.empty()) return;
    group_ = std::move(groups_.back());
    groups_.pop_back();
  }

  void Byte(char c) {
    if (skip_ > 0) {
      --skip_;
      return;
    }
    if (group_.place == Place::Text) return Put(FromWindows1252({&c, 1}));
    if (group_.place == Place::Colours && c == ';') {
      colours_.push_back(std::exchange(colour_, 0));
    }
    if (group_.place != Place::Fonts) return;
    if (c != ';') {
      fonts_[font_] += FromWindows1252({&c, 1});
    }
  }

  void Put(std::u16string_view text) {
    if (group_.place != Place::Text) return;
    content_.text += text;
    content_.formats.resize(content_.text.size(), group_.format);
  }

  void Control() {
    if (at_ >= source_.size()) return;
    const char c = source_[at_];
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) return Word();
    ++at_;
    switch (c) {
      case '\'':
        return HexByte();
      case '*':
        group_.place = Place::Nowhere;
        return;
      case '~':
        return Put(u"\u00A0");
      case '\r':
      case '\n':
        return Put(u"\r\n");
      default:
        return Byte(c);
    }
  }

  void HexByte() {
    const std::string_view digits = source_.substr(at_, 2);
    unsigned value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    at_ += digits.size();
    Byte(static_cast<char>(value));
  }

  void Word() {
    const std::size_t start = at_;
    while (at_ < source_.size() && std::isalpha(static_cast<unsigned char>(source_[at_]))) ++at_;
    const std::string_view word = source_.substr(start, at_ - start);
    int number = 1;
    const char* from = source_.data() + at_;
    const auto [end, error] = std::from_chars(from, source_.data() + source_.size(), number);
    const bool has = error == std::errc();
    if (has) at_ += static_cast<std::size_t>(end - from);
    if (at_ < source_.size() && source_[at_] == ' ') ++at_;
    Do(word, number, has);
  }

  void Do(std::string_view word, int number, bool has) {
    if (word == "fonttbl") {
      group_.place = Place::Fonts;
    } else if (word == "colortbl") {
      group_.place = Place::Colours;
    } else if (std::count(std::begin(kPassedOver), std::end(kPassedOver), word) != 0) {
      group_.place = Place::Nowhere;
    } else if (word == "u") {
      Put(std::u16string(1, static_cast<char16_t>(number)));
      skip_ = group_.unitsToSkip;
    } else if (word == "uc") {
      group_.unitsToSkip = number;
    } else if (!DoText(word) && !DoFormat(word, number, !has || number != 0)) {
      DoTables(word, number);
    }
  }

  bool DoText(std::string_view word) {
    static constexpr std::pair<std::string_view, std::u16string_view> kTexts[] = {
        {"par", u"\r\n"},         {"line", u"\r\n"},     {"tab", u"\t"},
        {"lquote", u"\u2018"},    {"rquote", u"\u2019"}, {"ldblquote", u"\u201C"},
        {"rdblquote", u"\u201D"}, {"bullet", u"\u2022"}, {"endash", u"\u2013"},
        {"emdash", u"\u2014"}};
    for (const auto& [name, text] : kTexts) {
      if (name == word) return Put(text), true;
    }
    return false;
  }

  bool DoFormat(std::string_view word, int number, bool on) {
    RichFormat& format = group_.format;
    Font& font = format.font;
    if (word == "b") return font.bold = on, true;
    if (word == "i") return font.italic = on, true;
    if (word == "ul") return font.underline = on, true;
    if (word == "ulnone") return font.underline = false, true;
    if (word == "strike") return font.strikeOut = on, true;
    if (word == "fs") return font.points = number / 2.0, true;
    if (word == "ql" || word == "qj") return format.alignment = Alignment::Left, true;
    if (word == "qr") return format.alignment = Alignment::Right, true;
    if (word == "qc") return format.alignment = Alignment::Centre, true;
    if (word == "pard") return format.alignment = Alignment::Left, true;
    if (word == "plain") {
      const Alignment alignment = format.alignment;
      format = standard_;
      format.alignment = alignment;
      return true;
    }
    return false;
  }

  void DoTables(std::string_view word, int number) {
    if (word == "f" && group_.place == Place::Fonts) {
      font_ = number;
      fonts_[font_].clear();
    } else if (word == "f" && fonts_.contains(number)) {
      group_.format.font.face = fonts_[number];
    } else if (word == "cf") {
      const auto index = static_cast<std::size_t>(number);
      group_.format.colour = index < colours_.size() ? colours_[index] : 0;
    } else if (group_.place == Place::Colours) {
      const Colour part = static_cast<Colour>(number) & 0xFF;
      if (word == "red") colour_ |= part;
      if (word == "green") colour_ |= part << 8;
      if (word == "blue") colour_ |= part << 16;
    }
  }

  std::string_view source_;
  RichFormat standard_;
  std::size_t at_ = 0;
  Group group_;
  std::vector<Group> groups_;
  int skip_ = 0;
  std::map<int, std::u16string> fonts_;
  int font_ = 0;
  std::vector<Colour> colours_;
  Colour colour_ = 0;
  RichContent content_;
};

}  // namespace

std::optional<RichContent> ReadRtf(std::string_view source, const RichFormat& standard) {
  if (!source.starts_with("{\\rtf")) return std::nullopt;
  return RtfReader(source.substr(0, source.find('\0')), standard).Run();
}

}  // namespace platform
