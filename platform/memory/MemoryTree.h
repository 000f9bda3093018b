// Tree view.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/memory/ControlNode.h"

namespace platform {

class MemoryTree final : public ControlOf<TreeView> {
 public:
  using ControlOf::ControlOf;
  TreeNode Add(TreeNode parent, std::u16string_view caption, const Icon& icon) override;
  void Remove(TreeNode node) override;
  void Clear() override;
  void SetSorted(TreeNode parent, bool sorted) override;
  std::u16string Caption(TreeNode node) const override;
  TreeNode Parent(TreeNode node) const override;
  TreeNode FirstChild(TreeNode node) const override;
  TreeNode Next(TreeNode node) const override;
  TreeNode Selected() const override { return selected_; }
  void Select(TreeNode node) override;
  bool Expanded(TreeNode node) const override;
  void SetExpanded(TreeNode node, bool expanded) override;
  TreeNode NodeAt(Point client) const override;

  /// Where a node's icon and caption lie in the control; empty when it is folded away.
  Rect RowOf(TreeNode node) const;

 protected:
  void PaintOn(Surface& screen, const Rect& place, const Rect& clip) override;
  void OnPointerInput(const PointerInput& input, const MouseEvent& event) override;
  void OnOwnKey(const KeyEvent& event) override;
  void OnFocusChange(bool gained) override;

 private:
  struct Item {
    TreeNode parent = 0;
    std::u16string caption{};
    Icon icon{};
    std::vector<TreeNode> children{};
    bool sorted = false;
    bool expanded = false;
  };
  struct Row {
    TreeNode node;
    int depth;
  };

  const Item* Find(TreeNode node) const;
  Item* Find(TreeNode node);
  void Forget(TreeNode node);
  void Sort(Item& parent);
  void ListRows(TreeNode node, int depth, std::vector<Row>& rows) const;
  std::vector<Row> Rows() const;
  void Tell(const std::function<void(TreeNode)>& event, TreeNode node);
  bool IsBelow(TreeNode node, TreeNode above) const;
  /// The row at this height, or none.
  const Row* RowAt(const std::vector<Row>& rows, int y) const;
  void MoveSelection(TreeNode node);
  void Choose(TreeNode node);
  void PressLeft(const PointerInput& input, const MouseEvent& event);
  static constexpr int kRow = 17;
  static constexpr int kIndent = 19;

  std::map<TreeNode, Item> items_{{0, Item{.expanded = true}}};  ///< 0 holds the roots
  TreeNode last_ = 0;
  TreeNode selected_ = 0;
};

}  // namespace platform
