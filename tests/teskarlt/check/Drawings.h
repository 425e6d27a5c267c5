// Drawings.h - sound drawings for the tests to damage, and what the checks find in them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/check/Check.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::check {

using dxf::Tags;
using testing::ElementsAre;
using testing::IsEmpty;

inline dxf::SourceText SourceOf(std::string_view text) {
  platform::FileBytes bytes;
  bytes.bytes = std::make_unique<char[]>(text.size() + 1);
  bytes.size = text.copy(bytes.bytes.get(), text.size());
  return {"roof.dxf", std::move(bytes)};
}

inline Verdict Checked(const std::string& text) {
  return CheckDrawing(SourceOf(text));
}

// The line of the text with that number, from 1, without blanks around.
inline std::string LineAt(const std::string& text, std::size_t number) {
  std::size_t begin = 0;
  for (; number > 1; --number)
    begin = text.find('\n', begin) + 1;
  const std::string line = text.substr(begin, text.find('\n', begin) - begin);
  const auto first = line.find_first_not_of(' ');
  const auto last = line.find_last_not_of(" \r");
  return first == std::string::npos ? "" : line.substr(first, last - first + 1);
}

// Each finding as its severity, kind and the line of the drawing that it is about: "error layer-undefined
// ATTIC".
inline std::vector<std::string> Found(const std::string& text) {
  std::vector<std::string> found;
  for (const Finding& finding : Checked(text).findings) {
    found.push_back(fmt::format("{} {} {}", finding.severity == Severity::Error ? "error" : "warning",
                                KindName(finding.kind), LineAt(text, finding.place)));
  }
  return found;
}

// `text` with `from`, which stands in it once, replaced by `to`; both with "|" for line ends.
inline std::string Damaged(std::string text, std::string_view from, std::string_view to) {
  const std::string old = Tags(from);
  const auto place = text.find("\n" + old);
  EXPECT_NE(place, std::string::npos) << from;
  EXPECT_EQ(text.find("\n" + old, place + 1), std::string::npos) << from;
  return text.replace(place + 1, old.size(), Tags(to));
}

inline std::string Entry(std::string_view type, std::string_view table, std::string_view handle,
                         std::string_view marker, std::string_view name) {
  return fmt::format("0|{}|{}|{}|330|{}|100|AcDbSymbolTableRecord|100|{}|2|{}|70|0|", type,
                     type == "DIMSTYLE" ? 105 : 5, handle, table, marker, name);
}

inline std::string Table(std::string_view name, std::string_view handle, int count,
                         const std::string& entries) {
  return fmt::format("0|TABLE|2|{}|5|{}|330|0|100|AcDbSymbolTable|70|{}|{}0|ENDTAB|", name, handle, count,
                     entries);
}

inline std::string Tables() {
  const auto layer = [](std::string_view handle, std::string_view name) {
    return Entry("LAYER", "2", handle, "AcDbLayerTableRecord", name) + "62|7|6|Continuous|";
  };
  const auto linetype = [](std::string_view handle, std::string_view name) {
    return Entry("LTYPE", "5", handle, "AcDbLinetypeTableRecord", name) + "3||72|65|73|0|40|0.0|";
  };
  return Table("VPORT", "8", 0, "") +
         Table("LTYPE", "5", 1,
               linetype("51", "ByBlock") + linetype("52", "ByLayer") + linetype("53", "Continuous")) +
         Table("LAYER", "2", 2, layer("21", "0") + layer("22", "ROOF")) +
         Table("STYLE", "3", 1, Entry("STYLE", "3", "31", "AcDbTextStyleTableRecord", "Standard")) +
         Table("VIEW", "6", 0, "") + Table("UCS", "7", 0, "") +
         Table("APPID", "9", 2,
               Entry("APPID", "9", "91", "AcDbRegAppTableRecord", "ACAD") +
                   Entry("APPID", "9", "92", "AcDbRegAppTableRecord", "FOREIGN")) +
         Table("DIMSTYLE", "A", 1, Entry("DIMSTYLE", "A", "A1", "AcDbDimStyleTableRecord", "Standard")) +
         Table("BLOCK_RECORD", "1", 0,
               Entry("BLOCK_RECORD", "1", "1F", "AcDbBlockTableRecord", "*Model_Space") +
                   Entry("BLOCK_RECORD", "1", "1E", "AcDbBlockTableRecord", "*Paper_Space"));
}

inline std::string Block(std::string_view name, std::string_view entry, std::string_view begin,
                         std::string_view end) {
  return fmt::format(
      "0|BLOCK|5|{1}|330|{3}|100|AcDbEntity|8|0|100|AcDbBlockBegin|2|{0}|70|0|10|0.0|20|0.0|30|0.0|3|{0}|1||"
      "0|ENDBLK|5|{2}|330|{3}|100|AcDbEntity|8|0|100|AcDbBlockEnd|",
      name, begin, end, entry);
}

// A sound R2000 drawing with these entities, and objects besides its dictionaries; both end with "|" unless
// they are empty. Handles from 100 on are free.
inline std::string Sound(const std::string& entities = "", const std::string& objects = "",
                         std::string_view version = "AC1015") {
  std::string text = fmt::format(
      "0|SECTION|2|HEADER|9|$ACADVER|1|{}|9|$DWGCODEPAGE|3|ANSI_1250|9|$HANDSEED|5|FFFF|0|ENDSEC|"
      "0|SECTION|2|CLASSES|0|ENDSEC|0|SECTION|2|TABLES|",
      version);
  text += Tables() + "0|ENDSEC|0|SECTION|2|BLOCKS|" + Block("*Model_Space", "1F", "41", "42") +
          Block("*Paper_Space", "1E", "43", "44") + "0|ENDSEC|0|SECTION|2|ENTITIES|" + entities +
          "0|ENDSEC|0|SECTION|2|OBJECTS|"
          "0|DICTIONARY|5|C|330|0|100|AcDbDictionary|281|1|3|ACAD_GROUP|350|D|"
          "0|DICTIONARY|5|D|330|C|100|AcDbDictionary|281|1|" +
          objects + "0|ENDSEC|0|EOF";
  return Tags(text);
}

// A line on the layer ROOF; `more` are tags behind its points.
inline std::string Line(std::string_view handle, std::string_view more = "") {
  return fmt::format(
      "0|LINE|5|{}|330|1F|100|AcDbEntity|8|ROOF|100|AcDbLine|10|0.0|20|0.0|30|0.0|11|1.5|21|0.0|31|0.0|{}",
      handle, more);
}

// A sound R12 drawing with these entities; its tables are those that they need.
inline std::string SoundOld(const std::string& entities) {
  return Tags(
      "0|SECTION|2|HEADER|9|$ACADVER|1|AC1009|0|ENDSEC|0|SECTION|2|TABLES|"
      "0|TABLE|2|LAYER|70|1|0|LAYER|2|ROOF|70|0|62|7|6|CONTINUOUS|0|ENDTAB|"
      "0|TABLE|2|APPID|70|1|0|APPID|2|FOREIGN|70|0|0|ENDTAB|0|ENDSEC|0|SECTION|2|ENTITIES|" +
      entities + "0|ENDSEC|0|EOF");
}

inline std::string OldLine(std::string_view more = "") {
  return fmt::format("0|LINE|8|ROOF|10|0.0|20|0.0|30|0.0|11|1.5|21|0.0|31|0.0|{}", more);
}

}  // namespace teskarlt::check
