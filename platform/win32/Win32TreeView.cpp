#include "platform/win32/Win32TreeView.h"

#include "platform/win32/IconHandle.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

constexpr int kIconSize = 16;

TreeNode NodeOf(const TVITEMW& item) { return static_cast<TreeNode>(item.lParam); }

}  // namespace

bool Win32TreeView::Make(HWND parent, const Rect& bounds) {
  if (!MakeChild(
          parent, bounds, WC_TREEVIEWW,
          TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP,
          {}, WS_EX_CLIENTEDGE)) {
    return false;
  }
  images_.reset(::ImageList_Create(kIconSize, kIconSize, ILC_COLOR32 | ILC_MASK, 8, 8));
  SendPointer(TVM_SETIMAGELIST, TVSIL_NORMAL, images_.get());
  return true;
}

void Win32TreeView::SetColours(std::optional<Colour> text, std::optional<Colour> background) {
  constexpr LPARAM kSystems = -1;
  Send(TVM_SETTEXTCOLOR, 0, text ? static_cast<LPARAM>(*text) : kSystems);
  Send(TVM_SETBKCOLOR, 0, background ? static_cast<LPARAM>(*background) : kSystems);
}

int Win32TreeView::ImageOf(const Icon& icon) {
  const auto [place, fresh] = imageOf_.try_emplace(icon, -1);
  if (fresh) {
    const OwnedIcon handle = IconHandleOf(icon);
    place->second = handle ? ::ImageList_AddIcon(images_.get(), handle.get()) : -1;
  }
  return place->second;
}

TreeNode Win32TreeView::Add(TreeNode parent, std::u16string_view caption, const Icon& icon) {
  if (!Handle()) return 0;
  std::u16string text(caption);
  TVINSERTSTRUCTW insertion{};
  insertion.hParent = parent ? ItemOf(parent) : TVI_ROOT;
  insertion.hInsertAfter = Sorted(parent) ? TVI_SORT : TVI_LAST;
  insertion.item.mask = TVIF_TEXT | TVIF_PARAM;
  insertion.item.pszText = WideBuffer(text);
  insertion.item.lParam = last_ + 1;
  // Without an image of its own an item would show the first one.
  insertion.item.mask |= TVIF_IMAGE | TVIF_SELECTEDIMAGE;
  insertion.item.iImage = insertion.item.iSelectedImage = icon ? ImageOf(icon) : I_IMAGENONE;
  const auto item = reinterpret_cast<HTREEITEM>(SendPointer(TVM_INSERTITEMW, 0, &insertion));
  if (!item) return 0;
  items_[++last_] = item;
  return last_;
}

void Win32TreeView::Forget(TreeNode node) {
  items_.erase(node);
  sorted_.erase(node);
}

void Win32TreeView::Remove(TreeNode node) {
  if (const HTREEITEM item = node ? ItemOf(node) : nullptr) Delete(item);
}

void Win32TreeView::Clear() { Delete(TVI_ROOT); }

// Where the selection goes is told when the tree is whole again.
void Win32TreeView::Delete(HTREEITEM item) {
  const TreeNode former = Selected();
  deleting_ = true;
  SendPointer(TVM_DELETEITEM, 0, item);
  deleting_ = false;
  if (Selected() != former) TellChange();
}

void Win32TreeView::SetSorted(TreeNode parent, bool sorted) {
  if (!sorted) {
    sorted_.erase(parent);
    return;
  }
  sorted_.insert(parent);
  SendPointer(TVM_SORTCHILDREN, FALSE, parent ? ItemOf(parent) : TVI_ROOT);
}

HTREEITEM Win32TreeView::ItemOf(TreeNode node) const {
  const auto found = items_.find(node);
  return found == items_.end() ? nullptr : found->second;
}

TreeNode Win32TreeView::NodeOf(HTREEITEM handle) const {
  if (!handle) return 0;
  TVITEMW item{};
  item.mask = TVIF_PARAM;
  item.hItem = handle;
  SendPointer(TVM_GETITEMW, 0, &item);
  return static_cast<TreeNode>(item.lParam);
}

TreeNode Win32TreeView::Neighbour(UINT relation, TreeNode node) const {
  const HTREEITEM item = node ? ItemOf(node) : TVI_ROOT;
  if (!item) return 0;
  return NodeOf(reinterpret_cast<HTREEITEM>(SendPointer(TVM_GETNEXTITEM, relation, item)));
}

std::u16string Win32TreeView::Caption(TreeNode node) const {
  wchar_t text[MAX_PATH + 1] = {};
  TVITEMW item{};
  item.mask = TVIF_TEXT;
  item.hItem = ItemOf(node);
  item.pszText = text;
  item.cchTextMax = static_cast<int>(std::size(text));
  if (item.hItem) SendPointer(TVM_GETITEMW, 0, &item);
  return Text(text);
}

TreeNode Win32TreeView::Parent(TreeNode node) const {
  return node ? Neighbour(TVGN_PARENT, node) : 0;
}
TreeNode Win32TreeView::FirstChild(TreeNode node) const {
  return node ? Neighbour(TVGN_CHILD, node) : Neighbour(TVGN_ROOT, 0);
}
TreeNode Win32TreeView::Next(TreeNode node) const { return node ? Neighbour(TVGN_NEXT, node) : 0; }
TreeNode Win32TreeView::Selected() const { return Neighbour(TVGN_CARET, 0); }

