// CatalogueSearchTest.cpp - windows found by words.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/FileOperations.h"
#include "teskarlt/catalogue/CatalogueSearch.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CatalogueSearchTest : public testing::Test {
 protected:
  CatalogueSearchTest() {
    platform::WriteWholeFile(path,
                             "VYROBCE Běla\nOL 78x140; 78; 140; ; ; D; kyvné okno\nJitřenka; 60\nVYROBCE "
                             "Øresund\nOL 78x118; 78\n");
    catalogue = ReadCatalogue(path);
  }
  ~CatalogueSearchTest() override { platform::CurrentFileOperations().remove(path); }

  std::vector<std::string_view> Keys(const char* text) const {
    std::vector<std::string_view> keys;
    for (const CatalogueItem* item : FindItems(catalogue, text))
      keys.push_back(item->key);
    return keys;
  }

  std::string path = "catalogue_search_test.LIB";
  Catalogue catalogue;
};

TEST_F(CatalogueSearchTest, WordsAreSoughtInMakerKeyAndDescription) {
  EXPECT_THAT(Keys("OL"), ElementsAre("OL 78x140", "OL 78x118"));
  EXPECT_THAT(Keys("Běla"), ElementsAre("OL 78x140", "Jitřenka"));
  EXPECT_THAT(Keys("okno"), ElementsAre("OL 78x140"));
}

TEST_F(CatalogueSearchTest, CaseAndAccentsDoNotMatter) {
  EXPECT_THAT(Keys("BELA kyvne"), ElementsAre("OL 78x140"));
  EXPECT_THAT(Keys("jitrenka"), ElementsAre("Jitřenka"));
  EXPECT_THAT(Keys("ØRESUND"), ElementsAre("OL 78x118"));
  EXPECT_THAT(Keys("oresund"), ElementsAre("OL 78x118"));
}

TEST_F(CatalogueSearchTest, WindowHasAllWordsInAnyOrder) {
  EXPECT_THAT(Keys("140 bela ol"), ElementsAre("OL 78x140"));
  EXPECT_THAT(Keys("140 oresund"), IsEmpty());
}

TEST_F(CatalogueSearchTest, NothingIsFoundForNoWords) {
  EXPECT_THAT(Keys("  "), IsEmpty());
}

TEST(PlainLetters, AreSmallOnesWithoutAccents) {
  EXPECT_EQ(PlainLetters("ŠÍŘKA Ÿ ß Łódź"), "sirka y s lodz");
  EXPECT_EQ(PlainLetters("ЖЖ × ž\xFF"), PlainLetters("жж × z\xFF"));
  EXPECT_EQ(PlainLetters("×"), "×");
}

}  // namespace
}  // namespace teskarlt
