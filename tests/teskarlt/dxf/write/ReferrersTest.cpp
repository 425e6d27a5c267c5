// ReferrersTest.cpp - what refers to removed entities, and what they own, goes with them.
#include "teskarlt/dxf/write/Referrers.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

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

TEST(Referrers, ExtensionDictionaryGoesWithAllThatItOwns) {
  const std::string kept = "0|DICTIONARY|5|20|330|0|3|X|350|21|0|XRECORD|5|21|330|20|";
  EXPECT_EQ(WithoutLineA(kept + "0|XRECORD|5|32|330|31|0|DICTIONARY|5|30|330|A|3|SUB|360|31|"
                                "0|DICTIONARY|5|31|330|30|3|DATA|360|32|"),
            WithObjects("0|LINE|5|B|", kept));
}

TEST(Referrers, OwnerIsNotTakenFromReactors) {
  const std::string_view record = "0|XRECORD|5|30|102|{ACAD_REACTORS|330|B|102|}|330|20|";
  EXPECT_EQ(WithoutLineA(record), WithObjects("0|LINE|5|B|", record));
}

// The dimension keeps its place and loses what made it follow the line.
TEST(Referrers, DimensionIsNoLongerAssociatedWithARemovedEntity) {
  for (const char* const code : {"331", "332"}) {
    const std::string dimension = "0|DIMENSION|5|D|102|{ACAD_XDICTIONARY|360|20|102|}|";
    const std::string association =
        "0|DIMASSOC|5|21|330|20|330|D|1|AcDbOsnapPointRef|" + std::string(code) + "|A|";
    Document drawing = Parsed(WithObjects("0|LINE|5|A|" + dimension + "102|{ACAD_REACTORS|330|21|102|}|8|0|",
                                          "0|DICTIONARY|5|20|330|D|3|ACAD_DIMASSOC|360|21|3|OTHER|360|22|" +
                                              association + "0|XRECORD|5|22|330|20|"));
    drawing.RemoveEntity(*drawing.FindEntity(0xA));
    EXPECT_EQ(
        drawing.Serialize(),
        WithObjects(dimension + "8|0|", "0|DICTIONARY|5|20|330|D|3|OTHER|360|22|0|XRECORD|5|22|330|20|"));
  }
}

TEST(Referrers, DimensionOfAnotherEntityStaysAssociated) {
  const std::string_view association = "0|DIMASSOC|5|21|330|20|330|D|331|B|";
  EXPECT_EQ(WithoutLineA(association), WithObjects("0|LINE|5|B|", association));
}

TEST(Referrers, ReactorsLoseWhatIsRemovedAndKeepTheOthers) {
  const std::string rest = "8|0|0|LINE|5|B|";
  Document drawing =
      Parsed(WithObjects("0|LINE|5|A|0|LINE|5|C|102|{ACAD_REACTORS|330|A|330|B|102|}|" + rest, ""));
  drawing.RemoveEntity(*drawing.FindEntity(0xA));
  EXPECT_EQ(drawing.Serialize(), WithObjects("0|LINE|5|C|102|{ACAD_REACTORS|330|B|102|}|" + rest, ""));
}

TEST(Referrers, ReactorsOfAnEntityThatGoesItselfNeedNoChange) {
  Document drawing = Parsed(WithObjects(
      "0|LINE|5|A|102|{ACAD_REACTORS|330|B|102|}|0|LINE|5|B|102|{ACAD_REACTORS|330|A|102|}|", ""));
  drawing.RemoveEntity(*drawing.FindEntity(0xA));
  drawing.RemoveEntity(*drawing.FindEntity(0xB));
  EXPECT_EQ(drawing.Serialize(), WithObjects("", ""));
}

TEST(Referrers, TextThatReadsLikeReactorsIsLeftAlone) {
  const std::string text = "0|TEXT|5|C|1|{ACAD_REACTORS|330|A|102|}|";
  Document drawing = Parsed(WithObjects("0|LINE|5|A|" + text, ""));
  drawing.RemoveEntity(*drawing.FindEntity(0xA));
  EXPECT_EQ(drawing.Serialize(), WithObjects(text, ""));
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
