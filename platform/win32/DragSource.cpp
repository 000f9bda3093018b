#include "platform/win32/DragSource.h"

#include "platform/win32/ComObject.h"
#include "platform/win32/OleData.h"
#include "platform/win32/Pointers.h"

namespace platform {
namespace {

using Microsoft::WRL::ComPtr;

class DragSource final : public ComObject<IDropSource> {
 public:
  explicit DragSource(DragFeedback* feedback) : feedback_(feedback) {}

  HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escape, DWORD keys) override {
    if (escape) return DRAGDROP_S_CANCEL;
    const bool held = (keys & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON)) != 0;
    return held ? S_OK : DRAGDROP_S_DROP;
  }

  HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD effect) override {
    // While scrolling the target adds a bit of its own.
    const auto known = static_cast<DropEffect>(effect & (DROPEFFECT_COPY | DROPEFFECT_MOVE));
    return Guarded([&] { return ShowPointer(known); });
  }

 private:
  HRESULT ShowPointer(DropEffect effect) {
    const auto pointer = feedback_ ? feedback_->PointerFor(effect) : std::nullopt;
    if (!pointer) return DRAGDROP_S_USEDEFAULTCURSORS;
    ::SetCursor(CursorOf(*pointer));
    return S_OK;
  }

  DragFeedback* feedback_;
};

}  // namespace

DropEffect RunDrag(const DataContent& data, DropEffect allowed, DragFeedback* feedback) {
  const ComPtr<IDataObject> object = NewDataObject(data);
  const ComPtr<IDropSource> source = new DragSource(feedback);
  DWORD effect = DROPEFFECT_NONE;
  const HRESULT end =
      ::DoDragDrop(object.Get(), source.Get(), static_cast<DWORD>(allowed), &effect);
  return end == DRAGDROP_S_DROP ? static_cast<DropEffect>(effect & static_cast<DWORD>(allowed))
                                : DropEffect::None;
}

}  // namespace platform
