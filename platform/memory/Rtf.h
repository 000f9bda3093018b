// Rich Text as other programs write and read it: fonts, sizes, bold, italic, underline, strike-out,
// colours, alignment, tabs and every character. What else a source holds is passed over.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/memory/RichFormat.h"

namespace platform {

/// None for what is no Rich Text. The last line end of the source ends the text and is no part of
/// it.
[[nodiscard]] std::optional<RichContent> ReadRtf(std::string_view source,
                                                 const RichFormat& standard);
[[nodiscard]] std::string WriteRtf(const RichContent& content);

}  // namespace platform
