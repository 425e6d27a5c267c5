// ExcerptsTest.cpp - what a save changes, as small drawings.
#include <vector>

#include "teskarlt/dxf/write/Excerpts.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view HEADER = "0|SECTION|2|HEADER|9|$ACADVER|1|AC1015|9|$HANDSEED|5|20|0|ENDSEC";
constexpr std::string_view TABLES =
    "0|SECTION|2|TABLES|0|TABLE|2|LAYER|0|LAYER|2|0|0|ENDTAB|0|TABLE|2|APPID|0|APPID|2|X|0|ENDTAB|0|ENDSEC";

std::string Drawing(std::string_view objects = "") {
  return Tags(HEADER) + Tags(TABLES) +
         Tags(
             "0|SECTION|2|BLOCKS|0|BLOCK|2|a|0|ENDBLK|0|ENDSEC|0|SECTION|2|ENTITIES|0|LINE|5|A|8|0|0|LINE|5|"
             "B|"
             "8|0|1001|X|1070|1|0|POLYLINE|5|C|8|0|0|SEQEND|5|D|0|ENDSEC|0|SECTION|2|OBJECTS") +
         Tags(objects) + Tags("0|ENDSEC|0|EOF");
}

std::string Excerpt(std::string_view entities, std::string_view objects = "") {
  return Tags(HEADER) + Tags(TABLES) + Tags("0|SECTION|2|BLOCKS|0|ENDSEC|0|SECTION|2|ENTITIES") +
         Tags(entities) + Tags("0|ENDSEC|0|SECTION|2|OBJECTS") + Tags(objects) + Tags("0|ENDSEC|0|EOF");
}

TEST(Excerpts, NothingChangedIsHeaderAndTables) {
  const Excerpts excerpts = Parsed(Drawing()).MakeExcerpts();
  EXPECT_EQ(excerpts.loaded, Excerpt(""));
  EXPECT_EQ(excerpts.edited, Excerpt(""));
}

TEST(Excerpts, RemovedEntityIsThereAsItWasWithoutItsExtendedData) {
  Document drawing = Parsed(Drawing());
  drawing.RemoveEntity(*drawing.FindEntity(0xB));
  drawing.RemoveEntity(*drawing.FindEntity(0xC));
  EXPECT_EQ(drawing.MakeExcerpts().loaded, Excerpt("0|LINE|5|B|8|0|0|POLYLINE|5|C|8|0|0|SEQEND|5|D"));
  EXPECT_EQ(drawing.MakeExcerpts().edited, Excerpt(""));
}

TEST(Excerpts, TouchedEntityIsThereBeforeAndAfter) {
  Document drawing = Parsed(Drawing());
  const auto lists = drawing.TagLists(drawing.FindEntity(0xA)->text);
  drawing.ReplaceValue(lists[0].Tags().back(), "X");
  EXPECT_EQ(drawing.MakeExcerpts().loaded, Excerpt("0|LINE|5|A|8|0"));
  EXPECT_EQ(drawing.MakeExcerpts().edited, Excerpt("0|LINE|5|A|8|X"));
}

TEST(Excerpts, SharedExtendedDataStandAtTheFirstNewEntity) {
  Document drawing = Parsed(Drawing());
  for (int i = 0; i < 2; ++i)
    drawing.AddEntity(std::vector<TypedTag>{{0, "POINT"sv}, {8, "0"sv}, {1001, "X"sv}, {1000, "text"sv}});
  const std::string edited = drawing.MakeExcerpts().edited;
  EXPECT_THAT(edited,
              testing::HasSubstr(Tags("  0|POINT|  5|20|  8|0|1001|X|1000|text|  0|POINT|  5|21|  8|0|0|"
                                      "ENDSEC")));
}

// Members and entries come in at the end of an object, where the next one begins.
TEST(Excerpts, ObjectThatGrowsAtItsEndIsThere) {
  constexpr std::string_view GROUP = "0|GROUP|5|F|340|A";
  Document drawing = Parsed(Drawing("0|DICTIONARY|5|E|" + std::string(GROUP) + "|0|XRECORD|5|10|1|last"));
  drawing.BeginGroup(std::vector{drawing.FindEntity(0xA)});
  drawing.AddEntity(std::vector<TypedTag>{{0, "POINT"sv}, {8, "0"sv}});
  drawing.EndGroup("NEW", "");
  EXPECT_EQ(drawing.MakeExcerpts().loaded, Excerpt("", GROUP));
  EXPECT_THAT(drawing.MakeExcerpts().edited,
              testing::HasSubstr(Tags(std::string(GROUP) + "|340|20|0|ENDSEC")));
}

}  // namespace
}  // namespace teskarlt::dxf
