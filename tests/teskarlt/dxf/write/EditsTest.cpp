// EditsTest.cpp - entities that come and go.
#include <vector>

#include "teskarlt/dxf/write/Edits.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

using namespace std::string_view_literals;

// A line as the module hands it over.
std::vector<TypedTag> Line(double length, std::string_view layer = "0") {
  return {{0, "LINE"sv},       {100, "AcDbEntity"sv}, {8, layer},
          {100, "AcDbLine"sv}, {10, Point{0, 0, 0}},  {11, Point{length, 0, 0}}};
}

std::vector<TypedTag> WithData(std::vector<TypedTag> groups, std::int64_t number) {
  groups.insert(groups.end(), {{-3, std::int64_t{0}}, {1001, "TK_LT_ELEM"sv}, {1071, number}});
  return groups;
}

// A drawing whose tables lack nothing for entities on layer 0.
std::string Complete(std::string_view version) {
  return Tags(
      "  0|SECTION|  2|HEADER|  9|$ACADVER|  1|" + std::string(version) +
      "|  9|$DWGCODEPAGE|  3|ANSI_1250|  9|$HANDSEED|  5|20|  0|ENDSEC|  0|SECTION|  2|TABLES|"
      "  0|TABLE|  2|LAYER|  5|2| 70|     1|  0|LAYER|  5|10|  2|0|  0|ENDTAB|"
      "  0|TABLE|  2|APPID|  5|9| 70|     1|  0|APPID|  5|12|  2|TK_LT_ELEM|  0|ENDTAB|"
      "  0|TABLE|  2|BLOCK_RECORD|  5|1| 70|     1|  0|BLOCK_RECORD|  5|1F|  2|*MODEL_SPACE|  0|ENDTAB|"
      "  0|ENDSEC|  0|SECTION|  2|ENTITIES|  0|POINT|  5|1A|  8|0|  0|ENDSEC|  0|EOF");
}

// The text between the entity POINT and the end of the section, "|" for line ends.
std::string Added(const Document& drawing) {
  std::string text = drawing.Serialize();
  std::replace(text.begin(), text.end(), '\n', '|');
  const auto begin = text.find("POINT|  5|1A|  8|0|") + 19;
  return text.substr(begin, text.rfind("  0|ENDSEC|") - begin);
}

TEST(AddEntity, EntityOfR2000GetsHandleAndOwner) {
  Document drawing = Parsed(Complete("AC1015"));
  EXPECT_EQ(drawing.AddEntity(Line(2.5)), 0x20U);
  EXPECT_EQ(Added(drawing),
            "  0|LINE|  5|20|330|1F|100|AcDbEntity|  8|0|100|AcDbLine| 10|0.0| 20|0.0| 30|0.0| 11|2.5| "
            "21|0.0| 31|0.0|");
}

TEST(AddEntity, EntityOfR12HasNoMarkers) {
  Document drawing = Parsed(Complete("AC1009"));
  EXPECT_EQ(drawing.AddEntity(Line(1)), 0x20U);
  EXPECT_EQ(Added(drawing), "  0|LINE|  5|20|  8|0| 10|0.0| 20|0.0| 30|0.0| 11|1.0| 21|0.0| 31|0.0|");
}

TEST(AddEntity, EntityOfR13HasNoOwner) {
  Document drawing = Parsed(Complete("AC1012"));
  drawing.AddEntity(Line(1));
  EXPECT_EQ(Added(drawing).substr(0, 32), "  0|LINE|  5|20|100|AcDbEntity| ");
}

// The owner of a new entity; the text has the model space 1F, and its POINT the owner 1E.
std::string OwnerOfNew(std::string_view version, std::string_view from, std::string_view to) {
  std::string text = Complete(version);
  text.replace(text.find("  5\n1A\n"), 7, "  5\n1A\n330\n1E\n");
  const std::string old = Tags(from);
  text.replace(text.find(old), old.size(), Tags(to));
  Document drawing = Parsed(text);
  drawing.AddEntity(Line(1));
  const std::string added = drawing.Serialize().substr(text.rfind("  0\nENDSEC"));
  const auto owner = added.find("330\n");
  return owner == std::string::npos ? "none"
                                    : added.substr(owner + 4, added.find('\n', owner + 4) - owner - 4);
}

TEST(AddEntity, OwnerIsTheModelSpaceOrElseThatOfTheNeighbours) {
  EXPECT_EQ(OwnerOfNew("AC1015", "", ""), "1F");
  EXPECT_EQ(OwnerOfNew("AC1015", "  5|1F", ""), "1E");
  EXPECT_EQ(OwnerOfNew("AC1015", "  5|1F", "  5|no"), "1E");
  EXPECT_EQ(OwnerOfNew("AC1015", "  2|BLOCK_RECORD", "  2|BLOCK"), "1E");
}

