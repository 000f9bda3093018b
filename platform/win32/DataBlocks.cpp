#include "platform/win32/DataBlocks.h"

#include <shlobj.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "platform/win32/DibMemory.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

constexpr DWORD kMostColours = 256;

std::string_view AsBytes(std::u16string_view text) {
  return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t)};
}

template <typename T>
void Append(std::string& bytes, const T& value) {
  bytes.append(reinterpret_cast<const char*>(&value), sizeof(value));
}

BITMAPINFOHEADER PictureHeader(Size size) {
  BITMAPINFOHEADER header{};
  header.biSize = sizeof(header);
  header.biWidth = size.width;
  header.biHeight = size.height;
  header.biPlanes = 1;
  header.biBitCount = 24;
  return header;
}

std::size_t BytesPerRow(LONG width, int bitsPerPixel) {
  return (static_cast<std::size_t>(width) * bitsPerPixel + 31) / 32 * 4;
}

void AppendRow(std::string& bytes, const Pixel* row, int width) {
  for (int x = 0; x < width; ++x) bytes.append(reinterpret_cast<const char*>(row + x), 3);
  bytes.append(BytesPerRow(width, 24) - static_cast<std::size_t>(width) * 3, '\0');
}

/// Bytes between the header and the pixels: the masks of the colours and the palette.
std::size_t ColourTableBytes(const BITMAPINFOHEADER& header) {
  const bool masksFollow =
      header.biCompression == BI_BITFIELDS && header.biSize == sizeof(BITMAPINFOHEADER);
  std::size_t colours = header.biClrUsed;
  if (colours == 0 && header.biBitCount <= 8) colours = std::size_t{1} << header.biBitCount;
  return (masksFollow ? 3 * sizeof(DWORD) : 0) + colours * sizeof(RGBQUAD);
}

bool KnownDepth(WORD bits) {
  static constexpr WORD kDepths[] = {1, 4, 8, 16, 24, 32};
  return std::ranges::find(kDepths, bits) != std::end(kDepths);
}

/// Bytes that the pixels must have; none for forms that a program can't expect to be understood.
std::optional<std::uint64_t> PixelBytes(const BITMAPINFOHEADER& header) {
  constexpr std::int64_t kLargestSide = 0x7FFF;
  const std::int64_t height = std::abs(std::int64_t{header.biHeight});
  if (header.biWidth <= 0 || header.biWidth > kLargestSide) return {};
  if (height <= 0 || height > kLargestSide || !KnownDepth(header.biBitCount)) return {};
  switch (header.biCompression) {
    case BI_RGB:
    case BI_BITFIELDS:
      return static_cast<std::uint64_t>(height) * BytesPerRow(header.biWidth, header.biBitCount);
    case BI_RLE4:
    case BI_RLE8:
      // Here the size is no mere convenience: nothing else says where the pixels end.
      if (header.biSizeImage == 0) return {};
      return header.biSizeImage;
    default:
      return {};
  }
}

/// Whether the bytes hold what the header says.
bool IsWhole(const BITMAPINFOHEADER& header, std::size_t bytes, std::size_t pixelOffset) {
  if (header.biSize < sizeof(BITMAPINFOHEADER) || header.biClrUsed > kMostColours) return false;
  const std::optional<std::uint64_t> pixels = PixelBytes(header);
  if (!pixels || pixelOffset > bytes || *pixels > bytes - pixelOffset) return false;
  return header.biSize <= bytes && header.biSize + ColourTableBytes(header) <= bytes;
}

/// Empty where the system makes no picture of it.
Surface Painted(const BITMAPINFO& info, const void* pixels) {
  const int width = static_cast<int>(info.bmiHeader.biWidth);
  const int height = std::abs(static_cast<int>(info.bmiHeader.biHeight));
  Surface picture(Size{width, height});
  if (picture.Empty()) return picture;
  const int rows = ::StretchDIBits(DcOf(picture), 0, 0, width, height, 0, 0, width, height, pixels,
                                   &info, DIB_RGB_COLORS, SRCCOPY);
  ::GdiFlush();
  if (rows == 0 || rows == static_cast<int>(GDI_ERROR)) return {};
  return picture;
}

OwnedGlobal BlockOfRichText(std::string_view source) {
  return BlockOfBytes(std::string(source) + '\0');
}

