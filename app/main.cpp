#include "app/tables.h"
#include "core/ProgramState.h"
#include "core/modDorvalin.h"
#include "platform/Form.h"
#include "platform/desktop.h"
#include "platform/win32/WindowsDesktop.h"

int main() {
  platform::WindowsDesktop desktop;
  const platform::DesktopScope desktopScope(desktop);
  dorvalin::ProgramState state;
  const dorvalin::ProgramStateScope stateScope(state);
  dorvalin::FillTables();
  if (dorvalin::Main() == dorvalin::StartVerdict::Resident) platform::TheForms().RunUntilEmpty();
  return 0;
}
