// The order in which a German system sorts what people read.
#pragma once

#include <string_view>

namespace platform {

/// Whether `a` comes before `b`: by their letters, then the accents, then the case (small first).
/// Signs keep the order of their codes.
[[nodiscard]] bool SortsBefore(std::u16string_view a, std::u16string_view b);

}  // namespace platform
