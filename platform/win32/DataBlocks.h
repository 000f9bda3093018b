// Travelling data as blocks of global memory, as the clipboard and drag and drop pass them on.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/data.h"
#include "platform/win32/handles.h"

namespace platform {

/// The system's number of the Rich Text format.
UINT RichTextFormat();

/// Null where there is no memory for it.
OwnedGlobal BlockOfBytes(std::string_view bytes);

struct DataBlock {
  UINT format;
  OwnedGlobal block;  ///< null where there is no memory for it
};

/// Every form of the content, the richest first: programs take the first that they know.
std::vector<DataBlock> BlocksOf(const DataContent& content);

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
