#include "tests/support/User.h"

#include <map>
#include <utility>

#include "platform/Form.h"
#include "platform/text.h"

namespace dorvalin {
namespace {

using platform::Button;
using platform::Input;
using platform::Modifiers;
using platform::Point;
namespace key = platform::key;

/// How long a step of a drag takes, and how many there are.
constexpr auto kStep = std::chrono::milliseconds(10);
constexpr int kDragSteps = 8;
/// A key whose number says nothing about its character.
constexpr int kSignKey = 0xBA;

struct KeyOnBoard {
  int virtualKey;
  bool shift;
};

KeyOnBoard KeyFor(char16_t unit) {
  static const std::map<char16_t, KeyOnBoard> kSigns = {
      {u'+', {0xBB, false}}, {u'*', {0xBB, true}}, {u',', {0xBC, false}}, {u';', {0xBC, true}},
      {u'-', {0xBD, false}}, {u'_', {0xBD, true}}, {u'.', {0xBE, false}}, {u':', {0xBE, true}},
      {u'(', {'8', true}},   {u')', {'9', true}},  {u'/', {'7', true}},   {u'=', {'0', true}}};
  constexpr std::u16string_view kOwnNumber =
      u"\r\t\b \x1B"
      "0123456789";
  if (const auto sign = kSigns.find(unit); sign != kSigns.end()) return sign->second;
  if (kOwnNumber.find(unit) != kOwnNumber.npos) return {unit, false};
  const char16_t upper = platform::UpperUnit(unit);
  if (upper >= u'A' && upper <= u'Z') return {upper, unit == upper};
  return {kSignKey, unit != platform::LowerUnit(unit)};
}

}  // namespace

void User::Collect() {
  if (!desktop_.pump().Dispatching()) platform::TheForms().Collect();
}

void User::Settle() {
  desktop_.pump().DoEvents();
  Collect();
}

void User::MoveTo(Point p) {
  desktop_.input().HandMoves(p);
  Settle();
}

void User::Press(Button button) {
  desktop_.input().HandPresses(button);
  Settle();
}

void User::Release(Button button) {
  desktop_.input().HandReleases(button);
  Settle();
}

void User::Hold(Button button, Duration time) {
  Press(button);
  Wait(time);
}

void User::Click(Point p, Button button) {
  MoveTo(p);
  // The release is planned before the press, which may open a modal loop.
  Later(Duration{0}, [this, button] { desktop_.input().HandReleases(button); });
  Press(button);
  Wait(Duration{0});
}

void User::Click(const platform::Window& window, Button button) {
  Click(window.ScreenBounds().Middle(), button);
}

void User::Drag(Point from, Point to) {
  MoveTo(from);
  const Point way = to - from;
  for (int step = 1; step <= kDragSteps; ++step) {
    const Point at{from.x + way.x * step / kDragSteps, from.y + way.y * step / kDragSteps};
    Later(step * Duration(kStep), [this, at] { desktop_.input().HandMoves(at); });
  }
  const Duration end = (kDragSteps + 1) * Duration(kStep);
  Later(end, [this] { desktop_.input().HandReleases(Button::Left); });
  Press(Button::Left);
  Wait(end);
}

void User::Stroke(int virtualKey, char16_t unit) {
  desktop_.input().HandKey(virtualKey, Input::KeyEdge::Down, unit);
  Settle();
  desktop_.input().HandKey(virtualKey, Input::KeyEdge::Up, unit);
  Settle();
}

void User::Type(std::u16string_view text) {
  for (char16_t unit : text) {
    const KeyOnBoard on = KeyFor(unit);
    if (on.shift) KeyDown(key::kShift);
    Stroke(on.virtualKey, unit);
    if (on.shift) KeyUp(key::kShift);
  }
}

void User::Key(int virtualKey, Modifiers held) {
  const std::pair<bool, int> modifiers[] = {
      {held.shift, key::kShift}, {held.control, key::kControl}, {held.alt, key::kAlt}};
  for (const auto& [wanted, modifier] : modifiers) {
    if (wanted) KeyDown(modifier);
  }
  Stroke(virtualKey, 0);
  for (const auto& [wanted, modifier] : modifiers) {
    if (wanted) KeyUp(modifier);
  }
}

void User::KeyDown(int virtualKey) {
  desktop_.input().HandKey(virtualKey, Input::KeyEdge::Down);
  Settle();
}

void User::KeyUp(int virtualKey) {
  desktop_.input().HandKey(virtualKey, Input::KeyEdge::Up);
  Settle();
}

void User::Wait(Duration time) {
  desktop_.pump().RunFor(time, [this] { Collect(); });
}

void User::Later(Duration delay, std::function<void()> action) {
  desktop_.pump().Later(delay, std::move(action));
}

}  // namespace dorvalin
