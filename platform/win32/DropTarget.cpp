#include "platform/win32/DropTarget.h"

#include "platform/win32/ComObject.h"
#include "platform/win32/OleData.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

constexpr DWORD kKnownEffects = DROPEFFECT_COPY | DROPEFFECT_MOVE;

class DropTarget final : public ComObject<IDropTarget> {
 public:
  DropTarget(HWND window, PaneEvents& events) : window_(window), events_(events) {}

  HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD keys, POINTL at,
                                      DWORD* effect) override {
    data_ = data;
    return Drag(DragState::Enter, keys, at, effect);
  }
  HRESULT STDMETHODCALLTYPE DragOver(DWORD keys, POINTL at, DWORD* effect) override {
    return Drag(DragState::Over, keys, at, effect);
  }
  HRESULT STDMETHODCALLTYPE DragLeave() override {
    data_.Reset();
    DragEvent event;
    event.state = DragState::Leave;
    return Guarded([&] {
      static_cast<void>(events_.OnDrag(event));
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) override {
    const OleDataSource source(data);
    const DragEvent event = EventOf(DragState::Over, source, keys, at, *effect);
    data_.Reset();
    return Answer(effect, [&] { return events_.OnDrop(event); });
  }

 private:
  HRESULT Drag(DragState state, DWORD keys, POINTL at, DWORD* effect) {
    const OleDataSource source(data_.Get());
    const DragEvent event = EventOf(state, source, keys, at, *effect);
    return Answer(effect, [&] { return events_.OnDrag(event); });
  }

  DragEvent EventOf(DragState state, const DataSource& source, DWORD keys, POINTL at,
                    DWORD allowed) const {
    POINT place{at.x, at.y};
    ::ScreenToClient(window_, &place);
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
      *effect = static_cast<DWORD>(handler()) & allowed;
      return S_OK;
    });
  }

  HWND window_;
  PaneEvents& events_;
  Microsoft::WRL::ComPtr<IDataObject> data_;
};

}  // namespace

void DropRegistration::Register(HWND window, PaneEvents& events) {
  if (window_) return;
  const Microsoft::WRL::ComPtr<IDropTarget> target = new DropTarget(window, events);
  if (SUCCEEDED(::RegisterDragDrop(window, target.Get()))) window_ = window;
}

void DropRegistration::Revoke() {
  if (window_) ::RevokeDragDrop(window_);
  window_ = nullptr;
}

}  // namespace platform
