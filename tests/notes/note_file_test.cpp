#include "notes/note_file.h"

#include "tests/notes/hostile_files.h"
#include "tests/support/WithData.h"
#include "tests/support/hostile.h"

namespace dorvalin {
namespace {

using NoteFile = WithData;

std::string Number(std::uint32_t number) {
  std::string bytes;
  for (int i = 0; i < 4; ++i, number >>= 8) bytes.push_back(static_cast<char>(number & 0xFF));
  return bytes;
}
std::string Text(std::string_view text) {
  return Number(static_cast<std::uint32_t>(text.size())).append(text);
}

const std::string kVersion = Number(10000);
const std::string kEnd = Number(0x0FFFFFFF);
const std::string kNoText = Text("");
const std::string kEmptyNote = Number(0) + kNoText + kNoText + kNoText + kNoText;

/// Two notes: a text with an address, and a reference to a file outside.
const std::string kTwoNotes = kVersion + Number(0) +
                              Text(
                                  "Gr\xFC\xDF"
                                  "e\r\n") +
                              Text("https://tolvo.example/") + kNoText + Text("p1") + Number(-2u) +
                              kNoText + kNoText + Text("C:\\a.txt") + kNoText + kEnd;

TEST_F(NoteFile, HoldsTheNotesBetweenAVersionAndAnEndMark) {
  const auto read = NotesFromBytes(kTwoNotes);
  ASSERT_TRUE(read.isWhole);
  ASSERT_EQ(read.notes.size(), 2u);
  const CNote& first = *read.notes[0];
  EXPECT_EQ(first.NoteType, kTextNote);
  EXPECT_EQ(first.Text, u"Grüße\r\n");
  EXPECT_EQ(first.Link, u"https://tolvo.example/");
  EXPECT_EQ(first.File, u"");
  EXPECT_EQ(first.PreviewID, u"p1");
  const CNote& second = *read.notes[1];
  EXPECT_EQ(second.NoteType, kFileReference);
  EXPECT_EQ(second.File, u"C:\\a.txt");
  EXPECT_EQ(BytesFromNotes(read.notes), kTwoNotes);
}

TEST_F(NoteFile, WithoutNotesIsEightBytesAndAnEmptyNoteIsTwenty) {
  EXPECT_EQ(BytesFromNotes({}), kVersion + kEnd);
  EXPECT_EQ(BytesFromNotes({std::make_shared<CNote>()}), kVersion + kEmptyNote + kEnd);
  EXPECT_EQ(kEmptyNote.size(), 20u);
}

TEST_F(NoteFile, ReplacesCharactersThatTheCodePageLacks) {
  const auto note = std::make_shared<CNote>();
  note->Text = u"a😀Ж";
  EXPECT_EQ(NotesFromBytes(BytesFromNotes({note})).notes[0]->Text, u"a??");
}

TEST_F(NoteFile, ReadsOddFilesAsFarAsTheyGo) {
  struct {
    const char* what;
    std::string bytes;
    std::size_t notes;
    bool isWhole;
  } const cases[] = {
      {"a new category", "", 0, true},
      {"a version of 0", Number(0), 0, true},
      {"a version of 0 and rubbish", Number(0) + "rubbish", 0, true},
      {"another version", Number(77) + kEmptyNote + kEnd, 1, true},
      {"a negative version", Number(-1u) + kEnd, 0, true},
      {"rubbish behind the end", kVersion + kEnd + kEmptyNote, 0, true},
      {"an unknown type", kVersion + Number(-9u) + kEmptyNote.substr(4) + kEnd, 1, true},
      {"no end mark", kVersion + kEmptyNote, 1, false},
      {"a version alone", kVersion, 0, false},
      {"part of a version", kVersion.substr(0, 3), 0, false},
      {"a negative length is an empty text",
       kVersion + Number(0) + Number(-5u) + Number(0x80000000u) + kNoText + kNoText + kEnd, 1,
       true},
      {"a length of 2 GB in 30 bytes",
       kVersion + Number(0) + Number(0x7FFFFFFF) + std::string(18, 'x'), 0, false},
      {"a length one too many", kVersion + kEmptyNote + Number(0) + Number(5) + "abcd", 1, false},
  };
  for (const auto& c : cases) {
    const auto read = NotesFromBytes(c.bytes);
    EXPECT_EQ(read.notes.size(), c.notes) << c.what;
    EXPECT_EQ(read.isWhole, c.isWhole) << c.what;
  }
}

TEST_F(NoteFile, EveryTruncationKeepsTheWholeNotes) {
  const std::size_t endOfFirst = kTwoNotes.find(Number(-2u));
  const std::size_t endOfSecond = kTwoNotes.size() - 4;
  for (std::size_t length = 1; length < kTwoNotes.size(); ++length) {
    const auto read = NotesFromBytes(kTwoNotes.substr(0, length));
    EXPECT_FALSE(read.isWhole) << length;
    EXPECT_EQ(read.notes.size(), (length >= endOfFirst) + (length >= endOfSecond)) << length;
  }
}

TEST(NoteFiles, KeepTheirPromisesWhenDamaged) {
  TryNoteFile("");
  TryDamaged(kTwoNotes, 5000, TryNoteFile);
}

}  // namespace
}  // namespace dorvalin
