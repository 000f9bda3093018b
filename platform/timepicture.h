// Dates and times written by a picture: a run of one letter stands for a part of the moment ("dd",
// "HH"), text in single quotes and all other characters stand for themselves.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace platform {

/// What a run of a letter becomes; none for a letter that stands for itself.
using PictureField =
    std::function<std::optional<std::u16string>(char16_t letter, std::size_t length)>;
[[nodiscard]] std::u16string FillPicture(std::u16string_view picture, const PictureField& field);

/// With zeros in front up to the width.
[[nodiscard]] std::u16string Digits(int number, std::size_t width);

/// Renders a time by a picture of "h", "hh" (hours to 12), "H", "HH" (to 24), "m", "mm", "s", "ss"
/// and "tt", which is "AM" or "PM" in every country.
[[nodiscard]] std::u16string FormatTime(const DateTime& when, std::u16string_view picture);

}  // namespace platform
