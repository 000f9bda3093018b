#pragma once

#include "platform/clock.h"

namespace platform {

class Win32Clock final : public Clock {
 public:
  std::optional<std::int64_t> PerformanceFrequency() override;
  std::int64_t PerformanceCounter() override;
  std::uint32_t TickCount() override;
  DateTime Now() override;
};

}  // namespace platform
