// The platform's own controls, as Windows users know them. Made visible and enabled, in the order
// in which the Tab key visits them. A handler left empty does nothing.
//
// What each of them tells, in this order; all else comes from none. "Code": a call that has this
// effect raises it as well. Chosen: Change, when it is another item than before, and then Click.
//
//   text box        Change           another text (code)
//   rich text box   SelectionChange  the caret or the selection moved (code)
//                   Change           another text or format (code)
//   list box        chosen           another item (code), or a click on the same one
//                   DoubleClick      in place of that by the second press
//   drop-down list  DropDown         before its list opens
//                   chosen           as in the list box
//   check box       Change, Click    another value (code)
//   option button   Change, Click    it got the check (code); losing it is no choice
//   slider          MouseDown        before it acts on the press
//                   Change           another value (code)
//   label           MouseDown
//                   Click            the left button released inside
//                   DoubleClick      in place of both by the second press
//   frame           -
//   tree            MouseDown        before it acts on the press
//                   Change           another node is selected (code)
//                   NodeClick        a left click on a node, or one reached by key; it is selected
//                   Click            a left click anywhere in it
//                   DoubleClick      in place of all these by the second press, before a node folds
//                   MouseUp          of the other buttons
//
// Focus, KeyDown and Char come from all that can have the keyboard: not from labels and frames.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/font.h"
#include "platform/icon.h"
#include "platform/window.h"

