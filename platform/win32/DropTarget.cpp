#include "platform/win32/DropTarget.h"

#include <wrl/client.h>

#include "platform/win32/ComObject.h"
#include "platform/win32/NativeWindow.h"
#include "platform/win32/OleData.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

constexpr DWORD kKnownEffects = DROPEFFECT_COPY | DROPEFFECT_MOVE;

PaneEvents* TakerOf(HWND window) {
  NativeWindow* object = NativeWindow::Of(window);
  return object ? object->DropEvents() : nullptr;
}

HWND InnermostAt(HWND root, POINTL at) {
  for (HWND window = root;;) {
    POINT place{at.x, at.y};
    ::ScreenToClient(window, &place);
    const HWND child =
        ::ChildWindowFromPointEx(window, place, CWP_SKIPINVISIBLE | CWP_SKIPDISABLED);
    if (!child || child == window) return window;
    window = child;
  }
}

/// The pane that takes drops and is, or lies around, what stands there; null for none.
HWND TakerAt(HWND root, POINTL at) {
  HWND window = InnermostAt(root, at);
  while (window && !TakerOf(window)) {
    window = window == root ? nullptr : ::GetAncestor(window, GA_PARENT);
  }
  return window;
}

class DropTarget final : public ComObject<IDropTarget> {
 public:
  explicit DropTarget(HWND root) : root_(root) {}

  HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD keys, POINTL at,
                                      DWORD* effect) override {
    data_ = data;
    return DragOver(keys, at, effect);
  }
  HRESULT STDMETHODCALLTYPE DragOver(DWORD keys, POINTL at, DWORD* effect) override {
    return Answer(effect, [&](DWORD allowed) { return Drag(keys, at, allowed); });
  }
  HRESULT STDMETHODCALLTYPE DragLeave() override {
    data_.Reset();
    return Guarded([&] {
      GoOver(nullptr);
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) override {
    const OleDataSource source(data);
    data_.Reset();
    over_ = nullptr;
    return Answer(effect, [&](DWORD allowed) {
      const HWND taker = TakerAt(root_, at);
      PaneEvents* events = TakerOf(taker);
      if (!events) return DropEffect::None;
      return events->OnDrop(EventOf(taker, DragState::Over, source, keys, at, allowed));
    });
  }

 private:
  DropEffect Drag(DWORD keys, POINTL at, DWORD allowed) {
    const HWND taker = TakerAt(root_, at);
    const DragState state = taker == over_ ? DragState::Over : DragState::Enter;
    GoOver(taker);
    // The one that was left may have closed this one.
    PaneEvents* events = TakerOf(taker);
    if (!events) return DropEffect::None;
    const OleDataSource source(data_.Get());
    return events->OnDrag(EventOf(taker, state, source, keys, at, allowed));
  }

  void GoOver(HWND taker) {
    if (taker == over_) return;
    PaneEvents* left = TakerOf(over_);
    over_ = taker;
    DragEvent event;
    event.state = DragState::Leave;
    if (left) static_cast<void>(left->OnDrag(event));
  }

  static DragEvent EventOf(HWND taker, DragState state, const DataSource& source, DWORD keys,
                           POINTL at, DWORD allowed) {
    POINT place{at.x, at.y};
    ::ScreenToClient(taker, &place);
    DragEvent event;
    event.data = &source;
    event.state = state;
    event.at = PointOf(place);
    event.modifiers = {.shift = (keys & MK_SHIFT) != 0,
                       .control = (keys & MK_CONTROL) != 0,
                       .alt = (keys & MK_ALT) != 0};
    event.allowed = static_cast<DropEffect>(allowed & kKnownEffects);
    return event;
  }

  template <typename Handler>
  static HRESULT Answer(DWORD* effect, Handler handler) {
    const DWORD allowed = *effect;
    *effect = DROPEFFECT_NONE;
    return Guarded([&] {
      *effect = static_cast<DWORD>(handler(allowed)) & allowed;
      return S_OK;
    });
  }

  HWND root_;
  HWND over_ = nullptr;  // the pane that knows of the drag
  Microsoft::WRL::ComPtr<IDataObject> data_;
};

}  // namespace

void DropRegistration::Register(HWND root) {
  if (root_) return;
  const Microsoft::WRL::ComPtr<IDropTarget> target = new DropTarget(root);
  if (SUCCEEDED(::RegisterDragDrop(root, target.Get()))) root_ = root;
}

void DropRegistration::Revoke() {
  if (root_) ::RevokeDragDrop(root_);
  root_ = nullptr;
}

}  // namespace platform
