// EntityTagsTest.cpp - tag lists that become entities, and those that are refused.
#include <limits>
#include <vector>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/write/EntityTags.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

using namespace std::string_view_literals;

TypedTag Whole(int code, std::int64_t value) {
  return {code, value};
}

// Why a LINE with these tags behind its layer is refused.
std::string Refusal(std::vector<TypedTag> tags) {
  tags.insert(tags.begin(), {{0, "LINE"sv}, {8, "0"sv}});
  const std::string message = ErrorOf([&] { CheckTags(tags); });
  constexpr std::string_view BEGINNING = "the new entity is refused: ";
  return message.starts_with(BEGINNING) ? message.substr(BEGINNING.size()) : message;
}

std::string Written(const TypedTag& tag) {
  std::string out;
  TagWriter writer(out, "|");
  WriteTag(writer, tag);
  return out;
}

TEST(CheckTags, FaceWithExtendedDataPasses) {
  EXPECT_EQ(Refusal({{6, "DASHED"sv},
                     Whole(62, 256),
                     {100, "AcDbLine"sv},
                     {10, Point{1, 2, 3}},
                     {11, Point{4, 5, 6}},
                     Whole(70, 15),
                     Whole(CODE_XDATA_MARKER, 0),
                     {1001, "TK_LT_ELEM"sv},
                     {1000, ""sv},
                     {1011, Point{}},
                     {1040, 1.5},
                     Whole(1070, -1),
                     Whole(1071, 70000)}),
            "");
}

TEST(CheckTags, EmptyListIsRefused) {
  EXPECT_EQ(ErrorOf([] { CheckTags({}); }), "the new entity is refused: it has no groups");
}

TEST(CheckTags, TypeMustComeFirst) {
  const std::vector<TypedTag> tags{{8, "0"sv}, {0, "LINE"sv}};
  EXPECT_EQ(ErrorOf([&] { CheckTags(tags); }),
            "the new entity is refused: group 8 stands where its type should be");
}

TEST(CheckTags, TypeMustBeOne) {
  for (const auto type : {""sv, "EOF"sv, "ENDSEC"sv, "LINE\n"sv, "line"sv}) {
    const std::vector<TypedTag> tags{{0, type}};
    EXPECT_NE(ErrorOf([&] { CheckTags(tags); }), "") << type;
  }
}

TEST(CheckTags, SecondTypeIsRefused) {
  EXPECT_EQ(Refusal({{0, "LINE"sv}}), "group 0 stands twice");
}

TEST(CheckTags, UnknownCodesAreRefused) {
  for (const int code : {-1, -4, 80, 999, 5001, 1072}) {
    EXPECT_EQ(Refusal({{code, "x"sv}}).find("is not one that an entity can have") != std::string::npos ||
                  Refusal({{code, "x"sv}}).find("stands before") != std::string::npos,
              true)
        << code;
  }
}

TEST(CheckTags, ValueOfAnotherKindIsRefused) {
  EXPECT_EQ(Refusal({{10, 1.0}}), "group 10 holds no point");
  EXPECT_EQ(Refusal({{40, "1.0"sv}}), "group 40 holds no number");
  EXPECT_EQ(Refusal({{62, 1.0}}), "group 62 holds no integer");
  EXPECT_EQ(Refusal({Whole(6, 1)}), "group 6 holds no text");
}

