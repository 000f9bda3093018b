#include "selector/frmRightBarMsg.h"

#include "core/ProgramState.h"
#include "core/SettingsStore.h"
#include "core/messages.h"
#include "core/modRegTools.h"
#include "platform/desktop.h"
#include "platform/drawing.h"
#include "platform/screen.h"
#include "platform/textdrawing.h"

namespace dorvalin {
namespace {

using platform::Rect;
using platform::Size;
using platform::TheDesktop;

constexpr std::u16string_view kQuestion =
    u"Möchten Sie, dass die Seitenleiste in Zukunft beim Start von Tolvo Dorvalin automatisch "
    u"aktiviert wird (Sie können den Funktionswähler dann jederzeit durch Bewegen der Maus an den "
    u"rechten Bildschirmrand erreichen)?";
constexpr int kMargin = 14;
constexpr int kTextWidth = 360;
constexpr int kCheckHeight = 18;
constexpr Size kButton{86, 26};

}  // namespace

frmRightBarMsg::frmRightBarMsg()
    : Form("frmRightBarMsg", {.frame = platform::FrameStyle::Dialog,
                              .caption = std::u16string(kProductName),
                              // It asks at the end, when free hosts may stand in its place.
                              .topMost = true}) {}

void frmRightBarMsg::OnLoad() {
  auto& desktop = TheDesktop();
  const int textHeight = desktop.text().MeasureHeight(kQuestion, {}, kTextWidth) + 4;
  const int checkTop = kMargin + textHeight + kMargin;
  const int buttonTop = checkTop + kCheckHeight + kMargin;
  const Size client{kTextWidth + 2 * kMargin, buttonTop + kButton.height + kMargin};
  const Size screen = desktop.screen().Size();
  Window().SetClientSize(client);
  const Size outer = Window().Bounds().Size();
  Window().SetBounds(
      Rect::At({(screen.width - outer.width) / 2, (screen.height - outer.height) / 2}, outer));
  auto& canvas = Window().Canvas();
  FillRect(canvas, canvas.Area(),
           desktop.screen().SystemColourOf(platform::SystemColour::ButtonFace));

  auto& controls = desktop.controls();
  lblQuestion_ = controls.NewLabel(Window(), Rect::At({kMargin, kMargin}, {kTextWidth, textHeight}),
                                   kQuestion, {});
  chkDSA_ =
      controls.NewCheckBox(Window(), Rect::At({kMargin, checkTop}, {kTextWidth, kCheckHeight}),
                           u"Diese Meldung in Zukunft nicht mehr anzeigen");
  const int right = client.width - kMargin - kButton.width;
  btnOK_ = std::make_unique<ctlButton>(
      Window(), Rect::At({right - kButton.width - 8, buttonTop}, kButton), u"Ja");
  btnCancel_ =
      std::make_unique<ctlButton>(Window(), Rect::At({right, buttonTop}, kButton), u"Nein");
  btnOK_->Click = [this] { AnswerWith(true); };
  btnCancel_->Click = [this] { AnswerWith(false); };
  AddTabStop(chkDSA_.get());
  AddTabStop(btnOK_->Window());
  AddTabStop(btnCancel_->Window());
  // The answer that agrees with what the user switched by hand has the keyboard.
  PutFirst(State().settings.ShowRightBarAtStart ? btnCancel_->Window() : btnOK_->Window());
}

void frmRightBarMsg::OnFormKey(platform::KeyEvent& event) {
  if (event.virtualKey != platform::key::kEscape) return;
  event.handled = true;
  AnswerWith(false);
}

void frmRightBarMsg::AnswerWith(bool showAtStart) {
  State().settings.ShowRightBarAtStart = showAtStart;
  Unload();
}

void frmRightBarMsg::OnUnload() {
  SaveSettings();
  const bool leaveAlone = chkDSA_ && chkDSA_->Checked();
  RegSetLong(ProgramKey(u"\\DontShowAgain"), u"ShowRightBarAtStart", leaveAlone ? 1 : 0);
}

}  // namespace dorvalin
