// EntityFaces.cpp - reads the faces of 3D faces, solids and polylines, and finds the readers of the others.
#include "teskarlt/drawing/EntityFaces.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "geometry/Matrix4.h"
#include "teskarlt/drawing/Curves.h"
#include "teskarlt/drawing/HatchFaces.h"
#include "teskarlt/drawing/MeshFaces.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

using TagLists = std::vector<dxf::TagList>;  // of an entity, and behind its own those of its vertices

constexpr int MOST_CORNERS = 4;
constexpr std::uint32_t ALL_EDGES = 15;  // of a 3D face, whose flags hide edge k by bit k

std::vector<EntityFace> FacesOf3dFace(const TagLists& lists) {
  const dxf::TagList& face = lists.front();
  EntityFace made;
  made.corners.reserve(MOST_CORNERS);
  for (int i = 0; i < MOST_CORNERS; ++i) {
    const int code = dxf::CODE_FIRST_CORNER + i;
    if (face.HasPoint(code)) {
      made.corners.push_back(face.Point(code));
    } else if (code != dxf::CODE_FOURTH_CORNER) {
      return {};
    }
  }
  made.hiddenEdges = static_cast<std::uint32_t>(face.Integer(dxf::CODE_FLAGS)) & ALL_EDGES;
  return {std::move(made)};
}

// A SOLID or TRACE: its third and fourth corner stand crosswise.
std::vector<EntityFace> FacesOfSolid(const TagLists& lists) {
  const dxf::TagList& solid = lists.front();
  EntityFace face;
  face.corners = {solid.Point(dxf::CODE_FIRST_CORNER), solid.Point(dxf::CODE_SECOND_CORNER)};
  if (solid.HasPoint(dxf::CODE_FOURTH_CORNER)) face.corners.push_back(solid.Point(dxf::CODE_FOURTH_CORNER));
  face.corners.push_back(solid.Point(dxf::CODE_THIRD_CORNER));
  const geometry::Matrix4 matrix = ObjectToDrawing(solid.Point(dxf::CODE_EXTRUSION, UPWARDS));
  for (Vec3& corner : face.corners)
    geometry::MatTransformPoint(matrix, corner, corner);
  return {std::move(face)};
}

bool Coincide(const Vec3& a, const Vec3& b) {
  return a.x == b.x && a.y == b.y && a.z == b.z;
}

// The face within a polyline that is closed.
std::vector<EntityFace> FacesOfPolyline(const TagLists& lists) {
  constexpr std::size_t fewest = 4;  // points of a triangle that ends where it begins
  EntityFace face;
  face.corners = PointsOf(lists).value_or(CurvePoints());
  if (face.corners.size() < fewest || !Coincide(face.corners.front(), face.corners.back())) return {};
  face.corners.pop_back();
  return {std::move(face)};
}

// How the faces of a kind of entities are read.
struct Kind {
  const char* name;
  std::vector<EntityFace> (*read)(const TagLists& lists);
  bool isFlatKind = false;
};

constexpr Kind HATCH{"HATCH", FacesOfHatch, true};
constexpr Kind MESH{"MESH", FacesOfMesh};
constexpr Kind POLYFACE_MESH{"POLYFACE MESH", FacesOfPolyface};
constexpr Kind POLYGON_MESH{"POLYGON MESH", FacesOfPolygonMesh};
constexpr Kind POLYLINE_2D{"2D POLYLINE", FacesOfPolyline, true};
constexpr Kind POLYLINE_3D{"3D POLYLINE", FacesOfPolyline};

// By the type of the entity; of a POLYLINE, of which there are several kinds, the one in a plane.
constexpr std::pair<std::string_view, Kind> KINDS[] = {
    {dxf::TYPE_FACE, {"3DFACE", FacesOf3dFace}},
    {dxf::TYPE_POLYLINE, POLYLINE_2D},
    {dxf::TYPE_LWPOLYLINE, {"LWPOLYLINE", FacesOfPolyline, true}},
    {dxf::TYPE_MESH, MESH},
    {dxf::TYPE_HATCH, HATCH},
    {dxf::TYPE_SOLID, {"SOLID", FacesOfSolid, true}},
    {dxf::TYPE_TRACE, {"TRACE", FacesOfSolid, true}}};

const Kind& KindOfPolyline(const dxf::TagList& own) {
  const std::int64_t flags = own.Integer(dxf::CODE_POLYLINE_FLAGS);
  if ((flags & dxf::POLYLINE_POLYFACE_MESH) != 0) return POLYFACE_MESH;
  if ((flags & dxf::POLYLINE_POLYGON_MESH) != 0) return POLYGON_MESH;
  return (flags & dxf::POLYLINE_3D) != 0 ? POLYLINE_3D : POLYLINE_2D;
}

const Kind* KindOf(std::string_view type) {
  const auto* const found = std::find_if(std::begin(KINDS), std::end(KINDS),
                                         [&](const auto& kind) { return dxf::SameName(type, kind.first); });
  return found == std::end(KINDS) ? nullptr : &found->second;
}

}  // namespace

bool CanHaveFaces(std::string_view type) {
  return KindOf(type) != nullptr;
}

EntityFaces FacesOf(const TagLists& lists) {
  const dxf::TagList& own = lists.front();
  const Kind* kind = KindOf(own.Type());
  if (kind == nullptr) return {};
  if (dxf::SameName(own.Type(), dxf::TYPE_POLYLINE)) kind = &KindOfPolyline(own);
  return {kind->name, own.Text(dxf::CODE_LAYER, dxf::DEFAULT_LAYER), kind->isFlatKind, kind->read(lists)};
}

EntityFaces FacesOf(const dxf::Document& drawing, const dxf::Entity& entity) {
  return CanHaveFaces(entity.type) ? FacesOf(drawing.TagLists(entity.text)) : EntityFaces();
}

}  // namespace teskarlt
