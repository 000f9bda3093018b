#include "platform/win32/Win32RichTextBox.h"

#include <richedit.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "platform/win32/wide.h"

namespace platform {
namespace {

constexpr double kTwipsPerPoint = 20;

// The newer control where there is one; its class is known as long as the library is loaded.
const wchar_t* RichEditClass() {
  static const OwnedModule newer(::LoadLibraryW(L"msftedit.dll"));
  static const OwnedModule older(newer ? nullptr : ::LoadLibraryW(L"riched20.dll"));
  return newer ? L"RICHEDIT50W" : L"RichEdit20W";
}

bool EndsLine(char16_t unit) { return unit == u'\r' || unit == u'\v'; }

int LinesWithin(std::u16string_view text) {
  return static_cast<int>(std::ranges::count_if(text, EndsLine));
}

int PortPosition(std::u16string_view own, LONG position) {
  const auto before = own.substr(0, static_cast<std::size_t>(std::max<LONG>(position, 0)));
  return static_cast<int>(before.size()) + LinesWithin(before);
}

LONG OwnPosition(std::u16string_view own, int position) {
  LONG at = 0;
  for (int passed = 0; passed < position && at < static_cast<LONG>(own.size()); ++at) {
    passed += EndsLine(own[static_cast<std::size_t>(at)]) ? 2 : 1;
  }
  return at;
}

std::u16string WithLineFeeds(std::u16string_view own) {
  std::u16string text;
  text.reserve(own.size() + static_cast<std::size_t>(LinesWithin(own)));
  for (const char16_t unit : own) {
    if (EndsLine(unit)) {
      text += u"\r\n";
    } else {
      text += unit;
    }
  }
  return text;
}

DWORD CALLBACK ReadPart(DWORD_PTR cookie, BYTE* buffer, LONG wanted, LONG* given) {
  auto& rest = *reinterpret_cast<std::string_view*>(cookie);
  const auto part = rest.substr(0, static_cast<std::size_t>(wanted));
  std::memcpy(buffer, part.data(), part.size());
  rest.remove_prefix(part.size());
  *given = static_cast<LONG>(part.size());
  return 0;
}

DWORD CALLBACK WritePart(DWORD_PTR cookie, BYTE* buffer, LONG size, LONG* taken) noexcept {
  *taken = 0;
  try {
    reinterpret_cast<std::string*>(cookie)->append(reinterpret_cast<const char*>(buffer),
                                                   static_cast<std::size_t>(size));
  } catch (...) {
    return ERROR_NOT_ENOUGH_MEMORY;
  }
  *taken = size;
  return 0;
}

constexpr struct {
  std::optional<bool> RichSelection::*property;
  DWORD mask;
  DWORD effect;
} kEffects[] = {{&RichSelection::bold, CFM_BOLD, CFE_BOLD},
                {&RichSelection::italic, CFM_ITALIC, CFE_ITALIC},
                {&RichSelection::underline, CFM_UNDERLINE, CFE_UNDERLINE},
                {&RichSelection::strikeOut, CFM_STRIKEOUT, CFE_STRIKEOUT}};

constexpr struct {
  Alignment alignment;
  WORD code;
} kAlignments[] = {
    {Alignment::Left, PFA_LEFT}, {Alignment::Right, PFA_RIGHT}, {Alignment::Centre, PFA_CENTER}};

CHARFORMAT2W EmptyCharFormat() {
  CHARFORMAT2W format{};
  format.cbSize = sizeof(format);
  return format;
}

RichSelection PropertiesOf(const CHARFORMAT2W& format) {
  RichSelection found;
  for (const auto& each : kEffects) {
    if (format.dwMask & each.mask) found.*each.property = (format.dwEffects & each.effect) != 0;
  }
  if (format.dwMask & CFM_FACE) found.face = Text(format.szFaceName);
  if (format.dwMask & CFM_SIZE) found.points = format.yHeight / kTwipsPerPoint;
  if (format.dwMask & CFM_COLOR) {
    const bool automatic = (format.dwEffects & CFE_AUTOCOLOR) != 0;
    found.colour = automatic ? ::GetSysColor(COLOR_WINDOWTEXT) : format.crTextColor;
  }
  return found;
}

CHARFORMAT2W FormatOf(const RichSelection& properties) {
  CHARFORMAT2W format = EmptyCharFormat();
  for (const auto& each : kEffects) {
    if (!(properties.*each.property)) continue;
    format.dwMask |= each.mask;
    if (*(properties.*each.property)) format.dwEffects |= each.effect;
  }
  if (properties.face) {
    format.dwMask |= CFM_FACE | CFM_CHARSET;
    format.bCharSet = DEFAULT_CHARSET;
    properties.face->copy(reinterpret_cast<char16_t*>(format.szFaceName), LF_FACESIZE - 1);
  }
  if (properties.points) {
    format.dwMask |= CFM_SIZE;
    format.yHeight = static_cast<LONG>(std::lround(*properties.points * kTwipsPerPoint));
  }
  if (properties.colour) {
    format.dwMask |= CFM_COLOR;
    format.crTextColor = *properties.colour;
  }
  return format;
}

PARAFORMAT2 EmptyParagraphFormat() {
  PARAFORMAT2 format{};
  format.cbSize = sizeof(format);
  return format;
}

}  // namespace

bool Win32RichTextBox::Make(HWND parent, const Rect& bounds, const TextBoxStyle& style) {
  DWORD bits = ES_NOHIDESEL;
  bits |= style.multiLine ? ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL
                          : DWORD{ES_AUTOHSCROLL};
  if (style.readOnly) bits |= ES_READONLY;
  const DWORD border = style.border ? WS_EX_CLIENTEDGE : 0;
  if (!MakeChild(parent, bounds, RichEditClass(), bits, {}, border)) return false;
  Send(EM_EXLIMITTEXT, 0, 0x7FFFFFFE);
  Send(EM_SETEVENTMASK, 0, ENM_CHANGE | ENM_SELCHANGE);
  return true;
}

void Win32RichTextBox::SetColours(std::optional<Colour> text, std::optional<Colour> background) {
  Send(EM_SETBKGNDCOLOR, background ? FALSE : TRUE, static_cast<LPARAM>(background.value_or(0)));
  CHARFORMAT2W format = EmptyCharFormat();
  format.dwMask = CFM_COLOR;
  format.dwEffects = text ? 0 : CFE_AUTOCOLOR;
  format.crTextColor = text.value_or(0);
  SendPointer(EM_SETCHARFORMAT, SCF_DEFAULT, &format);
}

std::u16string Win32RichTextBox::OwnText() const {
  constexpr UINT kUtf16 = 1200;
  GETTEXTLENGTHEX lengthOf{GTL_NUMCHARS | GTL_PRECISE, kUtf16};
  const LRESULT length = Send(EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&lengthOf), 0);
  if (length <= 0) return {};
  std::u16string text(static_cast<std::size_t>(length), u'\0');
  GETTEXTEX how{};
  how.cb = static_cast<DWORD>((text.size() + 1) * sizeof(char16_t));
  how.codepage = kUtf16;
  const LRESULT got = SendPointer(EM_GETTEXTEX, reinterpret_cast<WPARAM>(&how), WideBuffer(text));
  text.resize(static_cast<std::size_t>(std::clamp<LRESULT>(got, 0, length)));
  return text;
}

