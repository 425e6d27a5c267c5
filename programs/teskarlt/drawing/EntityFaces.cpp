// EntityFaces.cpp - reads the faces of 3D faces, meshes and closed 3D polylines.
#include "teskarlt/drawing/EntityFaces.h"

#include <cstdlib>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

using TagLists = std::vector<dxf::TagList>;  // of an entity, and behind its own those of its vertices

constexpr int MOST_CORNERS = 4;
constexpr std::uint32_t ALL_EDGES = 15;  // of a 3D face, whose flags hide edge k by bit k

std::int64_t FlagsOf(const dxf::TagList& tags) {
  return tags.Integer(dxf::CODE_FLAGS);
}

bool IsVertex(const dxf::TagList& tags) {
  return dxf::SameName(tags.Type(), dxf::TYPE_VERTEX);
}

// The vertices of a polyline or polygon mesh, without those of the frame that shapes a smoothed one.
std::vector<Vec3> VerticesOf(const TagLists& lists) {
  std::vector<Vec3> vertices;
  for (const dxf::TagList& tags : lists) {
    if (IsVertex(tags) && (FlagsOf(tags) & dxf::VERTEX_SPLINE_FRAME) == 0)
      vertices.push_back(tags.Point(dxf::CODE_VERTEX_POINT));
  }
  return vertices;
}

std::vector<FaceCorners> FacesOf3dFace(const dxf::TagList& face) {
  FaceCorners made;
  made.corners.reserve(MOST_CORNERS);
  for (int i = 0; i < MOST_CORNERS; ++i) {
    const int code = dxf::CODE_FIRST_CORNER + i;
    if (face.HasPoint(code)) {
      made.corners.push_back(face.Point(code));
    } else if (code != dxf::CODE_FOURTH_CORNER) {
      return {};
    }
  }
  made.hiddenEdges = static_cast<std::uint32_t>(FlagsOf(face)) & ALL_EDGES;
  return {made};
}

// The corners that a face of a polyface mesh names by their numbers, from 1; a negative number hides the edge
// behind it, 0 is none. Empty when a number is not that of a vertex: what the face would be cannot be known.
FaceCorners CornersOfMeshFace(const dxf::TagList& tags, const std::vector<Vec3>& vertices) {
  const auto count = static_cast<std::int64_t>(vertices.size());
  FaceCorners face;
  for (int code = dxf::CODE_FIRST_FACE_VERTEX; code <= dxf::CODE_LAST_FACE_VERTEX; ++code) {
    const std::int64_t number = tags.Integer(code);
    if (number == 0) continue;
    if (number < -count || number > count) return {};
    if (number < 0) face.hiddenEdges |= 1U << face.corners.size();
    face.corners.push_back(vertices[static_cast<std::size_t>(std::abs(number)) - 1]);
  }
  return face;
}

std::vector<FaceCorners> FacesOfPolyface(const TagLists& lists) {
  std::vector<Vec3> vertices;
  std::vector<FaceCorners> faces;
  for (const dxf::TagList& tags : lists) {
    if (!IsVertex(tags) || (FlagsOf(tags) & dxf::VERTEX_OF_POLYFACE) == 0) continue;
    if ((FlagsOf(tags) & dxf::VERTEX_OF_MESH) != 0) {
      vertices.push_back(tags.Point(dxf::CODE_VERTEX_POINT));
    } else {
      faces.push_back(CornersOfMeshFace(tags, vertices));
    }
  }
  return faces;
}

std::vector<FaceCorners> FacesOfPolygonMesh(const TagLists& lists) {
  const dxf::TagList& own = lists.front();
  const std::int64_t rows = own.Integer(dxf::CODE_MESH_ROWS);
  const std::int64_t columns = own.Integer(dxf::CODE_MESH_COLUMNS);
  const std::vector<Vec3> vertices = VerticesOf(lists);
  const auto count = static_cast<std::int64_t>(vertices.size());
  if (rows < 2 || columns < 2 || rows > count || columns > count || rows * columns != count) return {};
  const auto vertex = [&](std::int64_t row, std::int64_t column) {
    return vertices[static_cast<std::size_t>((row % rows) * columns + column % columns)];
  };
  std::vector<FaceCorners> faces;
  const std::int64_t rowSteps = (FlagsOf(own) & dxf::POLYLINE_CLOSED) != 0 ? rows : rows - 1;
  const std::int64_t columnSteps = (FlagsOf(own) & dxf::POLYLINE_CLOSED_ACROSS) != 0 ? columns : columns - 1;
  for (std::int64_t row = 0; row < rowSteps; ++row) {
    for (std::int64_t column = 0; column < columnSteps; ++column) {
      faces.push_back({{vertex(row, column), vertex(row, column + 1), vertex(row + 1, column + 1),
                        vertex(row + 1, column)}});
    }
  }
  return faces;
}

}  // namespace

EntityFaces FacesOf(const dxf::Document& drawing, const dxf::Entity& entity) {
  const bool isFace = dxf::SameName(entity.type, dxf::TYPE_FACE);
  if (!isFace && !dxf::SameName(entity.type, dxf::TYPE_POLYLINE)) return {};
  const TagLists lists = drawing.TagLists(entity.text);
  const dxf::TagList& own = lists.front();
  const std::string layer = own.Text(dxf::CODE_LAYER);
  if (isFace) return {"3DFACE", layer, FacesOf3dFace(own)};
  const std::int64_t flags = FlagsOf(own);
  if ((flags & dxf::POLYLINE_POLYFACE_MESH) != 0) return {"POLYFACE MESH", layer, FacesOfPolyface(lists)};
  if ((flags & dxf::POLYLINE_POLYGON_MESH) != 0) return {"POLYGON MESH", layer, FacesOfPolygonMesh(lists)};
  const bool isClosed3d = (flags & dxf::POLYLINE_3D) != 0 && (flags & dxf::POLYLINE_CLOSED) != 0;
  if (isClosed3d) return {"3D POLYLINE", layer, {{VerticesOf(lists)}}};
  return {};
}

}  // namespace teskarlt
