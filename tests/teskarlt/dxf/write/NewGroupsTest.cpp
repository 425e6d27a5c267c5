// NewGroupsTest.cpp - groups that a drawing gets, and what becomes of its own.
#include <string>
#include <vector>

#include "teskarlt/dxf/tags/TypedTag.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

const std::vector<TypedTag> LINE = {
    {0, std::string_view("LINE")}, {8, std::string_view("0")}, {10, Point{0, 0, 0}}, {11, Point{1, 0, 0}}};

// Entities A and B, the layer 0, and these objects.
std::string WithObjects(std::string_view objects) {
  return Tags(
             "0|SECTION|2|HEADER|9|$ACADVER|1|AC1015|0|ENDSEC|0|SECTION|2|TABLES|"
             "0|TABLE|2|LTYPE|0|LTYPE|2|Continuous|0|ENDTAB|0|TABLE|2|LAYER|0|LAYER|2|0|0|ENDTAB|"
             "0|ENDSEC|0|SECTION|2|ENTITIES|0|LINE|5|A|0|LINE|5|B|0|ENDSEC|0|SECTION|2|OBJECTS") +
         Tags(objects) + Tags("0|ENDSEC|0|EOF");
}

// The objects of a drawing, as WithObjects takes them.
std::string ObjectsOf(const Document& drawing) {
  std::string text = drawing.Serialize();
  text.erase(0, text.find("OBJECTS\n") + 8);
  text.erase(text.find("0\nENDSEC"));
  while (text.ends_with(' '))
    text.pop_back();
  std::string objects;
  for (const char byte : text) {
    if (byte != ' ') objects += byte == '\n' ? '|' : byte;
  }
  return objects;
}

constexpr std::string_view DICTIONARIES =
    "0|DICTIONARY|5|C|3|ACAD_GROUP|350|D|0|DICTIONARY|5|D|330|C|3|ROOF|350|E|";

std::string WithGroup(const std::string& members) {
  return std::string(DICTIONARIES) + "0|GROUP|5|E|71|1|" + members;
}

std::string WithoutEntities(const std::string& objects, const std::vector<std::uint64_t>& handles) {
  Document drawing = Parsed(WithObjects(objects));
  for (const std::uint64_t handle : handles)
    drawing.RemoveEntity(*drawing.FindEntity(handle));
  return ObjectsOf(drawing);
}

TEST(NewGroups, GroupLosesARemovedMember) {
  EXPECT_EQ(WithoutEntities(WithGroup("340|A|340|B"), {0xA}), WithGroup("340|B|"));
}

TEST(NewGroups, GroupThatLosesItsLastMemberGoesWithItsName) {
  EXPECT_EQ(WithoutEntities(WithGroup("340|A|340|B"), {0xA, 0xB}),
            "0|DICTIONARY|5|C|3|ACAD_GROUP|350|D|0|DICTIONARY|5|D|330|C|");
}

TEST(NewGroups, GroupThatWasEmptyStays) {
  EXPECT_EQ(WithoutEntities(WithGroup("300|none"), {0xA}), WithGroup("300|none|"));
}

// The objects when the line F takes the place of an entity, in the group of WithGroup.
std::string WithLineInPlaceOf(std::uint64_t handle, const std::string& members) {
  Document drawing = Parsed(WithObjects(WithGroup(members)));
  const Entity* const old = drawing.FindEntity(handle);
  drawing.BeginGroup(std::vector{old});
  drawing.RemoveEntity(*old);
  EXPECT_EQ(drawing.AddEntity(LINE), 0xFU);
  drawing.EndGroup("NEW", "new");
  return ObjectsOf(drawing);
}

TEST(NewGroups, EntitiesThatReplaceAllOfAGroupComeIntoIt) {
  EXPECT_EQ(WithLineInPlaceOf(0xA, "340|A|1001|X"), WithGroup("340|F|1001|X|"));
}

