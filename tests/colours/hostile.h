#pragma once

#include "colours/CPalette.h"
#include "colours/notations.h"
#include "platform/text.h"
#include "tests/support/DataDesktop.h"
#include "tests/support/hostile.h"

namespace dorvalin {

/// Reads the bytes as a palette's file. Ends the process if a promise of the reader is broken.
inline void TryPaletteFile(std::string_view bytes) {
  platform::DataDesktop desktop;
  platform::DesktopScope scope(desktop);
  CPalette palette;
  palette.File = u"C:\\a.dvl";
  desktop.files().Put(palette.File, bytes);
  palette.Load();
  const int count = palette.Colors->Count();
  Require(count <= kMostFields, "more fields than a palette has");
  Require(static_cast<std::size_t>(count) * 4 <= bytes.size(), "fields that are not in the file");
  Require(desktop.dialogs().shown.size() <= 1, "more than one message");
  if (count == 0) return;

  palette.Save();
  CPalette again;
  again.File = palette.File;
  again.Load();
  Require(again.Colors->Count() == count, "a saved palette has another number of fields");
  for (int i = 1; i <= count; ++i) {
    Require(again.Colors->Item(i) == palette.Colors->Item(i), "a saved field differs");
    Require(again.Colors->Item(i) >= kEmptyField, "a saved empty field is not -1");
  }
}

/// Reads the bytes as a colour's text in every notation, with the same end.
inline void TryColorText(std::string_view bytes) {
  const auto text = platform::FromWindows1252(bytes);
  for (int style = 0; style < 7; ++style) {
    const auto color = TextToColor(text, static_cast<Notation>(style));
    if (!color) continue;
    const auto written = ColorToText(*color, static_cast<Notation>(style));
    Require(TextToColor(written, static_cast<Notation>(style)) == color, "another colour");
  }
}

}  // namespace dorvalin
