// What the user finds in the quick text panel at the first start.

#include <algorithm>
#include <regex>

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

bool IsBalanced(const std::string& rtf) {
  int depth = 0;
  for (const char c : rtf) {
    depth += (c == '{') - (c == '}');
    if (depth < 0) return false;
  }
  return depth == 0;
}

/// The text that a reader of simple Rich Text source sees.
std::string VisibleText(const std::string& rtf) {
  std::string text =
      std::regex_replace(rtf, std::regex(R"(\{\\(fonttbl|colortbl)[^}]*(\{[^}]*\})*[^}]*\})"), "");
  std::string visible;
  std::smatch match;
  const std::regex hex(R"(\\'([0-9a-f]{2}))"), word(R"(\\[a-z]+-?[0-9]* ?)");
  while (!text.empty()) {
    if (std::regex_search(text, match, hex, std::regex_constants::match_continuous)) {
      visible += static_cast<char>(std::stoi(match[1], nullptr, 16));
    } else if (std::regex_search(text, match, word, std::regex_constants::match_continuous)) {
      if (match.str() == "\\par" || match.str() == "\\par ") visible += "\r\n";
    } else {
      if (std::string_view("{}\r\n").find(text[0]) == std::string::npos) visible += text[0];
      text.erase(0, 1);
      continue;
    }
    text.erase(0, match.length());
  }
  return visible;
}

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
      const auto rtf = platform::ToWindows1252(phrase->RTFText);
      SCOPED_TRACE(rtf);
      EXPECT_TRUE(rtf.starts_with("{\\rtf1\\ansi"));
      EXPECT_TRUE(IsBalanced(rtf));
      EXPECT_EQ(rtf.find('|'), rtf.npos);
      EXPECT_EQ(VisibleText(rtf), platform::ToWindows1252(phrase->Text) + "\r\n");
    }
  }
  EXPECT_GE(formatted, 5);
}

}  // namespace
}  // namespace dorvalin
