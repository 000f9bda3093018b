// Owners of the system's handles: each frees what it holds, once.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

#include "platform/geometry.h"
#include "platform/win32/win.h"

namespace platform {

/// A unique_ptr over a handle; `Free` is a function object that gives it back.
template <typename Handle, typename Free>
struct HandleFree {
  using pointer = Handle;
  void operator()(Handle handle) const { Free()(handle); }
};
template <typename Handle, typename Free>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, HandleFree<Handle, Free>>;

struct FreeGdi {
  void operator()(HGDIOBJ h) const { ::DeleteObject(h); }
};
struct FreeDc {
  void operator()(HDC h) const { ::DeleteDC(h); }
};
struct FreeWindow {
  void operator()(HWND h) const { ::DestroyWindow(h); }
};
struct FreeIcon {
  void operator()(HICON h) const { ::DestroyIcon(h); }
};
struct FreeCursor {
  void operator()(HCURSOR h) const { ::DestroyCursor(h); }
};
struct FreeMenu {
  void operator()(HMENU h) const { ::DestroyMenu(h); }
};
struct FreeImages {
  void operator()(HIMAGELIST h) const { ::ImageList_Destroy(h); }
};
struct FreeKernel {
  void operator()(HANDLE h) const { ::CloseHandle(h); }
};
struct FreeModule {
  void operator()(HMODULE h) const { ::FreeLibrary(h); }
};
struct FreeGlobal {
  void operator()(HGLOBAL h) const { ::GlobalFree(h); }
};

using OwnedBitmap = Owned<HBITMAP, FreeGdi>;
using OwnedFont = Owned<HFONT, FreeGdi>;
using OwnedBrush = Owned<HBRUSH, FreeGdi>;
using OwnedRegion = Owned<HRGN, FreeGdi>;
using OwnedDc = Owned<HDC, FreeDc>;
using OwnedWindow = Owned<HWND, FreeWindow>;
using OwnedIcon = Owned<HICON, FreeIcon>;
using OwnedCursor = Owned<HCURSOR, FreeCursor>;
using OwnedMenu = Owned<HMENU, FreeMenu>;
using OwnedImages = Owned<HIMAGELIST, FreeImages>;
using OwnedKernel = Owned<HANDLE, FreeKernel>;
using OwnedModule = Owned<HMODULE, FreeModule>;
using OwnedGlobal = Owned<HGLOBAL, FreeGlobal>;

/// A window's or (without one) the screen's device context, given back at the end of the scope.
class BorrowedDc {
 public:
  explicit BorrowedDc(HWND window) : window_(window), dc_(::GetDC(window)) {}
  /// `clipping`: flags of GetDCEx.
  BorrowedDc(HWND window, DWORD clipping)
      : window_(window), dc_(::GetDCEx(window, nullptr, clipping)) {}
  ~BorrowedDc() {
    if (dc_) ::ReleaseDC(window_, dc_);
  }
  BorrowedDc(const BorrowedDc&) = delete;
  BorrowedDc& operator=(const BorrowedDc&) = delete;
  HDC get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

/// Selects an object for the scope's life.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), former_(::SelectObject(dc, object)) {}
  ~Selected() { ::SelectObject(dc_, former_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC dc_;
  HGDIOBJ former_;
};

/// The bytes of a movable block for the scope's life; null when it cannot be locked.
class Locked {
 public:
  explicit Locked(HGLOBAL block) : block_(block), bytes_(::GlobalLock(block)) {}
  ~Locked() {
    if (bytes_) ::GlobalUnlock(block_);
  }
  Locked(const Locked&) = delete;
  Locked& operator=(const Locked&) = delete;
  template <typename T>
  T* As() const {
    return static_cast<T*>(bytes_);
  }

 private:
  HGLOBAL block_;
  void* bytes_;
};

}  // namespace platform
