#include "platform/keystrokes.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string>
#include <utility>

#include "platform/text.h"

namespace platform {
namespace {

struct NamedKey {
  std::u16string_view name;
  int virtualKey;
};

constexpr NamedKey kNamedKeys[] = {
    {u"DEL", key::kDelete}, {u"DOWN", key::kDown},   {u"END", key::kEnd}, {u"ENTER", key::kEnter},
    {u"HOME", key::kHome},  {u"LEFT", key::kLeft},   {u"UP", key::kUp},   {u"ESC", key::kEscape},
    {u"TAB", key::kTab},    {u"RIGHT", key::kRight},
};

std::optional<int> VirtualKeyOf(std::u16string_view name) {
  const auto known = std::ranges::find(kNamedKeys, name, &NamedKey::name);
  if (known == std::end(kNamedKeys)) return std::nullopt;
  return known->virtualKey;
}

/// The characters that every keyboard has as keys of their own. A dialog box takes a tab, to go to
/// its next field, only from the key.
std::optional<int> VirtualKeyOf(char16_t unit) {
  if (unit == u'\t') return key::kTab;
  if (unit == u'\r') return key::kEnter;
  return std::nullopt;
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
      case u'{':
        return Braced();
      case u'~':
        ++at_;
        return Press(key::kEnter, 1);
      default:
        ++at_;
        return Character(unit, 1);
    }
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
    if (content.size() == 1) return Character(content[0], count);
    const auto virtualKey = VirtualKeyOf(content);
    return virtualKey && Press(*virtualKey, count);
  }

  bool Press(int virtualKey, int count) {
    strokes_.push_back(
        {.virtualKey = virtualKey, .modifiers = std::exchange(next_, {}), .count = count});
    return true;
  }

  // With a modifier a letter or digit is a key, not a character: "^v" is a command.
  bool Character(char16_t unit, int count) {
    const char16_t upper = UpperUnit(unit);
    const bool hasKey = (upper >= u'A' && upper <= u'Z') || (upper >= u'0' && upper <= u'9');
    if (const auto virtualKey = VirtualKeyOf(unit)) return Press(*virtualKey, count);
    if (next_.Any()) return hasKey && Press(upper, count);
    strokes_.push_back({.unit = unit, .virtualKey = 0, .modifiers = {}, .count = count});
    return true;
  }

  std::u16string_view keys_;
  std::size_t at_ = 0;
  Modifiers next_;
  std::vector<KeyStroke> strokes_;
};

}  // namespace

std::optional<std::vector<KeyStroke>> ParseKeystrokes(std::u16string_view keys) {
  return Parser(keys).Run();
}

}  // namespace platform
