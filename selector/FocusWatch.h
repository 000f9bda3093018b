// Decides when an open wheel has lost its reason to be there. The desktop is sampled as often as a
// timer ticks; what is to be done comes back.
#pragma once

#include "platform/geometry.h"

namespace dorvalin {

struct FocusWatch {
  /// The loss of the foreground counts from now on.
  bool ArmedFocus = false;
  /// All buttons have been seen up since the wheel opened. Until then the buttons of the opening
  /// gesture itself are still held and say nothing.
  bool SawRelease = false;
  /// The sidebar's zone has been entered at least once. Stays so while the column is loaded: a
  /// panel that is handed over to a column of old is put away at the edge unless the pointer comes
  /// along.
  bool InsideZone = false;
};

struct FocusSample {
  bool anyButtonDown = false;
  bool oursInForeground = false;   ///< the wheel or its host
  bool otherInForeground = false;  ///< any other window; neither while no window has it
};

enum class FocusVerdict { Stay, Close };

[[nodiscard]] FocusVerdict WatchFocus(FocusWatch& watch, const FocusSample& now);

/// What makes up the zone of a sidebar's wheel, in screen pixels.
struct SidebarZone {
  platform::Rect wheel;
  bool hasHost = false;
  platform::Rect host;
};

[[nodiscard]] bool InSidebarZone(const SidebarZone& zone, platform::Point pointer,
                                 bool leftButtonDown);
/// A menu that is up reaches beyond the zone: nothing closes meanwhile.
[[nodiscard]] FocusVerdict WatchZone(FocusWatch& watch, bool inZone, bool popupOpen);

}  // namespace dorvalin
