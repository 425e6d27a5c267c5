// NewTableEntriesTest.cpp - layers, linetypes and applications that a drawing lacks.
#include "teskarlt/dxf/write/NewTableEntries.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

// A drawing with the three tables, all with the entries that every drawing has.
std::string WithTables(std::string_view version, std::string_view moreLayers = "",
                       std::string_view header = "") {
  return Tags("  0|SECTION|  2|HEADER|  9|$ACADVER|  1|" + std::string(version) +
              "|  9|$DWGCODEPAGE|  3|ANSI_1250|" + std::string(header) +
              "  9|$HANDSEED|  5|30|  0|ENDSEC|  0|SECTION|  2|TABLES|"
              "  0|TABLE|  2|LTYPE|  5|5| 70|     1|  0|LTYPE|  5|15|  2|CONTINUOUS|  0|ENDTAB|"
              "  0|TABLE|  2|LAYER|  5|2| 70|     1|  0|LAYER|  5|10|  2|0|" +
              std::string(moreLayers) +
              "  0|ENDTAB|"
              "  0|TABLE|  2|APPID|  5|9| 70|     1|  0|APPID|  5|12|  2|ACAD|  0|ENDTAB|"
              "  0|ENDSEC|  0|SECTION|  2|ENTITIES|  0|ENDSEC|  0|EOF");
}

// What the drawing holds behind "before" once it is saved, "|" for line ends.
std::string SavedFrom(const Document& drawing, std::string_view before, std::size_t length) {
  std::string text = drawing.Serialize();
  std::replace(text.begin(), text.end(), '\n', '|');
  const auto at = text.find(before);
  return at == std::string::npos ? "missing" : text.substr(at, length);
}

std::size_t Occurrences(const std::string& text, std::string_view part) {
  std::size_t count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++count;
  return count;
}

TEST(RequireLayer, LayerOfR12HasNoHandle) {
  Document drawing = Parsed(WithTables("AC1009"));
  EXPECT_EQ(drawing.RequireLayer("ROOF"), "ROOF");
  const std::string expected = "  0|LAYER|  2|ROOF| 70|0| 62|7|  6|CONTINUOUS|  0|ENDTAB|";
  EXPECT_EQ(SavedFrom(drawing, "  0|LAYER|  2|ROOF", expected.size()), expected);
}

TEST(RequireLayer, LayerOfR2000HasHandleOwnerAndMarkers) {
  Document drawing = Parsed(WithTables("AC1015"));
  drawing.RequireLayer("Roof");
  const std::string expected =
      "  0|LAYER|  5|30|330|2|100|AcDbSymbolTableRecord|100|AcDbLayerTableRecord|  2|Roof| 70|0| 62|7|"
      "  6|Continuous|370|-3|  0|ENDTAB|";
  EXPECT_EQ(SavedFrom(drawing, "  0|LAYER|  5|30", expected.size()), expected);
}

TEST(RequireLayer, LayerOfR13HasNoOwner) {
  Document drawing = Parsed(WithTables("AC1012"));
  drawing.RequireLayer("ROOF");
  const std::string expected =
      "  0|LAYER|  5|30|100|AcDbSymbolTableRecord|100|AcDbLayerTableRecord|  2|ROOF|";
  EXPECT_EQ(SavedFrom(drawing, "  0|LAYER|  5|30", expected.size()), expected);
}

// A new layer up to its name, where layer 0 names the table as its owner.
std::string BesideALayerWithOwner(std::string_view version, std::string_view tableHandle) {
  std::string text = WithTables(version);
  text.replace(text.find("  2\n0\n"), 6, "330\n2\n  2\n0\n");
  const std::string head = Tags("  2|LAYER|  5|2");
  text.replace(text.find(head), head.size(), Tags("  2|LAYER|" + std::string(tableHandle)));
  Document drawing = Parsed(text);
  drawing.RequireLayer("ROOF");
  return SavedFrom(drawing, "  0|LAYER|  5|30", 23);
}

TEST(RequireLayer, LayerHasTheOwnerThatItsNeighboursHave) {
  EXPECT_EQ(BesideALayerWithOwner("AC1012", "  5|2"), "  0|LAYER|  5|30|330|2|");
  EXPECT_EQ(BesideALayerWithOwner("AC1015", " 70|1"), "  0|LAYER|  5|30|330|2|");
  EXPECT_EQ(BesideALayerWithOwner("AC1015", "  5|no"), "  0|LAYER|  5|30|330|2|");
}

