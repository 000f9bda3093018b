#include "platform/win32/Win32Pictures.h"

#include <olectl.h>
#include <wrl/client.h>

#include <cstring>
#include <string>

#include "platform/drawing.h"
#include "platform/win32/DataBlocks.h"
#include "platform/win32/DibMemory.h"

namespace platform {
namespace {

using Microsoft::WRL::ComPtr;

constexpr Colour kWhite = 0xFFFFFF;
constexpr int kHundredthsOfMillimetrePerInch = 2540;
constexpr int kLargestSide = 0x7FFF;

ComPtr<IPicture> PictureOf(std::string_view bytes) {
  OwnedGlobal block = BlockOfBytes(bytes);
  ComPtr<IStream> stream;
  ComPtr<IPicture> picture;
  if (!block || FAILED(::CreateStreamOnHGlobal(block.get(), TRUE, &stream))) return {};
  (void)block.release();  // The stream frees it.
  ::OleLoadPicture(stream.Get(), static_cast<LONG>(bytes.size()), FALSE, IID_IPicture,
                   reinterpret_cast<void**>(picture.GetAddressOf()));
  return picture;
}

/// The picture's own unit does not tell a bitmap's pixels exactly.
Size BitmapSize(IPicture& picture) {
  OLE_HANDLE handle = 0;
  BITMAP data{};
  picture.get_Handle(&handle);
  const auto bitmap = reinterpret_cast<HBITMAP>(static_cast<ULONG_PTR>(handle));
  if (!::GetObjectW(bitmap, sizeof(data), &data)) return {};
  return {static_cast<int>(data.bmWidth), static_cast<int>(data.bmHeight)};
}

int PixelsOf(OLE_XSIZE_HIMETRIC length, int capability) {
  const BorrowedDc screen(nullptr);
  return ::MulDiv(length, ::GetDeviceCaps(screen.get(), capability),
                  kHundredthsOfMillimetrePerInch);
}

Size SizeOf(IPicture& picture, Size inOwnUnits) {
  short type = PICTYPE_NONE;
  picture.get_Type(&type);
  if (type == PICTYPE_BITMAP) return BitmapSize(picture);
  return {PixelsOf(inOwnUnits.width, LOGPIXELSX), PixelsOf(inOwnUnits.height, LOGPIXELSY)};
}

bool TooLarge(Size size) { return size.width > kLargestSide || size.height > kLargestSide; }

std::optional<Surface> Painted(IPicture& picture) {
  OLE_XSIZE_HIMETRIC width = 0;
  OLE_YSIZE_HIMETRIC height = 0;
  picture.get_Width(&width);
  picture.get_Height(&height);
  const Size size = SizeOf(picture, {static_cast<int>(width), static_cast<int>(height)});
  if (TooLarge(size)) return {};
  Surface surface(size);
  if (surface.Empty()) return {};
  FillRect(surface, surface.Area(), kWhite);
  // A picture counts its rows upwards.
  const HRESULT done = picture.Render(DcOf(surface), 0, 0, size.width, size.height, 0, height,
                                      width, -height, nullptr);
  ::GdiFlush();
  if (FAILED(done)) return {};
  return surface;
}

/// The system's own reader of such files does not notice where they break off.
std::optional<Surface> BitmapFile(std::string_view bytes) {
  BITMAPFILEHEADER head{};
  if (bytes.size() < sizeof(head)) return {};
  std::memcpy(&head, bytes.data(), sizeof(head));
  if (head.bfOffBits < sizeof(head)) return {};
  const std::string bitmap(bytes.substr(sizeof(head)));
  return PictureOfDib(bitmap, head.bfOffBits - sizeof(head));
}

}  // namespace

std::optional<Surface> Win32Pictures::Load(std::u16string_view path) {
  const FileContent content = files_.Read(path);
  if (content.status != FileStatus::Done || content.bytes.empty()) return {};
  if (content.bytes.starts_with("BM")) return BitmapFile(content.bytes);
  const ComPtr<IPicture> picture = PictureOf(content.bytes);
  return picture ? Painted(*picture.Get()) : std::nullopt;
}

}  // namespace platform
