#include <windows.h>

#include <cstring>

#include "e2e/probe/commands.h"
#include "e2e/probe/json.h"

namespace probe {
namespace {

constexpr int kTries = 50;

/// Holds the clipboard open; another program may have it for a moment.
class OpenedClipboard {
 public:
  OpenedClipboard() {
    for (int i = 0; i < kTries && !opened_; ++i, opened_ || (Sleep(10), true)) {
      opened_ = OpenClipboard(nullptr);
    }
    if (!opened_) throw Refusal("the clipboard is held by another program");
  }
  ~OpenedClipboard() { CloseClipboard(); }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;

 private:
  bool opened_ = false;
};

std::wstring NameOf(UINT format) {
  switch (format) {
    case CF_TEXT:
      return L"Text";
    case CF_UNICODETEXT:
      return L"Unicode text";
    case CF_BITMAP:
      return L"Bitmap";
    case CF_DIB:
      return L"DIB";
    case CF_HDROP:
      return L"Files";
    default:
      break;
  }
  wchar_t name[256];
  const int size = GetClipboardFormatNameW(format, name, 256);
  return size ? std::wstring(name, size) : std::to_wstring(format);
}

template <typename Unit>
std::basic_string<Unit> ContentOf(UINT format) {
  const HANDLE data = GetClipboardData(format);
  const auto* units = data ? static_cast<const Unit*>(GlobalLock(data)) : nullptr;
  if (!units) return {};
  std::basic_string<Unit> content(units, GlobalSize(data) / sizeof(Unit));
  GlobalUnlock(data);
  return content.substr(0, content.find(Unit{}));
}

}  // namespace

std::string ReadClipboard(const Words&) {
  const OpenedClipboard opened;
  std::vector<std::string> formats;
  for (UINT f = EnumClipboardFormats(0); f; f = EnumClipboardFormats(f)) {
    formats.push_back(JsonText(NameOf(f)));
  }
  std::vector<std::pair<std::string, std::string>> members = {{"formats", JsonList(formats)}};
  if (IsClipboardFormatAvailable(CF_UNICODETEXT)) {
    members.emplace_back("text", JsonText(ContentOf<wchar_t>(CF_UNICODETEXT)));
  }
  const UINT rich = RegisterClipboardFormatW(L"Rich Text Format");
  if (IsClipboardFormatAvailable(rich)) {
    members.emplace_back("rich_text", JsonText(Utf16(ContentOf<char>(rich))));
  }
  return JsonObject(members);
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
