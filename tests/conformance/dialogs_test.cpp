// Message boxes and the font dialog: the program's own part of them, and what goes on meanwhile.
// The user's keys come from their nested loop itself, one at each tick, however late a busy machine
// gets there.
#include "platform/dialogs.h"

#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

using platform::Answer;
using platform::MessageButtons;
namespace key = platform::key;

class Dialogs : public WithWindow {
 protected:
  Answer Show(MessageButtons buttons, std::vector<int> keys) {
    Begin(std::move(keys));
    const Answer answer = desktop().dialogs().ShowMessage({.text = u"Größe ändern?",
                                                           .title = u"Frage",
                                                           .buttons = buttons,
                                                           .icon = platform::MessageIcon::Question,
                                                           .owner = window.get()});
    inLoop_->SetEnabled(false);
    return answer;
  }
  std::optional<platform::FontChoice> Choose(const platform::FontChoice& start, int pressed) {
    Begin({pressed});
    auto choice = desktop().dialogs().ChooseFont(start, window.get());
    inLoop_->SetEnabled(false);
    return choice;
  }
  void Begin(std::vector<int> keys) {
    keys_ = std::move(keys);
    step_ = 0;
    inLoop_->SetEnabled(true);
  }
  void Tick() {
    if (step_ == 0) {
      ownerWasEnabled_ = window->Enabled();
      foreground_ = desktop().windows().ForegroundWindow();
    }
    if (step_ < keys_.size()) under().Stroke(keys_[step_]);
    ++step_;
    if (onTick_) onTick_();
  }

  const std::unique_ptr<platform::Timer> inLoop_ =
      desktop().pump().NewTimer(50, [this] { Tick(); });
  std::vector<int> keys_;
  std::size_t step_ = 0;  // ticks of the loop so far
  std::function<void()> onTick_;
  bool ownerWasEnabled_ = true;
  platform::Foreground foreground_;
};

TEST_F(Dialogs, EachStyleHasItsButtons) {
  const struct {
    const char* what;
    MessageButtons buttons;
    std::vector<int> keys;
    Answer answer;
  } kCases[] = {
      {"OK by Enter", MessageButtons::Ok, {key::kEnter}, Answer::Ok},
      {"OK by Escape", MessageButtons::Ok, {key::kEscape}, Answer::Ok},
      {"OK of two", MessageButtons::OkCancel, {key::kEnter}, Answer::Ok},
      {"Cancel of two", MessageButtons::OkCancel, {key::kTab, key::kEnter}, Answer::Cancel},
      {"Cancel of two by Escape", MessageButtons::OkCancel, {key::kEscape}, Answer::Cancel},
      {"Yes of three", MessageButtons::YesNoCancel, {key::kEnter}, Answer::Yes},
      {"No of three", MessageButtons::YesNoCancel, {key::kTab, key::kEnter}, Answer::No},
      {"Cancel of three", MessageButtons::YesNoCancel, {key::kLeft, key::kEnter}, Answer::Cancel},
      {"Escape of three", MessageButtons::YesNoCancel, {key::kEscape}, Answer::Cancel},
      {"No of two", MessageButtons::YesNo, {key::kRight, key::kSpace}, Answer::No},
      {"Escape is no No", MessageButtons::YesNo, {key::kEscape, key::kEnter}, Answer::Yes},
  };
  for (const auto& [what, buttons, keys, answer] : kCases) {
    SCOPED_TRACE(what);
    // Under Wine it answers a box without a Cancel button.
    if (under().OnWine() && keys.front() == key::kEscape && buttons == MessageButtons::YesNo) {
      EXPECT_EQ(Show(buttons, keys), Answer::No);
      continue;
    }
    EXPECT_EQ(Show(buttons, keys), answer);
    EXPECT_EQ(step_, keys.size()) << "as many ticks as keys";
  }
}

TEST_F(Dialogs, WhileOneStandsTheOwnerIsDisabledAndNoneOfOursIsInFront) {
  Show(MessageButtons::YesNo, {key::kEnter});
  EXPECT_FALSE(ownerWasEnabled_);
  EXPECT_TRUE(foreground_.present);
  EXPECT_EQ(foreground_.ours, nullptr);
  EXPECT_TRUE(window->Enabled());
  EXPECT_TRUE(HasForeground(*window)) << "the activation comes back";
  EXPECT_EQ(listener.Count("key 13"), 0) << "its keys are not the owner's";
  window->SetEnabled(false);
  Show(MessageButtons::Ok, {key::kEnter});
  // Wine enables it whatever it was.
  EXPECT_EQ(window->Enabled(), under().OnWine()) << "one that was disabled before stays so";
}

TEST_F(Dialogs, ABoxGoesWithItsOwner) {
  onTick_ = [this] { window->Close(); };
  EXPECT_EQ(Show(MessageButtons::YesNo, {}), Answer::No);
  EXPECT_EQ(step_, 1u);
}

TEST_F(Dialogs, AFontIsTakenOrLeft) {
  const platform::FontChoice start{
      {.face = u"Tahoma", .points = 12, .bold = true, .italic = true, .strikeOut = true}, 0x0000FF};
  EXPECT_FALSE(Choose(start, key::kEscape));
  EXPECT_FALSE(ownerWasEnabled_);
  const auto choice = Choose(start, key::kEnter);
  ASSERT_TRUE(choice);
  EXPECT_EQ(choice->font, start.font) << platform::ToUtf8(choice->font.face);
  EXPECT_EQ(choice->colour, start.colour);
}

}  // namespace
}  // namespace conformance
