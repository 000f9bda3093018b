// The platform's own controls, as Windows users know them. Made visible and enabled, in the order
// in which the Tab key visits them. A handler left empty does nothing.
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

/// What every native control tells its owner.
struct ControlEvents {
  std::function<void()> Click;  ///< clicked, or chosen by key
  std::function<void()> DoubleClick;
  std::function<void()> Change;           ///< text, choice or position changed, also by code
  std::function<void()> SelectionChange;  ///< the caret or the selection moved (rich text)
  std::function<void(bool)> Focus;        ///< gained or lost the keyboard
  std::function<void(KeyEvent&)> KeyDown;
  std::function<void(CharEvent&)> Char;
};

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
  [[nodiscard]] virtual int Count() const = 0;
  [[nodiscard]] virtual std::u16string Item(int index) const = 0;
  [[nodiscard]] virtual int Selected() const = 0;
  /// Raises Click as a choice by the user does, when it is another item than before.
  virtual void Select(int index) = 0;
};
class DropDownList : public ItemChoice {};
class ListBox : public ItemChoice {};

class CheckBox : public Control {
 public:
  [[nodiscard]] virtual bool Checked() const = 0;
  /// Raises Click as a click does, when the value changes.
  virtual void SetChecked(bool checked) = 0;
  virtual void SetCaption(std::u16string_view caption) = 0;
};
/// One of its group is checked: the option buttons of one parent from a group start on.
class OptionButton : public CheckBox {};

class Slider : public Control {
 public:
  virtual void SetRange(int minimum, int maximum) = 0;
  [[nodiscard]] virtual int Value() const = 0;
  virtual void SetValue(int value) = 0;
};

class Label : public Control {
 public:
  virtual void SetCaption(std::u16string_view caption) = 0;
  virtual void SetPointer(const Pointer& pointer) = 0;
  std::function<void(Button, const MouseEvent&)> MouseDown;
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
  /// Children are kept sorted by caption ignoring case when `sorted` was set for the parent.
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
  virtual void SetExpanded(TreeNode node, bool expanded) = 0;
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