TEST(AddEntity, EntityOfR13HasTheOwnerOfItsNeighbours) {
  EXPECT_EQ(OwnerOfNew("AC1012", "", ""), "1E");
}

TEST(AddEntity, ModelSpaceWithoutHandleIsRefusedWhereNoNeighbourHasAnOwner) {
  std::string text = Complete("AC1015");
  text.erase(text.find("  5\n1F\n"), 7);
  Document drawing = Parsed(text);
  EXPECT_EQ(
      ErrorOf([&] { drawing.AddEntity(Line(1)); }),
      "roof.dxf:66: this record has no handle, and new entities of the model space have to refer to it; "
      "let a CAD program repair the drawing first");
}

TEST(AddEntity, OldDrawingWhoseObjectsAloneHaveHandlesGetsSome) {
  std::string text = OnlyEntities("0|LINE|8|0");
  text.insert(text.rfind("0\nEOF"), Tags("0|SECTION|2|OBJECTS|0|DICTIONARY|5|C|0|ENDSEC"));
  EXPECT_EQ(Parsed(text).AddEntity(Line(1)), 0xDU);
}

TEST(AddEntity, OldDrawingWithoutHandlesGetsNone) {
  const std::string text = OnlyEntities("0|LINE|8|0");
  Document drawing = Parsed(text);
  EXPECT_EQ(drawing.AddEntity(Line(1)), 0U);
  EXPECT_NE(drawing.Serialize().find("  0\nLINE\n  8\n0\n 10\n"), std::string::npos);
}

TEST(AddEntity, HandlingSaysWhetherAnOldDrawingHasHandles) {
  const auto firstHandle = [](std::string_view handling) {
    std::string text = Complete("AC1009");
    text.insert(text.find("  9\n$HANDSEED"), Tags("  9|$HANDLING| 70|" + std::string(handling)));
    return Parsed(text).AddEntity(Line(1));
  };
  EXPECT_EQ(firstHandle("     0"), 0U);
  EXPECT_EQ(firstHandle("     1"), 0x20U);
}

TEST(AddEntity, ExtendedDataFollowWithoutTheMarker) {
  Document drawing = Parsed(Complete("AC1009"));
  drawing.AddEntity(WithData(Line(1), -7));
  EXPECT_TRUE(Added(drawing).ends_with(" 31|0.0|1001|TK_LT_ELEM|1071|-7|")) << Added(drawing);
}

TEST(AddEntity, EachEntityKeepsItsOwnExtendedData) {
  Document drawing = Parsed(Complete("AC1009"));
  for (const std::int64_t number : {1, 1, 2, 1})
    drawing.AddEntity(WithData(Line(1), number));
  std::string numbers;
  const std::string text = Added(drawing);
  for (auto at = text.find("1071|"); at != std::string::npos; at = text.find("1071|", at + 1))
    numbers += text[at + 5];
  EXPECT_EQ(numbers, "1121");
}

TEST(AddEntity, SeedFollowsTheHandles) {
  Document drawing = Parsed(Complete("AC1015"));
  drawing.AddEntity(Line(1));
  drawing.AddEntity(Line(2));
  EXPECT_NE(drawing.Serialize().find("$HANDSEED\n  5\n22\n"), std::string::npos);
}

TEST(AddEntity, HandlesBeginAboveTheLargestInUse) {
  std::string text = Complete("AC1015");
  text.replace(text.find("5\n1A\n"), 5, "5\nFF0\n");
  EXPECT_EQ(Parsed(text).AddEntity(Line(1)), 0xFF1U);
}

TEST(AddEntity, HandlesOfDimensionStylesCountToo) {
  std::string text = Complete("AC1015");
  text.insert(text.find("  0\nTABLE\n  2\nBLOCK"),
              Tags("  0|TABLE|  2|DIMSTYLE|  0|DIMSTYLE|105|ABC|  5|FFFF|  0|ENDTAB"));
  EXPECT_EQ(Parsed(text).AddEntity(Line(1)), 0xABDU);
}

TEST(AddEntity, MissingSeedIsAdded) {
  std::string text = Complete("AC1015");
  const std::string seed = Tags("  9|$HANDSEED|  5|20");
  text.erase(text.find(seed), seed.size());
  Document drawing = Parsed(text);
  EXPECT_EQ(drawing.AddEntity(Line(1)), 0x20U);
  EXPECT_NE(drawing.Serialize().find("  9\n$HANDSEED\n  5\n21\n  0\nENDSEC"), std::string::npos);
}