TEST(NewGroups, EntitiesThatReplacePartOfAWindowGetAGroupOfTheirOwn) {
  Document drawing = Parsed(WithObjects(WithGroup("340|A")));
  drawing.BeginGroup(std::vector{drawing.FindEntity(0xA), drawing.FindEntity(0xB)});
  drawing.AddEntity(LINE);
  drawing.EndGroup("NEW", "new");
  EXPECT_EQ(ObjectsOf(drawing),
            "0|DICTIONARY|5|C|3|ACAD_GROUP|350|D|0|DICTIONARY|5|D|330|C|3|ROOF|350|E|3|NEW|350|F|"
            "0|GROUP|5|E|71|1|340|A|"
            "0|GROUP|5|F|102|{ACAD_REACTORS|330|D|102|}|330|D|100|AcDbGroup|300|new|70|0|71|1|340|10|");
}

void AddGroup(Document& drawing) {
  drawing.BeginGroup({});
  drawing.AddEntity(LINE);
  drawing.EndGroup("NEW", "new");
}

TEST(NewGroups, DictionaryThatOwnsHardOwnsTheNewGroupHard) {
  Document drawing =
      Parsed(WithObjects("0|DICTIONARY|5|C|3|ACAD_GROUP|350|D|0|DICTIONARY|5|D|280|1|3|ROOF|360|B"));
  AddGroup(drawing);
  EXPECT_THAT(ObjectsOf(drawing), testing::HasSubstr("360|B|3|NEW|360|E|0|GROUP|5|E|"));
}

TEST(NewGroups, NameOfAMissingDictionaryGivesWayToThatOfANewOneAndIsTold) {
  Document drawing = Parsed(WithObjects("0|DICTIONARY|5|C|3|ACAD_GROUP|350|D"));
  EXPECT_THAT(drawing.Notes(), testing::IsEmpty());
  AddGroup(drawing);
  EXPECT_THAT(ObjectsOf(drawing),
              testing::StartsWith("0|DICTIONARY|5|C|3|ACAD_GROUP|350|F|0|DICTIONARY|5|F|"));
  EXPECT_THAT(drawing.Notes(),
              testing::ElementsAre("roof.dxf:60: ACAD_GROUP led to D, which is no dictionary of the drawing, "
                                   "and leads to a new dictionary of groups now"));
}

TEST(NewGroups, NameOfAnotherObjectIsRefused) {
  Document drawing = Parsed(WithObjects("0|DICTIONARY|5|C|3|ACAD_GROUP|350|D|0|XRECORD|5|D"));
  EXPECT_EQ(ErrorOf([&] { AddGroup(drawing); }),
            "roof.dxf:60: ACAD_GROUP leads to the XRECORD D, and new groups need a DICTIONARY there; let a "
            "CAD program repair the drawing first");
}

// The drawing with a line in a new group, and its objects.
std::string ObjectsWithNewGroup(const std::string& text) {
  Document drawing = Parsed(text);
  AddGroup(drawing);
  return ObjectsOf(Parsed(drawing.Serialize()));
}

constexpr std::string_view TREAT_AS_HARD = "1001|ACAD|1000|TREAT_AS_HARD|1070|0|";

TEST(NewGroups, NameComesBeforeTheExtendedDataOfTheDictionary) {
  const std::string hard(TREAT_AS_HARD);
  const std::string root = "0|DICTIONARY|5|C|3|ACAD_GROUP|350|D|" + hard;
  EXPECT_THAT(ObjectsWithNewGroup(WithObjects(root + "0|DICTIONARY|5|D|330|C|" + hard + "0|XRECORD|5|E")),
              testing::StartsWith(root + "0|DICTIONARY|5|D|330|C|3|NEW|350|F|" + hard + "0|XRECORD|5|E|"));
}

