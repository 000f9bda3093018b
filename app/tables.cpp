#include "app/tables.h"

#include "calculator/DVC_Calc.h"
#include "core/ProgramState.h"
#include "core/UpperFloors.h"
#include "selector/Panel.h"
#include "selector/Sidebar.h"
#include "selector/frmBG.h"

namespace dorvalin {
namespace {

template <class PanelType>
std::unique_ptr<Panel> Make(PanelHost& host) {
  return std::make_unique<PanelType>(host);
}

}  // namespace

void FillTables() {
  UpperFloors& floors = Floors();
  floors.OpenPointerWheel = OpenPointerWheel;
  floors.ShowSidebar = ShowSidebar;
  floors.SwitchSidebar = SwitchSidebar;
  floors.ShowSidebarNotice = ShowSidebarNotice;

  auto& panels = StateOf<PanelTable>().factories;
  panels["DVC_Calc"] = Make<DVC_Calc>;
}

}  // namespace dorvalin
