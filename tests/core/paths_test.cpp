#include "core/paths.h"

#include "platform/text.h"
#include "tests/support/WithData.h"

namespace dorvalin {
namespace {

using Paths = WithData;

TEST(PathText, ExtensionsAreWhatStandsBehindTheLastDotOfTheName) {
  struct {
    std::u16string_view name;
    std::u16string_view extension;
    std::u16string_view without;
  } const cases[] = {
      {u"Brief.TXT", u"txt", u"Brief"},
      {u"a.b.c", u"c", u"a.b"},
      {u"Brief", u"", u"Brief"},
      {u"Brief.", u"", u"Brief"},
      {u"Brief.txt ", u"txt", u"Brief"},
      {u"C:\\v1.2\\Brief", u"", u"C:\\v1"},
      {u"C:\\Ordner.alt\\", u"alt", u"C:\\Ordner"},
      {u"", u"", u""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(GetExtension(c.name), c.extension) << platform::ToUtf8(c.name);
    EXPECT_EQ(CutExtension(c.name), c.without) << platform::ToUtf8(c.name);
  }
}

TEST(PathText, SplitsAtTheLastBackslash) {
  struct {
    std::u16string_view path;
    FolderEnd end;
    std::u16string_view folder;
    std::u16string_view name;
  } const cases[] = {
      {u"C:\\a\\b.txt", FolderEnd::Bare, u"C:\\a", u"b.txt"},
      {u"C:\\a\\b.txt", FolderEnd::WithBackslash, u"C:\\a\\", u"b.txt"},
      {u" C:\\a\\b\\ ", FolderEnd::Bare, u"C:\\a", u"b"},
      {u"b.txt", FolderEnd::WithBackslash, u"", u"b.txt"},
      {u"C:\\", FolderEnd::WithBackslash, u"", u"C:"},
      {u"", FolderEnd::Bare, u"", u""},
  };
  for (const auto& c : cases) {
    const auto split = SplitPath(c.path, c.end);
    EXPECT_EQ(split.folder, c.folder) << platform::ToUtf8(c.path);
    EXPECT_EQ(split.name, c.name) << platform::ToUtf8(c.path);
  }
}

TEST(PathText, JoinsWithExactlyOneBackslash) {
  for (const auto* folder : {u"C:\\a", u"C:\\a\\"}) {
    for (const auto* name : {u"b", u"\\b"}) EXPECT_EQ(JoinPath(folder, name), u"C:\\a\\b");
  }
}

TEST(PathText, CutsBuffersAtTheirNul) {
  using namespace std::string_view_literals;
  EXPECT_EQ(CutAtNul(u"ab\0c\0"sv), u"ab");
  EXPECT_EQ(CutAtNul(u"\0"sv), u"");
  EXPECT_EQ(CutAtNul(u"ab"), std::nullopt);
  EXPECT_EQ(FirstNulField(u"\0\0ab\0c"sv), u"ab");
  EXPECT_EQ(FirstNulField(u"\0ab"sv), u"ab");
  EXPECT_EQ(FirstNulField(u"\0\0"sv), u"");
  EXPECT_EQ(FirstNulField(u""), u"");
}

TEST_F(Paths, AFolderIsAFileToo) {
  files.Put(u"C:\\a\\b.txt", "x");
  EXPECT_TRUE(FileExists(u"c:\\A\\B.TXT"));
  EXPECT_TRUE(FileExists(u"C:\\a"));
  EXPECT_TRUE(FolderExists(u"C:\\a\\"));
  EXPECT_FALSE(FolderExists(u"C:\\a\\b.txt"));
  EXPECT_FALSE(FileExists(u"C:\\a\\c"));
  EXPECT_FALSE(FileExists(u""));
}

TEST_F(Paths, MakesEveryMissingFolderOfAPathButNoDrive) {
  files.PutFolder(u"C:\\a");
  MakeFolderPath(u"C:\\a\\b\\c");
  EXPECT_TRUE(FolderExists(u"C:\\a\\b\\c"));
  MakeFolderPath(u"C:\\d\\e\\");
  EXPECT_TRUE(FolderExists(u"C:\\d\\e"));
  MakeFolderPath(u"Q:\\a");
  EXPECT_FALSE(FolderExists(u"Q:\\a"));
  files.Put(u"C:\\f", "a file stands in the way");
  MakeFolderPath(u"C:\\f\\g");
  EXPECT_FALSE(FolderExists(u"C:\\f\\g"));
}

TEST_F(Paths, AUniqueNameIsTheNameOrTheFirstFreeNumber) {
  const auto unique = [](NumberPlace place) {
    return UniqueFileName(u"C:\\a", u"Brief.tar.gz", place);
  };
  files.PutFolder(u"C:\\a");
  EXPECT_EQ(unique(NumberPlace::BeforeExtension), u"C:\\a\\Brief.tar.gz");
  files.Put(u"C:\\a\\Brief.tar.gz", "");
  files.Put(u"C:\\a\\Brief (1).tar.gz", "");
  EXPECT_EQ(unique(NumberPlace::BeforeExtension), u"C:\\a\\Brief (2).tar.gz");
  EXPECT_EQ(unique(NumberPlace::BehindName), u"C:\\a\\Brief.tar.gz (1)");
  EXPECT_EQ(UniqueFileName(u"C:\\", u"a", NumberPlace::BeforeExtension), u"C:\\a (1)");
}

TEST_F(Paths, ATemporaryNameComesFromTheTimeOfDay) {
  desktop.clock().SetNow({2026, 3, 9, 1, 0, 0, 500});
  const auto first = TempFileName(u"C:\\", u"tmp");
  EXPECT_EQ(first.name, u"57E72");  // 3600.5 s times 100
  EXPECT_EQ(first.path, u"C:\\57E72.tmp");
  files.Put(first.path, "");
  EXPECT_EQ(TempFileName(u"C:", u"tmp").path, u"C:\\57E73.tmp");
}

TEST_F(Paths, TheShellCopiesWithItsOwnQuestionsUnlessToldOtherwise) {
  files.Put(u"C:\\a\\b.txt", "x");
  EXPECT_TRUE(ShellFileOperation(u"C:\\a\\*.*", u"C:\\c"));
  EXPECT_EQ(files.BytesOf(u"C:\\c\\b.txt"), "x");
  EXPECT_FALSE(desktop.shell().copies[0].noConfirmation);
  EXPECT_FALSE(desktop.shell().copies[0].silent);
  EXPECT_FALSE(ShellCopyFile(nullptr, u"C:\\a\\q.txt", u"C:\\c", true, true));
  EXPECT_TRUE(desktop.shell().copies[1].noConfirmation);
  EXPECT_TRUE(desktop.shell().copies[1].silent);
}

}  // namespace
}  // namespace dorvalin
