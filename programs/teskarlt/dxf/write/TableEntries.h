// TableEntries.h - the entries that a drawing needs for our entities, as tags.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "teskarlt/dxf/write/TagWriter.h"

namespace teskarlt::dxf {

enum class TableKind { Linetype, Layer, Application };

// "LTYPE", "LAYER", "APPID".
std::string_view TableName(TableKind kind);

// Place of a table among those of a drawing: tables of a
// lower rank stand before it. Unknown tables come last.
int TableRank(std::string_view name);

// What the head of a table or entry holds by version. A handle or owner of 0 is left out.
struct EntryHead {
  int version = 0;
  std::uint64_t handle = 0;
  std::uint64_t owner = 0;
};

constexpr std::string_view LINETYPE_DASHED = "DASHED";

// The name as a version writes it.
std::string_view ContinuousLinetype(int version);

// The tags before a table's first entry.
void WriteTableBegin(TagWriter& writer, std::string_view name, const EntryHead& head, std::size_t count);
void WriteTableEnd(TagWriter& writer);

// Names are raw texts of the file.
void WriteLayer(TagWriter& writer, std::string_view name, const EntryHead& head);
void WriteApplication(TagWriter& writer, std::string_view name, const EntryHead& head);
// A linetype without dashes.
void WriteSolidLinetype(TagWriter& writer, std::string_view name, const EntryHead& head);
// Dashes of 12.7 mm with gaps of 6.35 mm, in drawing units.
void WriteDashedLinetype(TagWriter& writer, const EntryHead& head, double millimetresPerUnit);

// Length of a drawing unit for a value of $INSUNITS; a drawing without units is taken to be in millimetres,
// or in inches when it is not metric.
double MillimetresPerUnit(int units, bool isMetric);

}  // namespace teskarlt::dxf
