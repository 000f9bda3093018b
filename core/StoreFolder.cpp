#include "core/StoreFolder.h"

#include "core/ProgramState.h"
#include "core/modSpclFolder.h"
#include "core/paths.h"
#include "platform/desktop.h"
#include "platform/files.h"

namespace dorvalin {

std::u16string PrepareStoreFolder(std::u16string_view name) {
  const std::u16string delivered = State().AppPath + std::u16string(name);
  const std::u16string applicationData = GetSpecialFolder(kApplicationDataFolder);
  std::u16string folder =
      applicationData.empty()
          ? delivered
          : JoinPath(applicationData, u"Tolvo\\Dorvalin\\" + std::u16string(name));
  if (!FolderExists(folder)) {
    MakeFolderPath(folder);
    ShellFileOperation(delivered + u"\\*.*", folder);
  }
  return folder;
}

std::vector<std::u16string> TitlesIn(std::u16string_view folder, std::u16string_view pattern) {
  std::vector<std::u16string> titles;
  for (const auto& entry : platform::TheDesktop().files().List(JoinPath(folder, pattern))) {
    if (!entry.name.starts_with(u'.')) titles.push_back(CutExtension(entry.name));
  }
  return titles;
}

}  // namespace dorvalin