// The system opens the parents of a chosen item too, but does not tell of it.
void Win32TreeView::Reveal(TreeNode node) {
  const TreeNode parent = Parent(node);
  if (!parent) return;
  Reveal(parent);
  SetExpanded(parent, true);
}

void Win32TreeView::Select(TreeNode node) {
  Reveal(node);
  SendPointer(TVM_SELECTITEM, TVGN_CARET, node ? ItemOf(node) : nullptr);
}

bool Win32TreeView::Expanded(TreeNode node) const {
  const HTREEITEM item = ItemOf(node);
  if (!item) return false;
  return (Send(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), TVIS_EXPANDED) & TVIS_EXPANDED) !=
         0;
}

void Win32TreeView::SetExpanded(TreeNode node, bool expanded) {
  const HTREEITEM item = ItemOf(node);
  if (!item || expanded == Expanded(node) || (expanded && !FirstChild(node))) return;
  // The system tells of the first change by code alone; here each one is told.
  if (expanded && Expanding) Expanding(node);
  if (!expanded) LeaveChildrenOf(node);
  expandingByCode_ = true;
  SendPointer(TVM_EXPAND, expanded ? TVE_EXPAND : TVE_COLLAPSE, item);
  expandingByCode_ = false;
  if (!expanded && Collapsed) Collapsed(node);
}

TreeNode Win32TreeView::NodeAt(Point client) const {
  TVHITTESTINFO hit{};
  hit.pt = PointOf(client);
  SendPointer(TVM_HITTEST, 0, &hit);
  return (hit.flags & TVHT_ONITEM) ? NodeOf(hit.hItem) : 0;
}

bool Win32TreeView::IsBelow(TreeNode node, TreeNode above) const {
  while (node && node != above) node = Parent(node);
  return node == above;
}

// The system does so too, but where among the other events is its own affair.
void Win32TreeView::LeaveChildrenOf(TreeNode node) {
  if (IsBelow(Selected(), node)) SendPointer(TVM_SELECTITEM, TVGN_CARET, ItemOf(node));
}

std::optional<LRESULT> Win32TreeView::Receive(const WindowMessage& message) {
  const auto what = ButtonMessageOf(message);
  return what ? ReceiveButton(*what, message) : ControlOf::Receive(message);
}

// The system's own handling of the right button waits for the release in a loop and keeps it.
std::optional<LRESULT> Win32TreeView::ReceiveButton(const ButtonMessage& what,
                                                    const WindowMessage& message) {
  const auto tell = [&](const MouseHandler& handler) {
    if (handler) handler(what.button, MouseEventOf(message));
  };
  if (what.button == Button::Left) {
    if (what.event == ButtonEvent::Down) tell(MouseDown);
    return std::nullopt;
  }
  if (what.event != ButtonEvent::Up) {
    ::SetFocus(Handle());
    ::SetCapture(Handle());
    tell(MouseDown);
  } else if (::GetCapture() == Handle()) {
    ::ReleaseCapture();
    tell(MouseUp);
  }
  return 0;
}

void Win32TreeView::TellExpansion(const std::function<void(TreeNode)>& handler,
                                  const NMTREEVIEWW& change) const {
  if (handler && !expandingByCode_) handler(platform::NodeOf(change.itemNew));
}

void Win32TreeView::TellNodeClick(TreeNode node) {
  if (node && NodeClick) NodeClick(node);
}

// The system tells of the click first and selects then.
void Win32TreeView::TellClicks() {
  const DWORD place = ::GetMessagePos();
  POINT at{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
  ::ScreenToClient(Handle(), &at);
  const TreeNode node = NodeAt(PointOf(at));
  if (node) SendPointer(TVM_SELECTITEM, TVGN_CARET, ItemOf(node));
  TellNodeClick(node);
  TellClick();
}

LRESULT Win32TreeView::OnNotify(const NMHDR& notification) {
  const auto& change = reinterpret_cast<const NMTREEVIEWW&>(notification);
  switch (notification.code) {
    case TVN_ITEMEXPANDINGW:
      if (change.action == TVE_EXPAND) TellExpansion(Expanding, change);
      if (change.action == TVE_COLLAPSE) LeaveChildrenOf(platform::NodeOf(change.itemNew));
      return FALSE;
    case TVN_ITEMEXPANDEDW:
      if (change.action == TVE_COLLAPSE) TellExpansion(Collapsed, change);
      return 0;
    case TVN_SELCHANGEDW:
      if (deleting_) return 0;
      TellChange();
      if (change.action == TVC_BYKEYBOARD) TellNodeClick(platform::NodeOf(change.itemNew));
      return 0;
    case TVN_DELETEITEMW:
      Forget(platform::NodeOf(change.itemOld));
      return 0;
    case NM_CLICK:
      TellClicks();
      return 0;
    case NM_DBLCLK:
      TellDoubleClick();
      return 0;
    default:
      return 0;
  }
}

}  // namespace platform
