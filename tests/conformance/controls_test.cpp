// The native controls, as their users know them.
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

namespace key = platform::key;
using platform::TreeNode;

class Controls : public WithWindow {
 protected:
  platform::Controls& controls() { return desktop().controls(); }
  std::unique_ptr<platform::TextBox> NewTextBox(const platform::TextBoxStyle& style = {}) {
    return controls().NewTextBox(*window, {10, 10, 210, style.multiLine ? 110 : 34}, style);
  }
  std::unique_ptr<platform::RichTextBox> NewRichTextBox() {
    return controls().NewRichTextBox(*window, {10, 10, 310, 110}, {.multiLine = true});
  }
  std::unique_ptr<platform::TreeView> NewTree() {
    return controls().NewTreeView(*window, {10, 10, 210, 290});
  }
};

TEST_F(Controls, ATextBoxKeepsSelectionAndCaret) {
  const auto box = NewTextBox();
  box->SetText(u"Grüße");
  box->Select(1, 3);
  EXPECT_EQ(box->SelStart(), 1);
  EXPECT_EQ(box->SelLength(), 3);
  box->ReplaceSelection(u"€");
  EXPECT_EQ(box->Text(), u"G€e");
  EXPECT_EQ(box->SelStart(), 2) << "the caret stands behind the new text";
  EXPECT_EQ(box->SelLength(), 0);
  box->Select(2, 100);
  EXPECT_EQ(box->SelLength(), 1);
  box->Select(100, 5);
  EXPECT_EQ(box->SelStart(), 3);
  EXPECT_EQ(box->SelLength(), 0);
}

TEST_F(Controls, KeysWriteIntoATextBoxThatIsNotReadOnly) {
  const auto box = NewTextBox();
  box->SetText(u"abc");
  box->Focus();
  box->Select(1, 1);
  PressKey('X');
  EXPECT_EQ(box->Text(), u"axc");
  PressKeys({key::kHome, key::kDelete, key::kEnd, key::kBack, key::kEnter, 'Y'});
  EXPECT_EQ(box->Text(), u"xy") << "a single line takes no line end";
  const auto fixed = NewTextBox({.readOnly = true});
  fixed->SetText(u"fest");
  fixed->Focus();
  PressKeys({'X', key::kDelete});
  EXPECT_EQ(fixed->Text(), u"fest");
}

TEST_F(Controls, HandlersStandBeforeTheTextBox) {
  const auto box = NewTextBox();
  box->Focus();
  box->events.KeyDown = [](platform::KeyEvent& event) { event.handled = event.virtualKey == 'A'; };
  box->events.Char = [](platform::CharEvent& event) {
    if (event.unit == u'b') event.unit = u'ß';
    if (event.unit == u'c') event.unit = 0;
  };
  PressKeys({'A', 'B', 'C', 'D'});
  EXPECT_EQ(box->Text(), u"ßd");
}

TEST_F(Controls, LineEndsCountTwoPositions) {
  const auto box = NewTextBox({.multiLine = true});
  box->SetText(u"ab\r\ncd");
  EXPECT_EQ(box->Text(), u"ab\r\ncd");
  box->Select(4, 1);
  box->ReplaceSelection(u"X");
  EXPECT_EQ(box->Text(), u"ab\r\nXd");
  box->Focus();
  box->Select(2, 0);
  PressKeys({key::kRight, key::kEnter});
  EXPECT_EQ(box->Text(), u"ab\r\n\r\nXd");
  EXPECT_EQ(box->SelStart(), 6);
  PressKeys({key::kBack, key::kBack});
  EXPECT_EQ(box->Text(), u"abXd");
}