TEST(AddEntity, DrawingThatUsedUpItsHandlesRefuses) {
  std::string text = Complete("AC1015");
  text.replace(text.find("5\n1A\n"), 5, "5\nFFFFFFFFFFFFFFFF\n");
  EXPECT_EQ(ErrorOf([&] { Parsed(text).AddEntity(Line(1)); }), "the drawing has used up all handles");
}

TEST(AddEntity, ModelSpaceWithBrokenHandleRefuses) {
  std::string text = Complete("AC1015");
  text.replace(text.find("5\n1F\n"), 5, "5\nodd\n");
  EXPECT_EQ(
      ErrorOf([&] { Parsed(text).AddEntity(Line(1)); }),
      "roof.dxf:66: \"odd\" is no handle, and new entities of the model space have to refer to it; let a "
      "CAD program repair the drawing first");
}

TEST(AddEntity, MissingModelSpaceLeavesTheOwnerOut) {
  std::string text = Complete("AC1015");
  text.replace(text.find("*MODEL_SPACE"), 12, "*OTHER_SPACE");
  Document drawing = Parsed(text);
  drawing.AddEntity(Line(1));
  EXPECT_EQ(Added(drawing).find("330|"), std::string::npos);
}

TEST(AddEntity, LineEndsAreTheFiles) {
  std::string text = Complete("AC1009");
  for (auto at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 2))
    text.replace(at, 1, "\r\n");
  Document drawing = Parsed(text);
  drawing.AddEntity(Line(1, "NEW"));
  const std::string saved = drawing.Serialize();
  EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), std::count(saved.begin(), saved.end(), '\r'));
}

TEST(AddEntity, LayerThatTheDrawingLacksIsAdded) {
  Document drawing = Parsed(Complete("AC1009"));
  drawing.AddEntity(Line(1, "Roof 1"));
  EXPECT_TRUE(drawing.HasLayer("ROOF_1"));
  EXPECT_NE(Added(drawing).find("  8|ROOF_1|"), std::string::npos);
}

TEST(AddEntity, RefusedEntityLeavesNoTrace) {
  const std::string text = Complete("AC1015");
  Document drawing = Parsed(text);
  auto groups = WithData(Line(1, "New"), 1);
  const std::string tooLong(256, 'x');
  groups.push_back({1000, std::string_view(tooLong)});
  EXPECT_NE(ErrorOf([&] { drawing.AddEntity(groups); }), "");
  EXPECT_EQ(drawing.Serialize(), text);
  EXPECT_FALSE(drawing.IsChanged());
  EXPECT_EQ(drawing.AddEntity(Line(1)), 0x20U);
}

TEST(AddEntity, UnknownLinetypeIsRefused) {
  Document drawing = Parsed(Complete("AC1015"));
  auto groups = Line(1);
  groups.insert(groups.begin() + 3, {6, "ZIGZAG"sv});
  EXPECT_EQ(ErrorOf([&] { drawing.AddEntity(groups); }),
            "roof.dxf: the linetype \"ZIGZAG\" is not in the drawing");
}

TEST(RemoveEntity, BytesOfTheEntityGo) {
  Document drawing = Parsed(OnlyEntities("0|LINE|8|A|0|POINT|8|B|0|LINE|8|C"));
  drawing.RemoveEntity(drawing.Entities()[1]);
  EXPECT_TRUE(drawing.IsRemoved(drawing.Entities()[1]));
  EXPECT_FALSE(drawing.IsRemoved(drawing.Entities()[0]));
  EXPECT_EQ(drawing.Serialize(), OnlyEntities("0|LINE|8|A|0|LINE|8|C"));
}

TEST(RemoveEntity, SecondTimeDoesNothing) {
  Document drawing = Parsed(OnlyEntities("0|LINE|8|A|0|POINT|8|B"));
  drawing.RemoveEntity(drawing.Entities()[0]);
  drawing.RemoveEntity(drawing.Entities()[0]);
  EXPECT_EQ(drawing.Serialize(), OnlyEntities("0|POINT|8|B"));
}

TEST(RemoveEntity, PolylineGoesWithItsVertices) {
  Document drawing = Parsed(OnlyEntities("0|POLYLINE|66|1|0|VERTEX|8|0|0|SEQEND|8|0|0|LINE|8|0"));
  drawing.RemoveEntity(drawing.Entities()[0]);
  EXPECT_EQ(drawing.Serialize(), OnlyEntities("0|LINE|8|0"));
}

