#include <algorithm>

#include "platform/memory/Rtf.h"
#include "platform/text.h"

namespace platform {
namespace {

class RtfWriter {
 public:
  explicit RtfWriter(const RichContent& content) : content_(content) {}

  std::string Run() {
    for (const RichFormat& format : content_.formats) {
      Number(faces_, format.font.face);
      Number(colours_, format.colour);
    }
    if (faces_.empty()) faces_.emplace_back(Font{}.face);
    Head();
    for (std::size_t n = 0; n < content_.text.size(); ++n) {
      if (n == 0 || content_.formats[n] != content_.formats[n - 1]) {
        Format(content_.formats[n], n == 0 || content_.text[n - 1] == u'\n');
      }
      Unit(content_.text[n]);
    }
    return out_ + "\\par\r\n}\r\n";
  }

 private:
  template <class T>
  static std::size_t Number(std::vector<T>& table, const T& value) {
    const auto found = std::find(table.begin(), table.end(), value);
    const auto index = static_cast<std::size_t>(found - table.begin());
    if (found == table.end()) table.push_back(value);
    return index;
  }

  void Head() {
    out_ = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl";
    for (std::size_t n = 0; n < faces_.size(); ++n) {
      out_ += "{\\f" + std::to_string(n) + "\\fnil " + ToWindows1252(faces_[n]) + ";}";
    }
    out_ += "}\r\n{\\colortbl ;";
    for (const Colour c : colours_) {
      out_ += "\\red" + std::to_string(c & 0xFF) + "\\green" + std::to_string(c >> 8 & 0xFF) +
              "\\blue" + std::to_string(c >> 16 & 0xFF) + ";";
    }
    out_ += "}\r\n\\viewkind4\\uc1\\pard\\lang1031";
  }

  void Format(const RichFormat& format, bool lineStart) {
    const Font& font = format.font;
    if (lineStart) {
      out_ += format.alignment == Alignment::Left    ? "\\ql"
              : format.alignment == Alignment::Right ? "\\qr"
                                                     : "\\qc";
    }
    out_ += "\\f" + std::to_string(Number(faces_, font.face));
    out_ += "\\fs" + std::to_string(static_cast<int>(font.points * 2 + 0.5));
    out_ += "\\cf" + std::to_string(Number(colours_, format.colour) + 1);
    out_ += font.bold ? "\\b" : "\\b0";
    out_ += font.italic ? "\\i" : "\\i0";
    out_ += font.underline ? "\\ul" : "\\ulnone";
    out_ += font.strikeOut ? "\\strike " : "\\strike0 ";
  }

  void Unit(char16_t unit) {
    if (unit == u'\r') return;
    if (unit == u'\n') {
      out_ += "\\par\r\n";
    } else if (unit == u'\t') {
      out_ += "\\tab ";
    } else if (unit == u'\\' || unit == u'{' || unit == u'}') {
      out_ += {'\\', static_cast<char>(unit)};
    } else if (unit < 0x80) {
      out_ += static_cast<char>(unit);
    } else {
      out_ += "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + "?";
    }
  }

  const RichContent& content_;
  std::vector<std::u16string> faces_;
  std::vector<Colour> colours_;
  std::string out_;
};

}  // namespace

std::string WriteRtf(const RichContent& content) { return RtfWriter(content).Run(); }

}  // namespace platform
