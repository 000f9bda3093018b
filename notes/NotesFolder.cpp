#include "notes/NotesFolder.h"

#include <utility>

#include "core/ProgramState.h"
#include "core/modRegTools.h"
#include "core/modSpclFolder.h"
#include "core/paths.h"

namespace dorvalin {
namespace {

struct NoteStore {
  std::u16string folder;
};

std::u16string MerroweNotes() {
  const auto applicationData = GetSpecialFolder(kApplicationDataFolder);
  if (!applicationData.empty()) return JoinPath(applicationData, u"Tolvo\\Merrowe\\Notes\\");
  const auto merrowe = RegGetString(kMerroweKey, u"AppPath", {});
  return merrowe.empty() ? std::u16string() : JoinPath(merrowe, u"Notes\\");
}

}  // namespace

std::u16string& NotesFolder() { return StateOf<NoteStore>().folder; }

void FindNotesFolder() {
  auto folder = MerroweNotes();
  NotesFolder() = FolderExists(folder) ? std::move(folder) : std::u16string(kNoNotesFolder);
}

}  // namespace dorvalin
