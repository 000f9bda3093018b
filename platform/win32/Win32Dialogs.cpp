#include "platform/win32/Win32Dialogs.h"

#include "platform/win32/WindowHandle.h"
#include "platform/win32/fonts.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

bool HasCancel(MessageButtons buttons) {
  return buttons == MessageButtons::OkCancel || buttons == MessageButtons::YesNoCancel;
}

}  // namespace

Answer Win32Dialogs::ShowMessage(const Message& message) {
  const auto style = static_cast<UINT>(message.buttons) | static_cast<UINT>(message.icon);
  const int answer =
      ::MessageBoxW(HandleOf(message.owner), Wide(message.text), Wide(message.title), style);
  // Escape answers a box without a Cancel button too under Wine.
  const bool noSuchButton = answer == IDCANCEL && !HasCancel(message.buttons);
  const bool answered = answer != 0 && !noSuchButton;
  return answered ? static_cast<Answer>(answer) : Unanswered(message.buttons);
}

std::optional<FontChoice> Win32Dialogs::ChooseFont(const FontChoice& start, TopWindow* owner) {
  LOGFONTW description = LogFontOf(start.font);
  CHOOSEFONTW dialog{};
  dialog.lStructSize = sizeof(dialog);
  dialog.hwndOwner = HandleOf(owner);
  dialog.lpLogFont = &description;
  dialog.Flags =
      CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT | CF_FORCEFONTEXIST | CF_NOSCRIPTSEL | CF_EFFECTS;
  dialog.rgbColors = start.colour;
  if (!::ChooseFontW(&dialog)) return {};
  FontChoice choice{FontOf(description), dialog.rgbColors};
  choice.font.points = dialog.iPointSize / 10.0;
  return choice;
}

}  // namespace platform
