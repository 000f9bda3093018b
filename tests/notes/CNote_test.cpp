#include "notes/CNote.h"

#include "artwork/pictures.h"
#include "core/paths.h"
#include "notes/NotesFolder.h"
#include "tests/support/WithData.h"

namespace dorvalin {
namespace {

class Note : public WithData {
 protected:
  Note() {
    NotesFolder() = u"C:\\Notes\\";
    files.PutFolder(NotesFolder());
    for (const auto* name :
         {u"C:\\Notes\\a.jpg", u"C:\\Notes\\p.prv", u"C:\\a.jpg", u"C:\\p.prv"}) {
      files.Put(name, "bytes");
    }
    note->File = u"a.jpg";
    note->PreviewID = u"p";
    note->NoteType = kPictureNote;
  }
  bool Has(std::u16string_view path) { return files.Has(path); }

  std::shared_ptr<CNote> note = std::make_shared<CNote>();
};

TEST_F(Note, LeavesFilesOutsideTheStoreAlone) {
  note->PreviewID.clear();
  for (const auto type : {kTextNote, kPictureReference, kFileReference}) {
    note->NoteType = type;
    note->File = type == kTextNote ? u"a.jpg" : u"C:\\a.jpg";
    note->RemoveAllFiles();
  }
  note->NoteType = kFileNote;
  note->PreviewID = u"..\\p";
  for (const auto* name : {u"..\\a.jpg", u"C:\\a.jpg", u"\\a.jpg", u"../a.jpg", u"C:a.jpg", u""}) {
    note->File = name;
    note->RemoveAllFiles();
  }
  NotesFolder() = kNoNotesFolder;
  note->File = u"a.jpg";
  note->RemoveAllFiles();
  for (const auto* path : {u"C:\\Notes\\a.jpg", u"C:\\Notes\\p.prv", u"C:\\a.jpg", u"C:\\p.prv"}) {
    EXPECT_TRUE(Has(path)) << GetExtension(path).size();
  }
}

TEST_F(Note, IsRemovedByIdentityWithItsPreviewAndItsOwnFile) {
  const auto twin = std::make_shared<CNote>(*note);
  NoteCollection notes{twin, note};
  RemoveNote(std::make_shared<CNote>(*note), notes);
  EXPECT_EQ(notes.size(), 2u);
  EXPECT_TRUE(Has(u"C:\\Notes\\a.jpg"));
  RemoveNote(notes[1], notes);
  EXPECT_EQ(notes, NoteCollection{twin});
  EXPECT_FALSE(Has(u"C:\\Notes\\a.jpg"));
  EXPECT_FALSE(Has(u"C:\\Notes\\p.prv"));
}

TEST_F(Note, ItsCloneHasAFileOfItsOwnAndNoPreview) {
  note->Text = u"T";
  note->Link = u"L";
  desktop.clock().SetNow({2026, 3, 9, 0, 0, 1, 0});
  const auto copy = note->Clone();
  EXPECT_EQ(copy->Text, u"T");
  EXPECT_EQ(copy->Link, u"L");
  EXPECT_EQ(copy->NoteType, kPictureNote);
  EXPECT_EQ(copy->PreviewID, u"");
  EXPECT_EQ(copy->File, u"64.jpg");
  EXPECT_EQ(files.BytesOf(u"C:\\Notes\\64.jpg"), "bytes");
  EXPECT_EQ(note->Clone()->File, u"65.jpg");

  note->NoteType = kPictureReference;
  EXPECT_EQ(note->Clone()->File, u"a.jpg");
}

TEST_F(Note, ItsIconComesFromItsExtensionAlone) {
  const auto icon = [&](std::u16string name) {
    note->File = std::move(name);
    return note->LoadIcon();
  };
  const auto txt = icon(u"C:\\missing\\x.TXT");
  ASSERT_TRUE(txt);
  EXPECT_EQ(txt->size, (platform::Size{16, 16}));
  EXPECT_EQ(txt->pixels, icon(u"y.txt\"")->pixels);
  EXPECT_NE(txt->pixels, icon(u"y.pdf")->pixels);
  EXPECT_TRUE(icon(u"Makefile"));
  faults.FailNext("Shell.FileIcon");
  EXPECT_TRUE(icon(u"y.txt")) << "a late answer is waited for";
  faults.FailAlways("Shell.FileIcon");
  const int before = faults.Calls();
  EXPECT_FALSE(icon(u"y.txt"));
  EXPECT_EQ(faults.Calls() - before, 10);
}

TEST_F(Note, ShowsItsPreviewOrTheStockPicture) {
  // One row of two pixels, 24 bits each.
  std::string bitmap("BM>\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x02\0\0\0\x01\0\0\0\x01\0\x18\0", 30);
  bitmap += std::string(32, '\0');
  const auto stock = PictureSurface(Picture::imgNote).Size();
  EXPECT_EQ(note->PreviewPicture().Size(), stock) << "a file that is no picture";
  files.Put(u"C:\\Notes\\p.prv", bitmap);
  EXPECT_EQ(note->PreviewPicture().Size(), (platform::Size{2, 1}));
  note->PreviewID.clear();
  EXPECT_EQ(note->PreviewPicture().Size(), stock);
}

}  // namespace
}  // namespace dorvalin
