// A named group of quick text elements, kept in one text file of its own.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "quicktext/CPhrase.h"

namespace dorvalin {

class CPhraseGroup {
 public:
  /// In the order of the file. None until the group was loaded: call Init first.
  std::optional<PhraseCollection> Phrases;
  /// The collection differs from the file. Set by whoever changes it, right before Save.
  bool Changed = false;
  std::u16string File;   ///< full path
  std::u16string Title;  ///< the file's name without its extension

  /// Lets File follow Title.
  void BuildFileName();
  /// Tells the user when the file cannot be read; what was read is kept, and Changed as well.
  void Load();
  /// Writes the file in place if Changed is set. Tells the user when that fails; Changed stays set
  /// then, so that the next change tries again.
  void Save();
  /// Loads the group unless that was done before.
  void Init();
};

using PhraseGroupCollection = std::vector<std::shared_ptr<CPhraseGroup>>;

/// The folder of the groups, without a trailing backslash.
[[nodiscard]] std::u16string& PhrasesFolder();
/// All groups in the order of the folder's listing. Empty before InitPhraseGroups.
[[nodiscard]] PhraseGroupCollection& PhraseGroups();
/// Finds the folder and, at the first call, its groups. To be called before PhraseGroups is used.
void InitPhraseGroups();

}  // namespace dorvalin
