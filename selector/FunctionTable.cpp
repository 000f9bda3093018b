#include "selector/FunctionTable.h"

namespace dorvalin {
namespace {

// In the order of the bubbles' pictures.
constexpr WheelFunction kFunctions[kFunctionCount] = {
    {u"Menü", "DVC_Menu", u"usage_menu"},
    {u"Zeichen", "DVC_Chars", u"features_chars"},
    {u"Rechner", "DVC_Calc", u"features_calc"},
    {u"Farben", "DVC_Colors", u"features_colors"},
    {u"Datum/Zeit", "DVC_DateTime", u"features_datetime"},
    {u"Dateien", "DVC_FileFlds", u"features_fileflds"},
    {u"Schnelltext", "DVC_Phrases", u"features_quicktext"},
    {u"Merrowe-Ablage", "DVC_MWNotes", u"features_mwnotes"},
};

}  // namespace

const WheelFunction* FunctionOf(int index) {
  return index >= 1 && index <= kFunctionCount ? &kFunctions[index - 1] : nullptr;
}

}  // namespace dorvalin
