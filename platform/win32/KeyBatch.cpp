#include "platform/win32/KeyBatch.h"

#include <algorithm>
#include <iterator>

#include "platform/singlebyte.h"

namespace platform {
namespace {

constexpr DWORD kDown = 0;
constexpr DWORD kUp = KEYEVENTF_KEYUP;

// Keys without a meaning, that no keyboard has.
constexpr int kMarkerKey = 0xE8;
constexpr int kIdleKey = 0x97;

/// A key with its place, which is the same on every keyboard.
struct ModifierKey {
  int virtualKey;
  WORD scanCode;
  DWORD flags;
};
constexpr ModifierKey kModifierKeys[] = {
    {VK_LSHIFT, 0x2A, 0},
    {VK_RSHIFT, 0x36, 0},
    {VK_LCONTROL, 0x1D, 0},
    {VK_RCONTROL, 0x1D, KEYEVENTF_EXTENDEDKEY},
    {VK_LMENU, 0x38, 0},
    {VK_RMENU, 0x38, KEYEVENTF_EXTENDEDKEY},
    {VK_LWIN, 0x5B, KEYEVENTF_EXTENDEDKEY},
    {VK_RWIN, 0x5C, KEYEVENTF_EXTENDEDKEY},
};

/// The keys beside the number block, which would otherwise depend on its lock.
bool IsExtended(int virtualKey) {
  static constexpr int kExtended[] = {VK_PRIOR, VK_NEXT,  VK_END,  VK_HOME,   VK_LEFT,
                                      VK_UP,    VK_RIGHT, VK_DOWN, VK_INSERT, VK_DELETE};
  return std::ranges::find(kExtended, virtualKey) != std::end(kExtended);
}

INPUT Event(int virtualKey, WORD scanCode, DWORD flags) {
  INPUT event{};
  event.type = INPUT_KEYBOARD;
  event.ki.wVk = static_cast<WORD>(virtualKey);
  event.ki.wScan = scanCode;
  event.ki.dwFlags = flags;
  return event;
}

using Events = std::vector<INPUT>;

/// Alt or the Windows key pressed and let go with no other key between opens a menu.
void Distract(Events& events) {
  events.push_back(Event(kIdleKey, 0, kDown));
  events.push_back(Event(kIdleKey, 0, kUp));
}

void MoveModifiers(Events& events, const std::vector<ModifierKey>& keys, DWORD edge) {
  for (const ModifierKey& key : keys)
    events.push_back(Event(key.virtualKey, key.scanCode, key.flags | edge));
}

/// The strokes with the user's modifiers up meanwhile.
Events WithoutModifiers(const Events& strokes) {
  std::vector<ModifierKey> held;
  std::ranges::copy_if(kModifierKeys, std::back_inserter(held), PhysicallyDown,
                       &ModifierKey::virtualKey);
  if (held.empty()) return strokes;
  Events events;
  events.reserve(strokes.size() + 2 * held.size() + 4);
  Distract(events);
  MoveModifiers(events, held, kUp);
  std::ranges::copy(strokes, std::back_inserter(events));
  MoveModifiers(events, held, kDown);
  Distract(events);
  return events;
}

}  // namespace

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

void KeyBatch::Add(const KeyStroke& stroke) {
  ++strokes_;
  halfCharacter_ = stroke.virtualKey == 0 && IsHighSurrogate(stroke.unit);
  if (stroke.virtualKey == 0) return Unit(stroke.unit);
  const Modifiers& with = stroke.modifiers;
  if (with.control) Key(VK_CONTROL, kDown);
  if (with.shift) Key(VK_SHIFT, kDown);
  if (with.alt) Key(VK_MENU, kDown);
  Press(stroke.virtualKey);
  if (with.alt) Key(VK_MENU, kUp);
  if (with.shift) Key(VK_SHIFT, kUp);
  if (with.control) Key(VK_CONTROL, kUp);
}

void KeyBatch::End() { events_.push_back(Event(kMarkerKey, 0, kDown)); }

bool KeyBatch::Send() const {
  Events events = WithoutModifiers(events_);
  const auto count = static_cast<UINT>(events.size());
  return ::SendInput(count, events.data(), sizeof(INPUT)) == count;
}

std::vector<KeyBatch> BatchesOf(std::span<const KeyStroke> strokes) {
  std::vector<KeyBatch> batches;
  for (const KeyStroke& stroke : strokes) {
    for (int n = 0; n < stroke.count; ++n) {
      if (batches.empty() || batches.back().Full()) batches.emplace_back();
      batches.back().Add(stroke);
    }
  }
  for (KeyBatch& batch : batches) batch.End();
  return batches;
}

bool PhysicallyDown(int virtualKey) { return (::GetAsyncKeyState(virtualKey) & 0x8000) != 0; }

bool MarkerTaken() { return (::GetKeyState(kMarkerKey) & 0x8000) != 0; }

void ReleaseMarker() {
  INPUT release = Event(kMarkerKey, 0, kUp);
  ::SendInput(1, &release, sizeof(release));
}

}  // namespace platform
