// ValuesTest.cpp - values of the wrong kind or range.
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

std::vector<std::string> FoundIn(std::string_view groups) {
  return Found(Sound(Line("100", groups)));
}

TEST(CheckValues, TextWhereAWholeNumberShouldBeIsAnError) {
  EXPECT_THAT(FoundIn("62|red|"), ElementsAre("error integer-value red"));
  EXPECT_THAT(FoundIn("62|1.5|"), ElementsAre("error integer-value 1.5"));
}

TEST(CheckValues, IntegerBeyondItsBitsIsAnError) {
  EXPECT_THAT(FoundIn("62|-32768|62|32767|90|-2147483648|90|2147483647|160|9223372036854775807|"), IsEmpty());
  EXPECT_THAT(FoundIn("62|32768|"), ElementsAre("error integer-value 32768"));
  EXPECT_THAT(FoundIn("90|2147483648|"), ElementsAre("error integer-value 2147483648"));
  EXPECT_THAT(FoundIn("1001|FOREIGN|1070|-32769|"), ElementsAre("error integer-value -32769"));
  EXPECT_THAT(FoundIn("1001|FOREIGN|1071|-2147483649|"), ElementsAre("error integer-value -2147483649"));
}

TEST(CheckValues, NumberThatIsNotFiniteIsAnError) {
  EXPECT_THAT(FoundIn("48|nan|"), ElementsAre("error real-value nan"));
  EXPECT_THAT(FoundIn("48|1e999|"), ElementsAre("error real-value 1e999"));
  EXPECT_THAT(FoundIn("48|1,5|"), ElementsAre("error real-value 1,5"));
}

TEST(CheckValues, HandleThatIsNotHexadecimalIsAnError) {
  EXPECT_THAT(FoundIn("390|2G|"), ElementsAre("error handle-value 2G"));
  EXPECT_THAT(FoundIn("1001|FOREIGN|1005|11223344556677889|"),
              ElementsAre("error handle-value 11223344556677889"));
}

TEST(CheckValues, ArrowBlockOfADimensionStyleIsNoHandle) {
  EXPECT_THAT(Found(Damaged(Sound(), "2|Standard|70|0|0|ENDTAB|0|TABLE|2|BLOCK_RECORD",
                            "2|Standard|70|0|5|_Dot|0|ENDTAB|0|TABLE|2|BLOCK_RECORD")),
              IsEmpty());
}

TEST(CheckValues, BinaryValueThatIsNotHexadecimalIsAnError) {
  EXPECT_THAT(FoundIn("310|ABC|"), ElementsAre("error binary-value ABC"));
  EXPECT_THAT(FoundIn("1001|FOREIGN|1004|0G|"), ElementsAre("error binary-value 0G"));
}

TEST(CheckValues, BinaryValueOfExtendedDataHasAtMost127Bytes) {
  EXPECT_THAT(FoundIn("1001|FOREIGN|1004|" + std::string(254, 'A') + "|"), IsEmpty());
  const std::string digits(256, 'A');
  EXPECT_THAT(FoundIn("1001|FOREIGN|1004|" + digits + "|"), ElementsAre("error binary-value " + digits));
}

TEST(CheckValues, GroupCodeThatDrawingsDoNotHaveIsDoubtful) {
  EXPECT_THAT(FoundIn("500|x|"), ElementsAre("warning unknown-code x"));
}

}  // namespace
}  // namespace teskarlt::check
