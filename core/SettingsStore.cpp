#include "core/SettingsStore.h"

#include <cstdint>
#include <variant>

#include "core/ProgramState.h"
#include "core/modRegTools.h"

namespace dorvalin {
namespace {

struct Setting {
  std::u16string_view subkey;
  std::u16string_view name;
  std::variant<bool Settings::*, int Settings::*> member;
};

// In the order of reading and writing; the defaults are those of a fresh `Settings`.
constexpr Setting kSettings[] = {
    {u"\\Access", u"RightBtn", &Settings::RightBtn},
    {u"\\Access", u"MiddleBtn", &Settings::MiddleBtn},
    {u"\\Access", u"LeftBtn", &Settings::LeftBtn},
    {u"\\Access", u"BothBtn", &Settings::BothBtn},
    {u"\\Access", u"ScrollKey", &Settings::ScrollKey},
    {u"\\Settings", u"DontAnimate", &Settings::DontAnimate},
    {u"\\Settings", u"AnimateAtStart", &Settings::AnimateAtStart},
    {u"\\Settings", u"FastTurn", &Settings::FastTurn},
    {u"\\Settings", u"StayAfterSend", &Settings::StayAfterSend},
    {u"\\Settings", u"TaskBarIcon", &Settings::TaskBarIcon},
    {u"\\Settings", u"StartWithLast", &Settings::StartWithLast},
    {u"\\Settings", u"ToolTips", &Settings::ToolTips},
    {u"\\Settings", u"WaitBeforeSend", &Settings::WaitBeforeSend},
    {u"\\Settings", u"ShowRightBarAtStart", &Settings::ShowRightBarAtStart},
    {u"\\Settings", u"RightBarMode", &Settings::RightBarMode},
    {u"\\Settings", u"RightBarArea", &Settings::RightBarArea},
    {u"\\Settings", u"AnimateFctnsNormal", &Settings::AnimateFctnsNormal},
    {u"\\Settings", u"AnimateFctnsRightBar", &Settings::AnimateFctnsRightBar},
};

void Read(const Setting& setting, Settings& into) {
  const auto key = ProgramKey(setting.subkey);
  if (const auto* flag = std::get_if<bool Settings::*>(&setting.member)) {
    into.** flag = RegGetLong(key, setting.name, into.**flag ? 1 : 0) != 0;
  } else {
    auto& number = into.*std::get<int Settings::*>(setting.member);
    number = RegGetLong(key, setting.name, number);
  }
}

std::int32_t Stored(const Setting& setting, const Settings& from) {
  if (const auto* flag = std::get_if<bool Settings::*>(&setting.member)) {
    return from.**flag ? 1 : 0;
  }
  return from.*std::get<int Settings::*>(setting.member);
}

}  // namespace

void LoadSettings() {
  Settings loaded;
  for (const Setting& setting : kSettings) Read(setting, loaded);
  State().settings = loaded;
}

void SaveSettings() {
  for (const Setting& setting : kSettings) {
    RegSetLong(ProgramKey(setting.subkey), setting.name, Stored(setting, State().settings));
  }
}

}  // namespace dorvalin
