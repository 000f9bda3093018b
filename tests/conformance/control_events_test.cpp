// What each native control tells, when and in which order: the table of platform/controls.h.
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

namespace key = platform::key;
using platform::TreeNode;

class Stage;
struct Case {
  const char* name;
  void (*story)(Stage&);
  const char* told;
};
void PrintTo(const Case& which, std::ostream* out) { *out << which.name; }

/// Controls that write down what they tell.
class Stage : public WithWindow, public testing::WithParamInterface<Case> {
 public:
  const std::string& Told() const { return told_; }
  void Forget() { told_.clear(); }
  /// A handler for any event, whatever that carries.
  auto Note(const std::string& event) {
    return [this, event](const auto&...) { told_ += (told_.empty() ? "" : " ") + event; };
  }
  template <class Made>
  Made& Watch(std::unique_ptr<Made> made, const std::string& prefix = "") {
    made->events.Change = Note(prefix + "Change");
    made->events.Click = Note(prefix + "Click");
    made->events.DoubleClick = Note(prefix + "DoubleClick");
    made->events.SelectionChange = Note(prefix + "SelectionChange");
    controls_.push_back(std::move(made));
    return static_cast<Made&>(*controls_.back());
  }
  platform::Controls& Make() { return desktop().controls(); }
  void PressBut(const platform::Window& pressed, Point releasedAt) {
    PointAt(pressed);
    under().Press(Button::Left);
    Settle();
    PointAt(releasedAt);
    under().Release(Button::Left);
    Settle();
  }

 private:
  std::vector<std::unique_ptr<platform::Control>> controls_;
  std::string told_;
};

constexpr Rect kPlace{20, 20, 180, 44};
constexpr Point kBeside{380, 300};

template <class Choice>
Choice& WithItems(Choice& choice) {
  for (const auto* item : {u"Birnen", u"Äpfel", u"Birnen"}) choice.Add(item);
  return choice;
}
platform::ListBox& NewList(Stage& stage) {
  return WithItems(stage.Watch(stage.Make().NewListBox(*stage.window, {20, 20, 180, 160})));
}
platform::DropDownList& NewDropDown(Stage& stage) {
  auto& list = stage.Watch(stage.Make().NewDropDownList(*stage.window, kPlace));
  list.DropDown = stage.Note("DropDown");
  return WithItems(list);
}
/// Where the second item is, in a list box or below a drop-down list.
Point SecondItem(const platform::ListBox& list) {
  return list.ScreenBounds().Origin() + Point{40, 24};
}
Point SecondItem(const platform::DropDownList& list) {
  const Rect box = list.ScreenBounds();
  return {box.left + 40, box.bottom + 22};
}

void ChooseByCode(platform::ItemChoice& choice) {
  choice.Select(1);
  choice.Select(1);
  choice.SetItem(1, u"Quitten");
  EXPECT_EQ(choice.Item(1), u"Quitten");
  EXPECT_EQ(choice.Selected(), 1);
  choice.Select(7);
  EXPECT_EQ(choice.Selected(), -1);
  choice.Select(-1);
  EXPECT_EQ(choice.Item(2), u"Birnen") << "in the order of adding, also twice";
  choice.Select(2);
  choice.Remove(0);
  EXPECT_EQ(choice.Selected(), 1) << "the choice moves with its item";
  choice.Remove(1);
  EXPECT_EQ(choice.Selected(), -1);
  EXPECT_EQ(choice.Item(1), u"");
  choice.Clear();
  EXPECT_EQ(choice.Count(), 0);
}
void ChooseByKeys(Stage& stage, platform::ItemChoice& choice) {
  choice.Focus();
  stage.Forget();
  stage.PressKeys({key::kHome, key::kDown, key::kEnd, key::kEnd});
  EXPECT_EQ(choice.Selected(), 2);
}

struct Options {
  std::vector<platform::OptionButton*> buttons;
  explicit Options(Stage& stage, int secondGroup = 4) {
    for (int n = 0; n < 4; ++n) {
      const Rect place{20, 20 + 30 * n, 180, 44 + 30 * n};
      const bool startsGroup = n == 0 || n == secondGroup;
      buttons.push_back(
          &stage.Watch(stage.Make().NewOptionButton(*stage.window, place, u"Wahl", startsGroup),
                       std::to_string(n) + ":"));
    }
  }
  std::string Marks() const {
    std::string marks;
    for (const auto* button : buttons) marks += button->Checked() ? 'x' : '-';
    return marks;
  }
};

