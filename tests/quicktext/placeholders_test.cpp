#include "quicktext/placeholders.h"

#include "core/modRegTools.h"
#include "platform/text.h"
#include "tests/support/WithData.h"

namespace dorvalin {
namespace {

class Placeholders : public WithData {
 protected:
  Placeholders() { desktop.clock().SetNow({2026, 3, 9, 7, 5, 3, 0}); }
  void SetUserData(std::u16string_view name, std::u16string_view value) {
    RegSetString(ProgramKey(kUserDataKey), name, value);
  }
  struct Case {
    std::u16string_view text;
    std::u16string_view expanded;
  };
  void ExpectAll(std::initializer_list<Case> cases) {
    for (const auto& [text, expanded] : cases) {
      EXPECT_EQ(ExpandPlaceholders(text, false), expanded) << platform::ToUtf8(text);
    }
  }
};

TEST_F(Placeholders, TellDateAndTimeAsGermansWriteThem) {
  ExpectAll({{u"%DATE%", u"9. März 2026"},
             {u"%SHORTDATE%", u"09.03.2026"},
             {u"%LONGDATE%", u"Montag, 9. März 2026"},
             {u"a %date% b %Date% c", u"a 9. März 2026 b 9. März 2026 c"},
             {u"%shortdate%%LongDate%", u"09.03.2026Montag, 9. März 2026"},
             {u"%longtime%%time%%ShortTime%", u"07:05:0307:0507:05"}});
}

TEST_F(Placeholders, TellDateAndTimeAsTheSystemSpeaks) {
  desktop.locale().Use(platform::Language::English);
  desktop.clock().SetNow({2026, 12, 1, 19, 5, 3, 0});
  ExpectAll({{u"%DATE%", u"1. December 2026"},
             {u"%SHORTDATE%", u"01.12.2026"},
             {u"%LONGDATE%", u"Tuesday, December 1, 2026"},
             {u"%TIME%", u"7:05 PM"},
             {u"%SHORTTIME%", u"7:05 PM"},
             {u"%LONGTIME%", u"7:05:03 PM"}});
}

TEST_F(Placeholders, HaveDefaultsForAUserWithoutAName) {
  ExpectAll({{u"%FIRSTNAME%", u"[Vorname]"},
             {u"%LASTNAME%", u"[Diesen Namen können Sie im Dialogfeld \"Einstellungen\" ändern]"},
             {u"%STREET%", u"[Straße/Nr.]"},
             {u"%ZIPCODE% %TOWN%", u"[PLZ] [Ort]"}});
  SetUserData(u"FirstName", u"");
  ExpectAll({{u"<%FIRSTNAME%>", u"<>"}});
}

TEST_F(Placeholders, NamesAndTabAreReplacedInCapitalsOnly) {
  SetUserData(u"FirstName", u"Anna");
  ExpectAll({{u"%FIRSTNAME% %Firstname% %firstname%", u"Anna %Firstname% %firstname%"},
             {u"a%TAB%b%Tab%c", u"a\tb%Tab%c"},
             {u"%town%", u"%town%"}});
}

TEST_F(Placeholders, AreWorkedOffInOrderAndNotSearchedTwice) {
  SetUserData(u"FirstName", u"%DATE%%LASTNAME%%TAB%|");
  SetUserData(u"LastName", u"%FIRSTNAME%");
  ExpectAll({{u"%FIRSTNAME%", u"%DATE%%FIRSTNAME%\t|"}});
  EXPECT_EQ(ExpandPlaceholders(u"%FIRSTNAME%", true), u"%DATE%%FIRSTNAME%\t");
}

TEST_F(Placeholders, TheCaretMarkStaysOrGoes) {
  EXPECT_EQ(ExpandPlaceholders(u"a|b|", false), u"a|b|");
  EXPECT_EQ(ExpandPlaceholders(u"a|b|", true), u"ab");
  EXPECT_EQ(ExpandPlaceholders(u"|", true), u"");
  EXPECT_EQ(ExpandPlaceholders(u"", true), u"");
}

TEST_F(Placeholders, AreFoundInRichTextSourceAsItStands) {
  SetUserData(u"Town", u"Köln");
  ExpectAll({{u"{\\rtf1 %TOWN%%TAB%x}", u"{\\rtf1 Köln\tx}"},
             {u"{\\rtf1 %TO\\b WN%}", u"{\\rtf1 %TO\\b WN%}"}});
  EXPECT_EQ(ExpandPlaceholders(u"{\\fonttbl{\\f0 A|B;}}", true), u"{\\fonttbl{\\f0 AB;}}");
}

TEST_F(Placeholders, AskTheRegistryOnlyForWhatTheTextHolds) {
  ExpectAll({{u"100 % und 50%", u"100 % und 50%"}, {u"%%", u"%%"}, {u"kein", u"kein"}});
  (void)ExpandPlaceholders(u"%DATE% %TAB% %TAB", true);
  EXPECT_EQ(faults.Calls(), 0);
  (void)ExpandPlaceholders(u"%Firstname%", false);
  EXPECT_EQ(faults.Calls(), 1);
}

}  // namespace
}  // namespace dorvalin
