#include "core/Delivery.h"

#include <algorithm>
#include <string>

#include "core/HiResTimer.h"
#include "core/ProgramState.h"
#include "core/UpperFloors.h"
#include "platform/desktop.h"
#include "platform/input.h"
#include "platform/keystrokes.h"
#include "platform/pump.h"
#include "platform/text.h"

namespace dorvalin {
namespace {

using platform::Form;
using platform::ShowMode;
using platform::TheDesktop;
using platform::TheForms;

// The longest wait that the settings offer, in milliseconds; a larger stored number is not waited
// for.
constexpr int kLongestWait = 1000;

// No click may enter a window of the program during the wait; hidden forms are meant as well.
void EnableAllForms(bool enabled) {
  for (Form* form : TheForms().All()) form->SetEnabled(enabled);
}

FunctionWheel* WheelOf(const PanelHost& host) {
  return host.Vertical() ? Floors().SideWheel : Floors().PointerWheel;
}

void HideWheelOf(const PanelHost& host) {
  State().Sending = true;
  if (FunctionWheel* wheel = WheelOf(host)) wheel->Hide();
}

// The desktop needs a moment to reactivate the target. A busy loop: a delivery is short, and a
// timer's resolution would be too coarse.
void WaitForTarget() {
  auto& pump = TheDesktop().pump();
  const int wait = std::min(State().settings.WaitBeforeSend, kLongestWait);
  const HiResTime end = wait == 0 ? 0 : HiResTimer() + HiResMilliseconds(wait);
  do {
    pump.DoEvents();
  } while (wait != 0 && HiResTimer() < end);
}

void SendKeys(std::u16string_view keys) {
  if (const auto strokes = platform::ParseKeystrokes(keys)) TheDesktop().input().Type(*strokes);
}

std::u16string LeftPresses(int count) {
  const std::string digits = std::to_string(count);
  return u"{LEFT " + std::u16string(digits.begin(), digits.end()) + u"}";
}

void Finish(PanelHost& host) {
  if (host.Free()) {
    host.Show(ShowMode::NoActivate);
  } else if (host.Vertical()) {
    if (FunctionWheel* wheel = Floors().SideWheel) wheel->CloseMe();
  } else if (FunctionWheel* wheel = Floors().PointerWheel) {
    wheel->Unload();
  }
  State().Sending = false;
}

}  // namespace

std::u16string EscapeForKeys(std::u16string_view text) {
  struct Step {
    std::u16string_view what, by;
  };
  // Character 4 saves the closing brace of the first step from the second one. The line break comes
  // last: its result holds braces.
  static constexpr Step kSteps[] = {
      {u"{", u"{{\x04"}, {u"}", u"{}}"}, {u"\x04", u"}"}, {u"[", u"{[}"},
      {u"]", u"{]}"},    {u"(", u"{(}"}, {u")", u"{)}"},  {u"+", u"{+}"},
      {u"^", u"{^}"},    {u"%", u"{%}"}, {u"~", u"{~}"},  {u"\r\n", u"{ENTER}"},
  };
  std::u16string escaped(text);
  for (const Step& step : kSteps) escaped = platform::ReplaceAll(escaped, step.what, step.by);
  return escaped;
}

void SendToTarget(std::u16string_view Text, PanelHost& HostForm, bool Raw, int CursorBack) {
  const std::u16string keys = Raw ? std::u16string(Text) : EscapeForKeys(Text);
  EnableAllForms(false);
  if (!HostForm.Free()) HideWheelOf(HostForm);
  HostForm.Hide();
  WaitForTarget();
  SendKeys(keys);
  if (CursorBack > 0) SendKeys(LeftPresses(CursorBack));
  EnableAllForms(true);
  if (State().settings.StayAfterSend) HostForm.DoFree();
  Finish(HostForm);
}

}  // namespace dorvalin
