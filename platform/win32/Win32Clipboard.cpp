#include "platform/win32/Win32Clipboard.h"

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

struct Form {
  UINT format;
  OwnedGlobal block;
};

/// The richest form first: programs take the first that they know.
std::vector<Form> FormsOf(const DataContent& content) {
  std::vector<Form> forms;
  for (const auto& [format, bytes] : content.registered) {
    forms.push_back({format, BlockOfBytes(bytes)});
  }
  if (content.richText) forms.push_back({RichTextFormat(), BlockOfRichText(*content.richText)});
  if (content.picture) forms.push_back({CF_DIB, BlockOfPicture(*content.picture)});
  if (!content.files.empty()) forms.push_back({CF_HDROP, BlockOfFiles(content.files)});
  if (content.text) forms.push_back({CF_UNICODETEXT, BlockOfText(*content.text)});
  return forms;
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
  std::vector<Form> forms = FormsOf(content);
  const OpenedClipboard opened(owner_.get());
  if (!opened || !::EmptyClipboard()) return ClipboardResult::Busy;
  for (Form& form : forms) {
    // A block that was taken belongs to the system.
    if (::SetClipboardData(form.format, form.block.get())) (void)form.block.release();
  }
  return ClipboardResult::Done;
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
