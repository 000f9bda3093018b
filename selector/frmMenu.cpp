#include "selector/frmMenu.h"

#include <array>

#include "artwork/pictures.h"
#include "core/Help.h"
#include "core/ProgramState.h"
#include "core/UpperFloors.h"
#include "core/messages.h"
#include "look/modMixBlt.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/drawing.h"
#include "platform/screen.h"
#include "platform/shell.h"
#include "platform/textdrawing.h"
#include "selector/FunctionTable.h"
#include "selector/WheelPictures.h"
#include "selector/frmBG.h"

namespace dorvalin {
namespace {

using platform::Point;
using platform::Rect;
using platform::Size;
using platform::SystemColour;
using platform::TheDesktop;

constexpr std::u16string_view kAddress = u"www.tolvo.example";
// A function without a panel still opens a host of its own, with its buttons and nothing in it.
constexpr Size kEmptyPanel{207, 120};
constexpr platform::Colour kLinkColour = 0xC00000;

platform::Font LabelFont() { return {}; }
platform::Font LinkFont() { return {.underline = true}; }

bool OpenInBrowser(std::u16string_view address) {
  static constexpr std::array<std::u16string_view, 3> kBrowsers = {u"iexplore", u"firefox",
                                                                   u"netscape"};
  auto& shell = TheDesktop().shell();
  for (const auto browser : kBrowsers) {
    if (shell.Open(u"", browser, address)) return true;
  }
  return shell.Open(u"", address, u"");
}

}  // namespace

frmMenu::frmMenu() : PanelHost("frmMenu", {.topMost = true}) {}

void frmMenu::OnLoad() { MakeControls(); }

void frmMenu::MakeControls() {
  const auto button = [this](std::u16string_view glyph, std::u16string_view tip) {
    auto made =
        std::make_unique<ctlButton>(Window(), Rect::At({}, {kHostButton, kHostButton}), glyph);
    made->SetToolTip(tip);
    return made;
  };
  btnClose_ = button(u"\\C", u" Schließen ");
  btnFree_ = button(u"\\W", u" Freistellen ");
  btnMenu_ = button(u"\\B", u" Menü ");
  btnRight_ = button(u"\\R", u" An Bildschirmrand ");
  btnClose_->Click = [this] { CloseByButton(); };
  btnFree_->Click = [this] { DoFree(); };
  btnMenu_->Down = [this] { PopUpPanelMenu(); };
  btnRight_->Click = [] {
    if (frmBG* ring = PointerWheel()) ring->SetInLine();
  };
  auto& controls = TheDesktop().controls();
  lblHelp_ = controls.NewLabel(Window(), {}, u"F1 = Hilfe", {});
  lblAddress_ = controls.NewLabel(Window(), {}, u"", {.alignment = platform::Alignment::Right});
}

void frmMenu::DoLoad() {
  state_ = {};
  aCtrl_.reset();
  if (lblAddress_) {
    lblAddress_->SetCaption(kAddress);
    lblAddress_->SetFont(LinkFont());
    lblAddress_->SetColours(kLinkColour, std::nullopt);
    lblAddress_->SetPointer({.picture = PictureBytes(Picture::curHand)});
    lblAddress_->MouseDown = [this](platform::Button, const platform::MouseEvent&) {
      FollowAddress();
    };
  }
  const Size address = TheDesktop().text().Measure(kAddress, LinkFont());
  AddressWidth_ = address.width + 2;
  LabelRow_ = address.height + 2;
}

HostSizes frmMenu::Sizes() const {
  const Size panel = aCtrl_ ? Size{aCtrl_->NeededWidth(), aCtrl_->NeededHeight()} : kEmptyPanel;
  return {.panel = panel, .labelRow = LabelRow_};
}

frmBG* frmMenu::Wheel() const { return state_.vertical ? SideWheel() : PointerWheel(); }

void frmMenu::Init(int index, bool below, Reuse reuse) {
  Index_ = index;
  state_.below = below;
  state_.menuFunction = index == kMenuFunction;
  if (reuse == Reuse::No) aCtrl_ = CreatePanel(index, *this);
  state_.hasMenu = aCtrl_ != nullptr && aCtrl_->HasMenu();
  const Size size = HostSize(Sizes(), state_.vertical);
  const Size screen = TheDesktop().screen().Size();
  Point place;
  if (const frmBG* wheel = Wheel()) {
    const Rect at = wheel->Window().Bounds();
    place = state_.vertical
                ? PlaceAtColumn(size, at, wheel->BubbleCentre(wheel->ActiveBubble).y, screen)
                : PlaceAtRing(size, at, below, screen);
  }
  Window().SetBounds(Rect::At(place, size));
  LayOut();
  // The ring's own host comes to the front with its activation.
  if (state_.vertical || reuse == Reuse::Yes) InFG();
}

void frmMenu::OnResize() {
  if (Index_ != 0) LayOut();
}

void frmMenu::LayOut() {
  const HostParts parts = LayOutHost(Window().ClientSize(), Sizes(), state_);
  PlaceControls(parts);
  Paint(parts);
}

void frmMenu::PlaceControls(const HostParts& parts) {
  const auto place = [](ctlButton& button, const Rect& bounds, bool visible) {
    if (visible) button.SetBounds(bounds);
    button.SetVisible(visible);
  };
  place(*btnClose_, parts.btnClose, parts.showClose);
  place(*btnRight_, parts.btnRight, parts.showRight);
  place(*btnFree_, parts.btnFree, !state_.free && !state_.menuFunction);
  place(*btnMenu_, parts.btnMenu, parts.showMenu);
  if (aCtrl_) aCtrl_->Move(parts.panel);
  // The address is no wider than its text: a press beside it means nothing.
  const Rect row{5, parts.labels.top + 1, parts.labels.right - 2, parts.labels.bottom - 1};
  const int address = std::max(row.right - AddressWidth_, row.Middle().x);
  if (lblHelp_) lblHelp_->SetBounds({row.left, row.top, row.Middle().x, row.bottom});
  if (lblAddress_) lblAddress_->SetBounds({address, row.top, row.right, row.bottom});
}

void frmMenu::Paint(const HostParts& parts) {
  auto& screen = TheDesktop().screen();
  auto& canvas = Window().Canvas();
  FillRect(canvas, canvas.Area(), screen.SystemColourOf(SystemColour::ButtonFace));
  DrawEdge(canvas, canvas.Area(), platform::Edge::Raised, SystemEdgeColours(screen));
  if (!state_.free) PaintBubble();
  if (parts.showTitle) {
    const std::u16string title = aCtrl_ ? aCtrl_->Title() : std::u16string(kProductName);
    const int height = TheDesktop().text().Measure(u"A", LabelFont()).height;
    const int top = parts.titleMiddle - height / 2;
    TheDesktop().text().Draw(canvas, {parts.titleLeft, top, parts.titleRight, top + height}, title,
                             LabelFont(), screen.SystemColourOf(SystemColour::ButtonText),
                             {.ellipsis = true});
  }
  Window().Refresh();
}

// The wheel's active bubble seems to sink into the host's edge.
void frmMenu::PaintBubble() {
  const frmBG* wheel = Wheel();
  if (wheel == nullptr || FunctionOf(Index_) == nullptr) return;
  const Point at = BubbleInHost(Window().Bounds(), wheel->Window().Bounds(),
                                wheel->BubbleCentre(wheel->ActiveBubble).y, state_);
  auto& canvas = Window().Canvas();
  KeyBlt(canvas, Rect::At(at, {kBubbleSize, kBubbleSize}),
         {BubbleSheet(), SpriteAt(Index_, BubbleLook::Active)},
         TheDesktop().screen().SystemColourOf(SystemColour::ButtonFace),
         {BubbleSheet(), kSoftMask});
}

void frmMenu::DoFree() {
  if (state_.free || !Loaded()) return;
  btnFree_->SetVisible(false);
  Window().SetCaption(kProductName);
  frmBG* wheel = Wheel();
  if (wheel != nullptr && wheel->Host == this) wheel->Host = nullptr;
  const Rect freed = FreedBounds(Window().Bounds(), Sizes(), state_);
  state_.free = true;
  state_.below = false;
  if (wheel != nullptr) wheel->Unload();
  state_.vertical = false;
  Window().SetBounds(freed);
  LayOut();
}

void frmMenu::CloseByButton() {
  frmBG* wheel = state_.free ? nullptr : Wheel();
  Unload();
  if (wheel != nullptr) wheel->CloseMe();
}

void frmMenu::PopUpPanelMenu() {
  if (!aCtrl_) return;
  Floors().CurrentPanelForm = this;
  State().PopupOpen = true;
  btnMenu_->KeptDown = true;
  aCtrl_->ShowMenu(MenuPoint(LayOutHost(Window().ClientSize(), Sizes(), state_)));
  State().PopupOpen = false;
  btnMenu_->KeptDown = false;
  if (Loaded()) btnMenu_->Release();
}

Point frmMenu::MenuPoint(const HostParts& parts) const {
  if (state_.vertical) {
    return {parts.panel.Width() + ButtonWidth - 5, parts.btnMenu.bottom + 1};
  }
  if (state_.below) return {0, Window().ClientSize().height - parts.panel.top - 5};
  return {0, -4};
}

void frmMenu::DoKeyDown(platform::KeyEvent& event) {
  if (event.virtualKey != platform::key::kF1) return;
  event.handled = true;
  const WheelFunction* function = FunctionOf(Index_);
  ShowHelp(event.modifiers, function == nullptr ? u"main" : function->topic);
}

void frmMenu::OnMouseDown(platform::Button button, const platform::MouseEvent& event) {
  const int titleRow = LayOutHost(Window().ClientSize(), Sizes(), state_).btnClose.bottom;
  if (!state_.free || button != platform::Button::Left || event.at.y >= titleRow) return;
  Window().StartMove();
}

void frmMenu::FollowAddress() {
  // The host must not vanish behind the browser.
  if (Index_ != kMenuFunction) DoFree();
  State().ModalOpen = true;
  const auto answer = TheDesktop().dialogs().ShowMessage(
      {.text =
           u"Wenn Sie diesen Link verwenden, wird Ihr Browser geladen, der ggf. eine Verbindung "
           u"zum Internet herstellt, durch die möglicherweise Verbindungskosten entstehen. Für "
           u"die Erreichbarkeit der Seite, auf die der Link verweist und für den Inhalt der "
           u"durch diesen Link zu erreichenden Seiten wird keine Haftung übernommen.",
       .title = u"Internet-Link zu " + std::u16string(kAddress),
       .buttons = platform::MessageButtons::OkCancel,
       .icon = platform::MessageIcon::Information,
       .owner = &Window()});
  if (answer == platform::Answer::Ok && !OpenInBrowser(kAddress)) {
    ShowWarning(
        u"Ihr Browser konnte nicht gestartet werden oder es wurde kein unterstützter Browser "
        u"gefunden.",
        &Window());
  }
  State().ModalOpen = false;
}

bool frmMenu::CallPanel(std::string_view operation, int argument) {
  if (!aCtrl_ || !Loaded()) return false;
  const auto& operations = aCtrl_->PublishedOperations();
  const auto entry = operations.find(operation);
  if (entry == operations.end()) return false;
  entry->second(argument);
  return true;
}

void frmMenu::PanelShownAgain() {
  if (aCtrl_) aCtrl_->ShownAgain();
}

void frmMenu::OnUnload() {
  if (Floors().CurrentPanelForm == this) Floors().CurrentPanelForm = nullptr;
  if (aCtrl_) aCtrl_->Closing();
  frmBG* wheel = state_.free ? nullptr : Wheel();
  if (wheel != nullptr && wheel->Host == this) wheel->Host = nullptr;
}

}  // namespace dorvalin
