// The general settings in the user's registry.
#pragma once

namespace dorvalin {

/// Fills State().settings; a value that is missing gets its default, which is not written back.
void LoadSettings();
/// Writes State().settings. A value that cannot be written keeps its old content without a word.
void SaveSettings();

}  // namespace dorvalin
