// ExcerptsTest.cpp - what a save changes, as small drawings.
#include <vector>

#include <fmt/format.h>

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

TEST(Excerpts, OneNewEntityStandsForAllThatDifferInNumbersAlone) {
  Document drawing = Parsed(Drawing());
  const auto add = [&](double x, std::int64_t number, std::string_view text) {
    return drawing.AddEntity(std::vector<TypedTag>{
        {0, "POINT"sv}, {8, "0"sv}, {10, Point{x, 0, 0}}, {1001, "X"sv}, {1070, number}, {1000, text}});
  };
  add(1, 1, "a");
  const EditMark mark = drawing.Mark();
  add(2, 2, "b");
  drawing.Rollback(mark);
  for (const std::string_view text : {"a", "b", "a"})
    add(3, 3, text);
  const Excerpts excerpts = drawing.MakeExcerpts();
  const auto point = [](std::string_view handle, int number, std::string_view text) {
    return fmt::format("  0|POINT|  5|{}|  8|0| 10|{}.0| 20|0.0| 30|0.0|1001|X|1070|{}|1000|{}", handle,
                       number, number, text);
  };
  EXPECT_EQ(
      excerpts.edited.substr(excerpts.edited.find("  0\n")),
      Tags(point("20", 1, "a") + "|" + point("22", 3, "b") + "|0|ENDSEC|0|SECTION|2|OBJECTS|0|ENDSEC|0|EOF"));
  EXPECT_EQ(excerpts.newHandles.end, 0x24U);
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
