// The system's tree view.
#pragma once

#include <map>
#include <set>
#include <unordered_map>

#include "platform/win32/ControlWindow.h"
#include "platform/win32/MouseMessages.h"

namespace platform {

class Win32TreeView final : public ControlOf<TreeView> {
 public:
  Win32TreeView() : ControlOf(Background::Own) {}
  bool Make(HWND parent, const Rect& bounds);

  void SetColours(std::optional<Colour> text, std::optional<Colour> background) override;
  TreeNode Add(TreeNode parent, std::u16string_view caption, const Icon& icon) override;
  void Remove(TreeNode node) override;
  void Clear() override;
  void SetSorted(TreeNode parent, bool sorted) override;
  [[nodiscard]] std::u16string Caption(TreeNode node) const override;
  [[nodiscard]] TreeNode Parent(TreeNode node) const override;
  [[nodiscard]] TreeNode FirstChild(TreeNode node) const override;
  [[nodiscard]] TreeNode Next(TreeNode node) const override;
  [[nodiscard]] TreeNode Selected() const override;
  void Select(TreeNode node) override;
  [[nodiscard]] bool Expanded(TreeNode node) const override;
  void SetExpanded(TreeNode node, bool expanded) override;
  [[nodiscard]] TreeNode NodeAt(Point client) const override;

  std::optional<LRESULT> Receive(const WindowMessage& message) override;

 protected:
  LRESULT OnNotify(const NMHDR& notification) override;

 private:
  HTREEITEM ItemOf(TreeNode node) const;
  TreeNode NodeOf(HTREEITEM item) const;
  TreeNode Neighbour(UINT relation, TreeNode node) const;
  int ImageOf(const Icon& icon);
  bool Sorted(TreeNode parent) const { return sorted_.contains(parent); }
  void Forget(TreeNode node);
  void Reveal(TreeNode node);
  std::optional<LRESULT> ReceiveButton(const ButtonMessage& what, const WindowMessage& message);
  bool IsBelow(TreeNode node, TreeNode above) const;
  void Delete(HTREEITEM item);
  void LeaveChildrenOf(TreeNode node);
  void TellClicks();
  void TellNodeClick(TreeNode node);
  void TellExpansion(const std::function<void(TreeNode)>& handler, const NMTREEVIEWW& change) const;

  OwnedImages images_;
  std::map<Icon, int> imageOf_;
  std::unordered_map<TreeNode, HTREEITEM> items_;
  std::set<TreeNode> sorted_;
  TreeNode last_ = 0;
  bool expandingByCode_ = false;
  bool deleting_ = false;
};

}  // namespace platform