TEST(RemoveEntity, CommentBehindTheEntityStays) {
  Document drawing = Parsed(OnlyEntities("0|LINE|8|A|999|keep me|0|POINT|8|B"));
  drawing.RemoveEntity(drawing.Entities()[0]);
  EXPECT_EQ(drawing.Serialize(), OnlyEntities("999|keep me|0|POINT|8|B"));
}

TEST(RemoveEntity, EntityOfAnotherDrawingIsRefused) {
  Document drawing = Parsed(OnlyEntities("0|LINE|8|A"));
  const Entity stranger{};
  EXPECT_EQ(ErrorOf([&] { drawing.RemoveEntity(stranger); }),
            "roof.dxf: this entity is not one of the drawing");
}

TEST(Edits, InsertAndRemoveGiveTheOldBytesButForTheSeed) {
  std::string text = Complete("AC1015");
  Document first = Parsed(text);
  first.AddEntity(WithData(Line(1), 7));
  Document second = Parsed(first.Serialize());
  second.RemoveEntity(*second.FindEntity(0x20));
  text.replace(text.find("$HANDSEED\n  5\n20"), 16, "$HANDSEED\n  5\n21");
  EXPECT_EQ(second.Serialize(), text);
}

TEST(Edits, HandleOfARemovedEntityIsNotGivenAgain) {
  Document first = Parsed(Complete("AC1015"));
  first.AddEntity(Line(1));
  Document second = Parsed(first.Serialize());
  second.RemoveEntity(*second.FindEntity(0x20));
  EXPECT_EQ(second.AddEntity(Line(2)), 0x21U);
}

TEST(Rollback, EverythingSinceTheMarkIsUndone) {
  Document drawing = Parsed(Complete("AC1015"));
  drawing.AddEntity(WithData(Line(1, "First"), 1));
  const std::string before = drawing.Serialize();
  const EditMark mark = drawing.Mark();
  drawing.AddEntity(WithData(Line(2, "Second"), 2));
  drawing.RemoveEntity(drawing.Entities()[0]);
  drawing.Rollback(mark);
  EXPECT_EQ(drawing.Serialize(), before);
  EXPECT_FALSE(drawing.HasLayer("Second"));
  EXPECT_FALSE(drawing.IsRemoved(drawing.Entities()[0]));
}

TEST(Rollback, WorkGoesOnAfterIt) {
  Document drawing = Parsed(Complete("AC1015"));
  const EditMark mark = drawing.Mark();
  drawing.AddEntity(WithData(Line(1, "Roof"), 1));
  const std::string once = drawing.Serialize();
  drawing.Rollback(mark);
  drawing.AddEntity(WithData(Line(1, "Roof"), 1));
  EXPECT_EQ(drawing.Serialize(), once);
}

TEST(ReplaceValue, PutsTheNewValueInThePlaceOfTheOldOne) {
  Document drawing = Parsed(Tags("0|SECTION|2|ENTITIES|0|LINE|62| 7|8|A|0|ENDSEC|0|EOF"));
  TagReader reader = drawing.Reader(drawing.Entities()[0]);
  Tag tag;
  while (reader.Next(tag) && tag.code != 62) {
  }
  const EditMark mark = drawing.Mark();
  drawing.ReplaceValue(tag, "256");
  EXPECT_TRUE(drawing.IsChanged());
  EXPECT_EQ(drawing.Serialize(), Tags("0|SECTION|2|ENTITIES|0|LINE|62|256|8|A|0|ENDSEC|0|EOF"));
  drawing.Rollback(mark);
  EXPECT_FALSE(drawing.IsChanged());
}

// Complete's drawing with a text of tags behind the entry of the application.
std::string WithApplicationData(std::string_view version, const std::string& data) {
  std::string text = Complete(version);
  const std::string entry = Tags("  2|TK_LT_ELEM");
  return text.insert(text.find(entry) + entry.size(), data);
}

TEST(KeepApplicationNumber, ComesBackFromItsTableEntry) {
  Document drawing = Parsed(Complete("AC1015"));
  EXPECT_EQ(drawing.ApplicationNumber("TK_LT_ELEM"), std::nullopt);
  drawing.KeepApplicationNumber("tk_lt_elem", 7);
  EXPECT_EQ(drawing.Serialize(), WithApplicationData("AC1015", Tags("1001|tk_lt_elem|1071|7")));
  EXPECT_EQ(Parsed(drawing.Serialize()).ApplicationNumber("TK_LT_ELEM"), 7);
}

