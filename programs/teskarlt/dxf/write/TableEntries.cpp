// TableEntries.cpp - layers, linetypes and applications by version.
#include "teskarlt/dxf/write/TableEntries.h"

#include <iterator>

#include "teskarlt/dxf/tags/Tag.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/Version.h"

namespace teskarlt::dxf {
namespace {

constexpr std::string_view TABLE_ORDER[] = {"VPORT", "LTYPE", "LAYER",    "STYLE",       "VIEW",
                                            "UCS",   "APPID", "DIMSTYLE", "BLOCK_RECORD"};

constexpr int CODE_DESCRIPTION = 3;
constexpr int CODE_COLOR = 62;
constexpr int CODE_LINEWEIGHT = 370;
constexpr int COLOR_WHITE = 7;
constexpr int LINEWEIGHT_DEFAULT = -3;

constexpr int CODE_ALIGNMENT = 72;
constexpr int CODE_DASH_COUNT = 73;
constexpr int CODE_PATTERN_LENGTH = 40;
constexpr int CODE_DASH = 49;
constexpr int CODE_DASH_TYPE = 74;
constexpr int ALIGNMENT_LETTER = 'A';
// In tenths of a millimetre, which doubles hold exactly: so the quotients come out as people write them.
constexpr double DASH_TENTHS = 127;
constexpr double GAP_TENTHS = 63.5;
constexpr double TENTHS_PER_MILLIMETRE = 10;

constexpr double MILLIMETRES_PER_INCH = 25.4;

struct Unit {
  int number;  // of $INSUNITS
  double millimetres;
};

constexpr Unit UNITS[] = {{1, MILLIMETRES_PER_INCH},
                          {2, 304.8},
                          {4, 1},
                          {5, 10},
                          {6, 1000},
                          {7, 1e6},
                          {10, 914.4},
                          {13, 1e-3},
                          {14, 100},
                          {15, 1e4},
                          {16, 1e5}};

void WriteHead(TagWriter& writer, const EntryHead& head) {
  if (head.handle != 0 && NeedsHandles(head.version)) writer.Handle(CODE_HANDLE, head.handle);
  if (head.owner != 0 && HasOwners(head.version)) writer.Handle(CODE_OWNER, head.owner);
}

void WriteEntryBegin(TagWriter& writer, std::string_view type, std::string_view subclass,
                     std::string_view name, const EntryHead& head) {
  writer.Text(CODE_TYPE, type);
  WriteHead(writer, head);
  if (HasSubclassMarkers(head.version)) {
    writer.Text(CODE_SUBCLASS, "AcDbSymbolTableRecord");
    writer.Text(CODE_SUBCLASS, subclass);
  }
  writer.Text(CODE_NAME, name);
  writer.Integer(CODE_COUNT, 0);
}

void WriteLinetypeBegin(TagWriter& writer, std::string_view name, std::string_view description,
                        const EntryHead& head, int dashes, double length) {
  WriteEntryBegin(writer, "LTYPE", "AcDbLinetypeTableRecord", name, head);
  writer.Text(CODE_DESCRIPTION, description);
  writer.Integer(CODE_ALIGNMENT, ALIGNMENT_LETTER);
  writer.Integer(CODE_DASH_COUNT, dashes);
  writer.Real(CODE_PATTERN_LENGTH, length);
}

void WriteDash(TagWriter& writer, double length, int version) {
  writer.Real(CODE_DASH, length);
  if (version >= VERSION_R13) writer.Integer(CODE_DASH_TYPE, 0);
}

}  // namespace

std::string_view TableName(TableKind kind) {
  switch (kind) {
    case TableKind::Linetype:
      return "LTYPE";
    case TableKind::Layer:
      return "LAYER";
    case TableKind::Application:
      break;
  }
  return "APPID";
}

int TableRank(std::string_view name) {
  int rank = 0;
  while (rank < static_cast<int>(std::size(TABLE_ORDER)) && !SameName(TABLE_ORDER[rank], name))
    ++rank;
  return rank;
}

void WriteTableBegin(TagWriter& writer, std::string_view name, const EntryHead& head, std::size_t count) {
  writer.Text(CODE_TYPE, "TABLE");
  writer.Text(CODE_NAME, name);
  WriteHead(writer, head);
  if (HasOwners(head.version) && head.handle != 0) writer.Handle(CODE_OWNER, 0);
  if (HasSubclassMarkers(head.version)) writer.Text(CODE_SUBCLASS, "AcDbSymbolTable");
  writer.Integer(CODE_COUNT, static_cast<std::int64_t>(count));
}

void WriteTableEnd(TagWriter& writer) {
  writer.Text(CODE_TYPE, "ENDTAB");
}

void WriteLayer(TagWriter& writer, std::string_view name, const EntryHead& head) {
  WriteEntryBegin(writer, "LAYER", "AcDbLayerTableRecord", name, head);
  writer.Integer(CODE_COLOR, COLOR_WHITE);
  writer.Text(CODE_LINETYPE, head.version < VERSION_R13 ? "CONTINUOUS" : LINETYPE_CONTINUOUS);
  if (head.version >= VERSION_R2000) writer.Integer(CODE_LINEWEIGHT, LINEWEIGHT_DEFAULT);
}

void WriteApplication(TagWriter& writer, std::string_view name, const EntryHead& head) {
  WriteEntryBegin(writer, "APPID", "AcDbRegAppTableRecord", name, head);
}

void WriteSolidLinetype(TagWriter& writer, std::string_view name, const EntryHead& head) {
  const bool isContinuous = SameName(name, LINETYPE_CONTINUOUS);
  WriteLinetypeBegin(writer, name, isContinuous ? "Solid line" : "", head, 0, 0);
}

void WriteDashedLinetype(TagWriter& writer, const EntryHead& head, double millimetresPerUnit) {
  const double tenths = millimetresPerUnit * TENTHS_PER_MILLIMETRE;
  WriteLinetypeBegin(writer, LINETYPE_DASHED, "Dashed __ __ __ __ __ __ __ __ __ __", head, 2,
                     (DASH_TENTHS + GAP_TENTHS) / tenths);
  WriteDash(writer, DASH_TENTHS / tenths, head.version);
  WriteDash(writer, -GAP_TENTHS / tenths, head.version);
}

double MillimetresPerUnit(int units, bool isMetric) {
  for (const Unit& unit : UNITS)
    if (unit.number == units) return unit.millimetres;
  return isMetric ? 1 : MILLIMETRES_PER_INCH;
}

}  // namespace teskarlt::dxf