namespace platform {

/// What the native controls tell their owner: see the table above.
struct ControlEvents {
  std::function<void()> Click;
  std::function<void()> DoubleClick;
  std::function<void()> Change;
  std::function<void()> SelectionChange;  ///< the caret or the selection moved
  std::function<void(bool)> Focus;        ///< gained or lost the keyboard
  std::function<void(KeyEvent&)> KeyDown;
  std::function<void(CharEvent&)> Char;
};

using MouseHandler = std::function<void(Button, const MouseEvent&)>;

class Control : public Window {
 public:
  ControlEvents events;
  virtual void SetFont(const Font& font) = 0;
  /// 0x00BBGGRR; none for the system's own.
  virtual void SetColours(std::optional<Colour> text, std::optional<Colour> background) = 0;
};

struct TextBoxStyle {
  bool multiLine = false;  ///< Enter makes a new line unless a handler swallows it; wraps words
  bool border = true;
  bool readOnly = false;
};

/// Lines are separated by CR LF. Positions count UTF-16 units from 0; CR LF counts two.
class TextBox : public Control {
 public:
  [[nodiscard]] virtual std::u16string Text() const = 0;
  virtual void SetText(std::u16string_view text) = 0;
  [[nodiscard]] virtual int SelStart() const = 0;
  [[nodiscard]] virtual int SelLength() const = 0;
  virtual void Select(int start, int length) = 0;
  /// Replaces the selection; the caret stands behind the new text.
  virtual void ReplaceSelection(std::u16string_view text) = 0;
};

enum class Alignment { Left = 0, Right = 1, Centre = 2 };

/// Properties of the selection; one that differs within it reads as none.
struct RichSelection {
  std::optional<bool> bold, italic, underline, strikeOut;
  std::optional<std::u16string> face;
  std::optional<double> points;
  std::optional<Colour> colour;
  std::optional<Alignment> alignment;
};

class RichTextBox : public TextBox {
 public:
  [[nodiscard]] virtual std::string RichText() const = 0;
  /// False: it is no Rich Text, and the box is empty.
  virtual bool SetRichText(std::string_view source) = 0;
  [[nodiscard]] virtual RichSelection Selection() const = 0;
  /// Only the properties that hold a value are set.
  virtual void SetSelection(const RichSelection& properties) = 0;
};

/// A row of items from 0; -1 for no choice.
class ItemChoice : public Control {
 public:
  virtual void Clear() = 0;
  virtual void Add(std::u16string_view item) = 0;
  virtual void Remove(int index) = 0;
  /// Another text in its place; the choice stays, and nothing is raised.
  virtual void SetItem(int index, std::u16string_view item) = 0;
  [[nodiscard]] virtual int Count() const = 0;
  [[nodiscard]] virtual std::u16string Item(int index) const = 0;
  [[nodiscard]] virtual int Selected() const = 0;
  /// An index without an item is no choice.
  virtual void Select(int index) = 0;
};
class DropDownList : public ItemChoice {
 public:
  std::function<void()> DropDown;  ///< items may be added now
};
class ListBox : public ItemChoice {};

class CheckBox : public Control {
 public:
  [[nodiscard]] virtual bool Checked() const = 0;
  virtual void SetChecked(bool checked) = 0;
  virtual void SetCaption(std::u16string_view caption) = 0;
};
/// One of its group is checked: the option buttons of one parent from a group start on.
class OptionButton : public CheckBox {};

/// A press beside its thumb moves it by a fifth of the range. A handler of MouseDown can move it
/// itself instead: the press then only drags the thumb, when that is under the pointer by now.
class Slider : public Control {
 public:
  MouseHandler MouseDown;
  /// From 0 to 100 at first. The value is kept inside.
  virtual void SetRange(int minimum, int maximum) = 0;
  /// A mark at each so many values; at first only the ends have one.
  virtual void SetTickStep(int step) = 0;
  [[nodiscard]] virtual int Value() const = 0;
  virtual void SetValue(int value) = 0;
};

class Label : public Control {
 public:
  virtual void SetCaption(std::u16string_view caption) = 0;
  virtual void SetPointer(const Pointer& pointer) = 0;
  MouseHandler MouseDown;
};
/// A line around a group, with a caption in its top edge.
class Frame : public Control {
 public:
  virtual void SetCaption(std::u16string_view caption) = 0;
};

/// A node by a number of the tree's own that is never used twice; 0 for none.
using TreeNode = int;

class TreeView : public Control {
 public:
  std::function<void(TreeNode)> Expanding;  ///< about to open; children may be added now
  std::function<void(TreeNode)> Collapsed;
  std::function<void(TreeNode)> NodeClick;
  MouseHandler MouseDown;
  MouseHandler MouseUp;
  /// Under a parent for which `sorted` was set it finds its place by the caption, as the user's
  /// language sorts: case and accents come last (Ä with A).
  virtual TreeNode Add(TreeNode parent, std::u16string_view caption, const Icon& icon) = 0;
  virtual void Remove(TreeNode node) = 0;
  virtual void Clear() = 0;
  virtual void SetSorted(TreeNode parent, bool sorted) = 0;
  [[nodiscard]] virtual std::u16string Caption(TreeNode node) const = 0;
  [[nodiscard]] virtual TreeNode Parent(TreeNode node) const = 0;
  [[nodiscard]] virtual TreeNode FirstChild(TreeNode node) const = 0;  ///< of 0: the first root
  [[nodiscard]] virtual TreeNode Next(TreeNode node) const = 0;
  [[nodiscard]] virtual TreeNode Selected() const = 0;
  virtual void Select(TreeNode node) = 0;
  [[nodiscard]] virtual bool Expanded(TreeNode node) const = 0;
  /// When it folds away the selected node, it is selected itself.
  virtual void SetExpanded(TreeNode node, bool expanded) = 0;
  /// Whose icon or caption is at the point.
  [[nodiscard]] virtual TreeNode NodeAt(Point client) const = 0;
};

struct LabelStyle {
  Alignment alignment = Alignment::Left;
  bool transparent = true;  ///< the parent's canvas shows through
};

/// Makes controls on a pane. Null on failure.
class Controls {
 public:
  virtual ~Controls() = default;
  [[nodiscard]] virtual std::unique_ptr<TextBox> NewTextBox(Pane& parent, const Rect& bounds,
                                                            const TextBoxStyle& style) = 0;
  [[nodiscard]] virtual std::unique_ptr<RichTextBox> NewRichTextBox(Pane& parent,
                                                                    const Rect& bounds,
                                                                    const TextBoxStyle& style) = 0;
  [[nodiscard]] virtual std::unique_ptr<DropDownList> NewDropDownList(Pane& parent,
                                                                      const Rect& bounds) = 0;
  [[nodiscard]] virtual std::unique_ptr<ListBox> NewListBox(Pane& parent, const Rect& bounds) = 0;
  [[nodiscard]] virtual std::unique_ptr<CheckBox> NewCheckBox(Pane& parent, const Rect& bounds,
                                                              std::u16string_view caption) = 0;
  [[nodiscard]] virtual std::unique_ptr<OptionButton> NewOptionButton(Pane& parent,
                                                                      const Rect& bounds,
                                                                      std::u16string_view caption,
                                                                      bool startsGroup) = 0;
  [[nodiscard]] virtual std::unique_ptr<Slider> NewSlider(Pane& parent, const Rect& bounds) = 0;
  [[nodiscard]] virtual std::unique_ptr<Label> NewLabel(Pane& parent, const Rect& bounds,
                                                        std::u16string_view caption,
                                                        const LabelStyle& style) = 0;
  [[nodiscard]] virtual std::unique_ptr<Frame> NewFrame(Pane& parent, const Rect& bounds,
                                                        std::u16string_view caption) = 0;
  [[nodiscard]] virtual std::unique_ptr<TreeView> NewTreeView(Pane& parent, const Rect& bounds) = 0;
};

}  // namespace platform
