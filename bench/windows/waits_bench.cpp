// What a user of the program waits for: the wheel, and a text in the window in which he works.
//
//   bench_windows wheel N        from the decision of a gesture to the shown wheel and its panel
//   bench_windows delivery N     100 characters delivered, less the wait that the settings ask for
//   bench_windows target N       beside it: what the target alone needs for the same characters
//   when
//                                they are put into its queue
//
// Prints N times in milliseconds, one a line. The former foreground window is the target.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <thread>

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

Milliseconds TargetAlone() {
  const HWND field = FocusOfTarget();
  const auto length = [field] { return ::SendMessageW(field, WM_GETTEXTLENGTH, 0, 0); };
  const auto whole = length() + static_cast<LRESULT>(kText.size());
  return Took([&] {
    for (const char16_t unit : kText) ::PostMessageW(field, WM_CHAR, unit, 0);
    while (length() < whole) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  });
}

Milliseconds (*MeasurementOf(std::string_view what))() {
  if (what == "wheel") return Wheel;
  return what == "delivery" ? Delivery : TargetAlone;
}

void Measure(std::string_view what, int times) {
  for (int i = 0; i < times; ++i) {
    Rest();
    std::printf("%.2f\n", MeasurementOf(what)().count());
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
  Measure(arguments[1], std::atoi(arguments[2]));
  for (platform::Form* form : platform::TheForms().All()) form->Unload();
  return 0;
}