TEST(RequireLayer, CountOfTheTableGrowsInItsColumns) {
  Document drawing = Parsed(WithTables("AC1009"));
  drawing.RequireLayer("A");
  drawing.RequireLayer("B");
  EXPECT_EQ(SavedFrom(drawing, "  2|LAYER|", 27), "  2|LAYER|  5|2| 70|     3|");
}

TEST(RequireLayer, ExistingLayerStaysWhateverItsCase) {
  const std::string text = WithTables("AC1015", "  0|LAYER|  5|11|  2|Roof| 62|     3|");
  Document drawing = Parsed(text);
  EXPECT_EQ(drawing.RequireLayer("ROOF"), "ROOF");
  EXPECT_FALSE(drawing.IsChanged());
  EXPECT_EQ(drawing.Serialize(), text);
}

TEST(RequireLayer, ExistingLayerIsFoundByItsDecodedName) {
  Document drawing = Parsed(WithTables("AC1015", "  0|LAYER|  5|11|  2|Okn\xED \\U+0159|"));
  drawing.RequireLayer("OKN\xCD \xD8");
  EXPECT_FALSE(drawing.IsChanged());
}

TEST(RequireLayer, SecondTimeAddsNothing) {
  Document drawing = Parsed(WithTables("AC1015"));
  drawing.RequireLayer("Roof");
  drawing.RequireLayer("ROOF");
  EXPECT_EQ(Occurrences(drawing.Serialize(), "AcDbLayerTableRecord"), 1U);
  EXPECT_TRUE(drawing.HasLayer("roof"));
}

TEST(RequireLayer, NewerVersionsGetUtf8) {
  Document drawing = Parsed(WithTables("AC1032"));
  EXPECT_EQ(drawing.RequireLayer("Okní"), "Okní");
  EXPECT_NE(drawing.Serialize().find("  2\nOkní\n"), std::string::npos);
}

TEST(RequireLayer, NamesOfR12AreInCapitalsWithFewCharacters) {
  Document drawing = Parsed(WithTables("AC1009"));
  EXPECT_EQ(drawing.RequireLayer("Roof window 1$-"), "ROOF_WINDOW_1$-");
  EXPECT_EQ(drawing.RequireLayer("okn\xED"), "OKN_");
}

TEST(RequireLayer, NamesOfR12AreCutAt31Characters) {
  Document drawing = Parsed(WithTables("AC1009"));
  EXPECT_EQ(drawing.RequireLayer("A234567890123456789012345678901234"), "A234567890123456789012345678901");
}

TEST(RequireLayer, UnusualNameOfAnR12FileIsUsedAsItIs) {
  Document drawing = Parsed(WithTables("AC1009", "  0|LAYER|  2|roof window|"));
  EXPECT_EQ(drawing.RequireLayer("Roof window"), "Roof window");
  EXPECT_FALSE(drawing.IsChanged());
}

TEST(RequireLayer, ForbiddenCharactersOfLaterVersionsAreReplaced) {
  EXPECT_EQ(AllowedLayerName("a<b>c/d\\e\"f:g;h?i*j|k,l=m`n o", 1015), "a_b_c_d_e_f_g_h_i_j_k_l_m_n o");
}

TEST(RequireLayer, EmptyNameIsLayerZero) {
  Document drawing = Parsed(WithTables("AC1015"));
  EXPECT_EQ(drawing.RequireLayer(""), "0");
  EXPECT_FALSE(drawing.IsChanged());
}

TEST(RequireLinetype, DashedOfR12) {
  Document drawing = Parsed(WithTables("AC1009", "", "  9|$INSUNITS| 70|     4|"));
  drawing.RequireLinetype("DASHED");
  const std::string expected =
      "  0|LTYPE|  2|DASHED| 70|0|  3|Dashed __ __ __ __ __ __ __ __ __ __| 72|65| 73|2| 40|19.05| 49|12.7| "
      "49|-6.35|  0|ENDTAB|";
  EXPECT_EQ(SavedFrom(drawing, "  0|LTYPE|  2|DASHED", expected.size()), expected);
}

TEST(RequireLinetype, DashedOfR2000HasTheTypeOfEachDash) {
  Document drawing = Parsed(WithTables("AC1015", "", "  9|$INSUNITS| 70|     4|"));
  drawing.RequireLinetype("DASHED");
  EXPECT_EQ(SavedFrom(drawing, " 40|19.05", 44), " 40|19.05| 49|12.7| 74|0| 49|-6.35| 74|0|  0");
}

