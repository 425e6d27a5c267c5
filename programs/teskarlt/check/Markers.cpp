// Markers.cpp - the class markers of the objects that every drawing is made of.
#include "teskarlt/check/Markers.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

#include <fmt/format.h>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::check {
namespace {

using MarkerNames = std::array<std::string_view, 5>;  // empty ones do not count

struct Expected {
  std::string_view type;
  MarkerNames all;      // each has to be there
  MarkerNames oneOf{};  // if there are any, one of them
};

// In the order of their types. Types that are not here are not checked.
constexpr Expected ENTITIES[] = {
    {"3DFACE", {"AcDbFace"}},
    {"3DSOLID", {"AcDbModelerGeometry"}},
    {"ARC", {"AcDbCircle", "AcDbArc"}},
    {"ATTDEF", {"AcDbText", "AcDbAttributeDefinition"}},
    {"ATTRIB", {"AcDbText", "AcDbAttribute"}},
    {"BLOCK", {"AcDbBlockBegin"}},
    {"CIRCLE", {"AcDbCircle"}},
    {"DIMENSION", {"AcDbDimension"}},
    {"ELLIPSE", {"AcDbEllipse"}},
    {"ENDBLK", {"AcDbBlockEnd"}},
    {"HATCH", {"AcDbHatch"}},
    {"IMAGE", {"AcDbRasterImage"}},
    {"INSERT", {}, {"AcDbBlockReference", "AcDbMInsertBlock"}},
    {"LEADER", {"AcDbLeader"}},
    {"LINE", {"AcDbLine"}},
    {"LWPOLYLINE", {"AcDbPolyline"}},
    {"MTEXT", {"AcDbMText"}},
    {"POINT", {"AcDbPoint"}},
    {"POLYLINE", {}, {"AcDb2dPolyline", "AcDb3dPolyline", "AcDbPolygonMesh", "AcDbPolyFaceMesh"}},
    {"RAY", {"AcDbRay"}},
    {"SEQEND", {}},
    {"SOLID", {"AcDbTrace"}},
    {"SPLINE", {"AcDbSpline"}},
    {"TEXT", {"AcDbText"}},
    {"TRACE", {"AcDbTrace"}},
    {"VERTEX",
     {},
     {"AcDb2dVertex", "AcDb3dPolylineVertex", "AcDbPolygonMeshVertex", "AcDbPolyFaceMeshVertex",
      "AcDbFaceRecord"}},
    {"VIEWPORT", {"AcDbViewport"}},
    {"XLINE", {"AcDbXline"}},
};

constexpr Expected TABLE_ENTRIES[] = {
    {"APPID", {"AcDbRegAppTableRecord"}},      {"BLOCK_RECORD", {"AcDbBlockTableRecord"}},
    {"DIMSTYLE", {"AcDbDimStyleTableRecord"}}, {"LAYER", {"AcDbLayerTableRecord"}},
    {"LTYPE", {"AcDbLinetypeTableRecord"}},    {"STYLE", {"AcDbTextStyleTableRecord"}},
    {"UCS", {"AcDbUCSTableRecord"}},           {"VIEW", {"AcDbViewTableRecord"}},
    {"VPORT", {"AcDbViewportTableRecord"}},
};

constexpr Expected OBJECTS[] = {
    {"DICTIONARY", {"AcDbDictionary"}},
    {"GROUP", {"AcDbGroup"}},
    {"SORTENTSTABLE", {"AcDbSortentsTable"}},
};

constexpr std::string_view ENTITY_MARKER = "AcDbEntity";
constexpr std::string_view TABLE_ENTRY_MARKER = "AcDbSymbolTableRecord";
constexpr Expected TABLE = {"TABLE", {"AcDbSymbolTable"}};

template <std::size_t SIZE>
const Expected* Find(const Expected (&list)[SIZE], std::string_view type) {
  const auto* const found = std::lower_bound(
      std::begin(list), std::end(list), type,
      [](const Expected& candidate, std::string_view wanted) { return candidate.type < wanted; });
  return found != std::end(list) && found->type == type ? found : nullptr;
}

bool Has(const Object& object, std::string_view marker) {
  const auto own = object.Own();
  return std::any_of(own.begin(), own.end(), [&](const dxf::Tag& tag) {
    return tag.code == dxf::CODE_SUBCLASS && dxf::Trimmed(tag.value) == marker;
  });
}

void AddTo(std::string& list, std::string_view name) {
  if (!list.empty()) list += ", ";
  list += name;
}

// The marker that is missing; empty when one of these is there.
std::string MissingOne(const Object& object, const MarkerNames& names) {
  std::string list;
  for (const std::string_view name : names) {
    if (name.empty()) continue;
    if (Has(object, name)) return {};
    AddTo(list, name);
  }
  return list.empty() ? list : "one of " + list;
}

void RequireAll(const Object& object, std::string_view common, const Expected& expected, Findings& findings) {
  std::string missing;
  if (!common.empty() && !Has(object, common)) AddTo(missing, common);
  for (const std::string_view marker : expected.all)
    if (!marker.empty() && !Has(object, marker)) AddTo(missing, marker);
  if (const std::string one = MissingOne(object, expected.oneOf); !one.empty()) AddTo(missing, one);
  if (missing.empty()) return;
  findings.Error(Kind::MarkerMissing, object.Begin(),
                 fmt::format("the {} lacks class markers (group 100): {}", object.type, missing),
                 object.number);
}

void RefuseMarker(const Object& object, Findings& findings) {
  const dxf::Tag* const marker = FindTag(object, dxf::CODE_SUBCLASS);
  if (marker == nullptr) return;
  findings.Error(Kind::MarkerUnexpected, marker->value.data(),
                 fmt::format("the class marker {} (group 100) does not belong into an R12 drawing",
                             dxf::Quoted(marker->value)),
                 object.number);
}

}  // namespace

void CheckMarkers(const Object& object, const Header& header, Findings& findings) {
  if (!dxf::HasSubclassMarkers(header.version)) {
    // Simple programs write drawings without a version and with markers, and everybody reads those.
    if (header.saysVersion) RefuseMarker(object, findings);
    return;
  }
  const Expected* expected = nullptr;
  std::string_view common;
  if (object.IsEntity()) {
    expected = Find(ENTITIES, object.type);
    common = ENTITY_MARKER;
  } else if (object.place == Place::TableEntry) {
    expected = Find(TABLE_ENTRIES, object.type);
    common = TABLE_ENTRY_MARKER;
  } else if (object.place == Place::Table) {
    expected = &TABLE;
  } else if (object.place == Place::Object) {
    expected = Find(OBJECTS, object.type);
  }
  if (expected != nullptr) RequireAll(object, common, *expected, findings);
}

}  // namespace teskarlt::check
