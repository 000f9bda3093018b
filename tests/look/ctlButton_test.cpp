#include "look/ctlButton.h"

#include "core/colours.h"
#include "look/ButtonSkin.h"
#include "tests/look/LookTest.h"

namespace dorvalin {
namespace {

using platform::Button;
using platform::Pixel;
using platform::Point;
using platform::Rect;
using platform::Surface;

class AButton : public LookTest {
 protected:
  static constexpr Rect kPlace{20, 20, 100, 45};

  AButton() {
    button.Click = [this] { log += "Click "; };
    button.Down = [this] { log += "Down "; };
  }
  Point Middle() const { return OnScreen(kPlace).Middle(); }
  Point Outside() const { return OnScreen(kPlace).Origin() - Point{5, 5}; }
  static bool Same(const Surface& a, const Surface& b) {
    return std::equal(a.Row(0), a.Row(0) + a.Width() * a.Height(), b.Row(0));
  }
  /// Whether it looks now as the cell of the skin at that height, at its left rim.
  bool ShowsCell(int top) {
    Surface cell(button.hdc().Size());
    DrawSkin(cell, cell.Area(),
             {.pressed = top == 30,
              .keptDown = top == 150,
              .isDefault = top == 60 || top == 120,
              .hover = top == 0 || top == 120});
    return std::equal(cell.Row(10), cell.Row(10) + 3, button.hdc().Row(10));
  }
  int PixelsOf(platform::Colour colour) const {
    int count = 0;
    for (int y = 0; y < button.hdc().Height(); ++y)
      for (int x = 0; x < button.hdc().Width(); ++x)
        count += (button.hdc().At({x, y}) & 0xFFFFFF) == platform::PixelFromColour(colour);
    return count;
  }

  ctlButton button{*window, kPlace, u"Eingeben"};
  std::string log;
};

TEST_F(AButton, LightsUpUnderThePointerAndClicksWhenReleasedThere) {
  EXPECT_TRUE(ShowsCell(90));
  user.MoveTo(Middle());
  EXPECT_TRUE(ShowsCell(0));
  user.Press();
  EXPECT_EQ(log, "Down ");
  EXPECT_TRUE(ShowsCell(30));
  user.Release();
  EXPECT_EQ(log, "Down Click ");
  EXPECT_TRUE(ShowsCell(0));
  user.MoveTo(Outside());
  user.Wait(20ms);
  EXPECT_TRUE(ShowsCell(90));
}

TEST_F(AButton, DoesNothingWhenReleasedOutside) {
  user.MoveTo(Middle());
  user.Press();
  user.MoveTo(Outside());
  EXPECT_FALSE(button.Pressed);
  user.MoveTo(Middle());
  EXPECT_TRUE(button.Pressed);
  user.MoveTo(Outside());
  user.Release();
  EXPECT_EQ(log, "Down ");
  EXPECT_FALSE(button.Pressed);
}

TEST_F(AButton, TakesSpaceAndEnter) {
  button.Window()->Focus();
  user.KeyDown(platform::key::kSpace);
  EXPECT_EQ(log, "Down ");
  EXPECT_TRUE(button.Pressed);
  user.KeyUp(platform::key::kSpace);
  EXPECT_EQ(log, "Down Click ");
  EXPECT_FALSE(button.Pressed);
  log.clear();
  user.Key(platform::key::kEnter);
  EXPECT_EQ(log, "Click ");
}

TEST_F(AButton, ForgetsAPressedSpaceWhenTheFocusGoes) {
  ctlButton other(*window, {20, 60, 100, 85}, u"Abbrechen");
  button.Window()->Focus();
  user.KeyDown(platform::key::kSpace);
  other.Window()->Focus();
  EXPECT_FALSE(button.Pressed);
  user.KeyUp(platform::key::kSpace);
  EXPECT_EQ(log, "Down ");
}

TEST_F(AButton, IsGreyAndDeafWhileDisabled) {
  button.SetEnabled(false);
  user.Click(Middle());
  EXPECT_EQ(log, "");
  EXPECT_GT(PixelsOf(0x808080), 20);
  button.SetForeColor(0x0000FF);
  EXPECT_EQ(PixelsOf(0x0000FF), 0);
  button.SetEnabled(true);
  EXPECT_GT(PixelsOf(0x0000FF), 20);
}

TEST_F(AButton, FlashesGreenForAMoment) {
  const Surface before = button.hdc().Clone();
  button.FlashGreen();
  for (const Point p : {Point{0, 0}, {40, 12}, {79, 24}})
    for (int shift = 0; shift < 24; shift += 8)
      EXPECT_EQ(
          (button.hdc().At(p) >> shift) & 0xFF,
          MixByte(shift == 8 ? 255 : 0, static_cast<std::uint8_t>(before.At(p) >> shift), 200));
  user.Wait(290ms);
  EXPECT_FALSE(Same(before, button.hdc()));
  user.Wait(50ms);
  EXPECT_TRUE(Same(before, button.hdc()));
}

TEST_F(AButton, ShiftsItsCaptionByOnePixelWhilePressed) {
  button.NoStyle = true;
  button.Draw();
  const Surface before = button.hdc().Clone();
  button.Pressed = true;
  button.Draw();
  Surface shifted(before.Size());
  FillRect(shifted, shifted.Area(), platform::ColourFromPixel(before.At({0, 0})));
  BitBlt(shifted, Rect::At({1, 1}, before.Size()), before, {}, platform::RasterOp::SrcCopy);
  EXPECT_TRUE(Same(shifted, button.hdc()));
}

TEST_F(AButton, MayBeDestroyedWithItsHandlerInAClick) {
  auto doomed = std::make_unique<ctlButton>(*window, Rect{20, 60, 100, 85}, u"Schließen");
  doomed->Click = [&] {
    log += "Click ";
    window->Close();
  };
  user.Click(OnScreen({20, 60, 100, 85}).Middle());
  EXPECT_EQ(log, "Click ");
}

TEST_F(AButton, IsLitByADragOverItButTakesNothing) {
  platform::DataContent text;
  text.text = u"abc";
  user.MoveTo(Outside());
  user.Press();
  user.Later(10ms, [&] { desktop.input().HandMoves(Middle()); });
  user.Later(20ms, [&] { EXPECT_TRUE(ShowsCell(0)); });
  user.Later(30ms, [&] { desktop.input().HandReleases(Button::Left); });
  EXPECT_EQ(window->Drag(text, platform::DropEffect::Copy, nullptr), platform::DropEffect::None);
  EXPECT_EQ(log, "");
}

class AskingForm : public platform::Form {
 public:
  AskingForm() : Form("frmAsking", {}) {}
  int clicks = 0;
  std::unique_ptr<ctlButton> yes, no;

