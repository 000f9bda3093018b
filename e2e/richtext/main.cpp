// A window with nothing but a rich text control: a target for typing and pasting.
#include <ole2.h>
#include <richedit.h>
#include <windows.h>

namespace {

HWND field = nullptr;

LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_SIZE:
      MoveWindow(field, 0, 0, LOWORD(second), HIWORD(second), TRUE);
      return 0;
    case WM_SETFOCUS:
      SetFocus(field);
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, first, second);
  }
}

void Open(HINSTANCE program) {
  WNDCLASSW type{};
  type.lpfnWndProc = Handle;
  type.hInstance = program;
  type.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  type.lpszClassName = L"RichTextTarget";
  RegisterClassW(&type);
  const HWND window =
      CreateWindowExW(0, type.lpszClassName, L"Rich text", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                      500, 60, 480, 320, nullptr, nullptr, program, nullptr);
  constexpr DWORD kStyle =
      WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_WANTRETURN | ES_NOHIDESEL;
  field = CreateWindowExW(0, MSFTEDIT_CLASS, L"", kStyle, 0, 0, 480, 320, window, nullptr, program,
                          nullptr);
  ShowWindow(window, SW_SHOW);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE program, HINSTANCE, PWSTR, int) {
  if (FAILED(OleInitialize(nullptr)) || !LoadLibraryW(L"msftedit.dll")) return 1;
  Open(program);
  for (MSG message; GetMessageW(&message, nullptr, 0, 0) > 0;) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  OleUninitialize();
  return 0;
}
