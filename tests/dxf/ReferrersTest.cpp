// ReferrersTest.cpp - drawing orders forget entities that are removed.
#include "teskarlt/dxf/Referrers.h"
#include "tests/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

// A drawing with these entities and objects.
std::string WithObjects(std::string_view entities, std::string_view objects) {
  return Tags("0|SECTION|2|ENTITIES|" + std::string(entities) + "0|ENDSEC|0|SECTION|2|OBJECTS|" +
              std::string(objects) + "0|ENDSEC|0|EOF");
}

// What is left of a drawing with lines A and B once A is removed.
std::string WithoutLineA(std::string_view objects) {
  Document drawing = Parsed(WithObjects("0|LINE|5|A|0|LINE|5|B|", objects));
  drawing.RemoveEntity(*drawing.FindEntity(0xA));
  return drawing.Serialize();
}

TEST(Referrers, DrawingOrderLosesTheEntityWithItsSortHandle) {
  EXPECT_EQ(WithoutLineA("0|SORTENTSTABLE|5|20|330|1F|331|B|5|B|331|A|5|C|"),
            WithObjects("0|LINE|5|B|", "0|SORTENTSTABLE|5|20|330|1F|331|B|5|B|"));
}

TEST(Referrers, OtherObjectsStayAsTheyAre) {
  const std::string_view objects = "0|XRECORD|5|20|340|A|331|A|0|GROUP|5|A|340|B|";
  EXPECT_EQ(WithoutLineA(objects), WithObjects("0|LINE|5|B|", objects));
}

TEST(Referrers, RolledBackRemovalChangesNothing) {
  const std::string text = WithObjects("0|LINE|5|A|", "0|GROUP|5|20|340|A|");
  Document drawing = Parsed(text);
  const EditMark mark = drawing.Mark();
  drawing.RemoveEntity(drawing.Entities()[0]);
  drawing.Rollback(mark);
  EXPECT_EQ(drawing.Serialize(), text);
}

}  // namespace
}  // namespace teskarlt::dxf
