// Travelling data as blocks of global memory, as the clipboard and drag and drop pass them on.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/surface.h"
#include "platform/win32/handles.h"

namespace platform {

/// The system's number of the Rich Text format.
UINT RichTextFormat();

/// Null where there is no memory for it.
OwnedGlobal BlockOfBytes(std::string_view bytes);
OwnedGlobal BlockOfRichText(std::string_view source);
OwnedGlobal BlockOfText(std::u16string_view text);                   ///< CF_UNICODETEXT
OwnedGlobal BlockOfPicture(const Surface& picture);                  ///< CF_DIB
OwnedGlobal BlockOfFiles(const std::vector<std::u16string>& files);  ///< CF_HDROP

/// The content of another program's block, which may hold anything; the block stays the caller's.
std::string BytesOfBlock(HGLOBAL block);
std::string RichTextOfBlock(HGLOBAL block);
std::u16string TextOfBlock(HGLOBAL block);
std::optional<Surface> PictureOfBlock(HGLOBAL block);  ///< none where it is not whole
std::vector<std::u16string> FilesOfBlock(HGLOBAL block);

/// A device-independent bitmap from its header on, aligned as a header is; none where it is not
/// whole. `pixelOffset` is 0 where the pixels follow the header.
std::optional<Surface> PictureOfDib(std::string_view bytes, std::size_t pixelOffset = 0);

}  // namespace platform