TEST(CheckTags, NumbersThatAreNotFiniteAreRefused) {
  for (const double value : {std::nan(""), std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(Refusal({{40, value}}), "group 40 holds a number that is not finite");
    EXPECT_EQ(Refusal({{11, Point{0, 0, value}}}), "group 11 holds a number that is not finite");
  }
}

TEST(CheckTags, ShortIntegersHaveSixteenBits) {
  EXPECT_EQ(Refusal({Whole(70, 32767), Whole(62, -32768)}), "");
  EXPECT_EQ(Refusal({Whole(70, 32768)}), "group 70 holds 32768, which is out of its range");
  EXPECT_EQ(Refusal({{1001, "APP"sv}, Whole(1070, -32769)}),
            "group 1070 holds -32769, which is out of its range");
}

TEST(CheckTags, LongIntegersHaveThirtyTwoBits) {
  EXPECT_EQ(Refusal({{1001, "APP"sv}, Whole(1071, 2147483647)}), "");
  EXPECT_EQ(Refusal({{1001, "APP"sv}, Whole(1071, 2147483648)}),
            "group 1071 holds 2147483648, which is out of its range");
}

TEST(CheckTags, HandlesAndOwnersAreTheDrawings) {
  EXPECT_EQ(Refusal({{5, "1"sv}}), "group 5 is given by the drawing");
  EXPECT_EQ(Refusal({{330, "1"sv}}), "group 330 is given by the drawing");
}

TEST(CheckTags, ReferenceMustHoldAHandle) {
  EXPECT_EQ(Refusal({{340, "1F"sv}}), "");
  EXPECT_EQ(Refusal({{340, "roof"sv}}), "group 340 holds no handle");
}

TEST(CheckTags, ExtendedDataNeedAnApplication) {
  EXPECT_EQ(Refusal({{1000, "x"sv}}), "group 1000 stands before the name of an application");
  EXPECT_EQ(Refusal({{1001, ""sv}}), "group 1001 holds \"\", which is no application name");
  EXPECT_NE(Refusal({{1001, "A234567890123456789012345678901"sv}}), "no refusal");
  EXPECT_NE(Refusal({{1001, "A2345678901234567890123456789012"sv}}), "");
}

TEST(CheckTags, NothingStandsBehindExtendedData) {
  EXPECT_EQ(Refusal({{1001, "APP"sv}, Whole(70, 1)}), "group 70 stands behind extended data");
}

TEST(CheckTags, ControlCharacterInATextIsRefused) {
  for (const auto text : {"a\0b"sv, "a\nb"sv, "a\r"sv})
    EXPECT_EQ(Refusal({{1001, "APP"sv}, {1000, text}}), "group 1000 holds a text with a control character");
}

TEST(CheckTags, ExtendedTextOf255BytesFits) {
  const std::string fitting(255, 'x');
  EXPECT_EQ(Refusal({{1001, "APP"sv}, {1000, std::string_view(fitting)}}), "");
  const std::string longer(256, 'x');
  EXPECT_EQ(Refusal({{1001, "APP"sv}, {1000, std::string_view(longer)}}),
            "group 1000 holds a text of 256 bytes, and 255 is the most that a drawing can hold");
}

TEST(WriteTag, EachKindOfValue) {
  EXPECT_EQ(Written({8, "okn\xED"sv}), "  8|okn\xED|");
  EXPECT_EQ(Written({40, 2.0}), " 40|2.0|");
  EXPECT_EQ(Written(Whole(70, -1)), " 70|-1|");
  EXPECT_EQ(Written({10, Point{1, 2, 3}}), " 10|1.0| 20|2.0| 30|3.0|");
}

// An application's name, which takes 4 bytes here, and numbers that take 10 each.
std::vector<TypedTag> ExtendedData(std::size_t numbers) {
  std::vector<TypedTag> tags(numbers + 1, TypedTag{1040, 0.5});
  tags[0] = {1001, "A"sv};
  return tags;
}

TEST(CheckTags, ExtendedDataOfNearlySixteenKilobytesPasses) {
  EXPECT_EQ(Refusal(ExtendedData(1637)), "");
}

TEST(CheckTags, MoreExtendedDataThanAnEntityCanHoldIsRefused) {
  EXPECT_EQ(Refusal(ExtendedData(1638)),
            "its extended data has 16384 bytes, and 16383 is the most that an entity can hold");
}

}  // namespace
}  // namespace teskarlt::dxf
