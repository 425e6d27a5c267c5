// FindCatalogueItemTest.cpp - positions of items in a catalogue file.
#include <string>

#include <gtest/gtest.h>

#include "Files.h"
#include "arx/merge/FindCatalogueItem.h"
#include "platform/ModuleState.h"

namespace brevanta {
namespace {

class FindItem : public testing::Test {
 protected:
  std::int32_t Find(const char* key, const char* qualifier = "Alfa") const {
    return FindCatalogueItem("VYROBCE", (folder / "BREVANTA.LIB").c_str(), qualifier, key);
  }
  void Write(std::string_view text) const { WriteBytes(folder / "BREVANTA.LIB", text); }

  TestFolder folder;
};

TEST_F(FindItem, CountsTheItemsBehindTheHeader) {
  Write("VYROBCE+ Alfa\na1; 78\na2; 94\na3; 114\n");
  EXPECT_EQ(Find("a1"), 0);
  EXPECT_EQ(Find("a3"), 2);
  EXPECT_EQ(Find("a4"), -1);
}

TEST_F(FindItem, HeaderMayHaveAMinusSign) {
  Write("VYROBCE- Alfa\na1; 78\n");
  EXPECT_EQ(Find("a1"), 0);
}

TEST_F(FindItem, OtherHeadersDoNotOpenTheSearch) {
  Write("VYROBCE Alfa\na1; 78\nVYROBCE+ Beta\na1; 78\n");
  EXPECT_EQ(Find("a1"), -1);
}

TEST_F(FindItem, EmptyLinesAreNotCounted) {
  Write("\na2; 1\nVYROBCE+ Alfa\n\na1; 78\n\n\na2; 94\n");
  EXPECT_EQ(Find("a2"), 1);
}

TEST_F(FindItem, LaterHeadersAreCountedAndPassed) {
  Write("VYROBCE+ Alfa\na1; 78\nVYROBCE+ Beta\nb1; 94\n");
  EXPECT_EQ(Find("b1"), 2);
}

TEST_F(FindItem, KeyMayStandAnywhereBeforeASemicolonAndABlank) {
  Write("VYROBCE+ Alfa\nx a1;78\nx; a1; 78\n");
  EXPECT_EQ(Find("a1"), 1);
}

TEST_F(FindItem, SomethingMustFollowTheBlankOrTheLineEndThere) {
  Write("VYROBCE+ Alfa\na1; \n");
  EXPECT_EQ(Find("a1"), 0);
}

TEST_F(FindItem, KeyAndQualifierArePatterns) {
  Write("VYROBCE+ Alfa\na1; 78\nbX; 94\n");
  EXPECT_EQ(Find("b@"), 1);
  EXPECT_EQ(Find("b@", "A*"), 1);
}

TEST_F(FindItem, LineOf300CharactersCountsAsTwo) {
  Write("VYROBCE+ Alfa\n" + std::string(300, 'x') + "\na1; 78\n");
  EXPECT_EQ(Find("a1"), 2);
}

TEST_F(FindItem, HeaderOfTheSameSectionIsCountedWhenItComesAgain) {
  Write("VYROBCE+ Alfa\nVYROBCE+ Alfa\na1; 78\n");
  EXPECT_EQ(Find("a1"), 1);
}

TEST_F(FindItem, MissingLibraryGivesMinusOne) {
  EXPECT_EQ(Find("a1"), -1);
}

TEST_F(FindItem, FolderPathIsCompleted) {
  Write("VYROBCE+ Alfa\na1; 78\n");
  EXPECT_EQ(FindCatalogueItem("VYROBCE", (folder.Path() + "/").c_str(), "Alfa", "a1"), 0);
}

TEST_F(FindItem, TextsOfAMegabyteAreCut) {
  Write("VYROBCE+ Alfa\na1; 78\n");
  const std::string text(1000000, 'x');
  EXPECT_EQ(Find(text.c_str()), -1);
  EXPECT_EQ(Find("a1", text.c_str()), -1);
}

TEST_F(FindItem, ModuleStateIsRestored) {
  AFX_MODULE_STATE* before = AfxGetModuleState();
  Find("a1");
  EXPECT_EQ(AfxGetModuleState(), before);
}

}  // namespace
}  // namespace brevanta
