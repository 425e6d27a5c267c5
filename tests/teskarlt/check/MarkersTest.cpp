// MarkersTest.cpp - class markers that are missing or do not belong there.
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

std::string Entity(std::string_view type, std::string_view markers) {
  return fmt::format("0|{}|5|100|330|1F|{}8|ROOF|", type, markers);
}

TEST(CheckMarkers, EntityWithoutAnyIsOneError) {
  const std::string text = Sound(Entity("3DFACE", ""));
  EXPECT_THAT(Found(text), ElementsAre("error marker-missing 3DFACE"));
  EXPECT_EQ(Checked(text).findings[0].message,
            "the 3DFACE lacks class markers (group 100): AcDbEntity, AcDbFace");
}

TEST(CheckMarkers, EachOfSeveralIsNeeded) {
  EXPECT_THAT(Found(Sound(Entity("ARC", "100|AcDbEntity|100|AcDbCircle|100|AcDbArc|"))), IsEmpty());
  EXPECT_THAT(Found(Sound(Entity("ARC", "100|AcDbEntity|100|AcDbCircle|"))),
              ElementsAre("error marker-missing ARC"));
}

TEST(CheckMarkers, OneOfSeveralIsEnough) {
  const std::string block = "2|*Paper_Space|";
  EXPECT_THAT(Found(Sound(Entity("INSERT", "100|AcDbEntity|100|AcDbMInsertBlock|") + block)), IsEmpty());
  EXPECT_THAT(Found(Sound(Entity("INSERT", "100|AcDbEntity|") + block)),
              ElementsAre("error marker-missing INSERT"));
}

TEST(CheckMarkers, EveryKnownEntityNeedsItsOwn) {
  for (const std::string type : {"LINE", "POINT", "CIRCLE", "TEXT", "SOLID", "LWPOLYLINE"})
    EXPECT_THAT(Found(Sound(Entity(type, "100|AcDbEntity|"))), ElementsAre("error marker-missing " + type));
}

TEST(CheckMarkers, UnknownEntityIsLeftAlone) {
  EXPECT_THAT(Found(Sound(Entity("MAKER_THING", ""))), IsEmpty());
}

TEST(CheckMarkers, EntriesTablesAndObjectsNeedTheirs) {
  EXPECT_THAT(Found(Damaged(Sound(), "100|AcDbLayerTableRecord|2|ROOF", "2|ROOF")),
              ElementsAre("error marker-missing LAYER"));
  EXPECT_THAT(Found(Damaged(Sound(), "5|7|330|0|100|AcDbSymbolTable", "5|7|330|0")),
              ElementsAre("error marker-missing TABLE"));
  EXPECT_THAT(Found(Damaged(Sound(), "5|D|330|C|100|AcDbDictionary", "5|D|330|C")),
              ElementsAre("error marker-missing DICTIONARY"));
}

TEST(CheckMarkers, OldDrawingHasNone) {
  EXPECT_THAT(Found(SoundOld("0|POINT|100|AcDbEntity|8|ROOF|10|0|20|0|")),
              ElementsAre("error marker-unexpected AcDbEntity"));
}

TEST(CheckMarkers, DrawingThatDoesNotSayItsVersionMayHaveThem) {
  EXPECT_THAT(Found(dxf::OnlyEntities("0|POINT|100|AcDbEntity|8|0|100|AcDbPoint|10|0|20|0")), IsEmpty());
}

}  // namespace
}  // namespace teskarlt::check
