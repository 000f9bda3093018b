#include "platform/win32/VersionResource.h"

#include <algorithm>
#include <span>
#include <vector>

#include "platform/win32/wide.h"

namespace platform {
namespace {

/// The block of all version information.
using Block = std::vector<std::byte>;

struct Translation {
  WORD language;
  WORD codePage;
};

Block BlockOf(const wchar_t* path) {
  DWORD ignored = 0;
  Block block(::GetFileVersionInfoSizeW(path, &ignored));
  const auto size = static_cast<DWORD>(block.size());
  if (block.empty() || !::GetFileVersionInfoW(path, 0, size, block.data())) return {};
  return block;
}

std::span<const Translation> TranslationsOf(const Block& block) {
  void* list = nullptr;
  UINT bytes = 0;
  if (!::VerQueryValueW(block.data(), L"\\VarFileInfo\\Translation", &list, &bytes)) return {};
  return {static_cast<const Translation*>(list), bytes / sizeof(Translation)};
}

std::u16string TextOf(const Block& block, Translation translation, const wchar_t* name) {
  wchar_t path[64];
  ::wsprintfW(path, L"\\StringFileInfo\\%04X%04X\\%s", translation.language, translation.codePage,
              name);
  void* text = nullptr;
  UINT length = 0;
  if (!::VerQueryValueW(block.data(), path, &text, &length) || length == 0) return {};
  return std::u16string(View(static_cast<const wchar_t*>(text)).substr(0, length));
}

/// In the first translation that has the text.
std::u16string FirstText(const Block& block, const wchar_t* name) {
  for (const Translation translation : TranslationsOf(block)) {
    std::u16string text = TextOf(block, translation, name);
    if (!text.empty()) return text;
  }
  return {};
}

}  // namespace

std::optional<VersionInformation> VersionOfFile(std::u16string_view path) {
  const Block block = BlockOf(Terminated(path));
  if (block.empty()) return {};
  return VersionInformation{FirstText(block, L"FileVersion"), FirstText(block, L"ProductName"),
                            FirstText(block, L"CompanyName"), FirstText(block, L"FileDescription"),
                            FirstText(block, L"LegalCopyright")};
}

}  // namespace platform
