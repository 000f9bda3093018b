// Drags between two of our windows and out into another program.
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

using platform::DropEffect;

class PointerChoice : public platform::DragFeedback {
 public:
  std::vector<DropEffect> asked;
  std::optional<platform::Pointer> PointerFor(DropEffect effect) override {
    if (asked.empty() || asked.back() != effect) asked.push_back(effect);
    if (effect == DropEffect::Copy) return std::nullopt;
    return platform::Pointer{platform::StandardPointer::NoDrop, {}};
  }
};

/// The drag starts from the source as soon as the pointer moves there with the button held.
class Drags : public Conformance {
 protected:
  static constexpr Rect kTarget{420, 60, 520, 220};
  static constexpr auto kOverTarget = 650ms;  // before a drag to there is planned

  Drags() {
    to_.dropEffect = DropEffect::Copy;
    target_->SetAcceptsDrops(true);
    target_->Show(ShowMode::NoActivate);
    Activate(*source_);
    from_.onMouseMove = [this] {
      if (!from_.lastMouse.left || begun_) return;
      begun_ = true;
      effect_ = source_->Drag(content_, DropEffect::Copy, &pointers_);
      ended_ = true;
    };
  }
  DropEffect DragTo(Point to) {
    PlanDrag(kOurs.Middle(), to);
    EXPECT_TRUE(Until([&] { return ended_; }));
    EXPECT_TRUE(Until([&] { return !desktop().input().ButtonDown(Button::Left); }));
    return effect_;
  }

  Listener from_, to_;
  const std::unique_ptr<TopWindow> source_ = NewWindow(from_);
  const std::unique_ptr<TopWindow> target_ = NewWindow(to_, kTarget);
  platform::DataContent content_;
  PointerChoice pointers_;

 private:
  bool begun_ = false;
  bool ended_ = false;
  DropEffect effect_ = DropEffect::None;
};

TEST_F(Drags, ARegisteredFormatAndFilesAreDraggedBetweenTwoOfOurWindows) {
  const auto format = desktop().clipboard().Register(u"Dorvalin Conformance Format");
  ASSERT_NE(format, 0u);
  content_.registered[format] = std::string("\x01\x00\xFF", 3);
  content_.files = {u"C:\\Größe €.txt", u"C:\\"};
  std::optional<std::string> bytes;
  std::vector<std::u16string> files;
  bool text = true;
  to_.onDrop = [&](const platform::DragEvent& event) {
    bytes = event.data->Registered(format);
    files = event.data->Files();
    text = event.data->OffersText();
    return DropEffect::Copy;
  };
  EXPECT_EQ(DragTo(kTarget.Middle()), DropEffect::Copy);
  EXPECT_EQ(bytes, content_.registered[format]);
  EXPECT_EQ(files, content_.files);
  EXPECT_FALSE(text) << "what was not given is not offered";
  EXPECT_EQ(to_.Count("enter"), 1);
  EXPECT_EQ(to_.Count("leave"), 0);
  EXPECT_EQ(to_.log.back(), "drop");
  EXPECT_EQ(from_.Count("left up"), 0) << "the drag takes the release";
  EXPECT_EQ(pointers_.asked, (std::vector<DropEffect>{DropEffect::None, DropEffect::Copy}))
      << "the source chooses the pointer for each effect";
}

TEST_F(Drags, OneThatIsTakenNowhereLeavesAgain) {
  content_.text = u"x";
  to_.dropEffect = DropEffect::None;
  EXPECT_EQ(DragTo(kTarget.Middle()), DropEffect::None);
  EXPECT_EQ(to_.Count("drop"), 0);
  EXPECT_EQ(to_.Count("leave"), 1);
}

TEST_F(Drags, EscapeEndsOneWithoutADrop) {
  content_.text = u"x";
  under().Later(kOverTarget, [this] { under().Stroke(platform::key::kEscape); });
  EXPECT_EQ(DragTo(kTarget.Middle()), DropEffect::None);
  EXPECT_EQ(to_.Count("enter"), 1);
  EXPECT_EQ(to_.Count("drop"), 0);
  EXPECT_EQ(to_.Count("leave"), 1);
}

TEST_F(Drags, TextIsDraggedOutIntoAnotherProgram) {
  const auto other = StartOther();
  content_.text = u"Größe";
  EXPECT_EQ(DragTo(other->Area().Middle()), DropEffect::Copy);
  EXPECT_TRUE(OtherHolds(*other, u"Größe"));
}

}  // namespace
}  // namespace conformance
