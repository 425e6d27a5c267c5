// PlaceWordsTest.cpp - the words of command lines and jobs that say where a window goes.
#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/PlaceWords.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

WindowOrder OrderWith(const char* name, const std::string& text) {
  const PlaceWord& word = *FindPlaceWord(name);
  WindowOrder order;
  order.roofName = "R1";
  word.apply(word, text, order);
  return order;
}

struct BadWord {
  const char* name;
  const char* text;
  const char* refusal;
};

class BadPlaceWord : public testing::TestWithParam<BadWord> {};

TEST_P(BadPlaceWord, IsRefusedByItsName) {
  const BadWord& word = GetParam();
  EXPECT_EQ(RefusalOf([&] { OrderWith(word.name, word.text); }), word.refusal);
}

INSTANTIATE_TEST_SUITE_P(
    Words, BadPlaceWord,
    testing::Values(BadWord{"eaves", "0,0", "--eaves 0,0: an edge has two points, X,Y X,Y, in drawing units"},
                    BadWord{
                        "pitch", "95",
                        "--pitch 95: a pitch is a number of degrees from 0 to 85, or rise to run, as 8:12"},
                    BadWord{"from-eaves", "-1", "--from-eaves -1: a distance is not negative"},
                    BadWord{"centre", "yes", "--centre yes: it is said or not: true or false"},
                    BadWord{"between", "1", "--between 1: it takes the numbers of two windows"},
                    BadWord{"align", "first", "--align first: a window is named by its number"},
                    BadWord{"edge", "left", "--edge left: the edges to align are top, bottom and axis"},
                    BadWord{"snap", "0", "--snap 0: a step is more than 0"}),
    [](const auto& word) {
      std::string name = word.param.name;
      std::replace(name.begin(), name.end(), '-', '_');
      return name;
    });

TEST(PlaceWords, EdgeInPlanGoesBeforeANamedRoof) {
  const WindowOrder order = OrderWith("eaves", "0,0;8000,0");
  EXPECT_EQ(order.roofName, "");
  ASSERT_EQ(order.planRoof.eaves.size(), 2U);
  EXPECT_EQ(order.planRoof.eaves[1].x, 8000);
  EXPECT_EQ(OrderWith("ridge", "0,4000;8000,4000").planRoof.ridge[0].y, 4000);
  EXPECT_EQ(OrderWith("rises-to", "0,4000").planRoof.risesTo->y, 4000);
}

TEST(PlaceWords, WordsOfAPlaceGoIntoTheOrder) {
  EXPECT_EQ(OrderWith("between", "2;5").placing.between, (std::array{2, 5}));
  EXPECT_EQ(OrderWith("over", "3000,0").placing.over->x, 3000);
  EXPECT_EQ(OrderWith("edge", "axis").placing.edge, AlignedEdge::Axis);
  EXPECT_EQ(OrderWith("snap", "0.05").placing.snap, 0.05);
  EXPECT_TRUE(OrderWith("centre", "1").placing.isCentred);
}

TEST(PlaceWords, PitchIsInDegreesOrRiseToRun) {
  EXPECT_EQ(OrderWith("pitch", "35").planRoof.pitch, 35);
  EXPECT_NEAR(*OrderWith("pitch", "12:12").planRoof.pitch, 45, 1e-12);
  EXPECT_EQ(RefusalOf([] { OrderWith("pitch", "8:0"); }),
            "--pitch 8:0: a pitch is a number of degrees from 0 to 85, or rise to run, as 8:12");
  EXPECT_NEAR(*OrderWith("pitch", "8:12").planRoof.pitch, 33.690067525979785, 1e-12);
}

TEST(PlaceWords, UnknownWordIsNone) {
  EXPECT_EQ(FindPlaceWord("from-chimney"), nullptr);
}

}  // namespace
}  // namespace teskarlt
