// Windows under test. The other program is the small one beside this suite (target.cpp); the hands
// put their events where those of the devices arrive, so that nobody can tell them apart. Real
// events of a display are the end-to-end tests' business.
#include <atomic>
#include <deque>
#include <future>
#include <iterator>
#include <mutex>
#include <thread>

#include "platform/pump.h"
#include "platform/text.h"
#include "platform/win32/WindowsDesktop.h"
#include "platform/win32/wide.h"
#include "platform/win32/win.h"
#include "tests/conformance/DesktopUnderTest.h"
#include "tests/conformance/win32/TargetState.h"

namespace conformance {
namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

void Send(INPUT input) { ::SendInput(1, &input, sizeof(input)); }

void SendKey(int virtualKey, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(virtualKey);
  input.ki.wScan = static_cast<WORD>(::MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  Send(input);
}

constexpr Point kAside{1000, 700};

void SendWheel(int turn) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = MOUSEEVENTF_WHEEL;
  input.mi.mouseData = static_cast<DWORD>(turn);
  Send(input);
}

/// With its place, for the display may still be telling of earlier moves and take the pointer back.
void SendMouseAt(Point p, DWORD button) {
  const auto part = [](int at, int whole) { return (at * 65536 + whole - 1) / whole; };
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = button | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  input.mi.dx = part(p.x, ::GetSystemMetrics(SM_CXSCREEN));
  input.mi.dy = part(p.y, ::GetSystemMetrics(SM_CYSCREEN));
  Send(input);
}

/// Does what is planned, from a thread of its own: nested loops of the system do not hold it up.
class Planner {
 public:
  ~Planner() {
    ending_ = true;
    thread_.join();
  }
  void Add(milliseconds delay, std::function<void()> act) {
    const std::lock_guard lock(mutex_);
    acts_.emplace_back(Clock::now() + delay, std::move(act));
  }

 private:
  void Run() {
    while (!ending_) {
      if (const auto act = TakeDue()) act();
      std::this_thread::sleep_for(milliseconds(2));
    }
  }
  std::function<void()> TakeDue() {
    const std::lock_guard lock(mutex_);
    const auto due = std::find_if(acts_.begin(), acts_.end(), [](const auto& planned) {
      return planned.first <= Clock::now();
    });
    if (due == acts_.end()) return nullptr;
    auto act = std::move(due->second);
    acts_.erase(due);
    return act;
  }

  std::mutex mutex_;
  std::deque<std::pair<Clock::time_point, std::function<void()>>> acts_;
  std::atomic<bool> ending_ = false;
  std::thread thread_{[this] { Run(); }};
};

/// The folder of this program, where the target lies too.
std::u16string OwnFolder() {
  wchar_t path[MAX_PATH] = {};
  ::GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::u16string whole = platform::Text(path);
  return whole.substr(0, whole.rfind(u'\\') + 1);
}

class TargetProgram final : public OtherProgram {
 public:
  TargetProgram(DesktopUnderTest& under, const Rect& place) : under_(under), place_(place) {
    std::ostringstream arguments;
    arguments << place.left << " " << place.top << " " << place.right << " " << place.bottom;
    std::u16string command = u"\"" + OwnFolder() + u"conformance_target.exe\" " +
                             platform::FromUtf8(arguments.str()) + u" \"" + statePath_ + u"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    ::CreateProcessW(nullptr, platform::WideBuffer(command), nullptr, nullptr, FALSE, 0, nullptr,
                     nullptr, &startup, &process_);
    const auto isThere = [&] { return HasForeground() && State().has_value(); };
    for (int n = 0; n < 500 && !isThere(); ++n) under.Pump(milliseconds(20));
  }
  ~TargetProgram() override {
    ::TerminateProcess(process_.hProcess, 0);
    ::WaitForSingleObject(process_.hProcess, 5000);
    ::CloseHandle(process_.hThread);
    ::CloseHandle(process_.hProcess);
    (void)under_.desktop().files().Delete(statePath_);
  }
  Rect Area() override { return place_; }
  std::u16string Text() override { return State().value_or(TargetState{}).text; }
  std::vector<std::pair<int, int>> BoldRanges() override {
    return State().value_or(TargetState{}).boldRanges;
  }

 private:
  std::optional<TargetState> State() { return ReadState(under_.desktop().files(), statePath_); }
  bool HasForeground() const {
    DWORD process = 0;
    ::GetWindowThreadProcessId(::GetForegroundWindow(), &process);
    return process == process_.dwProcessId;
  }

  DesktopUnderTest& under_;
  Rect place_;
  inline static int started_ = 0;
  /// Suites that run at the same time each have their own.
  const std::u16string statePath_ =
      OwnFolder() + platform::FromUtf8("target-" + std::to_string(::GetCurrentProcessId()) + "-" +
                                       std::to_string(++started_) + ".state");
  PROCESS_INFORMATION process_{};
};

HWND StandingMenu() {
  const HWND menu = ::FindWindowW(L"#32768", nullptr);
  return ::IsWindowVisible(menu) ? menu : nullptr;
}

/// Keys that come before the menu is open would go to the window behind it.
HWND WaitForMenu() {
  const auto end = Clock::now() + std::chrono::seconds(10);
  HWND menu = nullptr;
  while (!(menu = StandingMenu()) && Clock::now() < end) {
    std::this_thread::sleep_for(milliseconds(10));
  }
  return menu;
}

