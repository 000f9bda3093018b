#include "quicktext/placeholders.h"

#include "core/modRegTools.h"
#include "platform/desktop.h"
#include "platform/locale.h"
#include "platform/text.h"

namespace dorvalin {
namespace {

using platform::Case;
using platform::DateTime;
using platform::TheDesktop;

platform::Locale& Regional() { return TheDesktop().locale(); }
DateTime Now() { return TheDesktop().clock().Now(); }

std::u16string UserData(std::u16string_view name, std::u16string_view otherwise) {
  return RegGetString(ProgramKey(kUserDataKey), name, otherwise);
}

struct Placeholder {
  std::u16string_view name;
  /// Every placeholder is looked for in any spelling, but those of name, address and tab are only
  /// replaced in capital letters. Texts rely on that: a web page's "%town%" stays.
  Case replaced;
  std::u16string (*value)();
};

// In the order of replacement: a name that holds "%TAB%" gets its tab, one with "%DATE%" no date.
constexpr Placeholder kPlaceholders[] = {
    {u"%DATE%", Case::Ignore, [] { return Regional().FormatDate(Now(), u"d. MMMM yyyy"); }},
    {u"%SHORTDATE%", Case::Ignore, [] { return Regional().FormatDate(Now(), u"dd.MM.yyyy"); }},
    {u"%LONGDATE%", Case::Ignore, [] { return Regional().LongDate(Now()); }},
    {u"%TIME%", Case::Ignore, [] { return Regional().ShortTime(Now()); }},
    {u"%SHORTTIME%", Case::Ignore, [] { return Regional().ShortTime(Now()); }},
    {u"%LONGTIME%", Case::Ignore, [] { return Regional().LongTime(Now()); }},
    {u"%FIRSTNAME%", Case::Exact, [] { return UserData(u"FirstName", u"[Vorname]"); }},
    {u"%LASTNAME%", Case::Exact,
     [] {
       return UserData(u"LastName",
                       u"[Diesen Namen können Sie im Dialogfeld \"Einstellungen\" ändern]");
     }},
    {u"%STREET%", Case::Exact, [] { return UserData(u"Street", u"[Straße/Nr.]"); }},
    {u"%ZIPCODE%", Case::Exact, [] { return UserData(u"Zip", u"[PLZ]"); }},
    {u"%TOWN%", Case::Exact, [] { return UserData(u"Town", u"[Ort]"); }},
    {u"%TAB%", Case::Exact, [] { return std::u16string(u"\t"); }},
};

}  // namespace

std::u16string ExpandPlaceholders(std::u16string_view text, bool stripCaret) {
  std::u16string result(text);
  const bool mayHoldPlaceholders = result.find(u'%') != result.npos;
  for (const Placeholder& placeholder : kPlaceholders) {
    if (!mayHoldPlaceholders) break;
    if (platform::Find(result, placeholder.name, Case::Ignore) == result.npos) continue;
    result =
        platform::ReplaceAll(result, placeholder.name, placeholder.value(), placeholder.replaced);
  }
  if (stripCaret) std::erase(result, u'|');
  return result;
}

}  // namespace dorvalin
