// A program with an empty window and nothing else: what a program costs that does nothing.
#include <windows.h>

int WINAPI wWinMain(HINSTANCE program, HINSTANCE, PWSTR, int) {
  WNDCLASSW type{};
  type.lpfnWndProc = DefWindowProcW;
  type.hInstance = program;
  type.lpszClassName = L"Empty";
  RegisterClassW(&type);
  CreateWindowExW(0, type.lpszClassName, L"Empty", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 300,
                  200, nullptr, nullptr, program, nullptr);
  for (MSG message; GetMessageW(&message, nullptr, 0, 0) > 0;) DispatchMessageW(&message);
  return 0;
}
