#include "platform/win32/Win32Clipboard.h"

#include <algorithm>

#include "platform/win32/DataBlocks.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

// Another program holds the clipboard for moments only.
constexpr int kTries = 20;
constexpr DWORD kPause = 5;  // ms

/// The clipboard, held while this lives.
class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND owner) : opened_(Open(owner)) {}
  ~OpenedClipboard() {
    if (opened_) ::CloseClipboard();
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
  explicit operator bool() const { return opened_; }

 private:
  static bool Open(HWND owner) {
    for (int i = 0; i < kTries; ++i) {
      if (::OpenClipboard(owner)) return true;
      ::Sleep(kPause);
    }
    return false;
  }

  bool opened_;
};

/// A block that was taken belongs to the system.
bool HandOver(DataBlock& data) {
  if (!::SetClipboardData(data.format, data.block.get())) return false;
  static_cast<void>(data.block.release());
  return true;
}

bool Has(UINT format) { return format != 0 && ::IsClipboardFormatAvailable(format); }

/// What `read` makes of the clipboard's block of this format; nothing where there is none.
template <typename Read>
auto ReadBlock(HWND owner, UINT format, Read read) -> std::optional<decltype(read(HGLOBAL()))> {
  if (!Has(format)) return {};
  const OpenedClipboard opened(owner);
  const HGLOBAL block = opened ? ::GetClipboardData(format) : nullptr;
  if (!block) return {};
  return read(block);
}

}  // namespace

Win32Clipboard::Win32Clipboard()
    : owner_(::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                               nullptr)) {}

ClipboardResult Win32Clipboard::Put(const DataContent& content) {
  std::vector<DataBlock> blocks = BlocksOf(content);
  // One that is missing would be taken as a promise to make it when somebody asks.
  const auto made = [](const DataBlock& each) { return each.block != nullptr; };
  if (!std::ranges::all_of(blocks, made)) return ClipboardResult::Failed;
  const OpenedClipboard opened(owner_.get());
  if (!opened || !::EmptyClipboard()) return ClipboardResult::Busy;
  if (std::ranges::all_of(blocks, HandOver)) return ClipboardResult::Done;
  ::EmptyClipboard();
  return ClipboardResult::Failed;
}

ClipboardResult Win32Clipboard::Clear() { return Put({}); }

RegisteredFormat Win32Clipboard::Register(std::u16string_view name) {
  return ::RegisterClipboardFormatW(Terminated(name));
}

bool Win32Clipboard::OffersText() const { return Has(CF_UNICODETEXT); }
bool Win32Clipboard::OffersRichText() const { return Has(RichTextFormat()); }
bool Win32Clipboard::OffersPicture() const { return Has(CF_DIB); }
bool Win32Clipboard::OffersFiles() const { return Has(CF_HDROP); }
bool Win32Clipboard::Offers(RegisteredFormat format) const { return Has(format); }

std::optional<std::u16string> Win32Clipboard::Text() const {
  return ReadBlock(owner_.get(), CF_UNICODETEXT, TextOfBlock);
}

std::optional<std::string> Win32Clipboard::RichText() const {
  return ReadBlock(owner_.get(), RichTextFormat(), RichTextOfBlock);
}

std::optional<Surface> Win32Clipboard::Picture() const {
  auto picture = ReadBlock(owner_.get(), CF_DIB, PictureOfBlock);
  return picture ? std::move(*picture) : std::nullopt;
}

std::vector<std::u16string> Win32Clipboard::Files() const {
  return ReadBlock(owner_.get(), CF_HDROP, FilesOfBlock).value_or(std::vector<std::u16string>());
}

std::optional<std::string> Win32Clipboard::Registered(RegisteredFormat format) const {
  return ReadBlock(owner_.get(), format, BytesOfBlock);
}

}  // namespace platform
