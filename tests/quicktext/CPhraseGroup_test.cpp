#include "quicktext/CPhraseGroup.h"

#include "platform/text.h"
#include "quicktext/phrase_file.h"
#include "tests/quicktext/hostile_files.h"
#include "tests/support/WithData.h"
#include "tests/support/hostile.h"

namespace dorvalin {
namespace {

using platform::FileStatus;
using Texts = std::vector<std::u16string>;

constexpr char16_t kFolder[] = u"C:\\Benutzer\\Anna\\Anwendungsdaten\\Tolvo\\Dorvalin\\Phrases";
constexpr char16_t kNotOpened[] = u"Die Schnelltextgruppe Briefe konnte nicht geöffnet werden.";
constexpr char16_t kNotSaved[] = u"Die Schnelltextgruppe Briefe konnte nicht gespeichert werden.";

std::shared_ptr<CPhrase> MakePhrase(std::u16string text, std::u16string rtf = {}) {
  auto phrase = std::make_shared<CPhrase>();
  phrase->Text = std::move(text);
  phrase->RTFText = std::move(rtf);
  return phrase;
}

/// Each element as its text, and behind a "~" its Rich Text source.
Texts ElementsOf(const CPhraseGroup& group) {
  Texts elements;
  if (!group.Phrases) return elements;
  for (const auto& phrase : *group.Phrases) {
    elements.push_back(phrase->RTFText.empty() ? phrase->Text
                                               : phrase->Text + u"~" + phrase->RTFText);
  }
  return elements;
}

class GroupOnDisk : public WithData {
 protected:
  GroupOnDisk() {
    files.PutFolder(kFolder);
    InitPhraseGroups();
    group.Title = u"Briefe";
    group.BuildFileName();
  }
  void Put(std::string_view bytes) { files.Put(group.File, bytes); }
  Texts Load(std::string_view bytes) {
    Put(bytes);
    group.Load();
    return ElementsOf(group);
  }
  std::string Save(PhraseCollection phrases) {
    group.Phrases = std::move(phrases);
    group.Changed = true;
    group.Save();
    return files.BytesOf(group.File).value_or("(no file)");
  }

