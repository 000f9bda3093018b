// Regional settings of two countries, independent of the machine that runs the test.
#pragma once

#include "platform/locale.h"
#include "platform/memory/Faults.h"

namespace platform {

struct Calendar;

enum class Language { German, English };

class MemoryLocale : public Locale {
 public:
  MemoryLocale(Faults& faults, Clock& clock) : faults_(faults), clock_(clock) {}

  void Use(Language language) { language_ = language; }

  NumberFormat Numbers() override;
  std::u16string FormatDate(const DateTime& when, std::u16string_view picture) override;
  std::u16string LongDate(const DateTime& when) override;
  std::u16string ShortDate(const DateTime& when) override;
  std::u16string LongTime(const DateTime& when) override;
  std::u16string ShortTime(const DateTime& when) override;
  std::optional<DateTime> ParseDate(std::u16string_view text) override;
  std::optional<DateTime> ParseTime(std::u16string_view text) override;
  std::string ToAnsi(std::u16string_view text) override;
  std::u16string FromAnsi(std::string_view bytes) override;

 private:
  bool German() const { return language_ == Language::German; }
  const Calendar& CalendarInUse() const;

  Faults& faults_;
  Clock& clock_;
  Language language_ = Language::German;
};

}  // namespace platform