TEST(RequireLinetype, DashesFollowTheUnits) {
  const auto pattern = [](std::string_view header) {
    Document drawing = Parsed(WithTables("AC1009", "", header));
    drawing.RequireLinetype("DASHED");
    return SavedFrom(drawing, " 40|", 32);
  };
  EXPECT_EQ(pattern("  9|$INSUNITS| 70|     1|").substr(0, 27), " 40|0.75| 49|0.5| 49|-0.25|");
  EXPECT_EQ(pattern("  9|$INSUNITS| 70|     5|").substr(0, 30), " 40|1.905| 49|1.27| 49|-0.635|");
  EXPECT_EQ(pattern("  9|$INSUNITS| 70|     6|"), " 40|0.01905| 49|0.0127| 49|-0.00");
  EXPECT_EQ(pattern("").substr(0, 28), " 40|19.05| 49|12.7| 49|-6.35");
  EXPECT_EQ(pattern("  9|$MEASUREMENT| 70|     0|").substr(0, 27), " 40|0.75| 49|0.5| 49|-0.25|");
}

TEST(RequireLinetype, LinetypesOfLayerAndBlockNeedNoRecord) {
  Document drawing = Parsed(WithTables("AC1015"));
  drawing.RequireLinetype("BYLAYER");
  drawing.RequireLinetype("ByBlock");
  EXPECT_FALSE(drawing.IsChanged());
}

TEST(RequireLinetype, UnknownOneIsRefused) {
  Document drawing = Parsed(WithTables("AC1015"));
  EXPECT_EQ(ErrorOf([&] { drawing.RequireLinetype("ZIGZAG"); }),
            "roof.dxf: the linetype \"ZIGZAG\" is not in the drawing");
}

TEST(RequireApplication, RecordOfR2000) {
  Document drawing = Parsed(WithTables("AC1015"));
  drawing.RequireApplication("TK_LT_ELEM");
  const std::string expected =
      "  0|APPID|  5|30|330|9|100|AcDbSymbolTableRecord|100|AcDbRegAppTableRecord|  2|TK_LT_ELEM| 70|0|  "
      "0|ENDTAB|";
  EXPECT_EQ(SavedFrom(drawing, "  0|APPID|  5|30", expected.size()), expected);
}

TEST(NewTable, MissingTableIsMadeInItsPlace) {
  Document drawing = Parsed(OfVersion("AC1015"));
  drawing.RequireApplication("TK_LT_ELEM");
  const std::string expected =
      "  0|TABLE|  2|APPID|  5|20|330|0|100|AcDbSymbolTable| 70|2|"
      "  0|APPID|  5|21|330|20|100|AcDbSymbolTableRecord|100|AcDbRegAppTableRecord|  2|ACAD| 70|0|"
      "  0|APPID|  5|22|330|20|100|AcDbSymbolTableRecord|100|AcDbRegAppTableRecord|  2|TK_LT_ELEM| 70|0|"
      "  0|ENDTAB|  0|TABLE|  2|BLOCK_RECORD|";
  EXPECT_EQ(SavedFrom(drawing, "  0|TABLE|  2|APPID", expected.size()), expected);
}

TEST(NewTable, MissingSectionIsMadeBeforeTheEntities) {
  Document drawing = Parsed(OnlyEntities("0|LINE|8|0"));
  drawing.RequireLayer("ROOF");
  const std::string expected =
      "  0|SECTION|  2|TABLES|  0|TABLE|  2|LTYPE| 70|1|  0|LTYPE|  2|Continuous| 70|0|  3|Solid line| "
      "72|65| "
      "73|0| 40|0.0|  0|ENDTAB|  0|TABLE|  2|LAYER| 70|2|  0|LAYER|  2|0| 70|0| 62|7|  6|CONTINUOUS|"
      "  0|LAYER|  2|ROOF| 70|0| 62|7|  6|CONTINUOUS|  0|ENDTAB|  0|ENDSEC|0|SECTION|2|ENTITIES|";
  EXPECT_EQ(SavedFrom(drawing, "  0|SECTION", expected.size()), expected);
}

TEST(NewTable, TableWithBrokenHandleCannotGetRecords) {
  std::string text = WithTables("AC1015");
  text.replace(text.find("LAYER\n  5\n2\n") + 10, 1, "odd");
  Document drawing = Parsed(text);
  EXPECT_EQ(ErrorOf([&] { drawing.RequireLayer("Roof"); }),
            "roof.dxf:44: \"odd\" is no handle, and new records of the table have to refer to it; let a CAD "
            "program repair the drawing first");
}

}  // namespace
}  // namespace teskarlt::dxf
