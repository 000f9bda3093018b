// What the user finds in the quick text panel at the first start.

#include <algorithm>

#include "platform/memory/Rtf.h"
#include "platform/text.h"
#include "quicktext/CPhraseGroup.h"
#include "quicktext/phrase_file.h"
#include "quicktext/placeholders.h"
#include "tests/support/WithData.h"
#include "tests/support/delivered.h"

namespace dorvalin {
namespace {

class DeliveredGroups : public WithData {
 protected:
  void SetUp() override {
    for (const auto& [name, bytes] : DeliveredFiles(DORVALIN_DATA "/Phrases")) {
      files.Put(u"C:\\Programme\\Dorvalin\\Phrases\\" + platform::FromUtf8(name) + u".dvp", bytes);
    }
    InitPhraseGroups();
    for (const auto& group : PhraseGroups()) group->Init();
  }
};

TEST_F(DeliveredGroups, AreSeededAndReadBackAsTheyWereWritten) {
  EXPECT_EQ(PhraseGroups().size(), 4u);
  for (const auto& group : PhraseGroups()) {
    EXPECT_GE(group->Phrases->size(), 5u) << platform::ToUtf8(group->Title);
    EXPECT_EQ(BytesFromPhrases(*group->Phrases), files.BytesOf(group->File))
        << platform::ToUtf8(group->Title);
  }
  EXPECT_TRUE(Messages().empty());
}

TEST_F(DeliveredGroups, HoldElementsThatCanBeUsed) {
  for (const auto& group : PhraseGroups()) {
    for (const auto& phrase : *group->Phrases) {
      SCOPED_TRACE(platform::ToUtf8(group->Title + u": " + phrase->Text));
      EXPECT_FALSE(phrase->Text.empty());
      EXPECT_LE(std::ranges::count(phrase->Text, u'|'), 1) << "one place for the caret";
      EXPECT_EQ(platform::ToWindows1252(phrase->Text).find('?'), std::string::npos);
      const auto expanded = ExpandPlaceholders(phrase->Text, true);
      EXPECT_EQ(expanded.find(u'%'), expanded.npos) << "an unknown placeholder";
      const auto first = expanded.substr(0, expanded.find(u"\r\n"));
      EXPECT_FALSE(platform::Trim(first).empty()) << "the list shows the first line";
    }
  }
}

TEST_F(DeliveredGroups, FormattedElementsSayTheSameInBothForms) {
  int formatted = 0;
  for (const auto& group : PhraseGroups()) {
    for (const auto& phrase : *group->Phrases) {
      if (phrase->RTFText.empty()) continue;
      ++formatted;
      const auto source = platform::ToWindows1252(phrase->RTFText);
      SCOPED_TRACE(source);
      EXPECT_EQ(std::ranges::count(source, '{'), std::ranges::count(source, '}'));
      const auto rich = platform::ReadRtf(source, {});
      ASSERT_TRUE(rich);
      EXPECT_EQ(platform::ToUtf8(rich->text), platform::ToUtf8(phrase->Text));
    }
  }
  EXPECT_GE(formatted, 5);
}

}  // namespace
}  // namespace dorvalin
