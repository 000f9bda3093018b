#include "notes/note_file.h"

#include <cstdint>
#include <optional>

#include "platform/desktop.h"
#include "platform/locale.h"

namespace dorvalin {
namespace {

using platform::TheDesktop;

constexpr std::int32_t kVersion = 10000;
constexpr std::int32_t kEndMark = 0x0FFFFFFF;
constexpr std::size_t kNumberSize = 4;

/// In the order of the file.
constexpr std::u16string CNote::*kTexts[] = {&CNote::Text, &CNote::Link, &CNote::File,
                                             &CNote::PreviewID};

std::optional<std::int32_t> TakeNumber(std::string_view& bytes) {
  if (bytes.size() < kNumberSize) return std::nullopt;
  std::uint32_t number = 0;
  for (std::size_t i = kNumberSize; i-- > 0;) {
    number = number << 8 | static_cast<unsigned char>(bytes[i]);
  }
  bytes.remove_prefix(kNumberSize);
  return static_cast<std::int32_t>(number);
}

std::optional<std::u16string> TakeText(std::string_view& bytes) {
  const auto length = TakeNumber(bytes);
  if (!length) return std::nullopt;
  if (*length <= 0) return std::u16string();
  const auto size = static_cast<std::size_t>(*length);
  if (size > bytes.size()) return std::nullopt;
  auto text = TheDesktop().locale().FromAnsi(bytes.substr(0, size));
  bytes.remove_prefix(size);
  return text;
}

/// Null where the file ends inside the note.
std::shared_ptr<CNote> TakeNote(std::string_view& bytes, std::int32_t type) {
  auto note = std::make_shared<CNote>();
  note->NoteType = type;
  for (const auto member : kTexts) {
    auto text = TakeText(bytes);
    if (!text) return nullptr;
    (*note).*member = std::move(*text);
  }
  return note;
}

void AppendNumber(std::string& bytes, std::int32_t number) {
  auto rest = static_cast<std::uint32_t>(number);
  for (std::size_t i = 0; i < kNumberSize; ++i, rest >>= 8) {
    bytes.push_back(static_cast<char>(rest & 0xFF));
  }
}

void AppendText(std::string& bytes, std::u16string_view text) {
  const auto ansi = TheDesktop().locale().ToAnsi(text);
  AppendNumber(bytes, static_cast<std::int32_t>(ansi.size()));
  bytes += ansi;
}

}  // namespace

ReadNotes NotesFromBytes(std::string_view bytes) {
  ReadNotes result;
  if (bytes.empty()) return {{}, true};
  const auto version = TakeNumber(bytes);
  if (!version || *version == 0) return {{}, version.has_value()};
  while (const auto type = TakeNumber(bytes)) {
    result.isWhole = *type == kEndMark;
    auto note = result.isWhole ? nullptr : TakeNote(bytes, *type);
    if (!note) return result;
    result.notes.push_back(std::move(note));
  }
  return result;
}

std::string BytesFromNotes(const NoteCollection& notes) {
  std::string bytes;
  AppendNumber(bytes, kVersion);
  for (const auto& note : notes) {
    AppendNumber(bytes, note->NoteType);
    for (const auto member : kTexts) AppendText(bytes, (*note).*member);
  }
  AppendNumber(bytes, kEndMark);
  return bytes;
}

}  // namespace dorvalin
