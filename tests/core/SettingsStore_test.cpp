#include "core/SettingsStore.h"

#include <gtest/gtest.h>

#include "core/modRegTools.h"
#include "tests/support/WithData.h"

namespace dorvalin {
namespace {

using Stored = std::pair<std::u16string, platform::RegistryValue>;

class GeneralSettings : public WithData {
 protected:
  std::vector<Stored> Values(std::u16string_view subkey) {
    return desktop.registry()
        .Values(RegistryRoot::CurrentUser, ProgramKey(subkey))
        .value_or(std::vector<Stored>{});
  }
};

TEST_F(GeneralSettings, OfAnEmptyRegistryAreTheDefaultsAndAreWrittenUnderTheirNamesInTheirOrder) {
  state.settings = {.LeftBtn = true, .MiddleBtn = false, .WaitBeforeSend = 7};
  LoadSettings();
  EXPECT_TRUE(Values(u"\\Access").empty());
  EXPECT_TRUE(Values(u"\\Settings").empty());
  SaveSettings();
  EXPECT_EQ(Values(u"\\Access"), (std::vector<Stored>{{u"RightBtn", 0u},
                                                      {u"MiddleBtn", 1u},
                                                      {u"LeftBtn", 0u},
                                                      {u"BothBtn", 1u},
                                                      {u"ScrollKey", 1u}}));
  EXPECT_EQ(Values(u"\\Settings"), (std::vector<Stored>{{u"DontAnimate", 0u},
                                                        {u"AnimateAtStart", 1u},
                                                        {u"FastTurn", 0u},
                                                        {u"StayAfterSend", 0u},
                                                        {u"TaskBarIcon", 1u},
                                                        {u"StartWithLast", 1u},
                                                        {u"ToolTips", 1u},
                                                        {u"WaitBeforeSend", 180u},
                                                        {u"ShowRightBarAtStart", 1u},
                                                        {u"RightBarMode", 2u},
                                                        {u"RightBarArea", 0u},
                                                        {u"AnimateFctnsNormal", 1u},
                                                        {u"AnimateFctnsRightBar", 1u}}));
}

TEST_F(GeneralSettings, NumbersComeAsStoredAndFlagsAsYesOrNo) {
  const auto store = [](std::u16string_view name, std::int32_t number) {
    RegSetLong(ProgramKey(u"\\Settings"), name, number);
  };
  store(u"WaitBeforeSend", 0);
  store(u"RightBarMode", 9);
  store(u"RightBarArea", -1);
  store(u"FastTurn", 256);
  RegSetString(ProgramKey(u"\\Settings"), u"ToolTips", u"1");
  RegSetLong(ProgramKey(u"\\Access"), u"LeftBtn", 1);
  LoadSettings();
  EXPECT_TRUE(state.settings.LeftBtn && !state.settings.RightBtn);
  EXPECT_EQ(state.settings.WaitBeforeSend, 0);
  EXPECT_EQ(state.settings.RightBarMode, 9);
  EXPECT_EQ(state.settings.RightBarArea, -1);
  EXPECT_TRUE(state.settings.FastTurn);
  EXPECT_FALSE(state.settings.ToolTips) << "a value of another type counts as 0";
}

}  // namespace
}  // namespace dorvalin
