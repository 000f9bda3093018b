#include "platform/win32/Pointers.h"

#include <cstring>
#include <map>
#include <vector>

namespace platform {
namespace {

// A .cur file: a header of three words (0, 2, number of pictures), then the entries.
struct CursorFileHeader {
  WORD reserved;
  WORD type;
  WORD count;
};
struct CursorFileEntry {
  BYTE width;
  BYTE height;
  BYTE colours;
  BYTE reserved;
  WORD hotX;
  WORD hotY;
  DWORD size;
  DWORD offset;
};
static_assert(sizeof(CursorFileHeader) == 6 && sizeof(CursorFileEntry) == 16);

template <typename T>
bool ReadAt(std::span<const std::byte> file, std::size_t offset, T& value) {
  if (offset > file.size() || file.size() - offset < sizeof(T)) return false;
  std::memcpy(&value, file.data() + offset, sizeof(T));
  return true;
}

// As a resource, the picture follows its hot spot.
std::vector<BYTE> AsResource(const CursorFileEntry& entry, std::span<const std::byte> picture) {
  std::vector<BYTE> resource(2 * sizeof(WORD) + picture.size());
  std::memcpy(resource.data(), &entry.hotX, sizeof(WORD));
  std::memcpy(resource.data() + sizeof(WORD), &entry.hotY, sizeof(WORD));
  std::memcpy(resource.data() + 2 * sizeof(WORD), picture.data(), picture.size());
  return resource;
}

OwnedCursor MakeCursor(std::span<const std::byte> file) {
  CursorFileHeader header{};
  CursorFileEntry entry{};
  if (!ReadAt(file, 0, header) || header.type != 2 || header.count == 0) return nullptr;
  if (!ReadAt(file, sizeof(header), entry)) return nullptr;
  if (entry.offset > file.size() || entry.size > file.size() - entry.offset) return nullptr;
  auto resource = AsResource(entry, file.subspan(entry.offset, entry.size));
  constexpr DWORD kVersion = 0x00030000;
  return OwnedCursor(static_cast<HCURSOR>(
      ::CreateIconFromResourceEx(resource.data(), static_cast<DWORD>(resource.size()), FALSE,
                                 kVersion, 0, 0, LR_DEFAULTCOLOR)));
}

HCURSOR StandardCursor(StandardPointer pointer) {
  switch (pointer) {
    case StandardPointer::IBeam:
      return ::LoadCursor(nullptr, IDC_IBEAM);
    case StandardPointer::Hourglass:
      return ::LoadCursor(nullptr, IDC_WAIT);
    case StandardPointer::NoDrop:
      return ::LoadCursor(nullptr, IDC_NO);
    case StandardPointer::SizeAll:
      return ::LoadCursor(nullptr, IDC_SIZEALL);
    case StandardPointer::SizeWE:
      return ::LoadCursor(nullptr, IDC_SIZEWE);
    case StandardPointer::Default:
      break;
  }
  return ::LoadCursor(nullptr, IDC_ARROW);
}

bool waits = false;

// A picture lives as long as the program, so its address names it.
HCURSOR CustomCursor(std::span<const std::byte> picture) {
  static std::map<const std::byte*, OwnedCursor> made;
  const auto [place, fresh] = made.try_emplace(picture.data());
  if (fresh) place->second = MakeCursor(picture);
  return place->second.get();
}

}  // namespace

HCURSOR CursorOf(const Pointer& pointer) {
  if (pointer.Custom()) {
    if (const HCURSOR custom = CustomCursor(pointer.picture)) return custom;
  }
  return StandardCursor(pointer.standard);
}

void SetWaitPointer(bool wait) {
  waits = wait;
  ShowPointerAnew();
}

bool WaitPointerSet() { return waits; }

HWND WindowUnderPointer() {
  POINT at{};
  return ::GetCursorPos(&at) ? ::WindowFromPoint(at) : nullptr;
}

void ShowPointerAnew() {
  const HWND window = WindowUnderPointer();
  if (!window || ::GetWindowThreadProcessId(window, nullptr) != ::GetCurrentThreadId()) return;
  POINT at{};
  ::GetCursorPos(&at);
  const LRESULT part = ::SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(at.x, at.y));
  ::SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                 MAKELPARAM(part, WM_MOUSEMOVE));
}

}  // namespace platform
