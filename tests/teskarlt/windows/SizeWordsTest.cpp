// SizeWordsTest.cpp - sizes that can only be meant in another unit than metres.
#include <gtest/gtest.h>

#include "teskarlt/windows/SizeWords.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

std::string Refusal(const FieldSetting& setting) {
  return RefusalOf([&] { RefuseOtherUnits(setting); });
}

TEST(RefuseOtherUnits, ProposesTheSizeInMetres) {
  EXPECT_EQ(Refusal({"width", "780"}), "--set width=780: lengths are metres, did you mean 0.78?");
  EXPECT_EQ(Refusal({"width", "78"}), "--set width=78: lengths are metres, did you mean 0.78, or 78in?");
  EXPECT_EQ(Refusal({"length", "1180"}), "--set length=1180: lengths are metres, did you mean 1.18?");
  EXPECT_EQ(Refusal({"frameWidth", "8"}),
            "--set frameWidth=8: lengths are metres, did you mean 0.08, or 8in?");
  EXPECT_EQ(Refusal({"frameDepth", "80"}), "--set frameDepth=80: lengths are metres, did you mean 0.08?");
}

TEST(RefuseOtherUnits, ExplainsADecimalComma) {
  EXPECT_EQ(Refusal({"width", "0,78"}), "--set width=0,78: decimals stand behind a point, as in 0.78");
  EXPECT_EQ(Refusal({"text1", "0,78"}), "");
}

TEST(RefuseOtherUnits, LeavesWhatMayBeMetresAndOtherFieldsAlone) {
  EXPECT_EQ(Refusal({"width", "12.5"}), "");
  EXPECT_EQ(Refusal({"lowerEdgeHeight", "780"}), "");
  EXPECT_EQ(Refusal({"width", "wide"}), "");
}

}  // namespace
}  // namespace teskarlt
