#include "platform/win32/WindowsDesktop.h"

namespace platform {

WindowsDesktop::SystemLibraries::SystemLibraries() : ole_(SUCCEEDED(::OleInitialize(nullptr))) {
  const INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
  ::InitCommonControlsEx(&classes);
}

WindowsDesktop::SystemLibraries::~SystemLibraries() {
  if (ole_) ::OleUninitialize();
}

}  // namespace platform
