// Registry, files and locale.
#include <gmock/gmock.h>

#include <algorithm>

#include "platform/files.h"
#include "platform/locale.h"
#include "platform/numbers.h"
#include "platform/registry.h"

#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

using platform::RegistryBytes;
using platform::RegistryRoot;
using platform::RegistryValue;

class InRegistry : public Conformance {
 protected:
  static constexpr std::u16string_view kKey = u"Software\\Dorvalin Conformance";
  static constexpr RegistryRoot kUser = RegistryRoot::CurrentUser;
  ~InRegistry() override {
    registry().DeleteKey(kUser, u"Software\\Dorvalin Conformance\\Teil");
    registry().DeleteKey(kUser, kKey);
  }
  platform::Registry& registry() { return desktop().registry(); }
};

TEST_F(InRegistry, ValuesComeOutAsTheyWentIn) {
  const std::pair<std::u16string, RegistryValue> kValues[] = {
      {u"Text", u"Größe 5 €"},
      {u"leer", u""},
      {u"Zahl", 0xFFFFFFFFu},
      {u"lang", std::u16string(5000, u'ü')},
      {u"Bytes", RegistryBytes{std::string("\0\1\xFF", 3)}},
      {u"", u"der Standardwert"}};
  for (const auto& [name, value] : kValues) {
    SCOPED_TRACE(platform::ToUtf8(name));
    EXPECT_TRUE(registry().Set(kUser, kKey, name, value));
    EXPECT_EQ(registry().Get(kUser, kKey, name), value);
  }
  const auto all = registry().Values(kUser, kKey);
  ASSERT_TRUE(all);
  EXPECT_EQ(all->size(), std::size(kValues));
  EXPECT_TRUE(registry().Set(kUser, kKey, u"TEXT", 1u));
  EXPECT_EQ(registry().Get(kUser, kKey, u"Text"), RegistryValue(1u))
      << "names ignore case, and a value changes its type";
}

TEST_F(InRegistry, WhatIsMissingIsNone) {
  EXPECT_FALSE(registry().Get(kUser, kKey, u"Text"));
  EXPECT_FALSE(registry().Keys(kUser, kKey));
  EXPECT_FALSE(registry().Values(kUser, kKey));
  EXPECT_FALSE(registry().DeleteValue(kUser, kKey, u"Text"));
  EXPECT_FALSE(registry().DeleteKey(kUser, kKey));
  EXPECT_TRUE(registry().Set(kUser, kKey, u"Text", u"da"));
  EXPECT_FALSE(registry().Get(kUser, kKey, u"anderer"));
  EXPECT_TRUE(registry().DeleteValue(kUser, kKey, u"Text"));
  EXPECT_FALSE(registry().Get(kUser, kKey, u"Text"));
}

TEST_F(InRegistry, AKeyWithSubkeysStays) {
  EXPECT_TRUE(registry().Set(kUser, u"Software\\Dorvalin Conformance\\Teil", u"x", 1u));
  EXPECT_EQ(registry().Keys(kUser, kKey), std::vector<std::u16string>{u"Teil"});
  EXPECT_FALSE(registry().DeleteKey(kUser, kKey));
  EXPECT_TRUE(registry().DeleteKey(kUser, u"Software\\Dorvalin Conformance\\Teil"));
  EXPECT_TRUE(registry().DeleteKey(kUser, kKey));
}

class InFiles : public Conformance {
 protected:
  InFiles() { (void)files().CreateFolder(kFolder); }
  ~InFiles() override {
    for (const auto& entry : files().List(Path(u"*"))) (void)files().Delete(Path(entry.name));
  }
  platform::Files& files() { return desktop().files(); }
  std::u16string Path(const std::u16string& name) { return kFolder + u"\\" + name; }
  void Write(const std::u16string& name, std::string_view bytes) {
    ASSERT_EQ(files().Write(Path(name), bytes), platform::FileStatus::Done);
  }
  std::optional<std::string> Read(const std::u16string& name) {
    const auto content = files().Read(Path(name));
    return content.status == platform::FileStatus::Done ? std::optional(content.bytes)
                                                        : std::nullopt;
  }
  std::vector<std::u16string> Names(const std::u16string& pattern) {
    std::vector<std::u16string> names;
    for (const auto& entry : files().List(Path(pattern))) {
      if (entry.name != u"." && entry.name != u"..") names.push_back(entry.name);
    }
    std::sort(names.begin(), names.end());
    return names;
  }
  const std::u16string kFolder = u"C:\\Dorvalin Conformance";
};

