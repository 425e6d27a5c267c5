// NewDrawingTest.cpp - empty drawings.
#include <set>

#include "teskarlt/dxf/NewDrawing.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

Document New(int version, int units = UNITS_METRES) {
  NewDrawingOptions options;
  options.version = version;
  options.units = units;
  options.layers = {"ROOF_WINDOW_BODY"};
  options.applications = {"TK_LT_ELEM", "TK_LT_DESC"};
  return Parsed(NewDrawing(options));
}

constexpr int OFFERED[] = {VERSION_R12, VERSION_R2000, VERSION_R2018};

TEST(NewDrawing, HeaderHoldsVersionCodePageAndUnits) {
  for (const int version : OFFERED) {
    const Document drawing = New(version, UNITS_MILLIMETRES);
    EXPECT_EQ(drawing.Version(), version);
    EXPECT_EQ(drawing.CodePageName(), "ANSI_1250");
    EXPECT_EQ(drawing.Units(), 4);
    EXPECT_EQ(drawing.HeaderVariable("$MEASUREMENT")->value, "1");
  }
}

TEST(NewDrawing, InchesAreNotMetric) {
  EXPECT_EQ(New(VERSION_R2000, UNITS_INCHES).HeaderVariable("$MEASUREMENT")->value, "0");
}

TEST(NewDrawing, NothingIsDrawn) {
  for (const int version : OFFERED)
    EXPECT_TRUE(New(version).Entities().empty());
}

TEST(NewDrawing, LayersLinetypeAndApplicationsAreReady) {
  for (const int version : OFFERED) {
    Document drawing = New(version);
    drawing.RequireLayer("0");
    drawing.RequireLayer("ROOF_WINDOW_BODY");
    drawing.RequireLinetype("DASHED");
    drawing.RequireLinetype("CONTINUOUS");
    drawing.RequireApplication("ACAD");
    drawing.RequireApplication("TK_LT_ELEM");
    drawing.RequireApplication("TK_LT_DESC");
    EXPECT_FALSE(drawing.IsChanged()) << version;
  }
}

TEST(NewDrawing, HandlesAreUniqueAndBelowTheSeed) {
  for (const int version : OFFERED) {
    const Document drawing = New(version);
    const std::uint64_t seed = *ParseHandle(drawing.HeaderVariable("$HANDSEED")->value);
    TagReader reader(drawing.Source(), drawing.Source().Text());
    std::set<std::uint64_t> handles;
    for (Tag tag; reader.Next(tag);) {
      const bool isSeed = tag.value.data() == drawing.HeaderVariable("$HANDSEED")->value.data();
      if ((tag.code != CODE_HANDLE && tag.code != CODE_DIMSTYLE_HANDLE) || isSeed) continue;
      EXPECT_TRUE(handles.insert(*ParseHandle(tag.value)).second) << tag.value;
      EXPECT_LT(*ParseHandle(tag.value), seed);
    }
    EXPECT_EQ(handles.empty(), version == VERSION_R12);
  }
}

TEST(NewDrawing, OwnersExist) {
  for (const int version : {VERSION_R2000, VERSION_R2018}) {
    const Document drawing = New(version);
    std::set<std::uint64_t> handles{0};
    std::set<std::uint64_t> owners;
    TagReader reader(drawing.Source(), drawing.Source().Text());
    for (Tag tag; reader.Next(tag);) {
      if (tag.code == CODE_HANDLE || tag.code == CODE_DIMSTYLE_HANDLE)
        handles.insert(*ParseHandle(tag.value));
      if (tag.code == CODE_OWNER || tag.code == CODE_SOFT_OWNED) owners.insert(*ParseHandle(tag.value));
    }
    EXPECT_TRUE(std::includes(handles.begin(), handles.end(), owners.begin(), owners.end()));
  }
}

TEST(NewDrawing, CountsOfTablesAreThoseOfTheirRecords) {
  for (const int version : OFFERED) {
    const Document drawing = New(version);
    const Index index = BuildIndex(drawing.Source());
    for (const Table& table : index.tables) {
      // ByBlock and ByLayer do not count.
      const std::size_t implied = table.name == "LTYPE" && version != VERSION_R12 ? 2 : 0;
      EXPECT_EQ(ParseInteger(table.count.value), table.entries.size() - implied) << table.name;
    }
  }
}

TEST(NewDrawing, EntitiesCanBeAdded) {
  using namespace std::string_view_literals;
  for (const int version : OFFERED) {
    Document drawing = New(version);
    const TypedTag groups[] = {
        {0, "POINT"sv}, {100, "AcDbEntity"sv}, {8, "0"sv}, {100, "AcDbPoint"sv}, {10, Point{}}};
    const std::uint64_t handle = drawing.AddEntity(groups);
    EXPECT_NE(Parsed(drawing.Serialize()).FindEntity(handle), nullptr);
  }
}

TEST(NewDrawing, OtherVersionsAreNotOffered) {
  NewDrawingOptions options;
  options.version = 1014;
  EXPECT_EQ(ErrorOf([&] { NewDrawing(options); }),
            "a new drawing cannot be made in version AC1014; R12, R2000 and R2018 are offered");
}

}  // namespace
}  // namespace teskarlt::dxf
