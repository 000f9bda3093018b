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

TEST_F(GeneralSettings, AnEmptyRegistryGivesTheDefaultsAndStaysEmpty) {
  state.settings = {.LeftBtn = true, .MiddleBtn = false, .WaitBeforeSend = 7};
  LoadSettings();
  const Settings& now = state.settings;
  EXPECT_TRUE(now.BothBtn && now.MiddleBtn && now.ScrollKey);
  EXPECT_FALSE(now.LeftBtn || now.RightBtn);
  EXPECT_TRUE(now.AnimateAtStart && now.AnimateFctnsNormal && now.AnimateFctnsRightBar);
  EXPECT_FALSE(now.DontAnimate || now.FastTurn || now.StayAfterSend);
  EXPECT_TRUE(now.TaskBarIcon && now.StartWithLast && now.ToolTips && now.ShowRightBarAtStart);
  EXPECT_EQ(now.WaitBeforeSend, 180);
  EXPECT_EQ(now.RightBarMode, 2);
  EXPECT_EQ(now.RightBarArea, 0);
  EXPECT_TRUE(Values(u"\\Access").empty());
  EXPECT_TRUE(Values(u"\\Settings").empty());
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
  LoadSettings();
  EXPECT_EQ(state.settings.WaitBeforeSend, 0);
  EXPECT_EQ(state.settings.RightBarMode, 9);
  EXPECT_EQ(state.settings.RightBarArea, -1);
  EXPECT_TRUE(state.settings.FastTurn);
  EXPECT_FALSE(state.settings.ToolTips) << "a value of another type counts as 0";
}

TEST_F(GeneralSettings, AreWrittenUnderTheirNamesInTheirOrder) {
  state.settings = {.LeftBtn = true, .RightBarMode = 1, .RightBarArea = 1, .WaitBeforeSend = 250};
  SaveSettings();
  EXPECT_EQ(Values(u"\\Access"), (std::vector<Stored>{{u"RightBtn", 0u},
                                                      {u"MiddleBtn", 1u},
                                                      {u"LeftBtn", 1u},
                                                      {u"BothBtn", 1u},
                                                      {u"ScrollKey", 1u}}));
  EXPECT_EQ(Values(u"\\Settings"), (std::vector<Stored>{{u"DontAnimate", 0u},
                                                        {u"AnimateAtStart", 1u},
                                                        {u"FastTurn", 0u},
                                                        {u"StayAfterSend", 0u},
                                                        {u"TaskBarIcon", 1u},
                                                        {u"StartWithLast", 1u},
                                                        {u"ToolTips", 1u},
                                                        {u"WaitBeforeSend", 250u},
                                                        {u"ShowRightBarAtStart", 1u},
                                                        {u"RightBarMode", 1u},
                                                        {u"RightBarArea", 1u},
                                                        {u"AnimateFctnsNormal", 1u},
                                                        {u"AnimateFctnsRightBar", 1u}}));
}

TEST_F(GeneralSettings, AValueThatCannotBeWrittenKeepsItsOldContent) {
  SaveSettings();
  state.settings.WaitBeforeSend = 5;
  faults.FailAlways("Registry.Set");
  SaveSettings();
  faults.Clear();
  LoadSettings();
  EXPECT_EQ(state.settings.WaitBeforeSend, 180);
}

}  // namespace
}  // namespace dorvalin
