// Stories of the panel "Rechner".
#include "calculator/DVC_Calc.h"

#include "calculator/CalculatorKeys.h"
#include "core/modRegTools.h"
#include "platform/memory/MemoryPane.h"
#include "platform/memory/MemoryTextBox.h"
#include "platform/text.h"
#include "tests/support/Program.h"

namespace dorvalin {
namespace {

using platform::MemoryTextBox;
using platform::Point;

class AtTheCalculator : public WithProgram {
 protected:
  void SetUp() override {
    Store(u"ShowRightBarAtStart", 0);
    ASSERT_EQ(Start(), StartVerdict::Resident);
    settings.DontAnimate = true;
    OpenPanel(u"Rechner");
  }
  MemoryTextBox& Term() { return *NodesOf<MemoryTextBox>(Hosts().front()->Window())[0]; }
  MemoryTextBox& Result() { return *NodesOf<MemoryTextBox>(Hosts().front()->Window())[1]; }
  Point OnPanel(Point p) { return Term().OnScreen().Origin() + p; }
  void ClickShow() { user.Click(OnPanel({50, 56})); }
  void ClickOK() { user.Click(OnPanel({150, 56})); }
  void ClickKey(std::u16string_view caption) {
    for (const CalculatorKey& key : CalculatorKeys()) {
      if (key.caption == caption) return user.Click(OnPanel(key.at + Point{12, 12}));
    }
    FAIL() << platform::ToUtf8(caption);
  }
  /// In place of what stands there.
  void TypeTerm(std::u16string_view keys) {
    Term().Focus();
    user.Type(keys);
  }
  std::u16string Solved(std::u16string_view term) {
    Term().SetText(term);
    ClickShow();
    return Result().Text();
  }
};

TEST_F(AtTheCalculator, TypingATermAndEnterTwiceDeliversItsResult) {
  user.Type(u"6*7\r");
  EXPECT_EQ(Result().Text(), u"42");
  EXPECT_TRUE(Result().HasFocus());
  EXPECT_EQ(editor.Text(), u"");
  user.Type(u"\r");
  EXPECT_EQ(editor.Text(), u"42");
  EXPECT_TRUE(EditorIsActive());
}

TEST_F(AtTheCalculator, OnClickDeliversTheTermsResultOrWhatTheUserMadeOfIt) {
  user.Type(u"1+1\r");
  Term().SetText(u"");
  Result().SetText(u"zwei ");
  ClickOK();
  OpenPanel(u"Rechner");
  user.Type(u"2^10");
  ClickOK();
  EXPECT_EQ(editor.Text(), u"zwei 1024");
}

TEST_F(AtTheCalculator, KeysBecomeWhatTermsAreWrittenWith) {
  const struct {
    const char* name;
    std::u16string_view typed, term;
    int caret;
  } cases[] = {
      {"a star is a cross", u"8*2", u"8×2", 3},
      {"a slash is a division sign", u"8/2", u"8÷2", 3},
      {"an underline is a negative number to fill in", u"5*_3", u"5×(-3)", 5},
      {"Escape empties", u"123\x1B", u"", 0},
  };
  for (const auto& c : cases) {
    Term().SetText(u"");
    user.Type(c.typed);
    EXPECT_EQ(platform::ToUtf8(Term().Text()), platform::ToUtf8(c.term)) << c.name;
    EXPECT_EQ(Term().SelStart(), c.caret) << c.name;
  }
  user.Type(u"12345");
  Term().Select(1, 3);
  user.Type(u"_");
  EXPECT_EQ(Term().Text(), u"1(-)5") << "the underline replaces the selection";
  EXPECT_EQ(Term().SelStart(), 3);
  EXPECT_EQ(Term().SelLength(), 0);
}

TEST_F(AtTheCalculator, EveryKeyOfTheKeypadInsertsItsTextAndPutsTheCaretToUse) {
  for (const CalculatorKey& key : CalculatorKeys()) {
    SCOPED_TRACE(platform::ToUtf8(key.caption));
    Term().SetText(u"12");
    Term().Select(1, 0);
    ClickKey(key.caption);
    EXPECT_EQ(Term().Text(), u"1" + std::u16string(key.tag) + u"2");
    const bool brackets = key.tag.size() > 1 && key.tag.back() == u')';
    EXPECT_EQ(Term().SelStart(), 1 + static_cast<int>(key.tag.size()) - (brackets ? 1 : 0));
    EXPECT_EQ(Term().SelLength(), 0);
    EXPECT_TRUE(Term().HasFocus());
  }
}

TEST_F(AtTheCalculator, ATermCanBeClickedTogether) {
  ClickKey(u"Sqr");
  user.Type(u"16");
  user.Key(platform::key::kRight);
  ClickKey(u"×");
  ClickKey(u"(-x)");
  user.Type(u"2\r");
  EXPECT_EQ(Result().Text(), u"-8");
}

TEST_F(AtTheCalculator, SolvesInTheUsersSpelling) {
  const struct {
    const char* name;
    std::u16string_view term, result;
  } cases[] = {
      {"rounding noise is nothing", u"sin(pi)", u"0"},
      {"mod in any case", u"17 MoD 5", u"2"},
      {"a decimal comma", u"1,5*3", u"4,5"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(platform::ToUtf8(Solved(c.term)), platform::ToUtf8(c.result)) << c.name;
  }
}

TEST_F(AtTheCalculator, AnErrorShowsItsTextAndLeavesFocusAndAnsAlone) {
  user.Type(u"1+1\r");
  TypeTerm(u"arcsin(1)\r");
  EXPECT_EQ(Result().Text(), u"ERROR");
  EXPECT_TRUE(Term().HasFocus());
  EXPECT_EQ(Solved(u"ANS*2"), u"4");
}

TEST_F(AtTheCalculator, TheLastAnswerOutlivesThePanel) {
  user.Type(u"6*7\r\r");
  OpenPanel(u"Rechner");
  user.Type(u"Ans+1");
  ClickOK();
  EXPECT_EQ(editor.Text(), u"4243");
}

// The term is solved again on every click, also when its result stands there already.
TEST_F(AtTheCalculator, SendingATermWithAnsMovesItOn) {
  user.Type(u"1+1\r");
  TypeTerm(u"Ans+1\r\r");
  EXPECT_EQ(editor.Text(), u"4");
}

TEST_F(AtTheCalculator, AnEmptyTermIsLeftAloneAndSendsTheResultAsItStands) {
  user.Type(u"\r");
  EXPECT_EQ(Result().Text(), u"");
  EXPECT_TRUE(Term().HasFocus());
  ClickOK();
  EXPECT_EQ(editor.Text(), u"");
  EXPECT_EQ(Ring(), nullptr);
}

TEST_F(AtTheCalculator, ClickingIntoTheTermSelectsItAllButTheKeypadKeepsTheCaret) {
  user.Type(u"123\r");
  Term().Focus();
  EXPECT_EQ(Term().SelLength(), 3);
  Result().Focus();
  Term().Select(3, 0);
  ClickKey(u"+");
  EXPECT_EQ(Term().Text(), u"123+");
}

// Without the activation the panel of the sidebar keeps its hint until somebody works in it.
class ItsHint : public AtTheCalculator {
 protected:
  void SetUp() override {
    Store(u"RightBarMode", 0);
    ASSERT_EQ(Start(), StartVerdict::Resident);
    settings.StartWithLast = true;
    RegSetLong(kProgramKey, u"LastFunction", 3);
    user.Wait(500ms);
    user.MoveTo({1023, 384});
    user.Wait(20ms);
    ASSERT_NE(Column(), nullptr);
    ASSERT_EQ(Term().Text(), u"[Hier Term eingeben]\r\n");
  }
};

TEST_F(ItsHint, IsNoTerm) {
  ClickOK();
  EXPECT_EQ(editor.Text(), u"ERROR");
}

TEST_F(ItsHint, GivesWayToTheKeypad) {
  ClickKey(u"Pi");
  EXPECT_EQ(Term().Text(), u"Pi");
}

TEST_F(ItsHint, GivesWayToAClickIntoTheTerm) {
  user.Click(OnPanel({10, 10}));
  EXPECT_EQ(Term().Text(), u"");
}

// A panel without its lines once crashed at the first click.
TEST_F(AtTheCalculator, WhoseWindowsCannotBeMadeDoesNothing) {
  for (const char* call : {"Controls.NewTextBox", "Windows.NewPane"}) {
    SCOPED_TRACE(call);
    if (Ring() != nullptr) user.Click(Empty(*Ring()));
    user.Wait(200ms);
    desktop.faults().FailAlways(call);
    OpenPanel(u"Rechner");
    desktop.faults().Clear();
    ASSERT_NE(Host(), nullptr);
    EXPECT_TRUE(NodesOf<MemoryTextBox>(Host()->Window()).empty());
    const Point corner = Host()->Window().Bounds().Origin();
    for (const Point at : {Point{50, 35}, {50, 80}, {150, 80}, {50, 120}, {180, 170}}) {
      user.Click(corner + at);
    }
    user.Type(u"6*7\r");
    EXPECT_EQ(editor.Text(), u"");
  }
}

}  // namespace
}  // namespace dorvalin
