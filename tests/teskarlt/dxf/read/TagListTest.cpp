// TagListTest.cpp - the values of an entity and of its vertices.
#include "teskarlt/dxf/read/TagList.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

// A drawing with one entity, and its lists.
struct Entry {
  explicit Entry(std::string_view entity)
      : drawing(Parsed(OnlyEntities(entity))), lists(drawing.TagLists(drawing.Entities()[0].text)) {}

  Document drawing;
  std::vector<TagList> lists;
};

std::string XOf(const std::vector<geometry::Vec3>& points) {
  std::string text;
  for (const geometry::Vec3& point : points)
    text += std::to_string(static_cast<int>(point.x)) + " ";
  return text;
}

TEST(TagList, ValuesAreFoundByTheirCodesInAnyOrder) {
  const Entry line("0|LINE|62|3|40|2.5|8|Roof");
  EXPECT_EQ(line.lists[0].Type(), "LINE");
  EXPECT_EQ(line.lists[0].Text(8), "Roof");
  EXPECT_EQ(line.lists[0].Integer(62), 3);
  EXPECT_EQ(line.lists[0].Real(40), 2.5);
}

TEST(TagList, FirstTagOfACodeCounts) {
  EXPECT_EQ(Entry("0|LINE|62|3|62|4").lists[0].Integer(62), 3);
}

TEST(TagList, MissingValuesAreTheOneThatIsAskedFor) {
  const Entry line("0|LINE|8|Roof");
  EXPECT_FALSE(line.lists[0].Has(62));
  EXPECT_EQ(line.lists[0].Integer(62, 256), 256);
  EXPECT_EQ(line.lists[0].Real(48, 1.5), 1.5);
  EXPECT_EQ(line.lists[0].Text(6, "ByLayer"), "ByLayer");
}

TEST(TagList, TextsAreDecoded) {
  EXPECT_EQ(Entry("0|LINE|8|St\\U+0159echa").lists[0].Text(8), "Střecha");
}

TEST(TagList, MissingCoordinatesOfAPointAreTakenFromTheOtherOne) {
  const geometry::Vec3 point = Entry("0|LINE|10|1|30|3").lists[0].Point(10, {7, 8, 9});
  EXPECT_EQ(point.x, 1);
  EXPECT_EQ(point.y, 8);
  EXPECT_EQ(point.z, 3);
}

TEST(TagList, PointIsThereWithOneCoordinate) {
  const Entry line("0|LINE|31|3");
  EXPECT_TRUE(line.lists[0].HasPoint(11));
  EXPECT_FALSE(line.lists[0].HasPoint(10));
}

TEST(TagList, RepeatedTagsAreGivenInOrder) {
  const Entry spline("0|SPLINE|40|0.5|40|1.5|10|1|20|2|30|3|10|4|20|5");
  EXPECT_THAT(spline.lists[0].Reals(40), ElementsAre(0.5, 1.5));
  EXPECT_EQ(XOf(spline.lists[0].Points(10)), "1 4 ");
  EXPECT_EQ(spline.lists[0].Points(10)[0].z, 3);
  EXPECT_EQ(spline.lists[0].Points(10)[1].y, 5);
}

// The header takes four lines of the file, the entity's type two.
TEST(TagList, MalformedNumberIsToldWithItsLine) {
  const Entry line("0|LINE|62|red|40|wide");
  EXPECT_EQ(ErrorOf([&] { line.lists[0].Integer(62); }),
            "roof.dxf:8: \"red\" is not a whole number (group 62)");
  EXPECT_EQ(ErrorOf([&] { line.lists[0].Real(40); }), "roof.dxf:10: \"wide\" is not a number (group 40)");
}

TEST(TagList, MalformedNumberCanBePassedOver) {
  const Entry line("0|LINE|62|red|70|5");
  EXPECT_EQ(line.lists[0].ReadableInteger(62), std::nullopt);
  EXPECT_EQ(line.lists[0].ReadableInteger(70), 5);
  EXPECT_EQ(line.lists[0].ReadableInteger(71), std::nullopt);
}

TEST(TagList, VerticesHaveListsOfTheirOwn) {
  const Entry polyline("0|POLYLINE|70|8|0|VERTEX|70|32|0|VERTEX|70|33|0|SEQEND|8|0");
  ASSERT_THAT(polyline.lists, SizeIs(4));
  EXPECT_EQ(polyline.lists[0].Integer(70), 8);
  EXPECT_EQ(polyline.lists[2].Type(), "VERTEX");
  EXPECT_EQ(polyline.lists[2].Integer(70), 33);
}

TEST(TagList, ExtendedDataAndEmbeddedObjectsAreLeftOut) {
  const Entry attribute("0|MTEXT|8|Roof|101|Embedded Object|62|3|1001|ACAD|1070|5");
  EXPECT_TRUE(attribute.lists[0].Has(8));
  EXPECT_FALSE(attribute.lists[0].Has(62));
  EXPECT_FALSE(attribute.lists[0].Has(1070));
}

}  // namespace
}  // namespace teskarlt::dxf