TEST(KeepApplicationNumber, ReplacesTheOneBeforeAndNoOtherApplicationsData) {
  const auto data = [](const char* number) {
    return Tags("1001|ACAD|1071|1|1001|TK_LT_ELEM|1000|A|1071|" + std::string(number));
  };
  Document drawing = Parsed(WithApplicationData("AC1009", data("4")));
  EXPECT_EQ(drawing.ApplicationNumber("TK_LT_ELEM"), 4);
  drawing.KeepApplicationNumber("TK_LT_ELEM", 12);
  EXPECT_EQ(drawing.Serialize(), WithApplicationData("AC1009", data("12")));
}

TEST(KeepApplicationNumber, IsNoneForAnUnknownApplicationAndAnUnreadableNumber) {
  Document drawing = Parsed(WithApplicationData("AC1015", Tags("1001|TK_LT_ELEM|1071|99999999999")));
  EXPECT_EQ(drawing.ApplicationNumber("TK_LT_ELEM"), std::nullopt);
  drawing.KeepApplicationNumber("OTHER", 1);
  EXPECT_FALSE(drawing.IsChanged());
}

TEST(KeepApplicationNumber, StandsBeforeEntriesThatTheTableGets) {
  Document drawing = Parsed(Complete("AC1009"));
  drawing.RequireApplication("OTHER");
  drawing.KeepApplicationNumber("TK_LT_ELEM", 3);
  const Document saved = Parsed(drawing.Serialize());
  EXPECT_EQ(saved.ApplicationNumber("TK_LT_ELEM"), 3);
  EXPECT_EQ(saved.ApplicationNumber("OTHER"), std::nullopt);
}

// What stands behind the layer of the POINT, which has `data`, once it is given the mark, or loses it.
std::string Marked(std::string_view data, std::vector<TypedTag> mark) {
  std::string text = Complete("AC1015");
  const std::string point = Tags("  0|POINT|  5|1A|  8|0");
  text.insert(text.find(point) + point.size(), data.empty() ? std::string() : Tags(data));
  Document drawing = Parsed(text);
  drawing.SetExtendedData(drawing.Entities()[0], mark);
  return Added(drawing);
}

const std::vector<TypedTag> MARK = {{1001, "MARK"sv}, {1000, "W01"sv}};

TEST(SetExtendedData, ComesBehindAllOtherData) {
  EXPECT_EQ(Marked("", MARK), "1001|MARK|1000|W01|");
  EXPECT_EQ(Marked("1001|OTHER|1071|7", MARK), "1001|OTHER|1071|7|1001|MARK|1000|W01|");
}

TEST(SetExtendedData, TakesThePlaceOfWhatTheApplicationHad) {
  EXPECT_EQ(Marked("1001|mark|1000|X|1070|1|1001|OTHER|1071|7", MARK),
            "1001|MARK|1000|W01|1001|OTHER|1071|7|");
}

TEST(SetExtendedData, NameAloneTakesTheDataAway) {
  EXPECT_EQ(Marked("1001|MARK|1000|X|1001|OTHER|1071|7", {{1001, "MARK"sv}}), "1001|OTHER|1071|7|");
  EXPECT_EQ(Marked("1001|OTHER|1071|7", {{1001, "MARK"sv}}), "1001|OTHER|1071|7|");
}

TEST(SetExtendedData, DeclaresTheApplication) {
  Document drawing = Parsed(Complete("AC1015"));
  drawing.SetExtendedData(drawing.Entities()[0], MARK);
  const std::string text = drawing.Serialize();
  const std::size_t entry = text.rfind("APPID\n", text.find("BLOCK_RECORD"));
  EXPECT_NE(text.substr(entry, text.find("ENDTAB", entry) - entry).find("\nMARK\n"), std::string::npos)
      << text;
}

// 16,383 bytes: names and texts count three bytes more than they have.
TEST(SetExtendedData, MoreThanAnEntityCanHoldIsRefused) {
  std::string others = "1001|OTHER";
  for (int i = 0; i < 80; ++i)
    others += "|1000|" + std::string(200, 'x');
  EXPECT_NE(Marked(others, MARK), "");
  EXPECT_THROW(Marked(others + "|1000|" + std::string(130, 'y'), MARK), Error);
}

TEST(SetExtendedData, GoesWithARollback) {
  Document drawing = Parsed(Complete("AC1015"));
  const EditMark before = drawing.Mark();
  drawing.SetExtendedData(drawing.Entities()[0], MARK);
  EXPECT_TRUE(drawing.IsChanged());
  drawing.Rollback(before);
  EXPECT_FALSE(drawing.IsChanged());
}

}  // namespace
}  // namespace teskarlt::dxf
