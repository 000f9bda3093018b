#include "core/modRegTools.h"

#include "tests/support/WithData.h"

namespace dorvalin {
namespace {

constexpr auto kUser = RegistryRoot::CurrentUser;
using Settings = WithData;
using Names = std::vector<std::u16string>;

TEST_F(Settings, ComeBackAsTheyWereWritten) {
  RegSetString(ProgramKey(u"\\UserData"), u"Town", u"Köln ☼", kUser);
  RegSetString(ProgramKey(u"\\UserData"), u"Zip", u"");
  RegSetLong(ProgramKey(u"\\Colors\\"), u"Style", -5);
  EXPECT_EQ(RegGetString(u"software\\tolvo\\dorvalin\\userdata", u"TOWN", u"-"), u"Köln ☼");
  EXPECT_EQ(RegGetString(u"Software\\Tolvo\\Dorvalin\\UserData\\", u"Zip", u"-"), u"");
  EXPECT_EQ(RegGetLong(ProgramKey(u"\\Colors"), u"Style", 7), -5);
  EXPECT_EQ(RegGetString(ProgramKey(u"\\UserData"), u"Town", u"-", RegistryRoot::LocalMachine),
            u"-");
}

TEST_F(Settings, AMissingValueHasADefaultOneOfAnotherTypeHasNot) {
  EXPECT_EQ(RegGetLong(u"K", u"v", 42), 42);
  RegSetString(u"K", u"v", u"17");
  EXPECT_EQ(RegGetLong(u"K", u"v", 42), 0);
  EXPECT_EQ(RegGetLong(u"K", u"w", 42), 42);

  // Any other type gives its bytes but the last one, where a text has its NUL.
  RegSetLong(u"K", u"n", 0x44434241);
  EXPECT_EQ(RegGetString(u"K", u"n", u"-"), u"ABC");
  desktop.registry().Set(kUser, u"K", u"b", platform::RegistryBytes{"\xE4x"});
  EXPECT_EQ(RegGetString(u"K", u"b", u"-"), u"ä");
  desktop.registry().Set(kUser, u"K", u"b", platform::RegistryBytes{""});
  EXPECT_EQ(RegGetString(u"K", u"b", u"-"), u"");
}

TEST_F(Settings, DeleteTakesAValueOrAKeyWithoutSubkeys) {
  RegSetString(u"A\\B\\C", u"v", u"x");
  RegSetString(u"A\\B\\C", u"w", u"y");
  RegDelete(u"A\\B\\C\\", u"v");
  EXPECT_EQ(RegGetString(u"A\\B\\C", u"v", u"-"), u"-");
  EXPECT_EQ(RegGetString(u"A\\B\\C", u"w", u"-"), u"y");

  RegDelete(u"A\\B", u"");
  EXPECT_EQ(RegEnumKeys(u"A"), Names{u"B"});
  RegDelete(u"A\\B\\C\\", u"");
  RegDelete(u"A\\B", u"");
  EXPECT_EQ(RegEnumKeys(u"A"), Names{});
  RegDelete(u"A", u"");
  EXPECT_FALSE(desktop.registry().Keys(kUser, u"A"));
  RegDelete(u"Missing", u"v");
  RegDelete(u"", u"");
}

TEST_F(Settings, ListsKeysAndValues) {
  RegSetString(u"K\\zwei", u"", u"");
  RegSetString(u"K\\Eins", u"", u"");
  RegSetString(u"K", u"b", u"B");
  RegSetString(u"K", u"a", u"");
  EXPECT_EQ(RegEnumKeys(u"K\\"), (Names{u"Eins", u"zwei"}));
  const std::vector<std::pair<std::u16string, std::u16string>> values{{u"b", u"B"}, {u"a", u""}};
  EXPECT_EQ(RegEnumValues(u"K\\"), values);
  EXPECT_TRUE(RegEnumKeys(u"Missing").empty());
  EXPECT_TRUE(RegEnumValues(u"Missing").empty());
}

TEST_F(Settings, AFailureIsAMissingValueAndAnUnchangedOne) {
  RegSetString(u"K", u"v", u"old");
  faults.FailNext("Registry.Set");
  RegSetString(u"K", u"v", u"new");
  EXPECT_EQ(RegGetString(u"K", u"v", u"-"), u"old");
  faults.FailAlways("Registry.Get");
  EXPECT_EQ(RegGetString(u"K", u"v", u"-"), u"-");
  EXPECT_EQ(RegGetLong(u"K", u"v", 3), 3);
}

}  // namespace
}  // namespace dorvalin
