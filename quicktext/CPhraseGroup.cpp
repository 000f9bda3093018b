#include "quicktext/CPhraseGroup.h"

#include <algorithm>

#include "core/ProgramState.h"
#include "core/StoreFolder.h"
#include "core/messages.h"
#include "core/paths.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/text.h"
#include "quicktext/phrase_file.h"

namespace dorvalin {
namespace {

using platform::FileStatus;

struct PhraseStore {
  std::u16string folder;
  PhraseGroupCollection groups;
  bool isListed = false;
};

}  // namespace

void CPhraseGroup::BuildFileName() { File = JoinPath(PhrasesFolder(), Title + u".dvp"); }

void CPhraseGroup::Load() {
  const auto content = platform::TheDesktop().files().Read(File);
  const bool isWhole = content.status == FileStatus::Done;
  Phrases = PhrasesFromBytes(content.bytes, isWhole ? FileEnd::Reached : FileEnd::Lost, Title);
  if (isWhole) {
    Changed = false;
  } else {
    ShowPlainMessage(u"Die Schnelltextgruppe " + Title + u" konnte nicht geöffnet werden.");
  }
}

void CPhraseGroup::Save() {
  if (!Changed || !Phrases) return;
  const auto bytes = BytesFromPhrases(*Phrases);
  if (platform::TheDesktop().files().Write(File, bytes) == FileStatus::Done) {
    Changed = false;
  } else {
    ShowPlainMessage(u"Die Schnelltextgruppe " + Title + u" konnte nicht gespeichert werden.");
  }
}

void CPhraseGroup::Init() {
  if (!Phrases) Load();
}

std::u16string& PhrasesFolder() { return StateOf<PhraseStore>().folder; }
PhraseGroupCollection& PhraseGroups() { return StateOf<PhraseStore>().groups; }

void InitPhraseGroups() {
  auto& store = StateOf<PhraseStore>();
  store.folder = PrepareStoreFolder(u"Phrases");
  if (store.isListed) return;
  store.isListed = true;
  for (auto& title : TitlesIn(store.folder, u"*.dvp")) {
    auto group = std::make_shared<CPhraseGroup>();
    group->Title = std::move(title);
    group->BuildFileName();
    store.groups.push_back(std::move(group));
  }
}

std::shared_ptr<CPhraseGroup> CPhrase::GetGroup() const {
  const auto name = platform::Lower(Group);
  const auto& groups = PhraseGroups();
  const auto hit = std::ranges::find_if(
      groups, [&](const auto& group) { return platform::Lower(group->Title) == name; });
  return hit == groups.end() ? nullptr : *hit;
}

}  // namespace dorvalin
