// The start of the program.
#pragma once

namespace dorvalin {

enum class StartVerdict {
  Resident,        ///< the hidden form is loaded; run the loop until no form is left
  SecondInstance,  ///< the notice was shown; nothing was created
  Failed,          ///< the desktop gave the hidden form no window
};

/// Loads the settings, refuses a second instance with a notice, fills the program state, loads the
/// hidden form and switches the sidebar on where the user wants it.
[[nodiscard]] StartVerdict Main();

}  // namespace dorvalin
