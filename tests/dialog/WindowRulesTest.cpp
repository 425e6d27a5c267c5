// WindowRulesTest.cpp - ranges and combinations that the dialog refuses.
#include <gtest/gtest.h>

#include "dialog/WindowRules.h"
#include "tests/dialog/FakeServices.h"

namespace brevanta {
namespace {

using testing::TestWithParam;
using testing::Values;

struct Refused {
  const char* field;
  const char* value;
  const char* sentence;
};

void PrintTo(const Refused& refused, std::ostream* out) {
  *out << refused.field << "=" << refused.value;
}

class RefusedAnswer : public TestWithParam<Refused> {};

TEST_P(RefusedAnswer, SaysWhichFieldMustBeWhat) {
  FakeServices host;
  host.faces = {SimpleRoof(35)};
  host.point = {4000, 2000};
  host.answers[GetParam().field] = GetParam().value;
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(host.refusal, GetParam().sentence);
  EXPECT_FALSE(host.confirmed);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, RefusedAnswer,
    Values(Refused{"width", "0", "width must be greater than 0, not 0"},
           Refused{"width", "-1", "width must be greater than 0, not -1"},
           Refused{"length", "0", "length must be greater than 0, not 0"},
           Refused{"frameWidth", "0", "frameWidth must be greater than 0, not 0"},
           Refused{"frameWidth", "0.47", "frameWidth must be less than half the window (0.47), not 0.47"},
           Refused{"frameDepth", "-0.1", "frameDepth must be greater than 0, not -0.1"},
           Refused{"skirtHeight", "-0.1", "skirtHeight must be 0 or greater, not -0.1"},
           Refused{"layerThickness", "-0.1", "layerThickness must be 0 or greater, not -0.1"},
           Refused{"skirtHeight", "1e305", "skirtHeight must be at most 10000, not 1e+305"},
           Refused{"pickOffset", "-1e6", "pickOffset must be at most 10000, not -1e+06"}));

INSTANTIATE_TEST_SUITE_P(
    NumbersThatAreNone, RefusedAnswer,
    Values(Refused{"width", "nan", "width: \"nan\" is not a finite number"},
           Refused{"width", "inf", "width: \"inf\" is not a finite number"},
           Refused{"width", "-inf", "width: \"-inf\" is not a finite number"},
           Refused{"width", "1e999", "width: \"1e999\" is not a number"},
           Refused{"width", "wide", "width: \"wide\" is not a number"},
           Refused{"width", "0,94", "width: \"0,94\" is not a number"},
           Refused{"width", "", "width: \"\" is not a number"},
           Refused{"widthAnchor", "1.5", "widthAnchor: \"1.5\" is not a whole number"},
           Refused{"markerValue", "99999999999", "markerValue: \"99999999999\" is not a whole number"},
           Refused{"storedPoint", "1,2", "storedPoint: \"\" is not a number"},
           Refused{"storedPoint", "1,2,3,4",
                   "storedPoint: \"1,2,3,4\" has a point of more than three numbers"},
           Refused{"storedPoint", "1,2,3;4,5,6", "storedPoint: \"1,2,3;4,5,6\" has too many points"}));

INSTANTIATE_TEST_SUITE_P(Choices, RefusedAnswer,
                         Values(Refused{"placeByHeight", "2", "placeByHeight must be from 0 to 1, not 2"},
                                Refused{"heightReference", "4", "heightReference must be from 0 to 3, not 4"},
                                Refused{"heightReference", "-1",
                                        "heightReference must be from 0 to 3, not -1"},
                                Refused{"widthAnchor", "3", "widthAnchor must be from 0 to 2, not 3"},
                                Refused{"roofBuildUp", "3", "roofBuildUp must be from 0 to 2, not 3"},
                                Refused{"bodyAsFaces", "-1", "bodyAsFaces must be from 0 to 1, not -1"},
                                Refused{"drawOpeningSymbol", "40000",
                                        "drawOpeningSymbol must be from -32768 to 32767, not 40000"}));

INSTANTIATE_TEST_SUITE_P(
    Numbers, RefusedAnswer,
    Values(Refused{"markerValue", "0", "markerValue must not be 0; it is the number of the window"},
           Refused{"unitFactor", "100",
                   "unitFactor 100 is not that of the drawing, 1000 drawing units per metre"},
           Refused{"openingCode", "DDDDDDDDDDD",
                   "openingCode is too long: 11 bytes as the drawing keeps it, at most 10 fit"}));

TEST(OpeningCode, UnknownLetterIsRefusedWithTheRestOfTheCode) {
  WindowParams record = FakeServices().record;
  record.width = record.length = 1;
  record.frameWidth = record.frameDepth = 0.1;
  for (const char* code : {"A", "DX", "DI", "BL", "b", "E E"}) {
    std::snprintf(record.openingCode, sizeof record.openingCode, "%s", code);
    EXPECT_ANY_THROW(CheckWindow(record)) << code;
  }
}

TEST(OpeningCode, EveryMarkWithItsSuffixesIsTaken) {
  WindowParams record = FakeServices().record;
  record.width = record.length = 1;
  record.frameWidth = record.frameDepth = 0.1;
  for (const char* code :
       {"",   "D",   "B",   "BI",  "BO",  "C",   "CI",  "CO",  "E",   "EI",       "EO",  "ER",
        "EL", "EIR", "EIL", "EOR", "EOL", "ERI", "ERO", "ELI", "ELO", "BICIDERI", "BCDE"}) {
    std::snprintf(record.openingCode, sizeof record.openingCode, "%s", code);
    EXPECT_NO_THROW(CheckWindow(record)) << code;
  }
}

TEST(Texts, OneHundredNinetyNineBytesFitAndTwoHundredDoNot) {
  FakeServices host;
  host.faces = {SimpleRoof(35)};
  host.point = {4000, 2000};
  host.answers["text1"] = std::string(199, 'x');
  EXPECT_EQ(host.RunDialog(), 1);
  EXPECT_EQ(std::string(host.record.text1), std::string(199, 'x'));
  host.answers["text1"] = std::string(200, 'x');
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(host.refusal, "text1 is too long: 200 bytes as the drawing keeps it, at most 199 fit");
}

}  // namespace
}  // namespace brevanta
