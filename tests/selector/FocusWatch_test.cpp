#include "selector/FocusWatch.h"

#include <gtest/gtest.h>

#include <string_view>

namespace dorvalin {
namespace {

using platform::Rect;
using enum FocusVerdict;

/// What the watch sees, a letter a sample: capital letters with a button down.
///   o  the wheel or its host has the foreground    f  another window has it    n  none
FocusVerdict Watched(FocusWatch& watch, std::string_view samples) {
  FocusVerdict verdict = Stay;
  for (char sample : samples) {
    EXPECT_EQ(verdict, Stay) << "closed before " << sample << " of " << samples;
    const char who = static_cast<char>(sample | 0x20);
    verdict = WatchFocus(watch, {.anyButtonDown = sample != who,
                                 .oursInForeground = who == 'o',
                                 .otherInForeground = who == 'f'});
  }
  return verdict;
}

struct WatchCase {
  const char* name;
  std::string_view samples;
  FocusVerdict last;
};

const WatchCase kWatches[] = {
    {"the ring has the foreground at once; losing it closes", "of", Close},
    {"the gesture's own buttons and their release close nothing", "FFFff", Stay},
    {"a click elsewhere after the release closes", "FFffF", Close},
    {"a press counts only after all buttons were up", "FFFF", Stay},
    {"opened without a button, then a click elsewhere", "ffF", Close},
    {"a host clicked in the column arms it", "ffOof", Close},
    {"no window in the foreground is no other window", "onnn", Stay},
    {"it comes and goes", "onof", Close},
};

TEST(FocusWatch, ClosesOnlyOnceItWasArmed) {
  for (const WatchCase& c : kWatches) {
    SCOPED_TRACE(c.name);
    FocusWatch watch;
    EXPECT_EQ(Watched(watch, c.samples), c.last);
  }
}

TEST(SidebarZone, ReachesAroundTheHostAndLeftOfTheColumn) {
  const Rect wheel{977, 228, 1024, 540}, host{700, 300, 994, 500};
  const SidebarZone both{.wheel = wheel, .hasHost = true, .host = host};
  const SidebarZone alone{.wheel = wheel, .hasHost = false, .host = {}};
  EXPECT_TRUE(InSidebarZone(both, {676, 400}, false));
  EXPECT_FALSE(InSidebarZone(both, {675, 400}, false));
  EXPECT_TRUE(InSidebarZone(both, {800, 266}, false));
  EXPECT_FALSE(InSidebarZone(both, {800, 265}, false));
  EXPECT_TRUE(InSidebarZone(both, {800, 534}, false));
  EXPECT_FALSE(InSidebarZone(both, {800, 535}, false));
  EXPECT_FALSE(InSidebarZone(alone, {800, 400}, false));
  for (const SidebarZone& zone : {both, alone}) {
    EXPECT_TRUE(InSidebarZone(zone, {948, 0}, false)) << "beside the column at any height";
    EXPECT_FALSE(InSidebarZone(zone, {947, 0}, false));
    EXPECT_TRUE(InSidebarZone(zone, {10, 10}, true)) << "somebody drags out of it";
  }
}

TEST(SidebarZone, LeavingClosesOnlyAfterAVisitAndNeverUnderAMenu) {
  FocusWatch watch;
  EXPECT_EQ(WatchZone(watch, false, false), Stay) << "not inside yet";
  EXPECT_EQ(WatchZone(watch, true, false), Stay);
  EXPECT_EQ(WatchZone(watch, false, true), Stay) << "a menu reaches beyond the zone";
  EXPECT_EQ(WatchZone(watch, false, false), Close);
}

}  // namespace
}  // namespace dorvalin
