// ItemIndexTest.cpp - the index answers what a walk over the set would.
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "arx/merge/ItemIndex.h"

namespace brevanta {
namespace {

using testing::ElementsAre;

class ItemIndexTest : public testing::Test {
 protected:
  // Adds an item to set and index unless its section and key are there; true when it was added.
  bool Add(const std::string& header, const std::string& key) {
    const ItemIndex::Section section = index.NumberSection(header);
    if (index.NoteKey(section, key)) return false;
    auto item = std::make_unique<CBrevantaItem>();
    item->section = index.SectionName(section);
    item->key = CString(std::string_view(key));
    index.NoteItem(section);
    set.Add(item.release());
    return true;
  }

  std::vector<std::uint32_t> Positions(const std::string& header) const {
    std::vector<std::uint32_t> positions;
    const ItemIndex::Section section = index.FindSection(header);
    if (section == ItemIndex::NO_SECTION) return positions;
    for (std::uint32_t i = index.FirstItem(section); i != ItemIndex::NO_ITEM; i = index.NextItem(i))
      positions.push_back(i);
    return positions;
  }

  CBrevantaSet set;
  ItemIndex index{set};
};

TEST_F(ItemIndexTest, SectionsAreNumberedOnce) {
  EXPECT_EQ(index.NumberSection("VYROBCE A"), 0U);
  EXPECT_EQ(index.NumberSection("VYROBCE B"), 1U);
  EXPECT_EQ(index.NumberSection("VYROBCE A"), 0U);
  EXPECT_EQ(index.FindSection("VYROBCE B"), 1U);
  EXPECT_EQ(index.FindSection("VYROBCE C"), ItemIndex::NO_SECTION);
}

TEST_F(ItemIndexTest, ItemsOfASectionComeInTheOrderOfTheSet) {
  Add("VYROBCE A", "k");
  Add("VYROBCE B", "k");
  Add("VYROBCE A", "l");
  EXPECT_THAT(Positions("VYROBCE A"), ElementsAre(0, 2));
  EXPECT_THAT(Positions("VYROBCE B"), ElementsAre(1));
  EXPECT_THAT(Positions("VYROBCE C"), ElementsAre());
}

TEST_F(ItemIndexTest, SectionWithoutItemsHasNone) {
  index.NumberSection("VYROBCE A");
  EXPECT_THAT(Positions("VYROBCE A"), ElementsAre());
}

TEST_F(ItemIndexTest, AgreesWithAddUniqueOnRandomItems) {
  std::mt19937 random(52);
  CBrevantaSet walked;
  int refused = 0;
  for (int i = 0; i < 3000; ++i) {
    const std::string header = "VYROBCE " + std::to_string(random() % 7);
    const std::string key = std::to_string(random() % 300);
    auto item = std::make_unique<CBrevantaItem>();
    item->section = CString(std::string_view(header));
    item->key = CString(std::string_view(key));
    const bool added = walked.AddUnique(item.get());
    if (added) static_cast<void>(item.release());
    ASSERT_EQ(Add(header, key), added);
    refused += added ? 0 : 1;
  }
  EXPECT_EQ(set.GetCount(), walked.GetCount());
  EXPECT_GT(refused, 500);
}

}  // namespace
}  // namespace brevanta
