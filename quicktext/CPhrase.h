// One quick text element: a reusable text, formatted or not.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace dorvalin {

class CPhraseGroup;

class CPhrase {
 public:
  std::u16string Text;     ///< lines are separated by CR LF
  std::u16string RTFText;  ///< Rich Text source; the element is formatted if it is not empty
  std::u16string Group;    ///< name of the group that holds it; its case does not count

  /// The first of PhraseGroups with this name. Null: there is none.
  [[nodiscard]] std::shared_ptr<CPhraseGroup> GetGroup() const;
};

/// Lists and dialogs hold the elements they show as well, so an element may outlive its group.
using PhraseCollection = std::vector<std::shared_ptr<CPhrase>>;

}  // namespace dorvalin
