// Drop-down list and list box. The open list hangs below its box and is not drawn.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/memory/ControlNode.h"

namespace platform {

/// A row of items of which one is chosen.
class ItemRow {
 public:
  std::vector<std::u16string> items;
  int selected = -1;

  int Count() const { return static_cast<int>(items.size()); }
  bool Has(int index) const { return index >= 0 && index < Count(); }
  void Remove(int index);
  /// Where a key leads from the choice; the choice itself for other keys.
  int AfterKey(int virtualKey, int page) const;
  /// The next item behind the choice that begins with the letter.
  int AfterLetter(char16_t unit) const;
};

template <class Port>
class ItemChoiceOf : public ControlOf<Port> {
 public:
  using ControlOf<Port>::ControlOf;
  void Clear() override {
    if (!this->Fails("ItemChoice.Clear")) row_ = {};
  }
  void Add(std::u16string_view item) override {
    if (!this->Fails("ItemChoice.Add")) row_.items.emplace_back(item);
  }
  void Remove(int index) override {
    if (!this->Fails("ItemChoice.Remove")) row_.Remove(index);
  }
  void SetItem(int index, std::u16string_view item) override {
    if (!this->Fails("ItemChoice.SetItem") && row_.Has(index)) row_.items[index] = item;
  }
  int Count() const override { return row_.Count(); }
  std::u16string Item(int index) const override {
    return row_.Has(index) ? row_.items[index] : u"";
  }
  int Selected() const override { return row_.selected; }
  void Select(int index) override {
    if (this->Fails("ItemChoice.Select")) return;
    const int wanted = row_.Has(index) ? index : -1;
    if (std::exchange(row_.selected, wanted) != wanted) this->RaiseChoice();
  }
  /// The user picks it.
  void Choose(int index) { TellChoice(std::exchange(row_.selected, index)); }

 protected:
  ItemRow& Row() { return row_; }
  void TellChoice(int former) {
    former != row_.selected ? this->RaiseChoice() : this->Raise(this->events.Click);
  }
  int RowHeight() const;
  void OnOwnKey(const KeyEvent& event) override {
    const int to = row_.AfterKey(event.virtualKey, this->Place().Height() / RowHeight());
    if (to != row_.selected) Choose(to);
  }
  void OnOwnChar(char16_t unit) override {
    const int to = row_.AfterLetter(unit);
    if (to != row_.selected) Choose(to);
  }

 private:
  ItemRow row_;
};

class MemoryDropDownList final : public ItemChoiceOf<DropDownList> {
 public:
  using ItemChoiceOf::ItemChoiceOf;

 protected:
  void PaintOn(Surface& screen, const Rect& place, const Rect& clip) override;
  void OnPointerInput(const PointerInput& input, const MouseEvent& event) override;
  void OnOwnKey(const KeyEvent& event) override;
  void OnFocusChange(bool gained) override;

 private:
  void Open();
  void Close();

  bool open_ = false;
  bool pressedInList_ = false;
};

class MemoryListBox final : public ItemChoiceOf<ListBox> {
 public:
  using ItemChoiceOf::ItemChoiceOf;

 protected:
  void PaintOn(Surface& screen, const Rect& place, const Rect& clip) override;
  void OnPointerInput(const PointerInput& input, const MouseEvent& event) override;

 private:
  int FirstShown() const;

  std::optional<int> beforePress_;  ///< the choice when the button went down on an item
};

}  // namespace platform
