// TableEntries.cpp - layers, linetypes and applications by version.
#include "teskarlt/dxf/write/TableEntries.h"

#include <iterator>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/Units.h"
#include "teskarlt/dxf/tags/Version.h"

namespace teskarlt::dxf {
namespace {

constexpr std::string_view TABLE_ORDER[] = {
    TABLE_VIEWPORTS,          TABLE_LINETYPES,    TABLE_LAYERS,           TABLE_TEXT_STYLES, TABLE_VIEWS,
    TABLE_COORDINATE_SYSTEMS, TABLE_APPLICATIONS, TABLE_DIMENSION_STYLES, TABLE_BLOCKS};

constexpr int LINEWEIGHT_DEFAULT = -3;

constexpr int ALIGNMENT_LETTER = 'A';
// In tenths of a millimetre, which doubles hold exactly: so the quotients come out as people write them.
constexpr double DASH_TENTHS = 127;
constexpr double GAP_TENTHS = 63.5;
constexpr double TENTHS_PER_MILLIMETRE = 10;

void WriteHead(TagWriter& writer, const EntryHead& head) {
  if (head.handle != 0 && NeedsHandles(head.version)) writer.Handle(CODE_HANDLE, head.handle);
  if (head.owner != 0) writer.Handle(CODE_OWNER, head.owner);
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
  writer.Integer(CODE_FLAGS, 0);
}

void WriteLinetypeBegin(TagWriter& writer, std::string_view name, std::string_view description,
                        const EntryHead& head, int dashes, double length) {
  WriteEntryBegin(writer, TABLE_LINETYPES, "AcDbLinetypeTableRecord", name, head);
  writer.Text(CODE_LINETYPE_DESCRIPTION, description);
  writer.Integer(CODE_LINETYPE_ALIGNMENT, ALIGNMENT_LETTER);
  writer.Integer(CODE_DASH_COUNT, dashes);
  writer.Real(CODE_LINETYPE_LENGTH, length);
}

void WriteDash(TagWriter& writer, double length, int version) {
  writer.Real(CODE_DASH, length);
  if (version >= VERSION_R13) writer.Integer(CODE_DASH_KIND, 0);
}

}  // namespace

std::string_view TableName(TableKind kind) {
  switch (kind) {
    case TableKind::Linetype:
      return TABLE_LINETYPES;
    case TableKind::Layer:
      return TABLE_LAYERS;
    case TableKind::Application:
      break;
  }
  return TABLE_APPLICATIONS;
}

int TableRank(std::string_view name) {
  int rank = 0;
  while (rank < static_cast<int>(std::size(TABLE_ORDER)) && !SameName(TABLE_ORDER[rank], name))
    ++rank;
  return rank;
}

std::string_view ContinuousLinetype(int version) {
  return version < VERSION_R13 ? "CONTINUOUS" : LINETYPE_CONTINUOUS;
}

void WriteTableBegin(TagWriter& writer, std::string_view name, const EntryHead& head, std::size_t count) {
  writer.Text(CODE_TYPE, TYPE_TABLE);
  writer.Text(CODE_NAME, name);
  WriteHead(writer, head);
  if (HasOwners(head.version) && head.handle != 0) writer.Handle(CODE_OWNER, 0);
  if (HasSubclassMarkers(head.version)) writer.Text(CODE_SUBCLASS, "AcDbSymbolTable");
  writer.Integer(CODE_TABLE_COUNT, static_cast<std::int64_t>(count));
}

void WriteTableEnd(TagWriter& writer) {
  writer.Text(CODE_TYPE, TYPE_TABLE_END);
}

void WriteLayer(TagWriter& writer, std::string_view name, const EntryHead& head) {
  WriteEntryBegin(writer, TABLE_LAYERS, "AcDbLayerTableRecord", name, head);
  writer.Integer(CODE_COLOUR, COLOUR_WHITE);
  writer.Text(CODE_LINETYPE, ContinuousLinetype(head.version));
  if (head.version >= VERSION_R2000) writer.Integer(CODE_LINEWEIGHT, LINEWEIGHT_DEFAULT);
}

void WriteApplication(TagWriter& writer, std::string_view name, const EntryHead& head) {
  WriteEntryBegin(writer, TABLE_APPLICATIONS, "AcDbRegAppTableRecord", name, head);
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
  if (const double millimetres = MillimetresPer(units); millimetres > 0) return millimetres;
  return isMetric ? 1 : MILLIMETRES_PER_INCH;
}

}  // namespace teskarlt::dxf
