// What typing promises beside the long story: the user's own modifiers stay out of it.
#include "platform/input.h"
#include "platform/keystrokes.h"
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

class Typing : public Conformance {};

TEST_F(Typing, ModifiersThatTheUserHoldsDoNotMixIn) {
  for (const int held : {platform::key::kShift, platform::key::kControl, platform::key::kAlt}) {
    SCOPED_TRACE(held);
    const auto other = StartOther();
    ASSERT_TRUE(OtherHasForeground());
    under().KeyDown(held);
    const auto strokes = platform::ParseKeystrokes(u"größer{ENTER}xy{LEFT}a");
    ASSERT_TRUE(strokes);
    EXPECT_TRUE(desktop().input().Type(*strokes));
    EXPECT_TRUE(desktop().input().KeyDown(held)) << "the user still holds it";
    under().KeyUp(held);
    EXPECT_TRUE(Until([&] { return other->Text().size() >= 11; }));
    EXPECT_EQ(platform::ToUtf8(other->Text()), platform::ToUtf8(u"größer\r\nxay"));
  }
}

}  // namespace
}  // namespace conformance
