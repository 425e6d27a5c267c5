// FileKindTest.cpp - files that are no text drawings are named for what they are.
#include "teskarlt/dxf/read/FileKind.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

TEST(FileKind, EmptyFile) {
  EXPECT_EQ(LoadError(""), "roof.dxf: is empty");
}

TEST(FileKind, DwgDrawing) {
  EXPECT_EQ(LoadError("AC1032\x01\x02"),
            "roof.dxf: is a DWG drawing; save it as DXF in the CAD program first");
}

TEST(FileKind, OtherKnownFiles) {
  EXPECT_EQ(LoadError("%PDF-1.7\n"), "roof.dxf: is a PDF document, not a DXF drawing");
  EXPECT_EQ(LoadError("PK\x03\x04zip"), "roof.dxf: is a ZIP archive, not a DXF drawing; unpack it first");
  EXPECT_EQ(LoadError("ISO-10303-21;\n"), "roof.dxf: is a STEP or IFC model, not a DXF drawing");
  EXPECT_EQ(LoadError("\xFF\xFE"
                      "0"),
            "roof.dxf: is UTF-16 text; save it as DXF in its CAD program again");
}

TEST(FileKind, UnknownBinaryFile) {
  EXPECT_EQ(LoadError(std::string(100, '\0')), "roof.dxf: is not a DXF drawing but a binary file");
}

TEST(FileKind, UnknownText) {
  EXPECT_EQ(LoadError("Dear architect,\n"),
            "roof.dxf: is not a DXF drawing: it does not start with a group code");
}

TEST(FileKind, LinesThatEndWithACarriageReturnAloneAreToldByThatName) {
  EXPECT_EQ(
      LoadError(Tags("  0|SECTION|  2|ENTITIES|  0|ENDSEC|  0|EOF", "\r")),
      "roof.dxf: has lines that end with a carriage return alone, as old Macintosh programs write them; "
      "put line feeds in their place (tr '\\r' '\\n') or let a CAD program save it again");
}

TEST(FileKind, ByteOrderMarkInFrontIsTolerated) {
  const std::string text = "\xEF\xBB\xBF" + OnlyEntities("0|LINE|8|0");
  const Document drawing = Parsed(text);
  EXPECT_EQ(drawing.Entities().size(), 1U);
  EXPECT_EQ(drawing.Serialize(), text);
}

}  // namespace
}  // namespace teskarlt::dxf
