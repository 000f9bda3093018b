// What the shell says of files, programs and folders, and what it copies.
#include "platform/shell.h"
#include "platform/files.h"
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

using platform::FileStatus;
using platform::IconSize;

class InShell : public Conformance {
 protected:
  InShell() {
    for (const auto& folder : {kFrom, kTo}) (void)files().CreateFolder(folder);
    for (const auto* name : {u"\\a.txt", u"\\b.txt", u"\\c.dat"}) Write(kFrom + name, "alt");
  }
  ~InShell() override {
    for (const auto& folder : {kFrom, kTo}) {
      for (const auto& entry : files().List(folder + u"\\*")) {
        (void)files().Delete(folder + u"\\" + entry.name);
      }
    }
  }
  platform::Files& files() { return desktop().files(); }
  platform::Shell& shell() { return desktop().shell(); }
  void Write(const std::u16string& path, std::string_view bytes) {
    EXPECT_EQ(files().Write(path, bytes), FileStatus::Done);
  }
  std::string Read(const std::u16string& path) { return files().Read(path).bytes; }
  /// Without questions and windows, which nobody would answer here.
  bool Copy(const std::u16string& from, const std::u16string& to) {
    return shell().CopyFiles(from, to, {nullptr, true, true});
  }

  const std::u16string kFrom = u"C:\\Dorvalin Quelle";
  const std::u16string kTo = u"C:\\Dorvalin Ziel";
};

TEST_F(InShell, WhatAPatternNamesIsCopiedAndReplacesWhatIsThere) {
  EXPECT_TRUE(Copy(kFrom + u"\\*.mp3", kTo)) << "nothing to copy is no failure";
  EXPECT_TRUE(Copy(kFrom + u"\\*.txt", kTo));
  EXPECT_EQ(Read(kTo + u"\\a.txt"), "alt");
  EXPECT_EQ(Read(kTo + u"\\b.txt"), "alt");
  EXPECT_FALSE(files().Attributes(kTo + u"\\c.dat"));

  Write(kFrom + u"\\a.txt", "neu");
  EXPECT_TRUE(Copy(kFrom + u"\\a.txt", kTo));
  EXPECT_EQ(Read(kTo + u"\\a.txt"), "neu");
  EXPECT_TRUE(Copy(kFrom + u"\\c.dat", kTo + u"\\d.dat"));
  EXPECT_EQ(Read(kTo + u"\\d.dat"), "alt") << "a file gets the name that is not there yet";
}

TEST_F(InShell, ProgramsHaveTheirIconsByPlace) {
  const std::pair<IconSize, int> kSizes[] = {{IconSize::Small, 16}, {IconSize::Large, 32}};
  for (const auto& [size, pixels] : kSizes) {
    std::vector<platform::Icon> seen;
    for (int place = 0; place < 8; ++place) {
      SCOPED_TRACE(testing::Message() << place << " of " << pixels << " pixels");
      const auto icon = shell().IconOf({}, place, size);
      ASSERT_TRUE(icon);
      EXPECT_EQ(icon->size, (platform::Size{pixels, pixels}));
      for (const auto& other : seen) EXPECT_NE(icon->pixels, other->pixels);
      seen.push_back(icon);
    }
    for (const int place : {8, 9999, -1}) EXPECT_FALSE(shell().IconOf({}, place, size)) << place;
    EXPECT_FALSE(shell().IconOf(kFrom + u"\\a.txt", 0, size));
    EXPECT_FALSE(shell().IconOf(kFrom + u"\\fehlt.exe", 0, size));
  }
}

TEST_F(InShell, FilesHaveIconsAlsoByTheirNamesAlone) {
  const std::u16string missing = kFrom + u"\\fehlt.txt";
  for (const auto& [path, byName] : {std::pair{kFrom + u"\\a.txt", false},
                                     {kFrom, false},
                                     {missing, true},
                                     {std::u16string(u".txt"), true}}) {
    SCOPED_TRACE(platform::ToUtf8(path));
    const auto small = shell().FileIcon(path, IconSize::Small, byName);
    const auto large = shell().FileIcon(path, IconSize::Large, byName);
    ASSERT_TRUE(small && large);
    EXPECT_EQ(small->size.width, 16);
    EXPECT_EQ(large->size.width, 32);
  }
  EXPECT_FALSE(shell().FileIcon(missing, IconSize::Small, false));
}

TEST_F(InShell, TypesAreNamed) {
  const auto text = shell().TypeName(kFrom + u"\\a.txt");
  const auto folder = shell().TypeName(kFrom);
  EXPECT_NE(text, u"");
  EXPECT_NE(folder, u"");
  EXPECT_NE(text, folder);
}

TEST_F(InShell, SpecialFoldersAreThereWhenTheyAreNamed) {
  for (const int number : {2, 5, 7, 11, 16, 26}) {
    const auto folder = shell().SpecialFolder(number);
    ASSERT_TRUE(folder) << number;
    EXPECT_TRUE(files().Attributes(*folder).value_or(0) & platform::kAttributeFolder) << number;
    EXPECT_FALSE(folder->ends_with(u'\\')) << number;
  }
  EXPECT_FALSE(shell().SpecialFolder(9999));
}

TEST_F(InShell, WhatHasNoNameIsLeftAsItStands) {
  EXPECT_NE(shell().LogonName(), u"");
  EXPECT_EQ(shell().ExpandEnvironment(u"%gibt es nicht%\\a %"), u"%gibt es nicht%\\a %");
  EXPECT_NE(shell().ExpandEnvironment(u"%username%"), u"%username%");
  EXPECT_FALSE(shell().Version(kFrom + u"\\a.txt"));
  EXPECT_FALSE(shell().Version(kFrom + u"\\fehlt.exe"));
}

}  // namespace
}  // namespace conformance
