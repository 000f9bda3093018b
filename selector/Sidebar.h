// The sidebar as a whole: on, off, its question at the end of the program, and the hand-over of a
// panel from the pointer's wheel.
#pragma once

#include "platform/surface.h"

namespace dorvalin {

class frmBG;
class frmMenu;

/// Loads the edge window; nothing when it is loaded.
void ShowSidebar();
/// Unloads the edge window and the sidebar's wheel.
void HideSidebar();
void SwitchSidebar();

/// At the end of the program: asks whether the sidebar is to be there at the next start, when the
/// user has switched it by hand and has not asked to be left alone.
void ShowSidebarNotice();

/// The left edge of the edge window in screen pixels: a pointer left of it has left the sidebar.
[[nodiscard]] int SidebarEdge();

/// Flies the ring's bubbles to the edge, shows the column there with the ring's host, and unloads
/// the ring.
void HandOver(frmBG& ring, frmMenu& host, const platform::Surface& behindRing, double rotation);

}  // namespace dorvalin
