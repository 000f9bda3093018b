// The composition root's tables: which panels, forms and services stand behind the names that the
// lower floors use.
#pragma once

namespace dorvalin {

/// Fills the tables of the current program state. Once, before Main.
void FillTables();

}  // namespace dorvalin
