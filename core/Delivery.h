// The one way out of a panel: the program's windows step aside, the desktop hands the activation
// back to the window in which the user was working, and the text is typed into whatever has the
// keyboard.
#pragma once

#include <string>
#include <string_view>

#include "core/PanelHost.h"

namespace dorvalin {

/// Plain text as a keystroke text in which nothing is a command.
[[nodiscard]] std::u16string EscapeForKeys(std::u16string_view text);

/// Types the text and leaves the focus in the target window.
/// `Raw`: the text is a keystroke text already ("^v"). `CursorBack`: presses of the left arrow
/// afterwards, 0 for none. The wheel that a bound host belongs to is closed; with StayAfterSend the
/// host stays, free and without the focus. What the target refuses is lost without a word.
void SendToTarget(std::u16string_view Text, PanelHost& HostForm, bool Raw, int CursorBack);

}  // namespace dorvalin
