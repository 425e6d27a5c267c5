// IndexTest.cpp - what is found in a drawing, and which ones are refused.
#include "teskarlt/dxf/read/Index.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

// Types of the model-space entities.
std::string Types(const Document& drawing) {
  std::string types;
  for (const Entity& entity : drawing.Entities())
    types += std::string(entity.type) + " ";
  return types;
}

TEST(Index, EntitiesInTheOrderOfTheFile) {
  EXPECT_EQ(Types(Parsed(OnlyEntities("0|LINE|8|0|0|3DFACE|8|0|0|WHATEVER|8|0"))), "LINE 3DFACE WHATEVER ");
}

TEST(Index, EntityHasItsTextAndHandle) {
  const Document drawing = Parsed(OnlyEntities("  0|LINE|  5|2A|  8|0|  0|POINT|  8|0"));
  EXPECT_EQ(drawing.Entities()[0].text, Tags("  0|LINE|  5|2A|  8|0"));
  EXPECT_EQ(drawing.Entities()[0].handle, 0x2AU);
  EXPECT_EQ(drawing.Entities()[1].handle, 0U);
}

TEST(Index, PolylineHoldsItsVertices) {
  const Document drawing =
      Parsed(OnlyEntities("0|POLYLINE|5|1|66|1|0|VERTEX|5|2|0|VERTEX|5|3|0|SEQEND|5|4|0|LINE|5|5"));
  EXPECT_EQ(Types(drawing), "POLYLINE LINE ");
  EXPECT_EQ(drawing.Entities()[0].text, Tags("0|POLYLINE|5|1|66|1|0|VERTEX|5|2|0|VERTEX|5|3|0|SEQEND|5|4"));
  EXPECT_EQ(drawing.Entities()[0].handle, 1U);
}

TEST(Index, InsertHoldsItsAttributes) {
  EXPECT_EQ(Types(Parsed(OnlyEntities("0|INSERT|66|1|0|ATTRIB|1|a|0|SEQEND|8|0|0|LINE|8|0"))),
            "INSERT LINE ");
}

TEST(Index, StrayVertexStandsAlone) {
  EXPECT_EQ(Types(Parsed(OnlyEntities("0|LINE|8|0|0|VERTEX|8|0|0|SEQEND|8|0"))), "LINE VERTEX SEQEND ");
}

TEST(Index, PaperSpaceIsLeftOutAndCounted) {
  const Document drawing =
      Parsed(OnlyEntities("0|LINE|67|     1|8|0|0|3DFACE|67|0|8|0|0|POLYLINE|67|1|0|SEQEND|8|0"));
  EXPECT_EQ(Types(drawing), "3DFACE ");
  EXPECT_EQ(drawing.PaperSpaceEntities(), 2U);
}

TEST(Index, BlockContentsAreLeftOut) {
  const Document drawing = Parsed(Tags("0|SECTION|2|BLOCKS|0|BLOCK|2|a|0|3DFACE|8|0|0|ENDBLK|0|ENDSEC") +
                                  OnlyEntities("0|LINE|8|0"));
  EXPECT_EQ(Types(drawing), "LINE ");
}

TEST(Index, ExtendedDataDoNotDisturb) {
  const Document drawing = Parsed(OnlyEntities("0|LINE|5|1|1001|ACAD|1000|ENDSEC|1070|67|0|LINE|5|2"));
  EXPECT_EQ(drawing.Entities().size(), 2U);
}

TEST(Index, CommentsDoNotDisturb) {
  EXPECT_EQ(Types(Parsed("999\nby hand\n" + OnlyEntities("999|0|0|LINE|999|67|8|0"))), "LINE ");
}

TEST(Index, BytesBehindTheEndAreNotLookedAt) {
  const std::string text = OnlyEntities("0|LINE|8|0") + "ignore\ninvalid\x01";
  EXPECT_EQ(Parsed(text).Serialize(), text);
}

TEST(Index, EndWithoutLineEnd) {
  std::string text = OnlyEntities("0|LINE|8|0");
  text.pop_back();
  EXPECT_EQ(Parsed(text).Serialize(), text);
}