TEST(NewGroups, DictionaryOfGroupsComesBeforeTheExtendedDataOfTheRoot) {
  const std::string hard(TREAT_AS_HARD);
  EXPECT_THAT(ObjectsWithNewGroup(WithObjects("0|DICTIONARY|5|C|" + hard + "0|XRECORD|5|E")),
              testing::StartsWith("0|DICTIONARY|5|C|3|ACAD_GROUP|350|11|" + hard));
}

TEST(NewGroups, MembersComeBeforeTheExtendedDataOfTheirGroup) {
  EXPECT_EQ(WithLineInPlaceOf(0xA, "340|A|300|odd|1001|X|1070|0"), WithGroup("300|odd|340|F|1001|X|1070|0|"));
}

TEST(NewGroups, NothingIsLeftOfAGroupThatIsRolledBack) {
  const std::string text = WithObjects(WithGroup("340|A"));
  Document drawing = Parsed(text);
  const EditMark mark = drawing.Mark();
  AddGroup(drawing);
  drawing.Rollback(mark);
  EXPECT_EQ(drawing.Serialize(), text);
}

TEST(NewGroups, EntityThatIsRolledBackIsNoMember) {
  Document drawing = Parsed(WithObjects(DICTIONARIES.substr(0, DICTIONARIES.size() - 1)));
  drawing.BeginGroup({});
  drawing.AddEntity(LINE);
  const EditMark mark = drawing.Mark();
  drawing.AddEntity(LINE);
  drawing.Rollback(mark);
  drawing.EndGroup("NEW", "new");
  EXPECT_THAT(ObjectsOf(drawing), testing::EndsWith("71|1|340|F|"));
}

TEST(NewGroups, DrawingWithoutObjectsGetsTheDictionariesToo) {
  EXPECT_EQ(ObjectsWithNewGroup(OfVersion("AC1015")),
            "0|DICTIONARY|5|28|330|0|100|AcDbDictionary|3|ACAD_GROUP|350|29|"
            "0|DICTIONARY|5|29|102|{ACAD_REACTORS|330|28|102|}|330|28|100|AcDbDictionary|3|NEW|350|20|"
            "0|GROUP|5|20|102|{ACAD_REACTORS|330|29|102|}|330|29|100|AcDbGroup|300|new|70|0|71|1|340|27|");
}

TEST(NewGroups, RootWithoutADictionaryOfGroupsGetsOne) {
  EXPECT_EQ(ObjectsWithNewGroup(WithObjects("0|DICTIONARY|5|C")),
            "0|DICTIONARY|5|C|3|ACAD_GROUP|350|F|"
            "0|DICTIONARY|5|F|102|{ACAD_REACTORS|330|C|102|}|330|C|100|AcDbDictionary|3|NEW|350|D|"
            "0|GROUP|5|D|102|{ACAD_REACTORS|330|F|102|}|330|F|100|AcDbGroup|300|new|70|0|71|1|340|E|");
}

// A group of a drawing of R13 with such a root.
std::string NewGroupOfR13(const std::string& root) {
  std::string text = WithObjects(root);
  text.replace(text.find("AC1015"), 6, "AC1012");
  const std::string objects = ObjectsWithNewGroup(text);
  return objects.substr(objects.find("0|GROUP|"));
}

TEST(NewGroups, GroupOfR13HasTheOwnerThatOtherObjectsHave) {
  EXPECT_EQ(NewGroupOfR13("0|DICTIONARY|5|C|330|0|3|ACAD_GROUP|350|D|0|DICTIONARY|5|D|330|C"),
            "0|GROUP|5|E|102|{ACAD_REACTORS|330|D|102|}|330|D|100|AcDbGroup|300|new|70|0|71|1|340|F|");
  EXPECT_EQ(NewGroupOfR13("0|DICTIONARY|5|C|3|ACAD_GROUP|350|D|0|DICTIONARY|5|D"),
            "0|GROUP|5|E|100|AcDbGroup|300|new|70|0|71|1|340|F|");
}

}  // namespace
}  // namespace teskarlt::dxf
