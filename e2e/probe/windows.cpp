#include <windows.h>

#include <algorithm>

#include "e2e/probe/commands.h"
#include "e2e/probe/json.h"

namespace probe {
namespace {

constexpr UINT kPatience = 2000;  // milliseconds for a window that does not answer

HWND WindowOf(const Words& words) {
  const auto window = reinterpret_cast<HWND>(std::stoull(words.at(0)));
  if (!IsWindow(window)) throw Refusal("no such window");
  return window;
}

/// The file name of its process.
std::wstring ProgramOf(HWND window) {
  DWORD pid = 0;
  GetWindowThreadProcessId(window, &pid);
  const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, pid);
  if (!process) return {};
  wchar_t path[MAX_PATH];
  DWORD size = MAX_PATH;
  const bool known = QueryFullProcessImageNameW(process, 0, path, &size);
  CloseHandle(process);
  const std::wstring name(path, known ? size : 0);
  return name.substr(name.find_last_of(L'\\') + 1);
}

std::wstring ClassOf(HWND window) {
  wchar_t name[256];
  return {name, static_cast<std::size_t>(GetClassNameW(window, name, 256))};
}

// Unlike WM_GETTEXT this does not wait for a window that is busy.
std::wstring TitleOf(HWND window) {
  wchar_t title[512];
  return {title, static_cast<std::size_t>(GetWindowTextW(window, title, 512))};
}

std::string Described(HWND window) {
  RECT r{};
  GetWindowRect(window, &r);
  const auto number = [](auto value) { return std::to_string(value); };
  return JsonObject({
      {"handle", number(reinterpret_cast<std::uintptr_t>(window))},
      {"title", JsonText(TitleOf(window))},
      {"class_name", JsonText(ClassOf(window))},
      {"program", JsonText(ProgramOf(window))},
      {"rect", JsonList({number(r.left), number(r.top), number(r.right), number(r.bottom)})},
      {"enabled", JsonBool(IsWindowEnabled(window))},
      {"visible", JsonBool(IsWindowVisible(window))},
  });
}

// The desktop's own windows (its background, its bar, tips) are no programs' windows.
bool IsOfTheDesktop(HWND window) { return ProgramOf(window) == L"explorer.exe"; }

BOOL CALLBACK Collect(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

DWORD_PTR Sent(HWND window, UINT message, WPARAM first, LPARAM second) {
  DWORD_PTR result = 0;
  if (!SendMessageTimeoutW(window, message, first, second, SMTO_ABORTIFHUNG, kPatience, &result)) {
    throw Refusal("the window does not answer");
  }
  return result;
}

std::string DescribedOrNull(HWND window) { return window ? Described(window) : "null"; }

}  // namespace

std::string Windows(const Words&) {
  std::vector<HWND> windows;
  EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
  std::vector<std::string> rows;
  for (const HWND window : windows) {
    if (IsWindowVisible(window) && !IsOfTheDesktop(window)) rows.push_back(Described(window));
  }
  return JsonList(rows);
}

std::string Foreground(const Words&) { return DescribedOrNull(GetForegroundWindow()); }

std::string Focus(const Words&) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  return DescribedOrNull(GetGUIThreadInfo(0, &info) ? info.hwndFocus : nullptr);
}

std::string Children(const Words& words) {
  std::vector<HWND> windows;
  EnumChildWindows(WindowOf(words), Collect, reinterpret_cast<LPARAM>(&windows));
  std::vector<std::string> rows;
  std::transform(windows.begin(), windows.end(), std::back_inserter(rows), Described);
  return JsonList(rows);
}

std::string Text(const Words& words) {
  const HWND window = WindowOf(words);
  std::wstring text(Sent(window, WM_GETTEXTLENGTH, 0, 0) + 1, L'\0');
  text.resize(Sent(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
  return JsonText(text);
}

std::string WriteText(const Words& words) {
  const auto text = reinterpret_cast<LPARAM>(words.at(1).c_str());
  return JsonBool(Sent(WindowOf(words), WM_SETTEXT, 0, text) != 0);
}

std::string Selection(const Words& words) {
  const DWORD_PTR range = Sent(WindowOf(words), EM_GETSEL, 0, 0);
  return JsonList({std::to_string(LOWORD(range)), std::to_string(HIWORD(range))});
}

std::string Activate(const Words& words) { return JsonBool(SetForegroundWindow(WindowOf(words))); }

std::string ScrollLock(const Words&) {
  // The toggle that this thread knows is brought up to date by its own messages only.
  MSG message;
  PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);
  return JsonBool(GetKeyState(VK_SCROLL) & 1);
}

}  // namespace probe