OwnedGlobal BlockOfText(std::u16string_view text) {
  return BlockOfBytes(AsBytes(std::u16string(text) + u'\0'));
}

OwnedGlobal BlockOfPicture(const Surface& picture) {
  // 24 bits: some programs take the unused byte of 32 bits for transparency.
  std::string bytes;
  Append(bytes, PictureHeader(picture.Size()));
  for (int y = picture.Height(); y-- > 0;) AppendRow(bytes, picture.Row(y), picture.Width());
  return BlockOfBytes(bytes);
}

OwnedGlobal BlockOfFiles(const std::vector<std::u16string>& files) {
  std::string bytes;
  Append(bytes, DROPFILES{sizeof(DROPFILES), {}, FALSE, TRUE});
  for (const std::u16string& file : files) bytes += AsBytes(file + u'\0');
  Append(bytes, u'\0');
  return BlockOfBytes(bytes);
}

}  // namespace

UINT RichTextFormat() {
  static const UINT format = ::RegisterClipboardFormatW(L"Rich Text Format");
  return format;
}

OwnedGlobal BlockOfBytes(std::string_view bytes) {
  // A block of no bytes would count as thrown away.
  OwnedGlobal block(::GlobalAlloc(GMEM_MOVEABLE, std::max<std::size_t>(bytes.size(), 1)));
  const Locked memory(block.get());
  if (!memory.As<char>()) return {};
  std::ranges::copy(bytes, memory.As<char>());
  return block;
}

std::vector<DataBlock> BlocksOf(const DataContent& content) {
  std::vector<DataBlock> blocks;
  for (const auto& [format, bytes] : content.registered) {
    if (format != 0) blocks.push_back({format, BlockOfBytes(bytes)});
  }
  if (content.richText) blocks.push_back({RichTextFormat(), BlockOfRichText(*content.richText)});
  if (content.picture) blocks.push_back({CF_DIB, BlockOfPicture(*content.picture)});
  if (!content.files.empty()) blocks.push_back({CF_HDROP, BlockOfFiles(content.files)});
  if (content.text) blocks.push_back({CF_UNICODETEXT, BlockOfText(*content.text)});
  return blocks;
}

std::string BytesOfBlock(HGLOBAL block) {
  const Locked memory(block);
  if (!memory.As<char>()) return {};
  return std::string(memory.As<char>(), ::GlobalSize(block));
}

std::string RichTextOfBlock(HGLOBAL block) {
  std::string source = BytesOfBlock(block);
  source.resize(std::min(source.find('\0'), source.size()));
  return source;
}

std::u16string TextOfBlock(HGLOBAL block) {
  const Locked memory(block);
  if (!memory.As<char16_t>()) return {};
  const std::u16string_view all(memory.As<char16_t>(), ::GlobalSize(block) / sizeof(char16_t));
  return std::u16string(all.substr(0, all.find(u'\0')));
}

std::optional<Surface> PictureOfDib(std::string_view bytes, std::size_t pixelOffset) {
  if (bytes.size() < sizeof(BITMAPINFOHEADER)) return {};
  const auto& info = *reinterpret_cast<const BITMAPINFO*>(bytes.data());
  const BITMAPINFOHEADER& header = info.bmiHeader;
  if (pixelOffset == 0) pixelOffset = std::size_t{header.biSize} + ColourTableBytes(header);
  if (!IsWhole(header, bytes.size(), pixelOffset)) return {};
  Surface picture = Painted(info, bytes.data() + pixelOffset);
  if (picture.Empty()) return {};
  return picture;
}

std::optional<Surface> PictureOfBlock(HGLOBAL block) {
  const Locked memory(block);
  if (!memory.As<char>()) return {};
  return PictureOfDib({memory.As<char>(), ::GlobalSize(block)});
}

std::vector<std::u16string> FilesOfBlock(HGLOBAL block) {
  const auto drop = static_cast<HDROP>(block);
  const UINT count = block ? ::DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0) : 0;
  std::vector<std::u16string> files(count);
  for (UINT i = 0; i < count; ++i) {
    files[i].resize(::DragQueryFileW(drop, i, nullptr, 0));
    ::DragQueryFileW(drop, i, WideBuffer(files[i]), static_cast<UINT>(files[i].size() + 1));
  }
  return files;
}

}  // namespace platform
