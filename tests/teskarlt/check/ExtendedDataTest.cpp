// ExtendedDataTest.cpp - the order and the limits of extended data.
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

std::vector<std::string> FoundIn(const std::string& data) {
  return Found(Sound(Line("100", data)));
}

TEST(CheckExtendedData, WithoutAnApplicationAreAnError) {
  EXPECT_THAT(FoundIn("1000|first|1070|1|"), ElementsAre("error xdata-without-application first"));
}

TEST(CheckExtendedData, OfOneApplicationStandInOnePlace) {
  EXPECT_THAT(FoundIn("1001|FOREIGN|1070|1|1001|ACAD|1070|2|"), IsEmpty());
  EXPECT_THAT(FoundIn("1001|FOREIGN|1070|1|1001|Foreign|1070|2|"),
              ElementsAre("error xdata-application-twice Foreign"));
}

TEST(CheckExtendedData, EndTheEntity) {
  EXPECT_THAT(FoundIn("1001|FOREIGN|1070|1|62|3|70|0|"), ElementsAre("error xdata-order 3"));
}

TEST(CheckExtendedData, BracesAreBalancedWithinAnApplication) {
  EXPECT_THAT(FoundIn("1001|FOREIGN|1002|{|1002|{|1002|}|1002|}|"), IsEmpty());
  EXPECT_THAT(FoundIn("1001|FOREIGN|1002|{|1001|ACAD|1070|1|"), ElementsAre("error xdata-braces {"));
  EXPECT_THAT(FoundIn("1001|FOREIGN|1002|}|"), ElementsAre("error xdata-braces }"));
  EXPECT_THAT(FoundIn("1001|FOREIGN|1002|x|"), ElementsAre("error xdata-braces x"));
}

TEST(CheckExtendedData, PointHasAllOfItsCoordinates) {
  EXPECT_THAT(FoundIn("1001|FOREIGN|1011|1|1021|2|1031|3|1011|4|1021|5|1031|6|"), IsEmpty());
  EXPECT_THAT(FoundIn("1001|FOREIGN|1011|1|1021|2|1040|3|"), ElementsAre("error xdata-point 1"));
  EXPECT_THAT(FoundIn("1001|FOREIGN|1010|1|1011|2|1021|3|1031|4|"), ElementsAre("error xdata-point 1"));
  EXPECT_THAT(FoundIn("1001|FOREIGN|1011|1|"), ElementsAre("error xdata-point 1"));
}

TEST(CheckExtendedData, TextHasAtMost255BytesAsItStandsInTheFile) {
  EXPECT_THAT(FoundIn("1001|FOREIGN|1000|" + std::string(255, 'x') + "|"), IsEmpty());
  const std::string text = std::string(249, 'x') + "\\U+0159";
  EXPECT_THAT(FoundIn("1001|FOREIGN|1000|" + text + "|"), ElementsAre("error xdata-text-length " + text));
}

TEST(CheckExtendedData, OfAnEntityTakeAtMost16Kilobytes) {
  std::string data = "1001|FOREIGN|";
  for (int i = 0; i < 70; ++i)
    data += "1000|" + std::string(250, 'x') + "|";
  EXPECT_THAT(FoundIn(data), ElementsAre("error xdata-size FOREIGN"));
}

TEST(CheckExtendedData, ValuesOfAnXrecordAreItsOwnBusiness) {
  EXPECT_THAT(Found(Sound("", "0|XRECORD|5|101|330|D|100|AcDbXrecord|280|1|1000|x|1070|1|62|1|102|}|")),
              IsEmpty());
}

}  // namespace
}  // namespace teskarlt::check
