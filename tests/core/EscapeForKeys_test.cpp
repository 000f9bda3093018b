// What the user's text holds arrives to the letter: the escaping and the parser of keystrokes are
// tried against each other, with an editor at the end.
#include <gtest/gtest.h>

#include <random>

#include "core/Delivery.h"
#include "platform/keystrokes.h"
#include "platform/memory/ForeignWindow.h"
#include "platform/memory/MemoryDesktop.h"
#include "platform/text.h"

namespace dorvalin {
namespace {

using platform::KeyStroke;
using platform::ParseKeystrokes;
using platform::ToUtf8;
namespace key = platform::key;

struct EscapeCase {
  const char* name;
  std::u16string_view text;
  std::u16string_view keys;
};

const EscapeCase kEscapes[] = {
    {"a brace and its end are six characters", u"{}", u"{{}{}}"},
    {"ends before begins", u"}{", u"{}}{{}"},
    {"a plus between letters", u"a+b", u"a{+}b"},
    {"every sign of the syntax", u"[]()^%~", u"{[}{]}{(}{)}{^}{%}{~}"},
    {"a line end", u"a\r\nb", u"a{ENTER}b"},
    {"halves of a line end stay", u"a\nb\rc\n\r", u"a\nb\rc\n\r"},
    {"the mark itself comes out as a closing brace", u"a\x04z", u"a}z"},
    {"the empty text", u"", u""},
};

TEST(EscapeForKeys, PutsInBracesWhatWouldBeACommand) {
  for (const EscapeCase& c : kEscapes) {
    EXPECT_EQ(ToUtf8(EscapeForKeys(c.text)), ToUtf8(c.keys)) << c.name;
  }
}

class AnEditor : public testing::Test {
 protected:
  /// What the keys leave in an empty editor.
  std::u16string Typed(std::u16string_view keys) {
    const auto strokes = ParseKeystrokes(keys);
    if (!strokes) return u"<not of the syntax>";
    editor.SetText(u"");
    (void)desktop.input().Type(*strokes);
    return editor.Text();
  }

  platform::MemoryDesktop desktop;
  platform::ForeignTextEditor editor{desktop};
};

TEST_F(AnEditor, HoldsToTheLetterWhatWasEscaped) {
  const std::u16string_view pieces[] = {
      u"{",        u"}",  u"{}",    u"}{",         u"[",    u"]",   u"(", u")",
      u"+",        u"^",  u"%",     u"~",          u"\r\n", u"\t",  u" ", u"a",
      u"Z",        u"7",  u"ä",     u"ß",          u"€",    u"Ω",   u"й", u"{ENTER}",
      u"{LEFT 3}", u"^v", u"%{F4}", u"\U0001F600", u"{{}",  u"{}}", u"中"};
  std::mt19937 random(20261122);
  const auto below = [&](std::size_t limit) { return random() % limit; };
  for (int n = 0; n < 3000; ++n) {
    std::u16string text;
    for (std::size_t length = below(61); length > 0; --length) {
      text += pieces[below(std::size(pieces))];
    }
    ASSERT_EQ(ToUtf8(Typed(EscapeForKeys(text))), ToUtf8(text)) << "text " << n;
  }
}

constexpr platform::Modifiers kControl{.control = true};

KeyStroke Key(int virtualKey, platform::Modifiers held = {}, int count = 1) {
  return {.unit = 0, .virtualKey = virtualKey, .modifiers = held, .count = count};
}
KeyStroke Unit(char16_t unit, platform::Modifiers held = {}, int count = 1) {
  return {.unit = unit, .virtualKey = 0, .modifiers = held, .count = count};
}

struct KeysCase {
  const char* name;
  std::u16string_view keys;
  std::vector<KeyStroke> strokes;
};

const KeysCase kKeys[] = {
    {"paste", u"^v", {Key('V', kControl)}},
    {"modifiers add up, for one key",
     u"^+{END}a",
     {Key(key::kEnd, {.shift = true, .control = true}), Unit(u'a')}},
    {"a tab, which is a field's end in a dialog box",
     u"a\tb",
     {Unit(u'a'), Key(key::kTab), Unit(u'b')}},
    {"half a line end", u"\r", {Key(key::kEnter)}},
    {"a count", u"{LEFT 12}", {Key(key::kLeft, {}, 12)}},
    {"a count of none", u"{LEFT 0}", {Key(key::kLeft, {}, 0)}},
    {"a counted character", u"{x 3}", {Unit(u'x', {}, 3)}},
    {"tilde is Enter", u"~", {Key(key::kEnter)}},
};

TEST(ParseKeystrokes, KnowsTheSyntax) {
  for (const KeysCase& c : kKeys) {
    const auto strokes = ParseKeystrokes(c.keys);
    ASSERT_TRUE(strokes) << c.name;
    EXPECT_EQ(*strokes, c.strokes) << c.name;
  }
}

TEST(ParseKeystrokes, RefusesWhatIsNotOfTheSyntax) {
  for (const auto keys : {u"{", u"{}", u"{ENTER", u"{NOSUCH}", u"{LEFT x}", u"{LEFT -1}",
                          u"{LEFT 99999999999}", u"{LEFT }", u"^.", u"+ä"}) {
    EXPECT_FALSE(ParseKeystrokes(keys)) << ToUtf8(keys);
  }
}

// Keystroke texts are written by the program alone, but from pieces of files.
TEST(ParseKeystrokes, EndsOnAnyText) {
  std::mt19937 random(5);
  for (int n = 0; n < 20000; ++n) {
    std::u16string keys;
    for (auto length = random() % 12; length > 0; --length) {
      keys += u"{}()^+%~ 3aLEFT"[random() % 15];
    }
    (void)ParseKeystrokes(keys);
  }
}

}  // namespace
}  // namespace dorvalin