TEST_F(Controls, ARichTextBoxKeepsPropertiesOfItsParts) {
  const auto box = NewRichTextBox();
  box->SetText(u"ein fettes Wort");
  box->Select(4, 6);
  platform::RichSelection bold;
  bold.bold = true;
  box->SetSelection(bold);
  EXPECT_EQ(box->Selection().bold, true);
  box->Select(0, 3);
  EXPECT_EQ(box->Selection().bold, false);
  box->Select(0, 15);
  EXPECT_FALSE(box->Selection().bold.has_value()) << "it differs within the selection";
  platform::RichSelection rest;
  rest.face = u"Arial";
  rest.points = 14;
  rest.colour = 0x0000FF;
  rest.alignment = platform::Alignment::Centre;
  box->SetSelection(rest);
  const auto now = box->Selection();
  EXPECT_EQ(now.face, u"Arial");
  EXPECT_EQ(now.points, 14);
  EXPECT_EQ(now.colour, 0x0000FFu);
  EXPECT_EQ(now.alignment, platform::Alignment::Centre);
  EXPECT_FALSE(now.bold.has_value()) << "what was not asked for stays";
}

TEST_F(Controls, RichTextGoesOutAndInAgain) {
  const auto box = NewRichTextBox();
  EXPECT_TRUE(
      box->SetRichText(R"({\rtf1\ansi\ansicpg1252 gr\'fc\'dfe \b \u8364?\b0\par zwei\par})"));
  EXPECT_EQ(box->Text().substr(0, 13), u"grüße €\r\nzwei");
  box->Select(6, 1);
  EXPECT_EQ(box->Selection().bold, true);
  const std::string source = box->RichText();
  EXPECT_TRUE(source.starts_with("{\\rtf"));
  const auto text = box->Text();
  EXPECT_FALSE(box->SetRichText("kein Rich Text"));
  EXPECT_EQ(box->Text(), u"");
  EXPECT_TRUE(box->SetRichText(source));
  EXPECT_EQ(box->Text(), text);
  box->Select(6, 1);
  EXPECT_EQ(box->Selection().bold, true);
}

TEST_F(Controls, ASliderMarksItsSteps) {
  const auto slider = controls().NewSlider(*window, {10, 10, 256, 60});
  slider->SetRange(0, 1000);
  slider->SetTickStep(100);
  Settle();
  const auto shown = desktop().screen().Capture(slider->ScreenBounds());
  ASSERT_TRUE(shown);
  // The row with the most separate marks is that of the ticks.
  int most = 0;
  for (int y = 0; y < shown->Height(); ++y) {
    const auto ground = shown->At({0, y});
    int marks = 0;
    for (int x = 1; x < shown->Width(); ++x) {
      marks += shown->At({x, y}) != ground && shown->At({x - 1, y}) == ground;
    }
    most = std::max(most, marks);
  }
  EXPECT_EQ(most, 11);
}

TEST_F(Controls, ATreeFillsAndFolds) {
  const auto tree = NewTree();
  const auto root = tree->Add(0, u"Arbeitsplatz", {});
  tree->SetSorted(root, true);
  const auto b = tree->Add(root, u"beta", {});
  const auto a = tree->Add(root, u"Alpha", {});
  EXPECT_EQ(tree->FirstChild(root), a);
  EXPECT_EQ(tree->Next(b), 0);
  EXPECT_EQ(tree->Parent(b), root);

  TreeNode late = 0, closed = 0;
  tree->Expanding = [&](TreeNode node) {
    if (node == root && late == 0) late = tree->Add(root, u"Anton", {});
  };
  tree->Collapsed = [&](TreeNode node) { closed = node; };
  tree->SetExpanded(root, true);
  EXPECT_EQ(tree->Next(a), late) << "children may come while it opens";
  tree->SetExpanded(root, false);
  EXPECT_EQ(closed, root);
  tree->SetExpanded(b, true);
  EXPECT_FALSE(tree->Expanded(b)) << "nothing to open without children";

  tree->Select(b);
  EXPECT_TRUE(tree->Expanded(root)) << "a chosen node is shown";
  tree->Remove(late);
  EXPECT_EQ(tree->Next(a), b);
  tree->Clear();
  EXPECT_EQ(tree->FirstChild(0), 0);
  EXPECT_GT(tree->Add(0, u"neu", {}), late) << "numbers are never used twice";
}

