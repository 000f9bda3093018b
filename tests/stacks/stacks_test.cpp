#include <gtest/gtest.h>

#include <vector>

#include "stacks/CLongStack.h"
#include "stacks/CStringDoubleStack.h"
#include "stacks/CStringLongStringStack.h"

namespace dorvalin {
namespace {

std::vector<int> ItemsOf(const CLongStack& stack) {
  std::vector<int> items;
  for (int i = 1; i <= stack.Count(); ++i) items.push_back(stack.Item(i));
  return items;
}

CLongStack Counting(int count) {
  CLongStack stack;
  for (int i = 1; i <= count; ++i) EXPECT_EQ(stack.AddItem(i), i);
  return stack;
}

using Items = std::vector<int>;

TEST(LongStack, ItemsMoveTogetherWhenSomeAreTakenOut) {
  CLongStack stack = Counting(12);
  stack.RemoveItem(1);
  stack.RemoveItems(3, 6);
  EXPECT_EQ(ItemsOf(stack), (Items{2, 3, 10, 11, 12}));
  stack.RemoveItems(4, 100);
  EXPECT_EQ(ItemsOf(stack), (Items{2, 3, 10}));
}

TEST(LongStack, AnIndexThatIsNoItemsRemovesAndInsertsNothing) {
  CLongStack stack = Counting(3);
  for (int index : {-1, 0, 4, 11, 1000}) stack.RemoveItems(index, 1);
  for (int index : {-1, 0, 5, 1000}) stack.InsertItems(index, 2, 9);
  stack.RemoveItems(2, 0);
  stack.RemoveItems(2, -1);
  stack.InsertItems(2, -1, 9);
  EXPECT_EQ(ItemsOf(stack), (Items{1, 2, 3}));
}

TEST(LongStack, InsertedItemsOpenAGapInFrontOfTheIndexAlsoAcrossABlock) {
  CLongStack stack = Counting(4);
  stack.InsertItems(2, 8, -1);
  EXPECT_EQ(ItemsOf(stack), (Items{1, -1, -1, -1, -1, -1, -1, -1, -1, 2, 3, 4}));
  stack.InsertItems(13, 1, 5);
  EXPECT_EQ(stack.Item(13), 5);
}

TEST(LongStack, RoomGrowsByTensAndOutsideOfItReadsAsZero) {
  CLongStack stack;
  stack.SetItem(10, 7);  // The first block is there before any item.
  stack.SetItem(11, 8);
  EXPECT_EQ(stack.Item(10), 7);
  EXPECT_EQ(stack.Item(11), 0);
  stack.SetCount(11);
  EXPECT_EQ(stack.Item(10), 7);
  stack.SetItem(20, 8);
  EXPECT_EQ(stack.Item(20), 8);
  stack.SetCount(-5);
  EXPECT_EQ(stack.Count(), 0);
  EXPECT_EQ(stack.Item(20), 0);
  EXPECT_EQ(stack.Item(0), 0);
  EXPECT_EQ(stack.Item(-1), 0);
}

TEST(StringDoubleStack, NamesAreStoredTrimmedInLowerCaseAndFoundOnlyAsStored) {
  CStringDoubleStack stack;
  EXPECT_EQ(stack.AddItem(1, u"  Breite "), 1);
  EXPECT_EQ(stack.AddItem(2, u"HÖHE"), 2);
  EXPECT_EQ(stack.ItemText(1), u"breite");
  EXPECT_EQ(stack.ItemFromText(u"höhe"), 2);
  EXPECT_EQ(stack.ItemFromText(u"Höhe"), 0);
  EXPECT_EQ(stack.ItemFromText(u""), 0) << "free room behind the last item is no item";
}

TEST(StringDoubleStack, AddingANameAgainFollowsTheFlags) {
  CStringDoubleStack stack;
  stack.AddItem(1, u"a");
  EXPECT_EQ(stack.AddItem(2, u"a", true, true), 0) << "the first flag wins";
  EXPECT_EQ(stack.ItemValue(1), 1);
  EXPECT_EQ(stack.AddItem(3, u"a", false, true), 1);
  EXPECT_EQ(stack.ItemValue(1), 3);
  // The text is compared as it stands, but stored in lower case: another spelling is not found.
  EXPECT_EQ(stack.AddItem(4, u"A", true, false), 2);
  EXPECT_EQ(stack.AddItem(5, u"a"), 3);
  EXPECT_EQ(stack.ItemFromText(u"a"), 1);
}

TEST(StringLongStringStack, ItemsAreAppendedOrPutInFrontOfAnother) {
  CStringLongStringStack stack;
  for (int i = 1; i <= 10; ++i) EXPECT_EQ(stack.AddItem(0, i, u"t", u"d"), i);
  EXPECT_EQ(stack.AddItem(1, 0, u"Öffnen", u"open"), 1);
  EXPECT_EQ(stack.AddItem(12, 11, u"last"), 12);
  EXPECT_EQ(stack.AddItem(14, 99, u"nowhere"), 0);
  EXPECT_EQ(stack.AddItem(-1, 99, u"nowhere"), 0);
  EXPECT_EQ(stack.Count(), 12);
  for (int i = 1; i <= 12; ++i) EXPECT_EQ(stack.ItemIndex(i), i - 1);
  EXPECT_EQ(stack.ItemText(1), u"Öffnen");
  EXPECT_EQ(stack.ItemData(1), u"open");
  EXPECT_EQ(stack.ItemData(12), u"");
  EXPECT_EQ(stack.ItemText(100), u"");
}

}  // namespace
}  // namespace dorvalin
