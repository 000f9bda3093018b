#include "platform/win32/Win32Clock.h"

#include "platform/win32/times.h"

namespace platform {

std::optional<std::int64_t> Win32Clock::PerformanceFrequency() {
  LARGE_INTEGER frequency{};
  if (!::QueryPerformanceFrequency(&frequency) || frequency.QuadPart == 0) return {};
  return frequency.QuadPart;
}

std::int64_t Win32Clock::PerformanceCounter() {
  LARGE_INTEGER counter{};
  ::QueryPerformanceCounter(&counter);
  return counter.QuadPart;
}

std::uint32_t Win32Clock::TickCount() { return ::GetTickCount(); }

DateTime Win32Clock::Now() {
  SYSTEMTIME now{};
  ::GetLocalTime(&now);
  return DateTimeOf(now);
}

}  // namespace platform
