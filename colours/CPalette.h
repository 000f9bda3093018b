// A palette: a named, ordered list of colour fields in a small binary file of its own.
//
//   offset 0   the number of fields, 0 for 256
//   offset 1   the fields, each 4 bytes 0x00BBGGRR, low byte first; below 0 for an empty one
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "stacks/CLongStack.h"

namespace dorvalin {

inline constexpr int kMostFields = 256;
inline constexpr std::int32_t kEmptyField = -1;  ///< any lower value counts as empty, too

class CPalette {
 public:
  /// The fields, from 1. None until the palette was loaded: call Init first.
  std::optional<CLongStack> Colors;
  /// The list differs from the file. Set by whoever changes the list, right before Save.
  bool Changed = false;
  std::u16string File;   ///< full path
  std::u16string Title;  ///< the file's name without its extension

  /// Lets File follow Title.
  void BuildFileName();
  /// Loads the palette unless that was done before.
  void Init();
  /// Tells the user when the file cannot be read to its end; the fields read so far are kept.
  void Load();
  /// Cuts the list to 256 fields and writes it. Tells the user when that fails; the old file is
  /// gone then, the list in memory is not.
  void Save();
};

using PaletteCollection = std::vector<std::shared_ptr<CPalette>>;

/// The folder of the palettes.
[[nodiscard]] std::u16string& PalettesFolder();
/// All palettes in the order of the folder's listing. Empty before InitPalettes.
[[nodiscard]] PaletteCollection& Palettes();
/// Finds the folder and, at the first call, its palettes. To be called before Palettes is used.
void InitPalettes();

/// A colour in the clipboard format "Tolvo Dorvalin Color Format RGB": three bytes red, green,
/// blue.
[[nodiscard]] std::string ColorClipData(std::int32_t colour);
/// None for data that is too short.
[[nodiscard]] std::optional<std::int32_t> ColorFromClipData(std::string_view data);

}  // namespace dorvalin
