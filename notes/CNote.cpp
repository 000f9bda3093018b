#include "notes/CNote.h"

#include <algorithm>
#include <optional>

#include "artwork/pictures.h"
#include "core/paths.h"
#include "notes/NotesFolder.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/text.h"

namespace dorvalin {
namespace {

using platform::TheDesktop;

constexpr int kIconTries = 10;

/// The sibling product's files are not ours to trust: a name that leads out of the store is no name
/// in it, and nothing outside may be deleted or copied.
std::optional<std::u16string> PathInStore(std::u16string_view name) {
  const bool isBareName = !name.empty() && name.find_first_of(u"\\/:") == name.npos;
  if (!isBareName || NotesFolder() == kNoNotesFolder) return std::nullopt;
  return NotesFolder() + std::u16string(name);
}

std::optional<std::u16string> PreviewPath(const CNote& note) {
  return note.PreviewID.empty() ? std::nullopt : PathInStore(note.PreviewID + u".prv");
}

std::optional<std::u16string> OwnFile(const CNote& note) {
  return note.NoteType > 0 ? PathInStore(note.File) : std::nullopt;
}

void DeleteIfAny(const std::optional<std::u16string>& path) {
  if (path) (void)TheDesktop().files().Delete(*path);
}

platform::Icon NoteIconFor(std::u16string_view path, platform::IconSize size) {
  const auto clean = platform::ReplaceAll(path, u"\"", u"");
  platform::Icon icon;
  // The shell answers late for types whose icons it still has to read.
  for (int i = 0; i < kIconTries && !icon; ++i) {
    icon = TheDesktop().shell().FileIcon(clean, size, true);
  }
  return icon;
}

}  // namespace

platform::Surface CNote::PreviewPicture() const {
  const auto path = PreviewPath(*this);
  auto picture = path ? TheDesktop().pictures().Load(*path) : std::nullopt;
  return picture ? std::move(*picture) : PictureSurface(Picture::imgNote);
}

void CNote::RemoveAllFiles() const {
  DeleteIfAny(PreviewPath(*this));
  DeleteIfAny(OwnFile(*this));
}

std::shared_ptr<CNote> CNote::Clone() const {
  auto copy = std::make_shared<CNote>();
  copy->Text = Text;
  copy->Link = Link;
  copy->File = File;
  copy->NoteType = NoteType;
  if (const auto source = OwnFile(*this)) {
    const auto target = TempFileName(NotesFolder(), GetExtension(File)).path;
    copy->File = SplitPath(target).name;
    (void)TheDesktop().files().Copy(*source, target);
  }
  return copy;
}

platform::Icon CNote::LoadIcon(platform::IconSize size) const {
  const auto extension = GetExtension(File);
  return NoteIconFor(extension.empty() ? File : u"." + extension, size);
}

void RemoveNote(const std::shared_ptr<CNote>& note, NoteCollection& notes) {
  const auto hit = std::ranges::find(notes, note);
  if (hit == notes.end()) return;
  const auto removed = *hit;  // the argument may be the element that goes
  notes.erase(hit);
  removed->RemoveAllFiles();
}

}  // namespace dorvalin
