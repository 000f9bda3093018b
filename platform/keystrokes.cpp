#include "platform/keystrokes.h"

#include <array>
#include <charconv>
#include <string>

#include "platform/text.h"

namespace platform {
namespace {

struct NamedKey {
  std::u16string_view name;
  int virtualKey;
};

constexpr std::array kNamedKeys = {
    NamedKey{u"BACKSPACE", key::kBack}, NamedKey{u"BS", key::kBack},
    NamedKey{u"BKSP", key::kBack},      NamedKey{u"DEL", key::kDelete},
    NamedKey{u"DELETE", key::kDelete},  NamedKey{u"DOWN", key::kDown},
    NamedKey{u"END", key::kEnd},        NamedKey{u"ENTER", key::kEnter},
    NamedKey{u"ESC", key::kEscape},     NamedKey{u"HOME", key::kHome},
    NamedKey{u"INS", key::kInsert},     NamedKey{u"INSERT", key::kInsert},
    NamedKey{u"LEFT", key::kLeft},      NamedKey{u"PGDN", key::kPageDown},
    NamedKey{u"PGUP", key::kPageUp},    NamedKey{u"RIGHT", key::kRight},
    NamedKey{u"TAB", key::kTab},        NamedKey{u"UP", key::kUp},
};

std::optional<int> VirtualKeyOf(std::u16string_view name) {
  const auto asked = Lower(name);
  for (const auto& known : kNamedKeys) {
    if (Lower(known.name) == asked) return known.virtualKey;
  }
  if (asked.size() < 2 || asked.size() > 3 || asked[0] != u'f') return std::nullopt;
  int number = 0;
  for (char16_t digit : asked.substr(1)) {
    if (digit < u'0' || digit > u'9') return std::nullopt;
    number = number * 10 + (digit - u'0');
  }
  if (number < 1 || number > 16) return std::nullopt;
  return key::kF1 + number - 1;
}

std::optional<int> CountOf(std::u16string_view digits) {
  const std::string ascii(digits.begin(), digits.end());
  int count = 0;
  const auto [end, error] = std::from_chars(ascii.data(), ascii.data() + ascii.size(), count);
  if (error != std::errc() || end != ascii.data() + ascii.size() || count < 0) return std::nullopt;
  return count;
}

class Parser {
 public:
  explicit Parser(std::u16string_view keys) : keys_(keys) {}

  std::optional<std::vector<KeyStroke>> Run() {
    while (at_ < keys_.size()) {
      if (!One()) return std::nullopt;
    }
    if (groupOpen_) return std::nullopt;
    return std::move(strokes_);
  }

 private:
  bool One() {
    const char16_t unit = keys_[at_];
    switch (unit) {
      case u'^':
        next_.control = true;
        ++at_;
        return true;
      case u'+':
        next_.shift = true;
        ++at_;
        return true;
      case u'%':
        next_.alt = true;
        ++at_;
        return true;
      case u'(':
        return OpenGroup();
      case u')':
        return CloseGroup();
      case u'{':
        return Braced();
      case u'~':
        ++at_;
        Press(key::kEnter, 1);
        return true;
      default:
        ++at_;
        Character(unit, 1);
        return true;
    }
  }

  bool OpenGroup() {
    if (groupOpen_) return false;
    groupOpen_ = true;
    group_ = next_;
    next_ = {};
    ++at_;
    return true;
  }

  bool CloseGroup() {
    if (!groupOpen_) return false;
    groupOpen_ = false;
    group_ = {};
    ++at_;
    return true;
  }

  // "{" name-or-character [" " count] "}"; the character itself may be a closing brace.
  bool Braced() {
    const auto end = keys_.find(u'}', at_ + 2);
    if (end == std::u16string_view::npos) return false;
    auto content = keys_.substr(at_ + 1, end - at_ - 1);
    at_ = end + 1;
    int count = 1;
    const auto blank = content.find(u' ', 1);
    if (blank != std::u16string_view::npos) {
      const auto stated = CountOf(content.substr(blank + 1));
      if (!stated) return false;
      count = *stated;
      content = content.substr(0, blank);
    }
    if (content.size() == 1) {
      Character(content[0], count);
      return true;
    }
    const auto virtualKey = VirtualKeyOf(content);
    if (virtualKey) Press(*virtualKey, count);
    return virtualKey.has_value();
  }

  Modifiers TakeModifiers() {
    const Modifiers now{group_.shift || next_.shift, group_.control || next_.control,
                        group_.alt || next_.alt};
    next_ = {};
    return now;
  }

  void Press(int virtualKey, int count) {
    strokes_.push_back({.virtualKey = virtualKey, .modifiers = TakeModifiers(), .count = count});
  }

  // With Ctrl or Alt a letter or digit is a key, not a character: "^v" is a command.
  void Character(char16_t unit, int count) {
    const Modifiers modifiers = TakeModifiers();
    const char16_t upper = UpperUnit(unit);
    const bool command = modifiers.control || modifiers.alt;
    const bool hasKey = (upper >= u'A' && upper <= u'Z') || (upper >= u'0' && upper <= u'9');
    if (command && hasKey) {
      strokes_.push_back({.virtualKey = upper, .modifiers = modifiers, .count = count});
    } else {
      strokes_.push_back({.unit = unit, .modifiers = modifiers, .count = count});
    }
  }

  std::u16string_view keys_;
  std::size_t at_ = 0;
  Modifiers next_;
  Modifiers group_;
  bool groupOpen_ = false;
  std::vector<KeyStroke> strokes_;
};

}  // namespace

std::optional<std::vector<KeyStroke>> ParseKeystrokes(std::u16string_view keys) {
  return Parser(keys).Run();
}

}  // namespace platform
