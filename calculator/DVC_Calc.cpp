#include "calculator/DVC_Calc.h"

#include <cmath>

#include "calculator/CalculatorKeys.h"
#include "calculator/modSolve.h"
#include "core/Delivery.h"
#include "core/ProgramState.h"
#include "platform/desktop.h"
#include "platform/drawing.h"
#include "platform/locale.h"
#include "platform/screen.h"
#include "platform/text.h"

namespace dorvalin {
namespace {

using platform::Rect;
using platform::SystemColour;
using platform::TheDesktop;

constexpr Rect kTermArea{0, 0, 207, 45};
constexpr Rect kShowArea{0, 46, 104, 66};
constexpr Rect kOKArea{105, 46, 207, 66};
constexpr Rect kResultArea{0, 67, 207, 86};
constexpr std::u16string_view kHint = u"[Hier Term eingeben]\r\n";
constexpr std::u16string_view kSolveAndSend = u"Lösen & Eingeben";
constexpr std::u16string_view kSend = u"Eingeben";
// Smaller results are the rounding noise of terms like sin(pi).
constexpr double kNoise = 1E-14;

/// The last good result; it outlives the panel, but not the program.
struct LastAnswer {
  double Ans = 0;
};

platform::Colour ColourOf(SystemColour colour) {
  return TheDesktop().screen().SystemColourOf(colour);
}

}  // namespace

DVC_Calc::DVC_Calc(PanelHost& host)
    : host_(host),
      pane_(TheDesktop().windows().NewPane(host.Window(), Rect{0, 0, kWidth, kHeight}, false,
                                           *this)) {
  if (!pane_) return;
  auto& canvas = pane_->Canvas();
  FillRect(canvas, canvas.Area(), ColourOf(SystemColour::ButtonFace));
  MakeTexts();
  // Without its lines there is nothing that the keys could write to.
  if (!txtTerm_ || !txtResult_) return;
  MakeButtons();
  ListenToTexts();
  AddTabStops();
}

DVC_Calc::~DVC_Calc() = default;

void DVC_Calc::Move(const Rect& bounds) {
  if (pane_) pane_->SetBounds(bounds);
}

void DVC_Calc::MakeTexts() {
  auto& controls = TheDesktop().controls();
  txtTerm_ = controls.NewTextBox(*pane_, kTermArea, {.multiLine = true});
  txtResult_ = controls.NewTextBox(*pane_, kResultArea, {});
  if (!txtTerm_) return;
  txtTerm_->SetColours(ColourOf(SystemColour::GrayText), std::nullopt);
  txtTerm_->SetText(kHint);
}

void DVC_Calc::MakeButtons() {
  btnShow_ = std::make_unique<ctlButton>(*pane_, kShowArea, u"Lösen & Anzeigen");
  btnOK_ = std::make_unique<ctlButton>(*pane_, kOKArea, kSolveAndSend);
  btnShow_->Click = [this] { SolveAndShow(); };
  btnOK_->Click = [this] { ClickOK(); };
  const auto& keys = CalculatorKeys();
  for (std::size_t i = 0; i < keys.size(); ++i) {
    auto key = std::make_unique<ctlButton>(
        *pane_, Rect::At(keys[i].at, {kCalculatorKeySize, kCalculatorKeySize}), keys[i].caption);
    key->SetForeColor(keys[i].colour);
    key->Click = [this, i] { ClickKey(i); };
    btnInsert_.push_back(std::move(key));
  }
}

void DVC_Calc::ListenToTexts() {
  const auto highlight = [](ctlButton& button, bool on) {
    button.LookDefault = on;
    button.Draw();
  };
  txtTerm_->events.Change = [this] { TermChanged(); };
  txtTerm_->events.Char = [this](platform::CharEvent& typed) { TermTyped(typed); };
  txtTerm_->events.Focus = [this, highlight](bool gained) {
    highlight(*btnShow_, gained);
    if (gained) TermFocused();
  };
  txtResult_->events.Focus = [this, highlight](bool gained) { highlight(*btnOK_, gained); };
  txtResult_->events.Char = [this](platform::CharEvent& typed) {
    if (typed.unit != u'\r') return;
    typed.unit = 0;
    ClickOK();
  };
}

void DVC_Calc::AddTabStops() {
  host_.AddTabStop(txtTerm_.get());
  host_.AddTabStop(btnShow_->Window());
  host_.AddTabStop(btnOK_->Window());
  host_.AddTabStop(txtResult_.get());
  for (auto& key : btnInsert_) host_.AddTabStop(key->Window());
}

void DVC_Calc::SolveAndShow() {
  std::u16string term = txtTerm_->Text();
  if (term.empty()) return;
  term = platform::ReplaceAll(term, u"mod", u"§", platform::Case::Ignore);
  double& answer = StateOf<LastAnswer>().Ans;
  const SolveEnvironment environment{TheDesktop().locale().Numbers(), TheDesktop().clock()};
  double result = 0;
  const int status = Solve(term, result, answer, nullptr, 0, -1, environment);
  if (status < 0) {
    txtResult_->SetText(SolveErrorText(status));
    return;
  }
  if (std::abs(result) < kNoise) result = 0;
  txtResult_->SetText(platform::FormatNumber(result, environment.numbers));
  answer = result;
  txtResult_->Focus();
  btnOK_->SetCaption(kSend);
}

void DVC_Calc::ClickOK() {
  // Solved on every click, so a term with "Ans" in it moves on with each.
  if (!txtTerm_->Text().empty()) SolveAndShow();
  SendToTarget(txtResult_->Text(), host_, false, 0);
}

void DVC_Calc::ClickKey(std::size_t index) {
  KeepSelection_ = true;
  TermFocused();
  KeepSelection_ = true;
  const auto tag = CalculatorKeys()[index].tag;
  Insert(tag, CaretAdvance(tag));
  txtTerm_->Focus();
}

void DVC_Calc::Insert(std::u16string_view text, int advance) {
  const int caret = txtTerm_->SelStart();
  txtTerm_->ReplaceSelection(text);
  txtTerm_->Select(caret + advance, 0);
}

void DVC_Calc::TermFocused() {
  if (HintShown_) {
    ClearHint();
  } else if (!KeepSelection_) {
    txtTerm_->Select(0, static_cast<int>(txtTerm_->Text().size()));
  }
  KeepSelection_ = false;
}

void DVC_Calc::TermTyped(platform::CharEvent& typed) {
  switch (typed.unit) {
    case u'\r':
      typed.unit = 0;
      SolveAndShow();
      return;
    case u'\x1B':
      typed.unit = 0;
      txtTerm_->SetText(u"");
      return;
    case u'*':
      typed.unit = u'×';
      return;
    case u'/':
      typed.unit = u'÷';
      return;
    case u'_':
      typed.unit = 0;
      Insert(u"(-)", 2);
      return;
    default:
      return;
  }
}

void DVC_Calc::TermChanged() {
  btnOK_->SetCaption(kSolveAndSend);
  if (HintShown_) ClearHint();
}

void DVC_Calc::ClearHint() {
  HintShown_ = false;
  txtTerm_->SetColours(ColourOf(SystemColour::WindowText), std::nullopt);
  txtTerm_->SetText(u"");
}

}  // namespace dorvalin
