#include "colours/CPalette.h"

#include "core/paths.h"
#include "tests/colours/hostile.h"
#include "tests/support/WithData.h"
#include "tests/support/hostile.h"

namespace dorvalin {
namespace {

using platform::Failure;
using platform::FileStatus;

constexpr char16_t kFolder[] = u"C:\\Benutzer\\Anna\\Anwendungsdaten\\Tolvo\\Dorvalin\\Palettes\\";
constexpr char16_t kNotOpened[] = u"Die Palette Rot konnte nicht geöffnet werden.";
constexpr char16_t kNotSaved[] = u"Die Palette Rot konnte nicht gespeichert werden.";

using Fields = std::vector<std::int32_t>;
using Texts = std::vector<std::u16string>;

Fields FieldsOf(const CPalette& palette) {
  Fields fields;
  for (int i = 1; palette.Colors && i <= palette.Colors->Count(); ++i) {
    fields.push_back(palette.Colors->Item(i));
  }
  return fields;
}

class PaletteOnDisk : public WithData {
 protected:
  PaletteOnDisk() {
    files.PutFolder(kFolder);
    InitPalettes();
    palette.Title = u"Rot";
    palette.BuildFileName();
  }
  void Put(std::string_view bytes) { files.Put(palette.File, bytes); }
  std::optional<std::string> Bytes() { return files.BytesOf(palette.File); }

