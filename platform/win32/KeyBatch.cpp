#include "platform/win32/KeyBatch.h"

#include <algorithm>
#include <iterator>
#include <ranges>

namespace platform {
namespace {

constexpr DWORD kDown = 0;
constexpr DWORD kUp = KEYEVENTF_KEYUP;

// Keys without a meaning, that no keyboard has.
constexpr int kMarkerKey = 0xE8;
constexpr int kIdleKey = 0x97;

constexpr int kModifierKeys[] = {VK_LSHIFT, VK_RSHIFT, VK_LCONTROL, VK_RCONTROL,
                                 VK_LMENU,  VK_RMENU,  VK_LWIN,     VK_RWIN};

std::vector<int> HeldModifiers() {
  std::vector<int> held;
  std::ranges::copy_if(kModifierKeys, std::back_inserter(held),
                       [](int key) { return (::GetAsyncKeyState(key) & 0x8000) != 0; });
  return held;
}

/// The keys beside the number block, which would otherwise depend on its lock.
bool IsExtended(int virtualKey) {
  static constexpr int kExtended[] = {VK_PRIOR,    VK_NEXT,  VK_END,  VK_HOME,   VK_LEFT,
                                      VK_UP,       VK_RIGHT, VK_DOWN, VK_INSERT, VK_DELETE,
                                      VK_RCONTROL, VK_RMENU, VK_LWIN, VK_RWIN};
  return std::ranges::find(kExtended, virtualKey) != std::end(kExtended);
}

/// The key to press; 0 for a character that is typed as such. One with modifiers is a key ("Ctrl
/// and the dot") where the keyboard has it.
int KeyOf(const KeyStroke& stroke) {
  if (stroke.virtualKey != 0 || !stroke.modifiers.Any()) return stroke.virtualKey;
  const SHORT found = ::VkKeyScanW(static_cast<wchar_t>(stroke.unit));
  return found == -1 ? 0 : LOBYTE(found);
}

INPUT Event(int virtualKey, WORD scanCode, DWORD flags) {
  INPUT event{};
  event.type = INPUT_KEYBOARD;
  event.ki.wVk = static_cast<WORD>(virtualKey);
  event.ki.wScan = scanCode;
  event.ki.dwFlags = flags;
  return event;
}

}  // namespace

KeyBatch::KeyBatch() : held_(HeldModifiers()) {
  if (held_.empty()) return;
  Distract();
  for (const int key : held_) Key(key, kUp);
}

void KeyBatch::Key(int virtualKey, DWORD edge) {
  const UINT scanCode = ::MapVirtualKeyW(static_cast<UINT>(virtualKey), MAPVK_VK_TO_VSC);
  const DWORD extended = IsExtended(virtualKey) ? KEYEVENTF_EXTENDEDKEY : 0;
  events_.push_back(Event(virtualKey, static_cast<WORD>(scanCode), extended | edge));
}

void KeyBatch::Press(int virtualKey) {
  Key(virtualKey, kDown);
  Key(virtualKey, kUp);
}

void KeyBatch::Unit(char16_t unit) {
  events_.push_back(Event(0, unit, KEYEVENTF_UNICODE | kDown));
  events_.push_back(Event(0, unit, KEYEVENTF_UNICODE | kUp));
}

void KeyBatch::Distract() {
  // Alt or the Windows key pressed and let go with no other key between opens a menu.
  Press(kIdleKey);
}

void KeyBatch::Add(const KeyStroke& stroke) {
  ++strokes_;
  const int virtualKey = KeyOf(stroke);
  if (virtualKey == 0) return Unit(stroke.unit);
  const Modifiers& with = stroke.modifiers;
  if (with.control) Key(VK_CONTROL, kDown);
  if (with.shift) Key(VK_SHIFT, kDown);
  if (with.alt) Key(VK_MENU, kDown);
  Press(virtualKey);
  if (with.alt) Key(VK_MENU, kUp);
  if (with.shift) Key(VK_SHIFT, kUp);
  if (with.control) Key(VK_CONTROL, kUp);
}

bool KeyBatch::Send() {
  // It has no place on a keyboard; under Wine, asking for it would cost this thread 20 ms.
  events_.push_back(Event(kMarkerKey, 0, kDown));
  for (const int key : held_ | std::views::reverse) Key(key, kDown);
  if (!held_.empty()) Distract();
  const auto count = static_cast<UINT>(events_.size());
  return ::SendInput(count, events_.data(), sizeof(INPUT)) == count;
}

bool MarkerTaken() { return (::GetKeyState(kMarkerKey) & 0x8000) != 0; }

void ReleaseMarker() {
  INPUT release = Event(kMarkerKey, 0, kUp);
  ::SendInput(1, &release, sizeof(release));
}

const KeyStroke& StrokeReader::Next() {
  const KeyStroke& stroke = rest_.front();
  if (++done_ >= stroke.count) {
    rest_ = rest_.subspan(1);
    done_ = 0;
    SkipEmpty();
  }
  return stroke;
}

void StrokeReader::SkipEmpty() {
  while (!rest_.empty() && rest_.front().count <= 0) rest_ = rest_.subspan(1);
}

}  // namespace platform
