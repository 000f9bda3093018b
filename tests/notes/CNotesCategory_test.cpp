#include "notes/CNotesCategory.h"

#include "core/modRegTools.h"
#include "notes/NotesFolder.h"
#include "notes/note_file.h"
#include "tests/support/WithData.h"

namespace dorvalin {
namespace {

using platform::Failure;
using platform::FileStatus;
using Texts = std::vector<std::u16string>;

constexpr char16_t kStore[] = u"C:\\Benutzer\\Anna\\Anwendungsdaten\\Tolvo\\Merrowe\\Notes\\";
const std::u16string kFile = std::u16string(kStore) + u"Ideen.tnc";
const std::u16string kNotLoaded =
    u"Die Notizendatei \"" + kFile + u"\" konnte leider nicht geladen werden.";
const std::u16string kNotSaved =
    u"Die Notizendatei \"" + kFile + u"\" konnte leider nicht gespeichert werden.";

std::shared_ptr<CNote> MakeNote(std::u16string text) {
  auto note = std::make_shared<CNote>();
  note->Text = std::move(text);
  return note;
}

class Category : public WithData {
 protected:
  Category() {
    files.PutFolder(kStore);
    FindNotesFolder();
    files.Put(kFile, kOld);
    category.Name = u"Ideen";
  }
  Texts NoteTexts() {
    Texts texts;
    for (const auto& note : category.Notes) texts.push_back(note->Text);
    return texts;
  }
  std::size_t FilesBesideTheProgram() {
    return files.List(u"C:\\Programme\\Dorvalin\\*").size() - 2;
  }

