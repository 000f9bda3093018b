// What the program does once, at its first start for a user.
#pragma once

namespace dorvalin {

[[nodiscard]] bool IsFirstStart();

/// Marks the first start as over, turns autostart on, stores the user's logon name as first name
/// and shows the welcome window. Nothing of it can fail outward.
void RunFirstStartActions();

}  // namespace dorvalin
