// The physical state of buttons and keys, single key events, and text that is typed.
#include "platform/input.h"

#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

namespace key = platform::key;
using KeyEdge = platform::Input::KeyEdge;

class Input : public Conformance {
 protected:
  platform::Input& input() { return desktop().input(); }
};

TEST_F(Input, AButtonIsDownFromItsPressToItsReleaseWhereverThePointerIs) {
  const auto other = StartOther();
  const Button kButtons[] = {Button::Left, Button::Right, Button::Middle};
  under().MoveTo(other->Area().Middle());
  for (const Button button : kButtons) {
    SCOPED_TRACE(static_cast<int>(button));
    under().Press(button);
    for (const Button each : kButtons) {
      EXPECT_TRUE(Until([&] { return input().ButtonDown(each) == (each == button); }));
    }
    under().Release(button);
    EXPECT_TRUE(Until([&] { return !input().ButtonDown(button); }));
  }
  // A menu of the other program.
  PressKey(key::kEscape);
}

TEST_F(Input, AnInjectedKeyIsDownAndReachesTheWindowThatHasTheKeyboard) {
  const auto other = StartOther();
  const auto inject = [&](int virtualKey, int scanCode, KeyEdge edge) {
    input().InjectKey(virtualKey, scanCode, false, edge);
    Settle();
  };
  inject(key::kShift, 0x2A, KeyEdge::Down);
  EXPECT_TRUE(input().KeyDown(key::kShift));
  EXPECT_EQ(input().ModifiersDown(), (platform::Modifiers{.shift = true}));
  inject('A', 0x1E, KeyEdge::Down);
  inject('A', 0x1E, KeyEdge::Up);
  inject(key::kShift, 0x2A, KeyEdge::Up);
  EXPECT_FALSE(input().ModifiersDown().Any());
  inject('B', 0x30, KeyEdge::Down);
  inject('B', 0x30, KeyEdge::Up);
  EXPECT_TRUE(OtherHolds(*other, u"Ab"));
}

TEST_F(Input, ModifiersThatTheUserHoldsDoNotMixIntoTypedText) {
  for (const int held : {key::kShift, key::kControl, key::kAlt}) {
    SCOPED_TRACE(held);
    const auto other = StartOther();
    under().KeyDown(held);
    EXPECT_TRUE(Type(u"größer{ENTER}xy{LEFT}a"));
    EXPECT_TRUE(input().KeyDown(held)) << "the user still holds it";
    under().KeyUp(held);
    EXPECT_TRUE(Until([&] { return other->Text().size() >= 11; }));
    EXPECT_EQ(platform::ToUtf8(other->Text()), platform::ToUtf8(u"größer\r\nxay"));
  }
}

}  // namespace
}  // namespace conformance
