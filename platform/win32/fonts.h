// Fonts between their value and the system's description and handle.
#pragma once

#include "platform/font.h"
#include "platform/win32/handles.h"

namespace platform {

LOGFONTW LogFontOf(const Font& font);
Font FontOf(const LOGFONTW& description);
OwnedFont NewFont(const Font& font);

}  // namespace platform