  const std::string kOld = BytesFromNotes({MakeNote(u"eins"), MakeNote(u"zwei")});
  CNotesCategory category;
};

TEST_F(Category, IsLoadedOnceAndReloadedOnDemand) {
  category.Changed = true;
  EXPECT_TRUE(category.Load());
  EXPECT_EQ(category.FileName, kFile);
  EXPECT_EQ(NoteTexts(), (Texts{u"eins", u"zwei"}));
  EXPECT_FALSE(category.AnythingChanged());
  files.Put(kFile, BytesFromNotes({MakeNote(u"drei")}));
  EXPECT_TRUE(category.Load());
  EXPECT_EQ(NoteTexts().size(), 2u);
  category.Reload();
  EXPECT_EQ(NoteTexts(), Texts{u"drei"});
  EXPECT_TRUE(Messages().empty());
}

TEST_F(Category, OfZeroBytesIsEmptyWithoutAMessage) {
  files.Put(kFile, "");
  EXPECT_TRUE(category.Load());
  EXPECT_TRUE(category.Loaded);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(Category, SaysSoWhenItCannotBeLoadedAndKeepsWhatItRead) {
  files.Put(kFile, kOld.substr(0, kOld.size() - 4));
  EXPECT_FALSE(category.Load());
  EXPECT_FALSE(category.Loaded);
  EXPECT_EQ(NoteTexts(), (Texts{u"eins", u"zwei"}));
  EXPECT_FALSE(category.Load());
  EXPECT_EQ(NoteTexts().size(), 2u) << "a second attempt doubles nothing";

  files.Put(kFile, kOld);
  faults.FailNext("Files.Read", {FileStatus::Broken, 40});
  EXPECT_FALSE(category.Load());
  EXPECT_EQ(NoteTexts(), Texts{u"eins"});
  EXPECT_FALSE(category.FileChangedExternally());

  faults.FailNext("Files.Read", {FileStatus::Broken, 0});
  EXPECT_FALSE(category.Load()) << "a file that breaks at once is no new category";
  files.Remove(kFile);
  EXPECT_FALSE(category.Load());

  EXPECT_EQ(Messages(), (Texts{kNotLoaded, kNotLoaded, kNotLoaded, kNotLoaded, kNotLoaded}));
  EXPECT_EQ(desktop.dialogs().shown[0].icon, platform::MessageIcon::Stop);
  EXPECT_EQ(desktop.dialogs().shown[0].title, u"Merrowe-Ablage");
}

TEST_F(Category, WritesItsNotesAndForgetsTheBackup) {
  category.Load();
  category.Notes.push_back(MakeNote(u"drei"));
  category.Notes.back()->Changed = true;
  EXPECT_TRUE(category.AnythingChanged());
  category.Changed = true;
  desktop.clock().Advance(std::chrono::hours(1));
  category.Save();
  EXPECT_EQ(files.BytesOf(kFile), BytesFromNotes(category.Notes));
  EXPECT_FALSE(category.AnythingChanged());
  EXPECT_FALSE(category.FileChangedExternally()) << "the own change is none from outside";
  EXPECT_EQ(FilesBesideTheProgram(), 0u);
}

TEST_F(Category, SeesWhenTheOtherProgramWrote) {
  EXPECT_FALSE(category.FileChangedExternally());
  category.Load();
  EXPECT_FALSE(category.FileChangedExternally());
  desktop.clock().Advance(std::chrono::seconds(2));
  files.Put(kFile, kOld);
  EXPECT_TRUE(category.FileChangedExternally());
  category.Reload();
  EXPECT_FALSE(category.FileChangedExternally());
  files.SetModified(kFile, {2020, 1, 1, 0, 0, 0, 0});
  EXPECT_FALSE(category.FileChangedExternally()) << "an older file is no newer one";
  files.Remove(kFile);
  EXPECT_FALSE(category.FileChangedExternally());
}

TEST_F(Category, AFailedSaveLeavesTheOldFileEvenWithoutABackup) {
  struct {
    const char* what;
    Failure write;
    const char* alsoFailing;
  } const cases[] = {
      {"cannot be opened and no backup could be made", {}, "Files.Copy"},
      {"the disk is full and no backup could be made", {FileStatus::Broken, 9}, "Files.Copy"},
      {"the disk is full and the old file could not be deleted",
       {FileStatus::Broken, 9},
       "Files.Delete"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    files.Put(kFile, kOld);
    desktop.dialogs().shown.clear();
    category.Reload();
    category.Notes.pop_back();
    category.Notes[0]->Changed = true;
    faults.FailNext("Files.Write", c.write);
    faults.FailNext(c.alsoFailing);
    category.Save();
    EXPECT_EQ(files.BytesOf(kFile), kOld);
    EXPECT_EQ(Messages(), Texts{kNotSaved});
    EXPECT_EQ(desktop.dialogs().shown[0].title, u"Merrowe-Ablage");
    EXPECT_TRUE(category.AnythingChanged()) << "the next save tries again";
    EXPECT_EQ(NoteTexts(), Texts{u"eins"});
    EXPECT_EQ(FilesBesideTheProgram(), 0u);
  }
}

// One call fails, whichever it is: the file holds the old notes or the new ones, never neither.
TEST_F(Category, NoSingleFailureLosesTheFile) {
  for (const FileStatus status : {FileStatus::CannotOpen, FileStatus::Broken}) {
    const auto run = [&](int failing) {
      files.Put(kFile, kOld);
      desktop.dialogs().shown.clear();
      category.Reload();
      const std::string fresh = BytesFromNotes({MakeNote(u"neu")});
      category.Notes = {MakeNote(u"neu")};
      const int before = faults.Calls();
      faults.FailNth(failing, {status, 5});
      category.Save();
      EXPECT_EQ(files.BytesOf(kFile), Messages().empty() ? fresh : kOld);
      return faults.Calls() - before;
    };
    const int calls = run(0);
    ASSERT_GE(calls, 5);
    for (int n = 1; n <= calls; ++n) {
      SCOPED_TRACE(n);
      run(n);
    }
  }
}

using Store = WithData;

TEST_F(Store, LiesInTheApplicationDataOrBesideMerrowe) {
  EXPECT_EQ(NotesFolder(), u"");
  FindNotesFolder();
  EXPECT_EQ(NotesFolder(), kNoNotesFolder);
  files.PutFolder(kStore);
  FindNotesFolder();
  EXPECT_EQ(NotesFolder(), kStore);

  desktop.shell().specialFolders[26] += u'\\';
  FindNotesFolder();
  EXPECT_EQ(NotesFolder(), kStore);

  desktop.shell().specialFolders.erase(26);
  FindNotesFolder();
  EXPECT_EQ(NotesFolder(), kNoNotesFolder);
  files.PutFolder(u"C:\\Merrowe\\Notes");
  for (const auto* path : {u"C:\\Merrowe", u"C:\\Merrowe\\"}) {
    RegSetString(kMerroweKey, u"AppPath", path);
    FindNotesFolder();
    EXPECT_EQ(NotesFolder(), u"C:\\Merrowe\\Notes\\");
  }
}

}  // namespace
}  // namespace dorvalin
