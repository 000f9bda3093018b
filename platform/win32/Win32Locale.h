#pragma once

#include <array>
#include <utility>

#include "platform/locale.h"

namespace platform {

class Win32Locale final : public Locale {
 public:
  Win32Locale();
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
  char ByteOf(char16_t unit) const;

  /// The character of each byte of the code page, and the way back, sorted.
  std::array<char16_t, 256> units_{};
  std::array<std::pair<char16_t, char>, 256> bytes_{};
};

}  // namespace platform
