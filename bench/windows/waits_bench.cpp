// What a user of the program waits for: the wheel, and a text in the window in which he works.
//
//   bench_windows wheel N        from the decision of a gesture to the shown wheel and its panel
//   bench_windows delivery N     100 characters delivered, less the wait that the settings ask for;
//                                beside it, the limit: the same characters injected at once, with
//                                nothing around it, until the target shows them
//
// Prints N lines of times in milliseconds. The former foreground window is the target.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <thread>
#include <vector>

#include "app/tables.h"
#include "core/Delivery.h"
#include "core/ProgramState.h"
#include "core/UpperFloors.h"
#include "core/modDorvalin.h"
#include "platform/win32/WindowsDesktop.h"
#include "platform/win32/win.h"
#include "selector/frmBG.h"
#include "selector/frmMenu.h"

namespace {

using std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr Milliseconds kRest{300};
constexpr std::u16string_view kText =
    u"Für 5 € bringt der Bär zwölf Äpfel, größer als üblich, über die Straße; das weiß jeder im "
    u"Ort. Na ja";
static_assert(kText.size() == 100);

void Rest() {
  const auto end = steady_clock::now() + kRest;
  while (steady_clock::now() < end) platform::TheDesktop().pump().DoEvents();
}

template <typename Act>
Milliseconds Took(Act act) {
  const auto start = steady_clock::now();
  act();
  return steady_clock::now() - start;
}

Milliseconds Wheel() {
  const Milliseconds time = Took(dorvalin::OpenPointerWheel);
  Rest();
  dorvalin::PointerWheel()->CloseMe();
  return time;
}

Milliseconds Delivery() {
  dorvalin::OpenPointerWheel();
  Rest();
  const Milliseconds time =
      Took([] { dorvalin::SendToTarget(kText, *dorvalin::PointerWheel()->Host, false, 0); });
  return time - Milliseconds(dorvalin::State().settings.WaitBeforeSend);
}

HWND FocusOfTarget() {
  GUITHREADINFO thread{};
  thread.cbSize = sizeof(thread);
  ::GetGUIThreadInfo(::GetWindowThreadProcessId(::GetForegroundWindow(), nullptr), &thread);
  return thread.hwndFocus;
}

std::vector<INPUT> KeyEvents(std::u16string_view text) {
  std::vector<INPUT> events;
  for (const char16_t unit : text) {
    for (const DWORD edge : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
      INPUT& event = events.emplace_back();
      event.type = INPUT_KEYBOARD;
      event.ki.wScan = unit;
      event.ki.dwFlags = KEYEVENTF_UNICODE | edge;
    }
  }
  return events;
}

Milliseconds KeysAlone() {
  const HWND field = FocusOfTarget();
  const auto length = [field] { return ::SendMessageW(field, WM_GETTEXTLENGTH, 0, 0); };
  const auto whole = length() + static_cast<LRESULT>(kText.size());
  std::vector<INPUT> events = KeyEvents(kText);
  return Took([&] {
    ::SendInput(static_cast<UINT>(events.size()), events.data(), sizeof(INPUT));
    while (length() < whole) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  });
}

void Measure(bool wheel, int times) {
  for (int i = 0; i < times; ++i) {
    Rest();
    std::printf("%.2f", (wheel ? Wheel() : Delivery()).count());
    if (!wheel) {
      Rest();
      std::printf(" %.2f", KeysAlone().count());
    }
    std::puts("");
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) return 2;
  platform::WindowsDesktop desktop;
  const platform::DesktopScope desktopScope(desktop);
  dorvalin::ProgramState state;
  const dorvalin::ProgramStateScope stateScope(state);
  dorvalin::FillTables();
  if (dorvalin::Main() != dorvalin::StartVerdict::Resident) return 1;
  state.settings.DontAnimate = true;
  state.settings.AnimateFctnsNormal = false;
  Measure(std::string_view(arguments[1]) == "wheel", std::atoi(arguments[2]));
  platform::TheForms().UnloadAll();
  return 0;
}
