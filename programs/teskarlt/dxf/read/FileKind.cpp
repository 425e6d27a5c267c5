// FileKind.cpp - first bytes of the files that people take for drawings.
#include "teskarlt/dxf/read/FileKind.h"

#include <algorithm>

#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::dxf {
namespace {

struct Beginning {
  std::string_view bytes;
  const char* message;
};

constexpr Beginning BEGINNINGS[] = {
    {"AutoCAD Binary DXF",
     "is a binary DXF drawing with damage at byte 18: its first 22 bytes are not as they should be"},
    {"AC1.", "is a DWG drawing; save it as DXF in the CAD program first"},
    {"AC2.", "is a DWG drawing; save it as DXF in the CAD program first"},
    {"AC10", "is a DWG drawing; save it as DXF in the CAD program first"},
    {"%PDF", "is a PDF document, not a DXF drawing"},
    {"ISO-10303-21", "is a STEP or IFC model, not a DXF drawing"},
    {"PK\x03\x04", "is a ZIP archive, not a DXF drawing; unpack it first"},
    {"\x1F\x8B", "is a compressed file, not a DXF drawing; unpack it first"},
    {"<?xml", "is an XML or SVG file, not a DXF drawing"},
    {"<svg", "is an SVG picture, not a DXF drawing"},
    {"\x89PNG", "is a PNG picture, not a DXF drawing"},
    {"\xFF\xFE", "is UTF-16 text; save it as DXF in its CAD program again"},
    {"\xFE\xFF", "is UTF-16 text; save it as DXF in its CAD program again"},
};

// As old Macintosh programs wrote them. Doubled carriage returns before a line feed are another matter.
bool HasCarriageReturnsAlone(std::string_view text) {
  const auto end = text.find_first_of("\r\n");
  if (end == std::string_view::npos || text[end] != '\r') return false;
  const std::string_view rest = text.substr(end + 1);
  return !rest.starts_with('\n') && !rest.starts_with('\r');
}

bool StartsWithCode(std::string_view text) {
  const auto line = Trimmed(text.substr(0, text.find('\n')));
  return !line.empty() &&
         std::all_of(line.begin(), line.end(), [](char byte) { return byte >= '0' && byte <= '9'; });
}

}  // namespace

void RefuseOtherFiles(const SourceText& source) {
  const std::string_view text = source.Tags();
  if (text.empty()) source.Fail("is empty");
  for (const Beginning& beginning : BEGINNINGS)
    if (text.starts_with(beginning.bytes)) source.Fail(beginning.message);
  if (text.substr(0, 1024).find('\0') != std::string_view::npos)
    source.Fail("is not a DXF drawing but a binary file");
  if (HasCarriageReturnsAlone(text)) {
    source.Fail(
        "has lines that end with a carriage return alone, as old Macintosh programs write them; put line "
        "feeds "
        "in their place (tr '\\r' '\\n') or let a CAD program save it again");
  }
  if (!StartsWithCode(text)) source.Fail("is not a DXF drawing: it does not start with a group code");
}

}  // namespace teskarlt::dxf
