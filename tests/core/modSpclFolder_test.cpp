#include "core/modSpclFolder.h"

#include "core/modRegTools.h"
#include "tests/support/WithData.h"

namespace dorvalin {
namespace {

constexpr std::u16string_view kShellFolders =
    u"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

class SpecialFolders : public WithData {
 protected:
  void Register(std::u16string_view value, std::u16string_view path,
                RegistryRoot root = RegistryRoot::CurrentUser) {
    RegSetString(kShellFolders, value, path, root);
  }
  void TheShellKnowsNone() { desktop.shell().specialFolders.clear(); }
};

TEST_F(SpecialFolders, ComeFromTheShellWhichMakesThem) {
  Register(u"AppData", u"C:\\Anderswo");
  EXPECT_EQ(GetSpecialFolder(kApplicationDataFolder), kTestAppData);
  EXPECT_TRUE(files.Has(kTestAppData));
}

TEST_F(SpecialFolders, ComeFromTheRegistryWhereTheShellFails) {
  TheShellKnowsNone();
  const std::pair<int, const char16_t*> own[] = {
      {2, u"Programs"}, {5, u"Personal"}, {7, u"Startup"}, {11, u"Start Menu"},
      {16, u"Desktop"}, {20, u"Fonts"},   {26, u"AppData"}};
  for (const auto& [number, value] : own) Register(value, std::u16string(u"C:\\") + value);
  for (const auto& [number, value] : own) {
    EXPECT_EQ(GetSpecialFolder(number), std::u16string(u"C:\\") + value) << number;
  }
}

TEST_F(SpecialFolders, OfAllUsersFallBackToTheUsersOwn) {
  TheShellKnowsNone();
  const std::tuple<int, const char16_t*, const char16_t*> common[] = {
      {22, u"Common Start Menu", u"Start Menu"},
      {23, u"Common Programs", u"Programs"},
      {24, u"Common Startup", u"Startup"},
      {25, u"Common Desktop", u"Desktop"}};
  for (const auto& [number, commonValue, ownValue] : common) {
    Register(commonValue, u"C:\\not here");
    Register(ownValue, u"C:\\Own");
    EXPECT_EQ(GetSpecialFolder(number), u"C:\\Own") << number;
    Register(commonValue, u"C:\\Common", RegistryRoot::LocalMachine);
    EXPECT_EQ(GetSpecialFolder(number), u"C:\\Common") << number;
  }
}

TEST_F(SpecialFolders, HaveADefaultAndLoseTheirQuotes) {
  TheShellKnowsNone();
  EXPECT_EQ(GetSpecialFolder(26, u"C:\\Ersatz"), u"C:\\Ersatz");
  EXPECT_EQ(GetSpecialFolder(99, u"\"C:\\Ersatz\""), u"C:\\Ersatz");
  EXPECT_EQ(GetSpecialFolder(26), u"");
  Register(u"AppData", u"\"\"C:\\x\"");
  EXPECT_EQ(GetSpecialFolder(26), u"\"C:\\x");
}

}  // namespace
}  // namespace dorvalin