  CPhraseGroup group;
};

const char kTwoElements[] =
    "erste Zeile\r\nzweite Zeile\r\n#NEXT#\r\nfett\r\n#RTF#\r\n{\\rtf1 \\b fett\\b0}\r\n\r\n";

TEST_F(GroupOnDisk, IsTextWithAMarkerBetweenElementsAndOneBeforeTheFormattedText) {
  const auto bytes = Save({MakePhrase(u"erste Zeile\r\nzweite Zeile"),
                           MakePhrase(u"fett", u"{\\rtf1 \\b fett\\b0}\r\n")});
  EXPECT_EQ(bytes, kTwoElements);
  EXPECT_FALSE(group.Changed);
  EXPECT_EQ(Load(bytes),
            (Texts{u"erste Zeile\r\nzweite Zeile", u"fett~{\\rtf1 \\b fett\\b0}\r\n"}));
  EXPECT_EQ(group.Phrases->at(0)->Group, u"Briefe");
  EXPECT_EQ(Save({}), "");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(GroupOnDisk, ReadsEveryOddFileAsItsLinesSay) {
  struct {
    const char* what;
    std::string_view bytes;
    Texts elements;
  } const cases[] = {
      {"no bytes", "", {}},
      {"no end of line at the end", "a\r\n#NEXT#\r\nb", {u"a", u"b"}},
      {"an empty line is an element", "\r\n", {u""}},
      {"two empty elements", "\r\n#NEXT#\r\n\r\n", {u"", u""}},
      {"a text that ends in a line break", "a\r\n\r\n", {u"a\r\n"}},
      {"blanks around the marker", "a\r\n  #NEXT# \r\nb\r\n", {u"a", u"b"}},
      {"a tab is no blank", "a\r\n\t#NEXT#\r\n", {u"a\r\n\t#NEXT#"}},
      {"the case counts", "a\r\n#next#\r\n#Rtf#\r\n", {u"a\r\n#next#\r\n#Rtf#"}},
      {"a marker inside a line", "a#NEXT#\r\n#RTF#b\r\n", {u"a#NEXT#\r\n#RTF#b"}},
      {"the marker at the start", "#NEXT#\r\na\r\n", {u"a"}},
      {"two markers in a row", "a\r\n#NEXT#\r\n#NEXT#\r\nb\r\n", {u"a", u"b"}},
      {"the marker at the end", "a\r\n#NEXT#\r\n", {u"a"}},
      {"nothing but formats", "#RTF#\r\n#RTF#\r\n", {}},
      {"a format without a text", "#RTF#\r\nx\r\n", {u"~x"}},
      {"a format ends with its element", "#RTF#\r\n#NEXT#\r\na\r\n", {u"a"}},
      {"a format inside a format", "a\r\n#RTF#\r\nx\r\n#RTF#\r\ny\r\n", {u"a~x\r\ny"}},
      {"an empty format is none", "a\r\n#RTF#\r\n#NEXT#\r\nb\r\n", {u"a", u"b"}},
      {"lines are not trimmed", " a \r\n  b\r\n", {u" a \r\n  b"}},
      {"single line ends stay", "a\rb\nc\n\rd\r\r\n", {u"a\rb\nc\n\rd\r"}},
      {"a single line end makes no marker", "a\n#NEXT#\nb\r\n", {u"a\n#NEXT#\nb"}},
      {"a byte that once ended files",
       "a\x1A\x62\r\n#NEXT#\r\nc\r\n",
       {u"a\x1A"
        u"b",
        u"c"}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Load(c.bytes), c.elements) << c.what;
    EXPECT_FALSE(group.Changed);
  }
  EXPECT_TRUE(Messages().empty());
}

TEST_F(GroupOnDisk, EveryByteSurvivesALoadAndASave) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
  bytes += "\r\n";
  Load(bytes);
  ASSERT_EQ(group.Phrases->size(), 1u);
  EXPECT_EQ(Save(*group.Phrases), bytes);
}

TEST_F(GroupOnDisk, EveryTruncationKeepsWhatStandsInFrontOfIt) {
  const std::string_view whole = kTwoElements;
  const std::size_t kSecondElement = whole.find("fett");
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const auto elements = Load(whole.substr(0, length));
    ASSERT_EQ(elements.size(), length == 0 ? 0 : length <= kSecondElement ? 1 : 2) << length;
    EXPECT_TRUE(length < kSecondElement || elements[0] == u"erste Zeile\r\nzweite Zeile") << length;
  }
  EXPECT_TRUE(Messages().empty());
}

TEST_F(GroupOnDisk, AMillionLinesAreJustLines) {
  std::string bytes;
  for (int i = 0; i < 500'000; ++i) bytes += "x\r\n#NEXT#\r\n";
  EXPECT_EQ(Load(bytes).size(), 500'000u);
  EXPECT_EQ(Load(std::string(2'000'000, ' ')).size(), 1u);
}

TEST_F(GroupOnDisk, AMissingFileIsSaidOnceAndIsAnEmptyGroup) {
  group.Changed = true;
  group.Init();
  group.Init();
  EXPECT_EQ(Messages(), Texts{kNotOpened});
  EXPECT_EQ(desktop.dialogs().shown[0].title, u"Tolvo Dorvalin");
  EXPECT_TRUE(group.Phrases && group.Phrases->empty());
  EXPECT_TRUE(group.Changed);
  group.Phrases->push_back(MakePhrase(u"a"));
  group.Save();
  EXPECT_EQ(files.BytesOf(group.File), "a\r\n");
}

TEST_F(GroupOnDisk, ABrokenReadLeavesTheLastElementUnfinished) {
  struct {
    std::size_t bytesRead;
    Texts elements;
  } const cases[] = {
      {0, {}},
      {5, {}},                     // no whole line
      {13, {u"\r\nerste Zeile"}},  // its break in front was never cut off
      {30, {u"\r\nerste Zeile\r\nzweite Zeile"}},
      {35, {u"erste Zeile\r\nzweite Zeile"}},  // the marker had been read
      {70, {u"erste Zeile\r\nzweite Zeile", u"\r\nfett~\r\n{\\rtf1 \\b fett\\b0}\r\n"}},
  };
  for (const auto& c : cases) {
    desktop.dialogs().shown.clear();
    group.Changed = true;
    faults.FailNext("Files.Read", {FileStatus::Broken, c.bytesRead});
    EXPECT_EQ(Load(kTwoElements), c.elements) << c.bytesRead;
    EXPECT_EQ(Messages(), Texts{kNotOpened});
    EXPECT_TRUE(group.Changed);
  }
}

TEST_F(GroupOnDisk, AFailedSaveStaysToBeDone) {
  Put("alt\r\n");
  faults.FailNext("Files.Write");
  EXPECT_EQ(Save({MakePhrase(u"neu")}), "alt\r\n");
  EXPECT_TRUE(group.Changed);
  faults.FailNext("Files.Write", {FileStatus::Broken, 2});
  EXPECT_EQ(Save({MakePhrase(u"neu")}), "ne");
  EXPECT_TRUE(group.Changed);
  EXPECT_EQ(Messages(), (Texts{kNotSaved, kNotSaved}));
  group.Save();
  EXPECT_EQ(files.BytesOf(group.File), "neu\r\n");
  EXPECT_FALSE(group.Changed);
}

TEST_F(GroupOnDisk, SavesOnlyWhatWasLoadedAndChanged) {
  Put("alt\r\n");
  group.Changed = true;
  group.Save();
  EXPECT_EQ(files.BytesOf(group.File), "alt\r\n");
  group.Init();
  group.Phrases->clear();
  group.Save();
  EXPECT_EQ(files.BytesOf(group.File), "alt\r\n");
}

class PhraseFolder : public WithData {
 protected:
  PhraseFolder() { files.Put(u"C:\\Programme\\Dorvalin\\Phrases\\Briefe.dvp", "a\r\n"); }
  Texts Titles() {
    Texts titles;
    for (const auto& group : PhraseGroups()) titles.push_back(group->Title);
    return titles;
  }
};

TEST_F(PhraseFolder, IsSeededOnlyWhenItIsMissingAndListedOnce) {
  InitPhraseGroups();
  EXPECT_EQ(PhrasesFolder(), kFolder);
  EXPECT_EQ(Titles(), Texts{u"Briefe"});
  files.Put(std::u16string(kFolder) + u"\\Web.dvp", "b\r\n");
  InitPhraseGroups();
  EXPECT_EQ(Titles(), Texts{u"Briefe"});

  ProgramState nextStart;
  ProgramStateScope scope(nextStart);
  nextStart.AppPath = kTestAppPath;
  for (const auto* name : {u"\\Briefe.dvp", u"\\Web.dvp"}) {
    files.Remove(std::u16string(kFolder) + name);
  }
  InitPhraseGroups();
  EXPECT_EQ(Titles(), Texts{});
}

TEST_F(PhraseFolder, AnElementFindsTheFirstGroupOfItsNameInAnyCase) {
  for (const auto* title : {u"Web", u"GRÜSSE", u"Grüsse"}) {
    auto group = std::make_shared<CPhraseGroup>();
    group->Title = title;
    PhraseGroups().push_back(group);
  }
  CPhrase phrase;
  phrase.Group = u"grüsse";
  EXPECT_EQ(phrase.GetGroup(), PhraseGroups()[1]);
  phrase.Group = u"Briefe";
  EXPECT_EQ(phrase.GetGroup(), nullptr);
}

// Whatever fails while the groups are found, opened and saved: what is not on the disk afterwards
// was told to the user, once.
TEST_F(PhraseFolder, SurvivesTheFailureOfEveryCall) {
  const auto story = [] {
    InitPhraseGroups();
    for (const auto& group : PhraseGroups()) {
      group->Init();
      group->Phrases->push_back(MakePhrase(u"neu"));
      group->Changed = true;
      group->Save();
    }
  };
  const auto run = [&](int failing) {
    ProgramState fresh;
    ProgramStateScope scope(fresh);
    fresh.AppPath = kTestAppPath;
    files.Remove(kFolder);
    files.Put(u"C:\\Programme\\Dorvalin\\Phrases\\Briefe.dvp", "a\r\n");
    desktop.dialogs().shown.clear();
    faults.FailNth(failing);
    const int before = faults.Calls();
    story();
    EXPECT_LE(Messages().size(), 1u);
    for (const auto& group : PhraseGroups()) {
      const bool isSaved = files.BytesOf(group->File) == "a\r\n#NEXT#\r\nneu\r\n";
      EXPECT_EQ(Messages().empty(), isSaved);
      EXPECT_EQ(group->Changed, !isSaved && files.BytesOf(group->File) == "a\r\n");
    }
    return faults.Calls() - before;
  };
  const int calls = run(0);
  ASSERT_GT(calls, 5);
  for (int n = 1; n <= calls; ++n) {
    SCOPED_TRACE(n);
    run(n);
  }
}

TEST(PhraseFile, EscapedMarkersAreText) {
  EXPECT_EQ(EscapeMarkers(u"#RTF##RTF#\r\n#NEXT"), u"_RTF__RTF_\r\n#NEXT");
  EXPECT_EQ(EscapeMarkers(u"#NEXT#a#RTF#NEXT##next#"), u"_NEXT_a#RTF_NEXT_#next#");
}

TEST(PhraseFile, KeepsItsPromisesOnDamagedFiles) {
  const char kOddLines[] = "\r\n\r\na\rb\nc#\r\n \r\n#NEXT#\r\n\r\n#RTF#\r\n\r\nd\r\n\r\n";
  TryPhraseFile("");
  TryDamaged(kTwoElements, 5000, TryPhraseFile);
  TryDamaged(kOddLines, 5000, TryPhraseFile);
}

}  // namespace
}  // namespace dorvalin