platform::Slider& NewSlider(Stage& stage) {
  auto& slider = stage.Watch(stage.Make().NewSlider(*stage.window, {20, 20, 246, 60}));
  slider.SetRange(0, 1000);
  slider.SetTickStep(100);
  slider.MouseDown = stage.Note("MouseDown");
  return slider;
}

/// Two roots, the first with a child.
struct Tree {
  platform::TreeView& view;
  TreeNode folder, inside, second;
  explicit Tree(Stage& stage)
      : view(stage.Watch(stage.Make().NewTreeView(*stage.window, {20, 20, 220, 200}))),
        folder(view.Add(0, u"Ordner", {})),
        inside(view.Add(folder, u"Unterordner", {})),
        second(view.Add(0, u"Programme", {})) {
    view.MouseDown = stage.Note("MouseDown");
    view.MouseUp = stage.Note("MouseUp");
    view.NodeClick = stage.Note("NodeClick");
    view.Expanding = stage.Note("Expanding");
    view.Collapsed = stage.Note("Collapsed");
  }
  Point On(TreeNode node) const { return Stage::CornerOf(view, node) + Point{8, 8}; }
  Point FoldSignOf(TreeNode node) const { return Stage::CornerOf(view, node) + Point{-9, 9}; }
  Point Nowhere() const { return view.ScreenBounds().Origin() + Point{100, 150}; }
};