TEST_F(InFiles, BytesComeOutAsTheyWentIn) {
  const std::string bytes("\0\r\n\x1A\xFFö", 7);
  Write(u"größe €.dat", bytes);
  EXPECT_FALSE(Read(u"GRÖSSE €.DAT")) << "ß is no SS";
  EXPECT_EQ(Read(u"GRößE €.DAT"), bytes);
  Write(u"größe €.dat", "");
  EXPECT_EQ(Read(u"größe €.dat"), "");
}

TEST_F(InFiles, WildcardsChooseByName) {
  for (const auto* name : {u"eins.dvp", u"zwei.DVP", u"drei.txt", u"ohne"}) Write(name, "x");
  EXPECT_EQ(Names(u"*.dvp"), (std::vector<std::u16string>{u"eins.dvp", u"zwei.DVP"}));
  EXPECT_EQ(Names(u"*").size(), 4u);
  EXPECT_EQ(Names(u"*.*").size(), 4u) << "also what has no extension";
  EXPECT_EQ(Names(u"d?ei.txt").size(), 1u);
  EXPECT_TRUE(Names(u"*.mp3").empty());
}

TEST_F(InFiles, EntriesTellWhatTheyAre) {
  Write(u"datei.txt", "12345");
  const auto list = files().List(Path(u"datei.txt"));
  ASSERT_EQ(list.size(), 1u);
  EXPECT_EQ(list[0].size, 5u);
  EXPECT_FALSE(list[0].IsFolder());
  EXPECT_EQ(list[0].modified, files().ModifiedTime(Path(u"datei.txt")));
  const auto now = desktop().clock().Now();
  for (const auto& time : {list[0].modified, list[0].created, list[0].accessed}) {
    EXPECT_EQ(time.year, now.year);
    EXPECT_EQ(time.day, now.day) << "local time";
  }
  EXPECT_EQ(list[0].shortName, u"");
  EXPECT_TRUE(*files().Attributes(kFolder) & platform::kAttributeFolder);
}

TEST_F(InFiles, AShortNameIsEmptyOrFitsEightAndThree) {
  Write(u"lang genug und mehr.html", "x");
  const auto list = files().List(Path(u"lang*"));
  ASSERT_EQ(list.size(), 1u);
  const std::u16string& name = list[0].shortName;
  const auto dot = std::min(name.find(u'.'), name.size());
  EXPECT_LE(dot, 8u);
  EXPECT_LE(name.size() - dot, 4u);
  EXPECT_EQ(name.find(u' '), name.npos) << platform::ToUtf8(name);
}

TEST_F(InFiles, RenamingNeverOverwritesAndTakesOverAnotherSpelling) {
  Write(u"alt.txt", "eins");
  Write(u"fest.txt", "zwei");
  const auto rename = [&](const std::u16string& from, const std::u16string& to) {
    return files().Rename(Path(from), Path(to));
  };
  for (const auto* to : {u"fest.txt", u"FEST.txt", u"neu?.txt", u"kein\\ort.txt"}) {
    EXPECT_FALSE(rename(u"alt.txt", to)) << platform::ToUtf8(to);
  }
  EXPECT_FALSE(rename(u"fehlt.txt", u"neu.txt"));
  EXPECT_EQ(Names(u"*"), (std::vector<std::u16string>{u"alt.txt", u"fest.txt"}));
  EXPECT_EQ(Read(u"fest.txt"), "zwei");

  EXPECT_TRUE(rename(u"alt.txt", u"alt.txt"));
  EXPECT_TRUE(rename(u"alt.txt", u"Alt.TXT"));
  EXPECT_EQ(Names(u"*"), (std::vector<std::u16string>{u"Alt.TXT", u"fest.txt"}));
  EXPECT_TRUE(rename(u"alt.TXT", u"größe €.txt"));
  EXPECT_EQ(Read(u"größe €.txt"), "eins");
  EXPECT_FALSE(files().Attributes(Path(u"alt.txt")));
}

