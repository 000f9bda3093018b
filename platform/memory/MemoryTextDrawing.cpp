#include "platform/memory/MemoryTextDrawing.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "platform/drawing.h"
#include "platform/memory/glyphs.h"
#include "platform/memory/names.h"

namespace platform {
namespace {

constexpr double kDesignPoints = 8;
constexpr int kBlankWidth = 4;
constexpr int kUnknownWidth = 6;

double ScaleOf(const Font& font) { return std::max(font.points, 1.0) / kDesignPoints; }

const Glyph* GlyphOf(char16_t unit) {
  const auto found =
      std::lower_bound(std::begin(kGlyphs), std::end(kGlyphs), unit,
                       [](const Glyph& glyph, char16_t wanted) { return glyph.unit < wanted; });
  return found != std::end(kGlyphs) && found->unit == unit ? found : nullptr;
}

bool IsBlank(char16_t unit) { return unit == u' ' || unit == u'\t' || unit == u'\u00A0'; }

int WidthOf(char16_t unit, const Font& font) {
  if (unit == u'\r' || unit == u'\n') return 0;
  const Glyph* glyph = GlyphOf(unit);
  const int design = glyph != nullptr ? glyph->width : IsBlank(unit) ? kBlankWidth : kUnknownWidth;
  return static_cast<int>(std::lround(design * ScaleOf(font))) + (font.bold ? 1 : 0);
}

void DrawGlyph(Surface& surface, const Rect& clip, Point at, char16_t unit, const Font& font,
               Pixel pixel) {
  const Glyph* glyph = GlyphOf(unit);
  const double scale = ScaleOf(font);
  const int height = MemoryTextDrawing::LineHeight(font);
  const int width = WidthOf(unit, font);
  for (int y = 0; y < height; ++y) {
    const int row = std::min(static_cast<int>(y / scale), kGlyphHeight - 1);
    const int lean = font.italic ? (kGlyphBaseline - row) / 4 : 0;
    for (int x = 0; x < width; ++x) {
      const auto set = [&](int column) {
        const int bit = static_cast<int>(column / scale);
        // A character without a glyph shows as a box.
        if (glyph == nullptr) return row > 2 && row < 11 && (row == 3 || row == 10 || bit % 4 == 0);
        return column >= 0 && bit < 8 && ((glyph->rows[row] >> (7 - bit)) & 1) != 0;
      };
      const Point p{at.x + x + lean, at.y + y};
      if ((set(x) || (font.bold && set(x - 1))) && clip.Contains(p)) surface.At(p) = pixel;
    }
  }
}

int DrawLineOfText(Surface& surface, const Rect& clip, Point at, std::u16string_view text,
                   const Font& font, Colour colour) {
  const int left = at.x;
  for (char16_t unit : text) {
    if (!IsBlank(unit)) DrawGlyph(surface, clip, at, unit, font, PixelFromColour(colour));
    at.x += WidthOf(unit, font);
  }
  const int height = MemoryTextDrawing::LineHeight(font);
  const auto line = [&](int y) {
    FillRect(surface, Rect{left, y, at.x, y + 1}.Intersected(clip), colour);
  };
  if (font.underline) line(at.y + height - 1);
  if (font.strikeOut) line(at.y + height / 2);
  return at.x;
}

/// The text without its access mark, and where the marked character stands.
std::pair<std::u16string, std::size_t> WithoutAccessKeys(std::u16string_view text) {
  std::u16string plain;
  std::size_t marked = std::u16string::npos;
  for (std::size_t n = 0; n < text.size(); ++n) {
    if (text[n] == u'&' && n + 1 < text.size()) {
      ++n;
      if (text[n] != u'&') marked = plain.size();
    }
    plain += text[n];
  }
  return {plain, marked};
}

std::u16string CutToWidth(std::u16string_view text, const Font& font, int width) {
  if (MemoryTextDrawing::Width(text, font) <= width) return std::u16string(text);
  const int room = width - MemoryTextDrawing::Width(u"...", font);
  std::size_t count = 0;
  for (int used = 0; count < text.size(); ++count) {
    used += WidthOf(text[count], font);
    if (used > room) break;
  }
  return std::u16string(text.substr(0, count)) + u"...";
}

int Aligned(TextFormat::Horizontal how, int left, int right, int width) {
  if (how == TextFormat::Horizontal::Left) return left;
  return how == TextFormat::Horizontal::Right ? right - width : left + (right - left - width) / 2;
}

int Aligned(TextFormat::Vertical how, int top, int bottom, int height) {
  if (how == TextFormat::Vertical::Top) return top;
  return how == TextFormat::Vertical::Bottom ? bottom - height : top + (bottom - top - height) / 2;
}

/// How many units of a line without line ends fit, at least one; whole words where there are
/// several.
std::size_t Fitting(std::u16string_view line, const Font& font, int width) {
  std::size_t behindBlank = 0;
  int used = 0;
  for (std::size_t n = 0; n < line.size(); ++n) {
    used += WidthOf(line[n], font);
    if (IsBlank(line[n])) {
      behindBlank = n + 1;
    } else if (used > width) {
      return behindBlank > 0 ? behindBlank : std::max<std::size_t>(n, 1);
    }
  }
  return line.size();
}

}  // namespace

int MemoryTextDrawing::Width(std::u16string_view text, const Font& font) {
  int width = 0;
  for (char16_t unit : text) width += WidthOf(unit, font);
  return width;
}

int MemoryTextDrawing::LineHeight(const Font& font) {
  return static_cast<int>(std::lround(kGlyphHeight * ScaleOf(font)));
}

std::vector<std::u16string_view> MemoryTextDrawing::Lines(std::u16string_view text,
                                                          const Font& font, int width) {
  std::vector<std::u16string_view> lines;
  for (;;) {
    const auto end = text.find_first_of(u"\r\n");
    std::u16string_view line = text.substr(0, end);
    do {
      const auto count = Fitting(line, font, width);
      lines.push_back(line.substr(0, count));
      line.remove_prefix(count);
    } while (!line.empty());
    if (end == std::u16string_view::npos) return lines;
    text.remove_prefix(end + (text.substr(end, 2) == u"\r\n" ? 2 : 1));
  }
}

void MemoryTextDrawing::Paint(Surface& surface, const Rect& area, std::u16string_view text,
                              const Font& font, Colour colour, const TextFormat& format) {
  const auto [plain, marked] = format.accessKeys
                                   ? WithoutAccessKeys(text)
                                   : std::pair(std::u16string(text), std::u16string::npos);
  const Rect clip = area.Intersected(surface.Area());
  const auto lines =
      format.wordBreak ? Lines(plain, font, area.Width()) : std::vector<std::u16string_view>{plain};
  const int lineHeight = LineHeight(font);
  int y =
      Aligned(format.vertical, area.top, area.bottom, lineHeight * static_cast<int>(lines.size()));
  for (const std::u16string_view line : lines) {
    const auto shown =
        format.ellipsis ? CutToWidth(line, font, area.Width()) : std::u16string(line);
    const int x = Aligned(format.horizontal, area.left, area.right, Width(shown, font));
    DrawLineOfText(surface, clip, {x, y}, shown, font, colour);
    const std::size_t from = static_cast<std::size_t>(line.data() - plain.data());
    if (marked >= from && marked < from + shown.size()) {
      const int left = x + Width(line.substr(0, marked - from), font);
      const int right = left + WidthOf(plain[marked], font) - 1;
      FillRect(surface, Rect{left, y + lineHeight - 1, right, y + lineHeight}.Intersected(clip),
               colour);
    }
    y += lineHeight;
  }
}

std::vector<std::u16string> MemoryTextDrawing::Faces() {
  std::vector<std::u16string> names;
  if (faults_.Fails("Text.Faces")) return names;
  for (const auto& [face, charset] : faces) names.push_back(face);
  return names;
}

ResolvedFace MemoryTextDrawing::Resolve(const Font& font) {
  if (faults_.Fails("Text.Resolve") || faces.empty()) return {};
  const auto known = std::ranges::find_if(
      faces, [&](const auto& face) { return SameName(face.first, font.face); });
  const auto& [face, charset] = known != faces.end() ? *known : *faces.begin();
  return {face, charset};
}

Size MemoryTextDrawing::Measure(std::u16string_view text, const Font& font) {
  if (faults_.Fails("Text.Measure")) return {};
  return {Width(text, font), LineHeight(font)};
}

int MemoryTextDrawing::MeasureHeight(std::u16string_view text, const Font& font, int width) {
  if (faults_.Fails("Text.MeasureHeight")) return 0;
  return LineHeight(font) * static_cast<int>(Lines(text, font, width).size());
}

void MemoryTextDrawing::Draw(Surface& surface, const Rect& area, std::u16string_view text,
                             const Font& font, Colour colour, const TextFormat& format) {
  if (!faults_.Fails("Text.Draw")) Paint(surface, area, text, font, colour, format);
}

}  // namespace platform