const Case kCases[] = {
    {"TextBoxByCode",
     [](Stage& stage) {
       auto& box = stage.Watch(stage.Make().NewTextBox(*stage.window, kPlace, {}));
       box.SetText(u"ab");
       box.SetText(u"ab");
       box.Select(1, 1);
       box.ReplaceSelection(u"c");
     },
     "Change Change"},
    {"TextBoxByHand",
     [](Stage& stage) {
       auto& box = stage.Watch(stage.Make().NewTextBox(*stage.window, kPlace, {}));
       stage.Click(box);
       stage.PressKey('A');
       stage.Rest();
       stage.DoubleClick(box);
     },
     "Change"},
    {"RichTextBoxByCode",
     [](Stage& stage) {
       auto& box = stage.Watch(
           stage.Make().NewRichTextBox(*stage.window, {20, 20, 220, 90}, {.multiLine = true}));
       box.SetText(u"abc");
       box.SetText(u"abc");
       box.Select(1, 2);
       box.Select(1, 2);
       platform::RichSelection bold;
       bold.bold = true;
       bold.alignment = platform::Alignment::Right;
       box.SetSelection(bold);
       box.SetText(u"x");
       EXPECT_FALSE(box.SetRichText("x"));
     },
     "Change SelectionChange Change SelectionChange Change Change"},
    {"RichTextBoxByKeys",
     [](Stage& stage) {
       auto& box = stage.Watch(
           stage.Make().NewRichTextBox(*stage.window, {20, 20, 220, 90}, {.multiLine = true}));
       box.Focus();
       stage.PressKey('A');
       stage.PressKey(key::kHome);
     },
     "SelectionChange Change SelectionChange"},
    {"ListBoxByCode", [](Stage& stage) { ChooseByCode(NewList(stage)); },
     "Change Click Change Click Change Click"},
    {"DropDownListByCode", [](Stage& stage) { ChooseByCode(NewDropDown(stage)); },
     "Change Click Change Click Change Click"},
    {"ListBoxByKeys", [](Stage& stage) { ChooseByKeys(stage, NewList(stage)); },
     "Change Click Change Click Change Click"},
    {"DropDownListByKeys", [](Stage& stage) { ChooseByKeys(stage, NewDropDown(stage)); },
     "Change Click Change Click Change Click"},
    {"ListBoxByHand",
     [](Stage& stage) {
       auto& list = NewList(stage);
       stage.Click(SecondItem(list));
       EXPECT_EQ(list.Selected(), 1);
       stage.Rest();
       stage.Click(SecondItem(list));
       stage.Rest();
       stage.DoubleClick(SecondItem(list));
     },
     "Change Click Click Click DoubleClick"},
    {"DropDownListByHand",
     [](Stage& stage) {
       auto& list = NewDropDown(stage);
       list.Clear();
       list.DropDown = [&list, note = stage.Note("DropDown")] {
         note();
         if (list.Count() == 0) WithItems(list);
       };
       stage.Click(list);
       stage.Click(SecondItem(list));
       EXPECT_EQ(list.Selected(), 1);
       stage.Rest();
       stage.Click(list);
       stage.Click(kBeside);
       EXPECT_EQ(list.Selected(), 1);
     },
     "DropDown Change Click DropDown"},
    {"CheckBoxByCode",
     [](Stage& stage) {
       auto& box = stage.Watch(stage.Make().NewCheckBox(*stage.window, kPlace, u"&Kopie"));
       box.SetChecked(true);
       box.SetChecked(true);
       box.SetChecked(false);
     },
     "Change Click Change Click"},
    {"CheckBoxByHand",
     [](Stage& stage) {
       auto& box = stage.Watch(stage.Make().NewCheckBox(*stage.window, kPlace, u"&Kopie"));
       stage.DoubleClick(box);
       EXPECT_FALSE(box.Checked()) << "each press counts";
       stage.PressBut(box, kBeside);
       stage.PressKey(key::kSpace);
       EXPECT_TRUE(box.Checked());
     },
     "Change Click Change Click Change Click"},
    {"OptionButtonsByCode",
     [](Stage& stage) {
       const Options options(stage, 2);
       EXPECT_EQ(options.Marks(), "----");
       options.buttons[0]->SetChecked(true);
       options.buttons[3]->SetChecked(true);
       options.buttons[1]->SetChecked(true);
       EXPECT_EQ(options.Marks(), "-x-x") << "one of each group";
       options.buttons[1]->SetChecked(false);
     },
     "0:Change 0:Click 3:Change 3:Click 1:Change 1:Click"},
    {"OptionButtonsByHand",
     [](Stage& stage) {
       const Options options(stage);
       stage.Click(*options.buttons[1]);
       stage.Rest();
       stage.DoubleClick(*options.buttons[1]);
       stage.DoubleClick(*options.buttons[2]);
     },
     "1:Change 1:Click 2:Change 2:Click"},
    {"OptionButtonsByKeys",
     [](Stage& stage) {
       const Options options(stage);
       options.buttons[0]->SetChecked(true);
       options.buttons[1]->SetVisible(false);
       options.buttons[2]->SetEnabled(false);
       options.buttons[0]->Focus();
       stage.Forget();
       stage.PressKey(key::kDown);
       EXPECT_TRUE(options.buttons[3]->HasFocus()) << "those that cannot be chosen are skipped";
       stage.PressKey(key::kDown);
       stage.PressKey(key::kLeft);
       options.buttons[0]->SetEnabled(false);
       stage.PressKey(key::kUp);
     },
     "3:Change 3:Click 0:Change 0:Click 3:Change 3:Click"},
    {"SliderByCode",
     [](Stage& stage) {
       auto& slider = NewSlider(stage);
       slider.SetValue(180);
       slider.SetValue(180);
       slider.SetRange(0, 500);
       slider.SetValue(5000);
       EXPECT_EQ(slider.Value(), 500);
       slider.SetRange(1, 100);
       EXPECT_EQ(slider.Value(), 100);
     },
     "Change Change Change"},
    {"SliderByHand",
     [](Stage& stage) {
       auto& slider = NewSlider(stage);
       const Rect place = slider.ScreenBounds();
       stage.Click({place.right - 30, place.top + 15});
       EXPECT_EQ(slider.Value(), 200) << "a page towards the press";
       stage.PressKey(key::kEnd);
       EXPECT_EQ(slider.Value(), 1000);
     },
     "MouseDown Change Change"},
    {"SliderThatJumps",
     [](Stage& stage) {
       auto& slider = NewSlider(stage);
       slider.MouseDown = [&slider](Button, const platform::MouseEvent& event) {
         slider.SetValue((event.at.x - 13) * 1000 / (slider.Bounds().Width() - 26));
       };
       const Rect place = slider.ScreenBounds();
       stage.PointAt({place.left + 113, place.top + 15});
       stage.under().Press(Button::Left);
       stage.Settle();
       EXPECT_EQ(slider.Value(), 500) << "no page on top of it";
       stage.Forget();
       stage.PointAt({place.left + 163, place.top + 15});
       EXPECT_NEAR(slider.Value(), 750, 25) << "the thumb is held where it jumped to";
       EXPECT_NE(stage.Told(), "");
       stage.Forget();
       stage.under().Release(Button::Left);
     },
     ""},
    {"LabelByHand",
     [](Stage& stage) {
       auto& label = stage.Watch(stage.Make().NewLabel(*stage.window, kPlace, u"Adresse", {}));
       label.MouseDown = stage.Note("MouseDown");
       stage.PressBut(label, kBeside);
       stage.Rest();
       stage.DoubleClick(label);
       stage.DoubleClick(label.ScreenBounds().Middle(), Button::Right);
     },
     "MouseDown MouseDown Click DoubleClick MouseDown MouseDown"},
    {"TreeByCode",
     [](Stage& stage) {
       const Tree tree(stage);
       tree.view.Select(tree.inside);
       tree.view.Select(tree.inside);
       tree.view.SetExpanded(tree.folder, false);
       EXPECT_EQ(tree.view.Selected(), tree.folder) << "it takes what it folds away";
       tree.view.Remove(tree.folder);
       EXPECT_EQ(tree.view.Selected(), tree.second);
       tree.view.Clear();
       EXPECT_EQ(tree.view.Selected(), 0);
     },
     "Expanding Change Change Collapsed Change Change"},
    {"TreeByHand",
     [](Stage& stage) {
       const Tree tree(stage);
       tree.view.Select(tree.folder);
       stage.Forget();
       stage.Click(tree.On(tree.second));
       EXPECT_EQ(tree.view.Selected(), tree.second);
       stage.Rest();
       stage.Click(tree.On(tree.second));
       stage.Click(tree.Nowhere());
       stage.Rest();
       stage.Click(tree.FoldSignOf(tree.folder));
       EXPECT_TRUE(tree.view.Expanded(tree.folder));
       EXPECT_EQ(tree.view.Selected(), tree.second);
     },
     "MouseDown Change NodeClick Click MouseDown NodeClick Click MouseDown Click "
     "MouseDown Click Expanding"},
    {"TreeByDoubleClick",
     [](Stage& stage) {
       const Tree tree(stage);
       tree.view.Select(tree.folder);
       stage.Forget();
       stage.DoubleClick(tree.On(tree.folder));
       stage.Rest();
       tree.view.Select(tree.inside);
       stage.DoubleClick(tree.FoldSignOf(tree.folder));
     },
     "MouseDown NodeClick Click DoubleClick Expanding Change "
     "MouseDown Click Change Collapsed DoubleClick Expanding"},
    {"TreeByRightButton",
     [](Stage& stage) {
       const Tree tree(stage);
       tree.view.Select(tree.folder);
       tree.view.MouseDown = [&tree, note = stage.Note("MouseDown")](
                                 Button, const platform::MouseEvent& event) {
         note();
         tree.view.Select(tree.view.NodeAt(event.at));
       };
       stage.Forget();
       stage.Click(tree.On(tree.second), Button::Right);
       EXPECT_EQ(tree.view.Selected(), tree.second);
       EXPECT_TRUE(tree.view.HasFocus());
     },
     "MouseDown Change MouseUp"},
    {"TreeByKeys",
     [](Stage& stage) {
       const Tree tree(stage);
       tree.view.Focus();
       EXPECT_EQ(tree.view.Selected(), tree.folder) << "with the keyboard it has a selection";
       stage.PressKeys(
           {key::kRight, key::kRight, key::kDown, key::kHome, key::kLeft, key::kEnd, key::kDown});
       EXPECT_EQ(tree.view.Selected(), tree.second);
     },
     "Change Expanding Change NodeClick Change NodeClick Change NodeClick Collapsed "
     "Change NodeClick"},
};

using ControlEvents = Stage;

TEST_P(ControlEvents, AreToldAsTheTableSays) {
  GetParam().story(*this);
  Settle();
  EXPECT_EQ(Told(), GetParam().told);
}

INSTANTIATE_TEST_SUITE_P(Of, ControlEvents, testing::ValuesIn(kCases),
                         [](const testing::TestParamInfo<Case>& which) {
                           return std::string(which.param.name);
                         });

}  // namespace
}  // namespace conformance