std::u16string Win32RichTextBox::Text() const { return WithLineFeeds(OwnText()); }

int Win32RichTextBox::SelStart() const {
  CHARRANGE range{};
  SendPointer(EM_EXGETSEL, 0, &range);
  return PortPosition(OwnText(), range.cpMin);
}

int Win32RichTextBox::SelLength() const {
  CHARRANGE range{};
  SendPointer(EM_EXGETSEL, 0, &range);
  const std::u16string own = OwnText();
  return PortPosition(own, range.cpMax) - PortPosition(own, range.cpMin);
}

void Win32RichTextBox::Select(int start, int length) {
  const std::u16string own = OwnText();
  const int first = std::max(start, 0);
  CHARRANGE range{OwnPosition(own, first), OwnPosition(own, first + std::max(length, 0))};
  SendPointer(EM_EXSETSEL, 0, &range);
  Send(EM_SCROLLCARET);
}

void Win32RichTextBox::ReplaceSelection(std::u16string_view text) {
  SendPointer(EM_REPLACESEL, TRUE, static_cast<const wchar_t*>(Terminated(text)));
}

std::string Win32RichTextBox::RichText() const {
  std::string source;
  EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&source), 0, WritePart};
  SendPointer(EM_STREAMOUT, SF_RTF, &stream);
  return source;
}

bool Win32RichTextBox::StreamIn(std::string_view source) {
  if (!source.starts_with("{\\rtf") && !source.starts_with("{\\urtf")) return false;
  EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&source), 0, ReadPart};
  SendPointer(EM_STREAMIN, SF_RTF, &stream);
  return stream.dwError == 0;
}

bool Win32RichTextBox::SetRichText(std::string_view source) {
  if (!Handle()) return false;
  bool taken = false;
  Quietly(
      [&] {
        taken = StreamIn(source);
        if (!taken) SetWindowText({});
        Select(0, 0);
      },
      true);
  return taken;
}

RichSelection Win32RichTextBox::Selection() const {
  CHARFORMAT2W format = EmptyCharFormat();
  SendPointer(EM_GETCHARFORMAT, SCF_SELECTION, &format);
  RichSelection found = PropertiesOf(format);
  PARAFORMAT2 paragraph = EmptyParagraphFormat();
  SendPointer(EM_GETPARAFORMAT, 0, &paragraph);
  for (const auto& each : kAlignments) {
    const bool same = (paragraph.dwMask & PFM_ALIGNMENT) && paragraph.wAlignment == each.code;
    if (same) found.alignment = each.alignment;
  }
  return found;
}

void Win32RichTextBox::SetSelection(const RichSelection& properties) {
  CHARFORMAT2W format = FormatOf(properties);
  Quietly(
      [&] {
        if (format.dwMask) SendPointer(EM_SETCHARFORMAT, SCF_SELECTION, &format);
        if (properties.alignment) SetAlignment(*properties.alignment);
      },
      Handle() != nullptr);
}

void Win32RichTextBox::SetAlignment(Alignment alignment) {
  PARAFORMAT2 paragraph = EmptyParagraphFormat();
  paragraph.dwMask = PFM_ALIGNMENT;
  for (const auto& each : kAlignments) {
    if (alignment == each.alignment) paragraph.wAlignment = each.code;
  }
  SendPointer(EM_SETPARAFORMAT, 0, &paragraph);
}

LRESULT Win32RichTextBox::OnNotify(const NMHDR& notification) {
  if (notification.code == EN_SELCHANGE && !Quiet()) TellSelection();
  return 0;
}

// The system also tells of selections that stayed where they were.
void Win32RichTextBox::TellSelection() {
  CHARRANGE now{};
  SendPointer(EM_EXGETSEL, 0, &now);
  const std::pair selection(now.cpMin, now.cpMax);
  if (std::exchange(told_, selection) != selection) TellSelectionChange();
}

}  // namespace platform