TEST(Index, BrokenHandleCountsAsNone) {
  EXPECT_EQ(Parsed(OnlyEntities("0|LINE|5|odd|8|0")).Entities()[0].handle, 0U);
}

TEST(Index, FirstOfTwoEntitiesWithOneHandleIsMeant) {
  const Document drawing = Parsed(OnlyEntities("0|LINE|5|A|8|0|0|POINT|5|a|8|0"));
  EXPECT_EQ(drawing.FindEntity(0xA)->type, "LINE");
  EXPECT_EQ(drawing.FindEntity(0xB), nullptr);
  EXPECT_EQ(drawing.FindEntity(0), nullptr);
}

TEST(Index, NamesOfSectionsCompareWithoutRegardToCaseAndBlanks) {
  const Document drawing = Parsed(
      Tags("0|SECTION|2|header|9|$INSUNITS|70|4|0|ENDSEC|0|SECTION|2|Entities |0|LINE|8|0|0|ENDSEC|0|EOF"));
  EXPECT_EQ(drawing.Units(), 4);
  EXPECT_EQ(Types(drawing), "LINE ");
}

TEST(Index, FileWithoutEndIsCutShort) {
  EXPECT_EQ(LoadError(Tags("0|SECTION|2|ENTITIES|0|LINE|8|0|0|ENDSEC")),
            "roof.dxf: is cut short: EOF is missing at its end");
}

TEST(Index, SectionWithoutEndIsNamed) {
  EXPECT_EQ(LoadError(Tags("0|SECTION|2|HEADER|0|ENDSEC|0|SECTION|2|ENTITIES|0|LINE|8|0|0|EOF")),
            "roof.dxf:7: the section \"ENTITIES\" that begins here is not closed");
  EXPECT_EQ(LoadError(Tags("0|SECTION|2|BLOCKS|0|BLOCK|0|SECTION|2|ENTITIES|0|ENDSEC|0|EOF")),
            "roof.dxf:1: the section \"BLOCKS\" that begins here is not closed");
}

TEST(Index, FileThatEndsInASectionIsCutShort) {
  EXPECT_EQ(LoadError(Tags("0|SECTION|2|ENTITIES|0|LINE|8|0")),
            "roof.dxf:1: the section \"ENTITIES\" that begins here is not closed: the file is cut short");
}

TEST(Index, FileThatEndsInAPairIsCutShort) {
  EXPECT_EQ(LoadError(Tags("0|SECTION|2|ENTITIES|0|LINE|8")),
            "roof.dxf:7: the file is cut short: the value of this group code is missing");
}

TEST(Index, DrawingWithoutEntitiesSectionIsRefused) {
  EXPECT_EQ(LoadError(Tags("0|SECTION|2|HEADER|0|ENDSEC|0|EOF")), "roof.dxf: has no section ENTITIES");
}

TEST(Index, TagsBetweenSectionsAreRefused) {
  EXPECT_EQ(LoadError(Tags("0|SECTION|2|HEADER|0|ENDSEC|0|LINE|8|0|0|EOF")),
            "roof.dxf:7: a section should begin here, not \"LINE\" (group 0)");
  EXPECT_EQ(LoadError(Tags("8|x|0|EOF")), "roof.dxf:1: a section should begin here, not \"x\" (group 8)");
}

TEST(Index, SectionWithoutNameIsRefused) {
  EXPECT_EQ(LoadError(Tags("0|SECTION|0|LINE|0|ENDSEC|0|EOF")),
            "roof.dxf:1: the section that begins here has no name");
}

TEST(Index, TableWithoutEndIsNamed) {
  EXPECT_EQ(
      LoadError(Tags("0|SECTION|2|TABLES|0|TABLE|2|LAYER|0|ENDSEC|0|SECTION|2|ENTITIES|0|ENDSEC|0|EOF")),
      "roof.dxf:5: the table \"LAYER\" that begins here is not closed");
}

TEST(Index, BadGroupCodeInAnEntityIsToldWithItsLine) {
  EXPECT_EQ(LoadError(OnlyEntities("0|LINE|8|0|x1|1.0")), "roof.dxf:9: \"x1\" is not a group code");
}

}  // namespace
}  // namespace teskarlt::dxf
