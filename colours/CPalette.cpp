#include "colours/CPalette.h"

#include <algorithm>

#include "core/ProgramState.h"
#include "core/StoreFolder.h"
#include "core/messages.h"
#include "core/paths.h"
#include "platform/desktop.h"
#include "platform/files.h"

namespace dorvalin {
namespace {

constexpr std::size_t kFieldSize = 4;

struct PaletteStore {
  std::u16string folder;
  PaletteCollection palettes;
  bool isListed = false;
};

std::int32_t ReadField(std::string_view bytes) {
  std::uint32_t value = 0;
  for (std::size_t i = kFieldSize; i-- > 0;)
    value = value << 8 | static_cast<unsigned char>(bytes[i]);
  return static_cast<std::int32_t>(value);
}

void AppendField(std::string& bytes, std::int32_t field) {
  auto value = static_cast<std::uint32_t>(field);
  for (std::size_t i = 0; i < kFieldSize; ++i, value >>= 8) {
    bytes.push_back(static_cast<char>(value & 0xFF));
  }
}

/// False: the file ends before all fields were read.
bool ReadFields(std::string_view bytes, CLongStack& colors) {
  if (bytes.empty()) return false;
  const auto stored = static_cast<unsigned char>(bytes[0]);
  const int count = stored == 0 ? kMostFields : stored;
  bytes.remove_prefix(1);
  for (; colors.Count() < count && bytes.size() >= kFieldSize; bytes.remove_prefix(kFieldSize)) {
    colors.AddItem(ReadField(bytes));
  }
  return colors.Count() == count;
}

std::string PaletteBytes(CLongStack& colors) {
  // A list without fields is written as the 0 that reads as 256: the format cannot say it.
  std::string bytes(1, static_cast<char>(colors.Count() < kMostFields ? colors.Count() : 0));
  for (int i = 1; i <= colors.Count(); ++i) {
    colors.SetItem(i, std::max(colors.Item(i), kEmptyField));
    AppendField(bytes, colors.Item(i));
  }
  return bytes;
}

bool Replace(std::u16string_view file, std::string_view bytes) {
  auto& files = platform::TheDesktop().files();
  if (FileExists(file) && !files.Delete(file)) return false;
  return files.Write(file, bytes) == platform::FileStatus::Done;
}

}  // namespace

void CPalette::BuildFileName() { File = JoinPath(PalettesFolder(), Title + u".dvl"); }

void CPalette::Init() {
  if (!Colors) Load();
}

void CPalette::Load() {
  Colors.emplace();
  const auto content = platform::TheDesktop().files().Read(File);
  const bool isWhole = ReadFields(content.bytes, *Colors);
  Changed = false;
  if (!isWhole) ShowPlainMessage(u"Die Palette " + Title + u" konnte nicht geöffnet werden.");
}

void CPalette::Save() {
  Changed = false;
  if (!Colors) return;
  Colors->SetCount(std::min(Colors->Count(), kMostFields));
  if (!Replace(File, PaletteBytes(*Colors))) {
    ShowPlainMessage(u"Die Palette " + Title + u" konnte nicht gespeichert werden.");
  }
}

std::u16string& PalettesFolder() { return StateOf<PaletteStore>().folder; }
PaletteCollection& Palettes() { return StateOf<PaletteStore>().palettes; }

void InitPalettes() {
  auto& store = StateOf<PaletteStore>();
  store.folder = PrepareStoreFolder(u"Palettes");
  if (store.isListed) return;
  store.isListed = true;
  for (auto& title : TitlesIn(store.folder, u"*.dvl")) {
    auto palette = std::make_shared<CPalette>();
    palette->Title = std::move(title);
    palette->BuildFileName();
    store.palettes.push_back(std::move(palette));
  }
}

std::string ColorClipData(std::int32_t colour) {
  std::string bytes;
  AppendField(bytes, colour);
  return bytes.substr(0, 3);
}

std::optional<std::int32_t> ColorFromClipData(std::string_view data) {
  if (data.size() < 3) return std::nullopt;
  return ReadField(std::string(data.substr(0, 3)) + '\0');
}

}  // namespace dorvalin