BOOL CALLBACK AddShownTip(HWND window, LPARAM text) {
  wchar_t name[64] = {};
  ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
  if (std::wstring(name) != TOOLTIPS_CLASSW || !::IsWindowVisible(window)) return TRUE;
  wchar_t shown[256] = {};
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.lpszText = shown;
  ::SendMessageW(window, TTM_GETCURRENTTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  *reinterpret_cast<std::u16string*>(text) += platform::Text(shown);
  return TRUE;
}

platform::Menu EntriesOf(HWND window) {
  constexpr UINT kGetMenu = 0x01E1;
  const auto menu = reinterpret_cast<HMENU>(::SendMessageW(window, kGetMenu, 0, 0));
  platform::Menu entries;
  for (int n = 0; n < ::GetMenuItemCount(menu); ++n) {
    MENUITEMINFOW item{};
    item.cbSize = sizeof(item);
    item.fMask = MIIM_ID | MIIM_STATE | MIIM_FTYPE;
    ::GetMenuItemInfoW(menu, static_cast<UINT>(n), TRUE, &item);
    // A separator counts as disabled.
    const bool separator = (item.fType & MFT_SEPARATOR) != 0;
    entries.push_back({.id = separator ? 0 : static_cast<int>(item.wID),
                       .caption = {},
                       .enabled = separator || !(item.fState & MFS_DISABLED),
                       .checked = (item.fState & MFS_CHECKED) != 0,
                       .isDefault = (item.fState & MFS_DEFAULT) != 0});
  }
  return entries;
}

constexpr DWORD kDown[] = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_MIDDLEDOWN};
constexpr DWORD kUp[] = {MOUSEEVENTF_LEFTUP, MOUSEEVENTF_RIGHTUP, MOUSEEVENTF_MIDDLEUP};

class WindowsUnderTest final : public DesktopUnderTest {
 public:
  platform::Desktop& desktop() override { return desktop_; }
  bool OnWine() override {
    return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
  }
  std::unique_ptr<OtherProgram> Start(const Rect& place) override {
    return std::make_unique<TargetProgram>(*this, place);
  }
  void MoveTo(Point p) override {
    hand_ = p;
    ::SetCursorPos(p.x, p.y);
  }
  void Press(Button button) override { SendMouseAt(hand_, kDown[static_cast<int>(button)]); }
  void Release(Button button) override { SendMouseAt(hand_, kUp[static_cast<int>(button)]); }
  void TurnWheel(int turn) override { SendWheel(turn); }
  void KeyDown(int virtualKey) override { SendKey(virtualKey, 0); }
  void KeyUp(int virtualKey) override { SendKey(virtualKey, KEYEVENTF_KEYUP); }
  void Later(milliseconds delay, std::function<void()> act) override {
    planner_.Add(delay, std::move(act));
  }
  void ChooseInMenu(int place) override {
    planner_.Add(milliseconds(100), [this, place] {
      menuSeen_ = EntriesOf(WaitForMenu());
      for (int n = 0; n < place; ++n) SlowStroke(VK_DOWN);
      if (place > 0) SlowStroke(VK_RETURN);
      std::this_thread::sleep_for(milliseconds(100));
      if (StandingMenu()) SlowStroke(VK_ESCAPE);
    });
  }
  std::u16string ToolTipShown() override {
    std::u16string text;
    ::EnumThreadWindows(::GetCurrentThreadId(), AddShownTip, reinterpret_cast<LPARAM>(&text));
    return text;
  }
  bool HourglassShown() override {
    CURSORINFO shown{};
    shown.cbSize = sizeof(shown);
    return ::GetCursorInfo(&shown) && shown.hCursor == ::LoadCursor(nullptr, IDC_WAIT);
  }
  platform::Menu MenuSeen() override { return menuSeen_; }
  void OnIcon(platform::TaskBarEvent event) override {
    const UINT message = event == platform::TaskBarEvent::LeftUp            ? WM_LBUTTONUP
                         : event == platform::TaskBarEvent::LeftDoubleClick ? WM_LBUTTONDBLCLK
                                                                            : WM_RBUTTONUP;
    ::SendNotifyMessageW(::FindWindowW(platform::kTaskBarIconClass, nullptr),
                         platform::kTaskBarIconMessage, 0, message);
  }
  void HoldClipboard(bool held) override {
    // By the planner's thread: the system wants one thread for both ends, and not the program's.
    std::promise<void> done;
    planner_.Add(milliseconds(0), [&] {
      if (held) {
        ::OpenClipboard(nullptr);
      } else {
        ::CloseClipboard();
      }
      done.set_value();
    });
    done.get_future().wait();
  }
  void Pump(milliseconds time) override {
    const auto end = Clock::now() + time;
    do {
      desktop_.pump().DoEvents();
      ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 2, QS_ALLINPUT);
    } while (Clock::now() < end);
  }

 private:
  void SlowStroke(int virtualKey) {
    std::this_thread::sleep_for(milliseconds(50));
    Stroke(virtualKey);
  }

  platform::WindowsDesktop desktop_;
  std::atomic<Point> hand_ = kAside;
  platform::Menu menuSeen_;
  Planner planner_;
};

}  // namespace

std::unique_ptr<DesktopUnderTest> NewDesktopUnderTest() {
  // The pointer of the test before is not to touch the windows of this one.
  ::SetCursorPos(kAside.x, kAside.y);
  return std::make_unique<WindowsUnderTest>();
}

}  // namespace conformance