TEST_F(InFiles, AFolderIsRenamedWithAllThatIsInIt) {
  const std::u16string old = u"C:\\Dorvalin Teil";
  const std::u16string other = u"C:\\Dorvalin TEIL 2";
  (void)files().CreateFolder(old);
  ASSERT_EQ(files().Write(old + u"\\a.txt", "x"), platform::FileStatus::Done);
  EXPECT_FALSE(files().Rename(old, old + u"\\innen"));
  EXPECT_TRUE(files().Rename(old, u"C:\\DORVALIN Teil"));
  EXPECT_EQ(files().List(u"C:\\dorvalin t*").at(0).name, u"DORVALIN Teil");
  EXPECT_TRUE(files().Rename(old, other));
  EXPECT_EQ(files().Read(other + u"\\a.txt").bytes, "x");
  EXPECT_TRUE(files().Rename(other, old));
}

TEST_F(InFiles, CopyingReplacesAndDeletingWorksOnce) {
  Write(u"a.txt", "neu");
  Write(u"b.txt", "alt");
  EXPECT_TRUE(files().Copy(Path(u"a.txt"), Path(u"b.txt")));
  EXPECT_EQ(Read(u"b.txt"), "neu");
  EXPECT_TRUE(files().Delete(Path(u"a.txt")));
  EXPECT_FALSE(files().Delete(Path(u"a.txt")));
  EXPECT_FALSE(files().Copy(Path(u"a.txt"), Path(u"b.txt")));
}

TEST_F(InFiles, WhatIsMissingIsNone) {
  EXPECT_FALSE(files().Attributes(Path(u"nichts")));
  EXPECT_FALSE(files().ModifiedTime(Path(u"nichts")));
  EXPECT_EQ(files().Read(Path(u"nichts")).status, platform::FileStatus::CannotOpen);
  EXPECT_EQ(files().Read(kFolder).status, platform::FileStatus::CannotOpen);
  EXPECT_EQ(files().Write(Path(u"kein\\ort.txt"), "x"), platform::FileStatus::CannotOpen);
  EXPECT_TRUE(files().List(Path(u"kein\\*")).empty());
  EXPECT_FALSE(files().CreateFolder(kFolder)) << "it is there already";
}

TEST_F(InFiles, TheSystemDriveIsThereAndReady) {
  const auto drives = files().Drives();
  const auto c = std::find_if(drives.begin(), drives.end(),
                              [](const platform::Drive& drive) { return drive.letter == u'C'; });
  ASSERT_NE(c, drives.end());
  EXPECT_EQ(c->kind, platform::DriveKind::Fixed);
  EXPECT_TRUE(c->ready);
  EXPECT_NE(c->fileSystem, u"");
  EXPECT_NE(c->serialNumber, 0u);
  const auto asked = files().DriveAt(u'c');
  ASSERT_TRUE(asked);
  EXPECT_EQ(asked->letter, u'C');
  EXPECT_EQ(asked->serialNumber, c->serialNumber);
  EXPECT_FALSE(files().DriveAt(u'Q'));
  EXPECT_FALSE(files().DriveAt(u'?'));
}

class InLocale : public Conformance {
 protected:
  platform::Locale& locale() { return desktop().locale(); }
  const platform::DateTime kWhen{2026, 3, 9, 7, 5, 4, 0};
};

TEST_F(InLocale, EveryByteHasACharacterThatLeadsBackToIt) {
  std::string bytes;
  for (int n = 0; n < 256; ++n) bytes += static_cast<char>(n);
  const auto text = locale().FromAnsi(bytes);
  EXPECT_EQ(text.size(), 256u);
  EXPECT_EQ(locale().ToAnsi(text), bytes);
  EXPECT_EQ(locale().FromAnsi("\xE4\x80\x81\x9F"), u"ä€\x81Ÿ");
}

TEST_F(InLocale, ACharacterOutsideThePageBecomesOneQuestionMark) {
  EXPECT_EQ(locale().ToAnsi(u"Ж😀ß"), "??\xDF");
  const char16_t kHalves[] = {0xD83D, u'a', 0xDE00, 0};
  EXPECT_EQ(locale().ToAnsi(kHalves), "?a?");
}

