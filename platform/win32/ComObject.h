// The life of a small COM object of one interface: counted, deleted with its last reference. And
// how its functions keep what is thrown from their callers.
#pragma once

#include <atomic>

#include "platform/win32/win.h"

namespace platform {

template <typename Interface>
class ComObject : public Interface {
 public:
  ComObject() = default;
  virtual ~ComObject() = default;
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (id != __uuidof(IUnknown) && id != __uuidof(Interface)) return E_NOINTERFACE;
    *object = static_cast<Interface*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 private:
  std::atomic<ULONG> references_{0};
};

/// Nothing unwinds into a caller that may be the system or another program.
template <typename Handler>
HRESULT Guarded(Handler handler) noexcept {
  try {
    return handler();
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace platform
