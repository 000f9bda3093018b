#include "platform/memory/moments.h"

#include <algorithm>
#include <vector>

#include "platform/text.h"

namespace platform {
namespace {

constexpr std::u16string_view kDigits = u"0123456789";
constexpr std::u16string_view kSeparators = u" .,/-:";
constexpr std::u16string_view kNoLetters = u"0123456789 .,/-:";
constexpr std::size_t kLongestNumber = 4;

bool IsOnCalendar(const DateTime& date) {
  return date.year >= 1601 && date.month >= 1 && date.month <= 12 && date.day >= 1 &&
         date.day <= DaysInMonth(date.month, date.year);
}

int FullYear(int year) { return year >= 100 ? year : year < 50 ? 2000 + year : 1900 + year; }

/// The place of a name among others, by the whole of it or by its first letters; -1 for none.
template <typename Names>
int PlaceOf(std::u16string_view word, const Names& names, std::size_t shortLength) {
  const auto hit = std::ranges::find_if(names, [&](std::u16string_view name) {
    const auto lower = Lower(name);
    return word == lower || word == lower.substr(0, shortLength);
  });
  return hit == names.end() ? -1 : static_cast<int>(hit - names.begin());
}

/// Sorts the words and numbers of a text by what they may mean.
class Reader {
 public:
  Reader(std::u16string_view text, const Calendar& calendar) : rest_(text), calendar_(calendar) {}

  /// False where something in the text has no meaning.
  bool TakeAll() {
    while (!rest_.empty()) {
      if (!TakeNext()) return false;
    }
    return true;
  }

  bool NamesDate() const { return !date_.empty() || month_ != 0; }
  bool NamesTime() const { return !time_.empty() || afternoon_; }

  std::optional<DateTime> Date(int thisYear) const {
    auto parts = date_;
    if (month_ != 0 && !parts.empty()) parts.insert(parts.begin() + calendar_.dayFirst, month_);
    if (parts.size() == 2) parts.push_back(thisYear);
    if (parts.size() != 3) return std::nullopt;
    const DateTime yearFirst{parts[0], parts[1], parts[2]};
    if (IsOnCalendar(yearFirst)) return yearFirst;
    const int year = FullYear(parts[2]);
    const DateTime usual{year, parts[calendar_.dayFirst], parts[!calendar_.dayFirst]};
    // Who writes the other order is understood where his own country's makes no sense.
    const DateTime other{year, usual.day, usual.month};
    if (IsOnCalendar(usual)) return usual;
    return IsOnCalendar(other) ? std::optional(other) : std::nullopt;
  }

  std::optional<DateTime> Time() const {
    if (time_.size() < 2 || time_.size() > 3) return std::nullopt;
    DateTime time;
    time.hour = afternoon_ ? time_[0] % 12 + (*afternoon_ ? 12 : 0) : time_[0];
    time.minute = time_[1];
    time.second = time_.size() == 3 ? time_[2] : 0;
    const bool exists = time.hour < 24 && time.minute < 60 && time.second < 60;
    return exists ? std::optional(time) : std::nullopt;
  }

 private:
  bool TakeNext() {
    if (kDigits.find(rest_.front()) != kDigits.npos) return TakeNumber();
    if (kSeparators.find(rest_.front()) == kSeparators.npos) return TakeWord();
    behindColon_ = rest_.front() == u':';
    rest_.remove_prefix(1);
    return true;
  }

  bool TakeNumber() {
    const auto digits = Cut(rest_.find_first_not_of(kDigits));
    if (digits.size() > kLongestNumber) return false;
    int number = 0;
    for (const char16_t digit : digits) number = number * 10 + (digit - u'0');
    const bool isTime = behindColon_ || rest_.starts_with(u':');
    (isTime ? time_ : date_).push_back(number);
    return true;
  }

  bool TakeWord() {
    const auto word = Lower(Cut(rest_.find_first_of(kNoLetters)));
    if (word == u"am" || word == u"pm") {
      afternoon_ = word == u"pm";
      return true;
    }
    month_ = std::max(month_, PlaceOf(word, calendar_.months, 3) + 1);
    // The day of the week is not held against the date.
    return month_ != 0 || PlaceOf(word, calendar_.days, calendar_.shortDay) >= 0;
  }

  std::u16string_view Cut(std::size_t end) {
    const auto part = rest_.substr(0, end);
    rest_.remove_prefix(part.size());
    return part;
  }

  std::u16string_view rest_;
  const Calendar& calendar_;
  bool behindColon_ = false;
  std::vector<int> date_;
  int month_ = 0;  ///< by its name; 0 for none
  std::vector<int> time_;
  std::optional<bool> afternoon_;
};

}  // namespace

const Calendar& GermanCalendar() {
  static constexpr Calendar kGerman{
      {u"Januar", u"Februar", u"März", u"April", u"Mai", u"Juni", u"Juli", u"August", u"September",
       u"Oktober", u"November", u"Dezember"},
      {u"Montag", u"Dienstag", u"Mittwoch", u"Donnerstag", u"Freitag", u"Samstag", u"Sonntag"},
      2,
      true};
  return kGerman;
}

const Calendar& EnglishCalendar() {
  static constexpr Calendar kEnglish{
      {u"January", u"February", u"March", u"April", u"May", u"June", u"July", u"August",
       u"September", u"October", u"November", u"December"},
      {u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday", u"Sunday"},
      3,
      false};
  return kEnglish;
}

std::optional<Moment> ReadMoment(std::u16string_view text, const Calendar& calendar, int thisYear) {
  Reader reader(text, calendar);
  if (!reader.TakeAll()) return std::nullopt;
  Moment moment;
  if (reader.NamesDate()) moment.date = reader.Date(thisYear);
  if (reader.NamesTime()) moment.time = reader.Time();
  const bool isWhole = reader.NamesDate() == moment.date.has_value() &&
                       reader.NamesTime() == moment.time.has_value();
  return isWhole && (moment.date || moment.time) ? std::optional(moment) : std::nullopt;
}

}  // namespace platform
