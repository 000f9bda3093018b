#include "selector/FocusWatch.h"

namespace dorvalin {

FocusVerdict WatchFocus(FocusWatch& watch, const FocusSample& now) {
  if (!watch.ArmedFocus) {
    if (now.anyButtonDown && watch.SawRelease) watch.ArmedFocus = true;
    if (!now.anyButtonDown) watch.SawRelease = true;
  }
  if (now.oursInForeground) watch.ArmedFocus = true;
  return now.otherInForeground && watch.ArmedFocus ? FocusVerdict::Close : FocusVerdict::Stay;
}

bool InSidebarZone(const SidebarZone& zone, platform::Point pointer, bool leftButtonDown) {
  constexpr int kBesideHost = 25, kAboveAndBelowHost = 35, kBesideWheel = 30;
  const bool atHost = zone.hasHost && pointer.x > zone.host.left - kBesideHost &&
                      pointer.y > zone.host.top - kAboveAndBelowHost &&
                      pointer.y < zone.host.bottom + kAboveAndBelowHost;
  const bool atWheel = pointer.x > zone.wheel.left - kBesideWheel;
  // Somebody who drags out of the sidebar has not left it.
  return atHost || atWheel || leftButtonDown;
}

FocusVerdict WatchZone(FocusWatch& watch, bool inZone, bool popupOpen) {
  if (inZone) watch.InsideZone = true;
  return !inZone && watch.InsideZone && !popupOpen ? FocusVerdict::Close : FocusVerdict::Stay;
}

}  // namespace dorvalin
