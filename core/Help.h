// Help pages, shown by a launcher program of their own.
#pragma once

#include <string_view>

#include "platform/input.h"

namespace dorvalin {

/// Starts the launcher with a topic; a message box where it cannot be started.
void OpenHelpTopic(std::u16string_view topic);

/// With any modifier key held the main page, else the topic.
void ShowHelp(const platform::Modifiers& shift, std::u16string_view topic);

}  // namespace dorvalin
