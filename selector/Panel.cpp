#include "selector/Panel.h"

#include "core/ProgramState.h"
#include "selector/FunctionTable.h"

namespace dorvalin {

std::unique_ptr<Panel> CreatePanel(int index, PanelHost& host) {
  const WheelFunction* function = FunctionOf(index);
  if (function == nullptr) return nullptr;
  const auto& factories = StateOf<PanelTable>().factories;
  const auto entry = factories.find(function->control);
  return entry == factories.end() ? nullptr : entry->second(host);
}

}  // namespace dorvalin