 protected:
  void OnLoad() override {
    Window().SetBounds({300, 300, 500, 400});
    yes = std::make_unique<ctlButton>(Window(), Rect{10, 10, 90, 35}, u"&Ja");
    no = std::make_unique<ctlButton>(Window(), Rect{100, 10, 180, 35}, u"Lösen & Anzeigen");
    yes->Click = [this] { ++clicks; };
    yes->JoinForm(*this);
    no->JoinForm(*this);
  }
};

TEST_F(AButton, ClicksByItsAccessKeyWhileEnabled) {
  auto* form = platform::TheForms().Load(std::make_unique<AskingForm>());
  form->Show();
  user.Key('J', {.alt = true});
  EXPECT_EQ(form->clicks, 1);
  form->yes->SetEnabled(false);
  user.Key('J', {.alt = true});
  EXPECT_EQ(form->clicks, 1);
  form->Unload();
}

struct CellCase {
  const char* label;
  ButtonState state;
  int top;
};

TEST(ButtonSkin, TheFirstConditionThatHoldsChoosesTheCell) {
  const CellCase kCells[] = {
      {"pressed before all", {true, true, true, true, true}, 30},
      {"its menu is open", {false, true, true, true, true}, 150},
      {"default, under the pointer", {false, false, true, true, true}, 120},
      {"default", {false, false, true, true, false}, 60},
      {"under the pointer", {false, false, false, true, true}, 0},
      {"a disabled default button is no default button", {false, false, true, false, false}, 90},
      {"disabled", {false, false, false, false, false}, 90},
      {"at rest", {}, 90},
  };
  for (const CellCase& c : kCells) {
    const SkinCell cell = CellOf(c.state);
    EXPECT_EQ(cell.top, c.top) << c.label;
    const bool sunken = c.top == 30 || c.top == 150;
    EXPECT_EQ(cell.margins.Top, sunken ? 8 : 6) << c.label;
    EXPECT_EQ(cell.margins.Bottom, sunken ? 6 : 8) << c.label;
  }
}

}  // namespace
}  // namespace dorvalin
