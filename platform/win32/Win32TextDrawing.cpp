#include "platform/win32/Win32TextDrawing.h"

#include <algorithm>

#include "platform/text.h"
#include "platform/win32/DibMemory.h"
#include "platform/win32/fonts.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

// Few fonts are in use at a time; walking through a list of all faces must not keep them all.
constexpr std::size_t kMostFonts = 32;

int Length(std::u16string_view text) { return static_cast<int>(text.size()); }

UINT HorizontalFlag(TextFormat::Horizontal horizontal) {
  switch (horizontal) {
    case TextFormat::Horizontal::Centre:
      return DT_CENTER;
    case TextFormat::Horizontal::Right:
      return DT_RIGHT;
    default:
      return DT_LEFT;
  }
}

UINT FlagsOf(const TextFormat& format) {
  UINT flags = DT_NOCLIP | HorizontalFlag(format.horizontal);
  flags |= format.wordBreak ? DT_WORDBREAK : DT_SINGLELINE;
  if (format.ellipsis) flags |= DT_END_ELLIPSIS;
  if (!format.accessKeys) flags |= DT_NOPREFIX;
  return flags;
}

/// Where text of this height begins; the system's own flags know only single lines.
int TopFor(TextFormat::Vertical vertical, const Rect& area, int height) {
  switch (vertical) {
    case TextFormat::Vertical::Centre:
      return area.top + (area.Height() - height) / 2;
    case TextFormat::Vertical::Bottom:
      return area.bottom - height;
    default:
      return area.top;
  }
}

int CALLBACK AddFace(const LOGFONTW* description, const TEXTMETRICW*, DWORD, LPARAM list) {
  const std::u16string_view face = View(description->lfFaceName);
  // With "@" in front a face is turned for vertical writing.
  if (!face.starts_with(u'@')) {
    reinterpret_cast<std::vector<std::u16string>*>(list)->emplace_back(face);
  }
  return TRUE;
}

/// Draws only inside the area while it lives.
class Clipped {
 public:
  Clipped(HDC dc, const Rect& area) : dc_(dc) {
    ::IntersectClipRect(dc, area.left, area.top, area.right, area.bottom);
  }
  ~Clipped() { ::SelectClipRgn(dc_, nullptr); }
  Clipped(const Clipped&) = delete;
  Clipped& operator=(const Clipped&) = delete;

 private:
  HDC dc_;
};

}  // namespace

Win32TextDrawing::Win32TextDrawing() : measuring_(::CreateCompatibleDC(nullptr)) {}

HFONT Win32TextDrawing::HandleOf(const Font& font) {
  const auto known = std::ranges::find(fonts_, font, &std::pair<Font, OwnedFont>::first);
  if (known != fonts_.end()) return known->second.get();
  if (fonts_.size() == kMostFonts) fonts_.erase(fonts_.begin());
  return fonts_.emplace_back(font, NewFont(font)).second.get();
}

std::vector<std::u16string> Win32TextDrawing::Faces() {
  std::vector<std::u16string> faces;
  LOGFONTW all{};
  all.lfCharSet = DEFAULT_CHARSET;
  ::EnumFontFamiliesExW(measuring_.get(), &all, AddFace, reinterpret_cast<LPARAM>(&faces), 0);
  // Each comes once for every script that it has.
  std::ranges::sort(faces, {}, Lower);
  faces.erase(std::unique(faces.begin(), faces.end()), faces.end());
  return faces;
}

ResolvedFace Win32TextDrawing::Resolve(const Font& font) {
  const Selected selected(measuring_.get(), HandleOf(font));
  wchar_t face[LF_FACESIZE] = {};
  ::GetTextFaceW(measuring_.get(), LF_FACESIZE, face);
  return {Text(face), ::GetTextCharset(measuring_.get())};
}

platform::Size Win32TextDrawing::Measure(std::u16string_view text, const Font& font) {
  const Selected selected(measuring_.get(), HandleOf(font));
  SIZE extent{};
  ::GetTextExtentPoint32W(measuring_.get(), Wide(text.data()), Length(text), &extent);
  TEXTMETRICW metrics{};
  ::GetTextMetricsW(measuring_.get(), &metrics);
  return {static_cast<int>(extent.cx), static_cast<int>(metrics.tmHeight)};
}

int Win32TextDrawing::MeasureHeight(std::u16string_view text, const Font& font, int width) {
  if (text.empty()) return 0;
  const Selected selected(measuring_.get(), HandleOf(font));
  return HeightOf(measuring_.get(), text, width, DT_WORDBREAK | DT_NOPREFIX);
}

int Win32TextDrawing::HeightOf(HDC dc, std::u16string_view text, int width, UINT flags) {
  RECT needed{0, 0, width, 0};
  return ::DrawTextW(dc, Wide(text.data()), Length(text), &needed, flags | DT_CALCRECT);
}

void Win32TextDrawing::Draw(Surface& surface, const Rect& area, std::u16string_view text,
                            const Font& font, Colour colour, const TextFormat& format) {
  if (surface.Empty() || area.Empty() || text.empty()) return;
  const HDC dc = DcOf(surface);
  const Selected selected(dc, HandleOf(font));
  const Clipped clipped(dc, area);
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, colour);
  const UINT flags = FlagsOf(format);
  RECT place = RectOf(area);
  if (format.vertical != TextFormat::Vertical::Top) {
    place.top = TopFor(format.vertical, area, HeightOf(dc, text, area.Width(), flags));
  }
  ::DrawTextW(dc, Wide(text.data()), Length(text), &place, flags);
  // The caller reads and writes the pixels itself.
  ::GdiFlush();
}

}  // namespace platform