TEST_F(Controls, ATreeSortsAsPeopleRead) {
  const auto tree = NewTree();
  tree->SetSorted(0, true);
  for (const auto* name : {u"Zeit", u"öde", u"straße", u"Äpfel", u"Ofen", u"apfel", u"ändern",
                           u"Apfelmus", u"strand"}) {
    tree->Add(0, name, {});
  }
  std::u16string sorted;
  for (auto node = tree->FirstChild(0); node != 0; node = tree->Next(node)) {
    sorted += tree->Caption(node) + u" ";
  }
  EXPECT_EQ(platform::ToUtf8(sorted), "ändern apfel Äpfel Apfelmus öde Ofen strand straße Zeit ");
}

TEST_F(Controls, ATreeShowsEachNodesOwnIcon) {
  const auto tree = NewTree();
  const auto icon = [](std::uint32_t pixel) {
    return std::make_shared<platform::IconPixels>(
        platform::IconPixels{{16, 16}, std::vector<std::uint32_t>(256, pixel)});
  };
  const TreeNode nodes[] = {tree->Add(0, u"rot", icon(0xFFFF0000)), tree->Add(0, u"ohne", {}),
                            tree->Add(0, u"blau", icon(0xFF0000FF)),
                            tree->Add(0, u"auch rot", icon(0xFFFF0000))};
  Settle();
  const Rect place = tree->ScreenBounds();
  const auto shown = desktop().screen().Capture(place);
  ASSERT_TRUE(shown);
  std::string colours;
  for (const TreeNode node : nodes) {
    const auto pixel = shown->At(CornerOf(*tree, node) + Point{8, 8} - place.Origin()) & 0xFFFFFF;
    colours += pixel == 0xFF0000 ? 'r' : pixel == 0x0000FF ? 'b' : '-';
  }
  EXPECT_EQ(colours, "r-br");
}

TEST_F(Controls, AFrameLeavesTheClicksToWhatItSurrounds) {
  const auto before = controls().NewCheckBox(*window, {30, 40, 120, 60}, u"vorher");
  const auto frame = controls().NewFrame(*window, {10, 10, 210, 210}, u"Gruppe");
  const auto after = controls().NewCheckBox(*window, {30, 80, 120, 100}, u"nachher");
  Click(*before);
  Click(*after);
  EXPECT_TRUE(before->Checked());
  EXPECT_TRUE(after->Checked());
  Click(*frame);
  EXPECT_EQ(listener.Count("left down"), 1);
}

TEST_F(Controls, AToolTipShowsWhileThePointerRests) {
  const auto shows = [&](const std::u16string& text) {
    return Until([&] { return under().ToolTipShown() == text; }, 3s);
  };
  const auto label = controls().NewLabel(*window, {10, 10, 110, 40}, u"Adresse", {});
  const auto box = controls().NewCheckBox(*window, {10, 60, 110, 90}, u"Kopie");
  label->SetToolTip(u"Straße");
  box->SetToolTip(u"Zwei & drei");
  PointAt(*label);
  EXPECT_TRUE(shows(u"Straße"));
  PointAt(*box);
  EXPECT_TRUE(shows(u"Zwei & drei"));
  PointAt(*window);
  EXPECT_TRUE(shows(u""));
  label->SetToolTip(u"Ort");
  box->SetToolTip({});
  PointAt(*box);
  under().Pump(1s);
  EXPECT_TRUE(shows(u""));
  PointAt(*label);
  EXPECT_TRUE(shows(u"Ort"));
}

TEST_F(Controls, TheHourglassStandsOverAllOfThem) {
  const auto tree = controls().NewTreeView(*window, {10, 10, 210, 110});
  const auto box = controls().NewTextBox(*window, {10, 120, 210, 144}, {});
  PointAt(*tree);
  EXPECT_FALSE(under().HourglassShown());
  desktop().input().SetWaitPointer(true);
  EXPECT_TRUE(under().HourglassShown()) << "at once: who waits does not pump";
  PointAt(*box);
  EXPECT_TRUE(under().HourglassShown());
  window->SetPointer({platform::StandardPointer::SizeAll, {}});
  PointAt(*window);
  EXPECT_TRUE(under().HourglassShown());
  desktop().input().SetWaitPointer(false);
  EXPECT_FALSE(under().HourglassShown());
}

}  // namespace
}  // namespace conformance
