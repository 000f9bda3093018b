#include "platform/memory/MemoryTree.h"

#include <algorithm>
#include <utility>

#include "platform/drawing.h"
#include "platform/memory/MemoryTextDrawing.h"
#include "platform/memory/collation.h"

namespace platform {
namespace {

constexpr int kEdge = 2;
constexpr int kIcon = 20;  ///< with the gap to the caption; kept free where a node has none

}  // namespace

const MemoryTree::Item* MemoryTree::Find(TreeNode node) const {
  const auto found = items_.find(node);
  return found != items_.end() ? &found->second : nullptr;
}

MemoryTree::Item* MemoryTree::Find(TreeNode node) {
  return const_cast<Item*>(std::as_const(*this).Find(node));
}

TreeNode MemoryTree::Add(TreeNode parent, std::u16string_view caption, const Icon& icon) {
  Item* above = Find(parent);
  if (above == nullptr || Fails("TreeView.Add")) return 0;
  const TreeNode added = ++last_;
  above->children.push_back(added);
  items_[added] = {parent, std::u16string(caption), icon, {}, false, false};
  if (above->sorted) Sort(*above);
  return added;
}

void MemoryTree::Sort(Item& parent) {
  std::stable_sort(parent.children.begin(), parent.children.end(), [&](TreeNode a, TreeNode b) {
    return SortsBefore(items_[a].caption, items_[b].caption);
  });
}

void MemoryTree::Forget(TreeNode node) {
  for (TreeNode child : std::exchange(items_[node].children, {})) Forget(child);
  items_.erase(node);
}

void MemoryTree::Remove(TreeNode node) {
  if (node == 0 || Find(node) == nullptr || Fails("TreeView.Remove")) return;
  const TreeNode parent = Parent(node);
  const TreeNode next = Next(node);
  std::erase(items_[parent].children, node);
  Forget(node);
  if (Find(selected_) != nullptr && selected_ != 0) return;
  // The choice moves on to a neighbour, or up.
  const auto& left = items_[parent].children;
  MoveSelection(next != 0 ? next : left.empty() ? parent : left.back());
}

void MemoryTree::Clear() {
  if (Fails("TreeView.Clear")) return;
  items_ = {{0, Item{.sorted = items_[0].sorted, .expanded = true}}};
  MoveSelection(0);
}

void MemoryTree::SetSorted(TreeNode parent, bool sorted) {
  Item* item = Find(parent);
  if (item == nullptr || Fails("TreeView.SetSorted")) return;
  item->sorted = sorted;
  if (sorted) Sort(*item);
}

std::u16string MemoryTree::Caption(TreeNode node) const {
  const Item* item = Find(node);
  return item != nullptr ? item->caption : u"";
}

TreeNode MemoryTree::Parent(TreeNode node) const {
  const Item* item = Find(node);
  return item != nullptr ? item->parent : 0;
}

TreeNode MemoryTree::FirstChild(TreeNode node) const {
  const Item* item = Find(node);
  return item != nullptr && !item->children.empty() ? item->children.front() : 0;
}

TreeNode MemoryTree::Next(TreeNode node) const {
  if (node == 0 || Find(node) == nullptr) return 0;
  const auto& row = Find(Parent(node))->children;
  const auto behind = std::find(row.begin(), row.end(), node) + 1;
  return behind != row.end() ? *behind : 0;
}

void MemoryTree::Select(TreeNode node) {
  if (Find(node) == nullptr || Fails("TreeView.Select")) return;
  for (TreeNode above = Parent(node); above != 0; above = Parent(above)) SetExpanded(above, true);
  MoveSelection(node);
}

void MemoryTree::MoveSelection(TreeNode node) {
  if (std::exchange(selected_, node) != node) Raise(events.Change);
}

bool MemoryTree::IsBelow(TreeNode node, TreeNode above) const {
  while (node != 0 && node != above) node = Parent(node);
  return node == above;
}

bool MemoryTree::Expanded(TreeNode node) const {
  const Item* item = Find(node);
  return node != 0 && item != nullptr && item->expanded;
}

void MemoryTree::Tell(const std::function<void(TreeNode)>& event, TreeNode node) {
  if (const auto handler = event) handler(node);
}

void MemoryTree::SetExpanded(TreeNode node, bool expanded) {
  if (node == 0 || Find(node) == nullptr || Expanded(node) == expanded) return;
  if (Fails("TreeView.SetExpanded") || Find(node)->children.empty()) return;
  if (expanded) Tell(Expanding, node);
  if (!expanded && IsBelow(selected_, node)) MoveSelection(node);
  Item* item = Find(node);  // the handler may have taken it away, or its children
  if (item == nullptr || (expanded && item->children.empty())) return;
  item->expanded = expanded;
  if (!expanded) Tell(Collapsed, node);
}

void MemoryTree::ListRows(TreeNode node, int depth, std::vector<Row>& rows) const {
  for (TreeNode child : Find(node)->children) {
    rows.push_back({child, depth});
    if (Expanded(child)) ListRows(child, depth + 1, rows);
  }
}

std::vector<MemoryTree::Row> MemoryTree::Rows() const {
  std::vector<Row> rows;
  ListRows(0, 0, rows);
  return rows;
}

const MemoryTree::Row* MemoryTree::RowAt(const std::vector<Row>& rows, int y) const {
  const int row = y < kEdge ? -1 : (y - kEdge) / kRow;
  return row >= 0 && row < static_cast<int>(rows.size()) ? &rows[row] : nullptr;
}

TreeNode MemoryTree::NodeAt(Point client) const {
  const auto rows = Rows();
  const Row* row = RowAt(rows, client.y);
  return row != nullptr && RowOf(row->node).Contains(client) ? row->node : 0;
}

Rect MemoryTree::RowOf(TreeNode node) const {
  const auto rows = Rows();
  const auto found =
      std::find_if(rows.begin(), rows.end(), [&](const Row& row) { return row.node == node; });
  if (found == rows.end()) return {};
  const int left = kEdge + kIndent * (found->depth + 1);
  const int top = kEdge + kRow * static_cast<int>(found - rows.begin());
  return Rect::At({left, top},
                  {kIcon + MemoryTextDrawing::Width(Caption(node), ShownFont()), kRow});
}

void MemoryTree::PaintOn(Surface& screen, const Rect& place, const Rect& clip) {
  const Rect part = place.Intersected(clip);
  if (part.Empty()) return;
  FillRect(screen, part, Background().value_or(0xFFFFFF));
  DrawEdge(screen, place, Edge::Sunken, {});
  const Rect inside = place.Grown(-kEdge).Intersected(clip);
  for (const Row& row : Rows()) {
    const Item& item = *Find(row.node);
    const Rect line = RowOf(row.node).Moved(place.Origin()).Intersected(inside);
    if (line.Empty()) continue;
    if (!item.children.empty()) {
      MemoryTextDrawing::Paint(screen, line.Moved({-12, 0}), item.expanded ? u"-" : u"+", {}, 0,
                               {});
    }
    if (item.icon) DrawIcon(screen, line.Origin(), item.icon, {16, 16});
    const Rect text{line.left + kIcon, line.top, line.right, line.bottom};
    const bool chosen = row.node == selected_;
    if (chosen) FillRect(screen, text, 0x6A240A);
    MemoryTextDrawing::Paint(screen, text, item.caption, ShownFont(),
                             chosen ? Colour{0xFFFFFF} : TextColour(),
                             {.vertical = TextFormat::Vertical::Centre});
  }
}

void MemoryTree::Choose(TreeNode node) {
  MoveSelection(node);
  if (ControlOf::Alive() && Find(node) != nullptr) Tell(NodeClick, node);
}

void MemoryTree::OnPointerInput(const PointerInput& input, const MouseEvent& event) {
  const bool left = input.button == Button::Left;
  if (input.kind == PointerInput::Kind::Release && !left) Raise(MouseUp, input.button, event);
  if (input.kind != PointerInput::Kind::Press) return;
  if (!left || !input.second) Raise(MouseDown, input.button, event);
  if (left && ControlOf::Alive()) PressLeft(input, event);
}

void MemoryTree::PressLeft(const PointerInput& input, const MouseEvent& event) {
  const auto rows = Rows();
  const Row* row = RowAt(rows, event.at.y);
  const TreeNode node = NodeAt(event.at);
  const int left = row != nullptr ? RowOf(row->node).left : 0;
  const bool onSign = row != nullptr && event.at.x >= left - kIndent && event.at.x < left;
  if (!input.second && node != 0) Choose(node);
  if (ControlOf::Alive()) Raise(input.second ? events.DoubleClick : events.Click);
  const TreeNode folds = onSign ? row->node : input.second ? node : 0;
  if (ControlOf::Alive() && folds != 0) SetExpanded(folds, !Expanded(folds));
}

// As the system does it: a tree with the keyboard has a selected node.
void MemoryTree::OnFocusChange(bool gained) {
  if (gained && selected_ == 0) MoveSelection(FirstChild(0));
  ControlOf::OnFocusChange(gained);
}

void MemoryTree::OnOwnKey(const KeyEvent& event) {
  const auto rows = Rows();
  if (rows.empty()) return;
  const auto at =
      std::find_if(rows.begin(), rows.end(), [&](const Row& row) { return row.node == selected_; });
  if (at == rows.end()) return;
  switch (event.virtualKey) {
    case key::kUp:
      if (at != rows.begin()) Choose((at - 1)->node);
      return;
    case key::kDown:
      if (at + 1 != rows.end()) Choose((at + 1)->node);
      return;
    case key::kHome:
      return Choose(rows.front().node);
    case key::kEnd:
      return Choose(rows.back().node);
    case key::kRight:
      if (!Expanded(selected_)) return SetExpanded(selected_, true);
      if (FirstChild(selected_) != 0) Choose(FirstChild(selected_));
      return;
    case key::kLeft:
      if (Expanded(selected_)) return SetExpanded(selected_, false);
      if (ControlOf::Alive() && Parent(selected_) != 0) Choose(Parent(selected_));
      return;
    default:
      return;
  }
}

}  // namespace platform