TEST_F(InLocale, SpeaksGerman) {
  EXPECT_EQ(locale().Numbers().decimal, u',');
  EXPECT_EQ(locale().Numbers().group, u'.');
  // Wine's regional data has the short date without leading zeros.
  EXPECT_THAT(platform::ToUtf8(locale().ShortDate(kWhen)),
              testing::AnyOf("09.03.2026", "9.3.2026"));
  EXPECT_EQ(platform::ToUtf8(locale().LongDate(kWhen)), "Montag, 9. März 2026");
  EXPECT_EQ(platform::ToUtf8(locale().LongTime(kWhen)), "07:05:04");
  EXPECT_EQ(platform::ToUtf8(locale().ShortTime(kWhen)), "07:05");
}

TEST_F(InLocale, DatePicturesAreFilledIn) {
  const std::pair<const char16_t*, const char*> kPictures[] = {
      {u"d.M.yy", "9.3.26"},
      {u"dd.MM.yyyy", "09.03.2026"},
      // Wine's regional data write short names with a point, and March in full.
      {u"ddd, d. MMM", under().OnWine() ? "Mo., 9. März" : "Mo, 9. Mär"},
      {u"dddd, d. MMMM yyyy", "Montag, 9. März 2026"},
      {u"'am 'd'.'", "am 9."},
  };
  for (const auto& [picture, expected] : kPictures) {
    EXPECT_EQ(platform::ToUtf8(locale().FormatDate(kWhen, picture)), expected);
  }
}

TEST_F(InLocale, TypedDatesAreRead) {
  using platform::DateTime;
  const int thisYear = desktop().clock().Now().year;
  const std::pair<const char16_t*, std::optional<DateTime>> kTexts[] = {
      {u"9.3.2026", DateTime{2026, 3, 9}},
      {u" 09.03.26 ", DateTime{2026, 3, 9}},
      {u"9.3.68", DateTime{1968, 3, 9}},
      {u"9.3", DateTime{thisYear, 3, 9}},
      {u"9/3/2026", DateTime{2026, 3, 9}},
      {u"2026-03-09", DateTime{2026, 3, 9}},
      {u"3.31.2026", DateTime{2026, 3, 31}},
      {u"29.2.2024", DateTime{2024, 2, 29}},
      {u"9. März 2026", DateTime{2026, 3, 9}},
      {u"Montag, 9. März 2026", DateTime{2026, 3, 9}},
      {u"9. Dez 2026", DateTime{2026, 12, 9}},
      {u"9.3.2026 15:05", DateTime{2026, 3, 9}},
      {u"29.2.2023", {}},
      {u"13.13.2026", {}},
      {u"9.3.1500", {}},
      {u"1.1.10000", {}},
      {u"15:05", {}},
      {u"9", {}},
      {u"9.3.2026 x", {}},
      {u"Quatsch", {}},
      {u"", {}},
  };
  for (const auto& [text, expected] : kTexts) {
    EXPECT_EQ(locale().ParseDate(text), expected) << platform::ToUtf8(text);
  }
}

TEST_F(InLocale, TypedTimesAreRead) {
  struct Case {
    const char16_t* text;
    int hour, minute, second;  ///< -1 for none
  };
  const Case kTexts[] = {
      {u"15:05", 15, 5, 0},
      {u"7:05:04", 7, 5, 4},
      {u" 15:5 ", 15, 5, 0},
      {u"3:05 PM", 15, 5, 0},
      {u"12:05 AM", 0, 5, 0},
      {u"12:05 pm", 12, 5, 0},
      {u"9.3.2026 15:05", 15, 5, 0},
      {u"9.3.2026", 0, 0, 0},
      {u"24:00", -1, 0, 0},
      {u"15:60", -1, 0, 0},
      {u"15", -1, 0, 0},
      {u"15:05 Uhr", -1, 0, 0},
      {u"", -1, 0, 0},
  };
  for (const auto& [text, hour, minute, second] : kTexts) {
    SCOPED_TRACE(platform::ToUtf8(text));
    const auto time = locale().ParseTime(text);
    ASSERT_EQ(time.has_value(), hour >= 0);
    if (!time) continue;
    EXPECT_EQ(*time, (platform::DateTime{1601, 1, 1, hour, minute, second}));
  }
}

}  // namespace
}  // namespace conformance
