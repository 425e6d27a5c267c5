// PaperTest.cpp - sizes of paper and usual scales.
#include <algorithm>

#include <gtest/gtest.h>

#include "teskarlt/plot/Paper.h"

namespace teskarlt::plot {
namespace {

TEST(Paper, SheetsLieAcrossOrStandUpright) {
  EXPECT_EQ(PaperNamed("a3", false)->width, 420);
  EXPECT_EQ(PaperNamed("A3", true)->width, 297);
  EXPECT_EQ(PaperNamed("A3", true)->name, "A3");
}

TEST(Paper, OwnSizeIsWidthByHeight) {
  const std::optional<Paper> paper = PaperNamed("500x300.5", true);
  ASSERT_TRUE(paper);
  EXPECT_EQ(paper->width, 500);
  EXPECT_EQ(paper->height, 300.5);
}

TEST(Paper, OtherTextsAndSizesAreNone) {
  for (const char* text :
       {"", "A5", "500", "500x", "x300", "100x300", "500x-300", "500x6000", "nanx300", "5e2x300"})
    EXPECT_FALSE(PaperNamed(text, false)) << text;
}

TEST(Paper, EachUsualPaperIsTheNextOnesHalf) {
  const auto papers = UsualPapers(false);
  for (std::size_t i = 1; i < papers.size(); ++i)
    EXPECT_EQ(papers[i].height, papers[i - 1].width);
}

TEST(Paper, UsualScalesBeginWithTheLargestDrawing) {
  EXPECT_EQ(UsualScales().front(), 1);
  EXPECT_TRUE(std::is_sorted(UsualScales().begin(), UsualScales().end()));
}

}  // namespace
}  // namespace teskarlt::plot
