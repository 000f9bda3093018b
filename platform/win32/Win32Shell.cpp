#include "platform/win32/Win32Shell.h"

#include <shellapi.h>
#include <shlobj.h>

#include "platform/win32/IconHandle.h"
#include "platform/win32/VersionResource.h"
#include "platform/win32/WindowHandle.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

// What ShellExecute returns at most when it failed.
constexpr INT_PTR kLastShellError = 32;
constexpr DWORD kLongestPath = 0x8000;

/// The system tells "none" from "empty".
const wchar_t* OrNull(const std::u16string& text) { return text.empty() ? nullptr : Wide(text); }

/// The file operation takes lists, which end in a second terminator.
std::u16string ListOf(std::u16string_view path) { return std::u16string(path) + u'\0'; }

UINT IconFlags(IconSize size) {
  return SHGFI_ICON | (size == IconSize::Small ? SHGFI_SMALLICON : SHGFI_SHELLICONSIZE);
}

int PixelsOf(IconSize size) { return size == IconSize::Small ? 16 : 32; }

std::u16string ProgramFile() {
  std::u16string path(kLongestPath, u'\0');
  path.resize(::GetModuleFileNameW(nullptr, WideBuffer(path), kLongestPath));
  return path;
}

}  // namespace

bool Win32Shell::Open(std::u16string_view verb, std::u16string_view target,
                      std::u16string_view arguments) {
  const std::u16string ownVerb(verb);
  const std::u16string ownArguments(arguments);
  const HINSTANCE result = ::ShellExecuteW(nullptr, OrNull(ownVerb), Terminated(target),
                                           OrNull(ownArguments), nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > kLastShellError;
}

bool Win32Shell::Run(std::u16string_view commandLine) {
  // The system writes into the line.
  std::u16string line(commandLine);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION made{};
  if (!::CreateProcessW(nullptr, WideBuffer(line), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &start, &made)) {
    return false;
  }
  const OwnedKernel process(made.hProcess);
  const OwnedKernel thread(made.hThread);
  return true;
}

bool Win32Shell::CopyFiles(std::u16string_view source, std::u16string_view target,
                           const CopyOptions& options) {
  const std::u16string from = ListOf(source);
  const std::u16string to = ListOf(target);
  SHFILEOPSTRUCTW operation{};
  operation.hwnd = HandleOf(options.owner);
  operation.wFunc = FO_COPY;
  operation.pFrom = Wide(from);
  operation.pTo = Wide(to);
  if (options.noConfirmation) operation.fFlags |= FOF_NOCONFIRMATION;
  if (options.silent) operation.fFlags |= FOF_SILENT;
  return ::SHFileOperationW(&operation) == 0;
}

std::optional<std::u16string> Win32Shell::SpecialFolder(int number) {
  wchar_t path[MAX_PATH + 1] = {};
  if (!::SHGetSpecialFolderPathW(nullptr, path, number, TRUE)) return {};
  return Text(path);
}

Icon Win32Shell::FileIcon(std::u16string_view path, IconSize size, bool byAttributes) {
  SHFILEINFOW info{};
  const UINT flags = IconFlags(size) | (byAttributes ? SHGFI_USEFILEATTRIBUTES : 0u);
  const DWORD attributes = byAttributes ? FILE_ATTRIBUTE_NORMAL : 0;
  if (!::SHGetFileInfoW(Terminated(path), attributes, &info, sizeof(info), flags)) return {};
  const OwnedIcon icon(info.hIcon);
  return IconOfHandle(icon.get());
}

Icon Win32Shell::IconOf(std::u16string_view path, int index, IconSize size) {
  // To the system a negative place is a resource's number.
  if (index < 0) return {};
  const std::u16string file = path.empty() ? ProgramFile() : std::u16string(path);
  // By its own size: the small icon of the shell's ways is the large one scaled down.
  const int pixels = PixelsOf(size);
  HICON icon = nullptr;
  UINT which = 0;
  ::PrivateExtractIconsW(Wide(file), index, pixels, pixels, &icon, &which, 1, LR_DEFAULTCOLOR);
  const OwnedIcon owned(icon);
  return IconOfHandle(owned.get());
}

std::u16string Win32Shell::TypeName(std::u16string_view path) {
  SHFILEINFOW info{};
  ::SHGetFileInfoW(Terminated(path), 0, &info, sizeof(info), SHGFI_TYPENAME);
  return Text(info.szTypeName);
}

std::optional<VersionInformation> Win32Shell::Version(std::u16string_view path) {
  return VersionOfFile(path);
}

std::u16string Win32Shell::ExpandEnvironment(std::u16string_view text) {
  const Terminated source(text);
  std::u16string result(::ExpandEnvironmentStringsW(source, nullptr, 0), u'\0');
  ::ExpandEnvironmentStringsW(source, WideBuffer(result), static_cast<DWORD>(result.size()));
  return Text(Wide(result));
}

std::u16string Win32Shell::LogonName() {
  wchar_t name[257] = {};
  DWORD size = static_cast<DWORD>(std::size(name));
  return ::GetUserNameW(name, &size) ? Text(name) : std::u16string();
}

std::u16string Win32Shell::ProgramFolder() {
  const std::u16string file = ProgramFile();
  const std::size_t end = file.rfind(u'\\');
  if (end == std::u16string::npos) return {};
  const bool root = end == 2 && file[1] == u':';
  return file.substr(0, root ? end + 1 : end);
}

bool Win32Shell::PreviousInstance() {
  if (mark_) return previous_;
  const std::u16string name = u"Local\\Tolvo Dorvalin of " + LogonName();
  mark_.reset(::CreateMutexW(nullptr, FALSE, Wide(name)));
  const DWORD error = ::GetLastError();
  // Denied: the first one runs with higher rights.
  previous_ = error == ERROR_ALREADY_EXISTS || error == ERROR_ACCESS_DENIED;
  return previous_;
}

}  // namespace platform
