// BrevantaSetTest.cpp - the ordered, owning list of items.
#include <memory>

#include <gtest/gtest.h>

#include "arx/merge/BrevantaSet.h"

namespace brevanta {
namespace {

CBrevantaItem* NewItem(const char* section, const char* key, const char* line = "") {
  auto* item = new CBrevantaItem;
  item->section = CString(section);
  item->key = CString(key);
  item->line = CString(line);
  return item;
}

TEST(CBrevantaItem, StartsEmptyAtIndexZero) {
  const CBrevantaItem item;
  EXPECT_EQ(item.index, 0U);
  EXPECT_TRUE(item.section.IsEmpty());
  EXPECT_TRUE(item.key.IsEmpty());
  EXPECT_TRUE(item.line.IsEmpty());
}

TEST(CBrevantaSet, AddAppendsWithoutLookingForTheSameItem) {
  CBrevantaSet set;
  EXPECT_EQ(set.Add(NewItem("VYROBCE A", "k")), 0);
  EXPECT_EQ(set.Add(NewItem("VYROBCE A", "k")), 1);
  EXPECT_EQ(set.GetCount(), 2);
  EXPECT_EQ(set.GetItem(1)->index, 0U);
}

TEST(CBrevantaSet, AddUniqueRefusesAnItemOfTheSameSectionAndKey) {
  CBrevantaSet set;
  set.Add(NewItem("VYROBCE A", "k", "k; 1"));
  const std::unique_ptr<CBrevantaItem> same(NewItem("VYROBCE A", "k", "k; 2"));
  EXPECT_FALSE(set.AddUnique(same.get()));
  EXPECT_EQ(set.GetCount(), 1);
  EXPECT_STREQ(set.GetItem(0)->line.GetString(), "k; 1");
}

TEST(CBrevantaSet, AddUniqueTakesTheSameKeyInAnotherSection) {
  CBrevantaSet set;
  set.Add(NewItem("VYROBCE A", "k"));
  EXPECT_TRUE(set.AddUnique(NewItem("VYROBCE B", "k")));
  EXPECT_EQ(set.GetCount(), 2);
}

TEST(CBrevantaSet, AddUniqueTakesAKeyThatDiffersInCase) {
  CBrevantaSet set;
  set.Add(NewItem("VYROBCE A", "k"));
  EXPECT_TRUE(set.AddUnique(NewItem("VYROBCE A", "K")));
}

TEST(CBrevantaSet, AddUniqueStoresThePositionInTheItem) {
  CBrevantaSet set;
  set.Add(NewItem("VYROBCE A", "k"));
  set.AddUnique(NewItem("VYROBCE A", "l"));
  EXPECT_EQ(set.GetItem(1)->index, 1U);
}

TEST(CBrevantaSet, AddUniquePassesOverMissingItems) {
  CBrevantaSet set;
  set.Add(nullptr);
  EXPECT_TRUE(set.AddUnique(NewItem("VYROBCE A", "k")));
}

TEST(CBrevantaSet, GetItemOutsideGivesNull) {
  CBrevantaSet set;
  set.Add(NewItem("VYROBCE A", "k"));
  EXPECT_NE(set.GetItem(0), nullptr);
  EXPECT_EQ(set.GetItem(1), nullptr);
  EXPECT_EQ(set.GetItem(UINT32_MAX), nullptr);
}

TEST(CBrevantaSet, RemovedItemIsTheRemovers) {
  CBrevantaSet set;
  set.Add(NewItem("VYROBCE A", "k"));
  set.Add(NewItem("VYROBCE A", "l"));
  const std::unique_ptr<CBrevantaItem> removed(set.GetItem(0));
  set.RemoveAt(0, 1);
  EXPECT_STREQ(removed->key.GetString(), "k");
  EXPECT_STREQ(set.GetItem(0)->key.GetString(), "l");
}

TEST(CBrevantaSet, DestroyedSetFreesItsItems) {
  const CString section("VYROBCE A");
  auto set = std::make_unique<CBrevantaSet>();
  set->Add(NewItem("VYROBCE A", "k"));
  set->Add(nullptr);
  set.reset();  // the leak check of the sanitizer build looks at the item
}

TEST(CBrevantaSet, KeepsTheRuntimeClassOfTheArray) {
  const CBrevantaSet set;
  const CPtrArray array;
  EXPECT_EQ(set.GetRuntimeClass(), array.GetRuntimeClass());
}

TEST(CBrevantaSet, IsDestroyedThroughItsBase) {
  std::unique_ptr<CObject> object = std::make_unique<CBrevantaSet>();
  static_cast<CBrevantaSet&>(*object).Add(NewItem("VYROBCE A", "k"));
  object->AssertValid();
  object.reset();
}

TEST(IsSame, ComparesExactly) {
  EXPECT_EQ(IsSame(CString("a"), CString("a")), 1);
  EXPECT_EQ(IsSame(CString("a"), CString("A")), 0);
  EXPECT_EQ(IsDifferent(CString("a"), CString("a")), 0);
  EXPECT_EQ(IsDifferent(CString("a"), CString("a ")), 1);
}

}  // namespace
}  // namespace brevanta