  CPalette palette;
};

const std::string kThreeFields("\x03\xFF\0\0\0\xFF\xFF\xFF\xFF\0\0\xFF\0", 13);

TEST_F(PaletteOnDisk, IsACountByteAndFourBytesAField) {
  Put(kThreeFields);
  palette.Init();
  EXPECT_EQ(FieldsOf(palette), (Fields{0xFF, -1, 0xFF0000}));
  palette.Changed = true;
  palette.Save();
  EXPECT_EQ(Bytes(), kThreeFields);
  EXPECT_FALSE(palette.Changed);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(PaletteOnDisk, IsLoadedOnceAndOverwritesNothingBefore) {
  Put(kThreeFields);
  palette.Save();
  EXPECT_EQ(Bytes(), kThreeFields);
  palette.Init();
  Put(std::string("\x01\0\0\0\0", 5));
  palette.Init();
  EXPECT_EQ(FieldsOf(palette).size(), 3u);
  palette.Changed = true;
  palette.Load();
  EXPECT_EQ(FieldsOf(palette), Fields{0});
  EXPECT_FALSE(palette.Changed);
}

TEST_F(PaletteOnDisk, HoldsAtMost256Fields) {
  palette.Colors.emplace();
  for (int i = 0; i < 300; ++i) palette.Colors->AddItem(i);
  palette.Save();
  EXPECT_EQ(palette.Colors->Count(), 256);
  ASSERT_EQ(Bytes()->size(), 1u + 4 * 256);
  EXPECT_EQ(Bytes()->front(), '\0');
  palette.Load();
  EXPECT_EQ(FieldsOf(palette).size(), 256u);
  EXPECT_EQ(palette.Colors->Item(256), 255);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(PaletteOnDisk, TurnsEveryEmptyFieldIntoMinusOneWhenItIsSaved) {
  Put("\x01\xFE\xFF\xFF\xFF");
  palette.Load();
  EXPECT_EQ(FieldsOf(palette), Fields{-2});
  palette.Save();
  EXPECT_EQ(FieldsOf(palette), Fields{-1});
  EXPECT_EQ(Bytes(), "\x01\xFF\xFF\xFF\xFF");
}

TEST_F(PaletteOnDisk, CannotSayThatItHasNoFields) {
  palette.Colors.emplace();
  palette.Save();
  EXPECT_EQ(Bytes(), std::string(1, '\0'));
  palette.Load();
  EXPECT_EQ(FieldsOf(palette), Fields{});
  EXPECT_EQ(Messages(), Texts{kNotOpened});
}

TEST_F(PaletteOnDisk, KeepsTheFieldsInFrontOfAnEarlyEnd) {
  for (std::size_t length = 0; length < kThreeFields.size(); ++length) {
    desktop.dialogs().shown.clear();
    Put(kThreeFields.substr(0, length));
    palette.Load();
    EXPECT_EQ(FieldsOf(palette).size(), length == 0 ? 0 : (length - 1) / 4) << length;
    EXPECT_EQ(Messages(), Texts{kNotOpened}) << length;
  }
}

TEST_F(PaletteOnDisk, SaysSoWhenItCannotBeRead) {
  palette.Load();
  EXPECT_EQ(FieldsOf(palette), Fields{});
  Put(kThreeFields);
  faults.FailNext("Files.Read", {FileStatus::Broken, 6});
  palette.Load();
  EXPECT_EQ(FieldsOf(palette), Fields{0xFF});
  EXPECT_EQ(Messages(), (Texts{kNotOpened, kNotOpened}));
}

TEST_F(PaletteOnDisk, MayLoseItsFileButNotItsListWhenItCannotBeWritten) {
  struct {
    const char* what;
    const char* call;
    Failure how;
    std::optional<std::string> onDisk;
  } const cases[] = {
      {"the old file cannot be deleted", "Files.Delete", {}, kThreeFields},
      {"the file cannot be opened", "Files.Write", {}, std::nullopt},
      {"the disk is full", "Files.Write", {FileStatus::Broken, 3}, std::string("\x01\x07\0", 3)},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    desktop.dialogs().shown.clear();
    Put(kThreeFields);
    palette.Colors.emplace();
    palette.Colors->AddItem(7);
    faults.FailNext(c.call, c.how);
    palette.Save();
    EXPECT_EQ(Messages(), Texts{kNotSaved});
    EXPECT_EQ(Bytes(), c.onDisk);
    EXPECT_EQ(FieldsOf(palette), Fields{7});
    EXPECT_FALSE(palette.Changed);
  }
}

class PaletteFolder : public WithData {
 protected:
  PaletteFolder() {
    files.Put(u"C:\\Programme\\Dorvalin\\Palettes\\Pastell.dvl", kThreeFields);
    files.Put(u"C:\\Programme\\Dorvalin\\Palettes\\Lies mich.txt", "x");
  }
  Texts Titles() {
    Texts titles;
    for (const auto& palette : Palettes()) titles.push_back(palette->Title);
    return titles;
  }
};

TEST_F(PaletteFolder, IsSeededWhenItIsMissing) {
  InitPalettes();
  EXPECT_EQ(Titles(), Texts{u"Pastell"});
  EXPECT_EQ(JoinPath(PalettesFolder(), u""), kFolder);
  EXPECT_TRUE(files.Has(std::u16string(kFolder) + u"Lies mich.txt"));
  EXPECT_FALSE(Palettes()[0]->Colors);
  Palettes()[0]->Init();
  EXPECT_EQ(FieldsOf(*Palettes()[0]).size(), 3u);
}

TEST_F(PaletteFolder, IsNotSeededWhenItIsEmpty) {
  files.PutFolder(kFolder);
  InitPalettes();
  EXPECT_EQ(Titles(), Texts{});
}

TEST_F(PaletteFolder, IsListedOnceWithoutHiddenNames) {
  for (const auto* name : {u"b.dvl", u"A.DVL", u"v1.2.dvl", u".c.dvl", u"d.txt"}) {
    files.Put(std::u16string(kFolder) + name, "");
  }
  InitPalettes();
  EXPECT_EQ(Titles(), (Texts{u"A", u"b", u"v1.2"}));
  const auto first = Palettes()[0];
  files.Put(std::u16string(kFolder) + u"e.dvl", "");
  InitPalettes();
  EXPECT_EQ(Titles(), (Texts{u"A", u"b", u"v1.2"}));
  EXPECT_EQ(Palettes()[0], first);
}

TEST_F(PaletteFolder, LiesBesideTheProgramWhereNoApplicationDataAreKnown) {
  desktop.shell().specialFolders.erase(26);
  InitPalettes();
  EXPECT_EQ(PalettesFolder(), u"C:\\Programme\\Dorvalin\\Palettes");
  EXPECT_EQ(Titles(), Texts{u"Pastell"});
}

TEST(ColorClip, CarriesThreeBytesRedFirst) {
  EXPECT_EQ(ColorClipData(0x030201), "\x01\x02\x03");
  EXPECT_EQ(ColorFromClipData("\x01\x02\xFF"), 0xFF0201);
  EXPECT_EQ(ColorFromClipData("\x01\x02\xFF\x7F more"), 0xFF0201);
  EXPECT_EQ(ColorFromClipData("\x01\x02"), std::nullopt);
}

TEST(PaletteFile, KeepsItsPromisesWhenDamaged) {
  TryPaletteFile("");
  TryDamaged(kThreeFields, 5000, TryPaletteFile);
}

TEST(ColorText, KeepsItsPromisesWhenDamaged) {
  for (const auto* sample : {"#FF8000", "0x0080FF", "&H0080FF&", "$000080FF", "255\t128\t0"}) {
    TryDamaged(sample, 1000, TryColorText);
  }
}

}  // namespace
}  // namespace dorvalin
