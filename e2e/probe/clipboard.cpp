#include <windows.h>

#include <cstring>

#include "e2e/probe/commands.h"
#include "e2e/probe/json.h"

namespace probe {
namespace {

/// Holds the clipboard open; another program may have it for a moment.
class OpenedClipboard {
 public:
  OpenedClipboard() {
    for (int tries = 50; tries > 0; --tries, Sleep(10)) {
      if (OpenClipboard(nullptr)) return;
    }
    throw Refusal("the clipboard is held by another program");
  }
  ~OpenedClipboard() { CloseClipboard(); }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
};

std::wstring Wide(std::wstring text) { return text; }
std::wstring Wide(const std::string& bytes) { return Utf16(bytes); }

template <typename Unit>
std::string JsonOfFormat(UINT format) {
  const HANDLE data = GetClipboardData(format);
  const auto* units = data ? static_cast<const Unit*>(GlobalLock(data)) : nullptr;
  if (!units) return "null";
  std::basic_string<Unit> content(units, GlobalSize(data) / sizeof(Unit));
  GlobalUnlock(data);
  return JsonText(Wide(content.substr(0, content.find(Unit{}))));
}

}  // namespace

std::string ReadClipboard(const Words&) {
  const OpenedClipboard opened;
  const UINT rich = RegisterClipboardFormatW(L"Rich Text Format");
  return JsonObject(
      {{"text", JsonOfFormat<wchar_t>(CF_UNICODETEXT)}, {"rich_text", JsonOfFormat<char>(rich)}});
}

std::string WriteClipboard(const Words& words) {
  const std::wstring& text = words.at(0);
  const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  std::memcpy(GlobalLock(memory), text.c_str(), size);
  GlobalUnlock(memory);
  const OpenedClipboard opened;
  EmptyClipboard();
  return JsonBool(SetClipboardData(CF_UNICODETEXT, memory));
}

}  // namespace probe
