// EntityFaces.cpp - reads the faces of 3D faces, meshes and closed 3D polylines.
#include "teskarlt/drawing/EntityFaces.h"

#include <array>
#include <cstdlib>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

constexpr std::size_t MOST_CORNERS = 4;
constexpr std::uint32_t ALL_EDGES = 15;  // of a 3D face, whose flags hide edge k by bit k

// The numbers of one entity or vertex that faces are made of.
struct Shape {
  std::array<Vec3, MOST_CORNERS> points{};
  std::array<bool, MOST_CORNERS> isGiven{};          // which of the points
  std::int64_t flags = 0;                            // of the face, polyline or vertex
  std::array<std::int64_t, MOST_CORNERS> numbers{};  // of a face's vertices, or a mesh's rows and columns
};

Shape ShapeOf(const dxf::TagList& tags) {
  Shape shape;
  for (std::size_t i = 0; i < MOST_CORNERS; ++i) {
    const int step = static_cast<int>(i);
    shape.points[i] = tags.Point(dxf::CODE_FIRST_CORNER + step);
    shape.isGiven[i] = tags.HasPoint(dxf::CODE_FIRST_CORNER + step);
    shape.numbers[i] = tags.Integer(dxf::CODE_FIRST_FACE_VERTEX + step);
  }
  shape.flags = tags.Integer(dxf::CODE_FLAGS);
  return shape;
}

// The shapes of an entity: its own and, behind it, those of its vertices.
std::vector<Shape> ShapesOf(const std::vector<dxf::TagList>& lists) {
  std::vector<Shape> shapes;
  for (const dxf::TagList& tags : lists) {
    const bool isShape = shapes.empty() || dxf::SameName(tags.Type(), dxf::TYPE_VERTEX);
    if (isShape) shapes.push_back(ShapeOf(tags));
  }
  return shapes;
}

std::vector<FaceCorners> FacesOf3dFace(const Shape& face) {
  if (!face.isGiven[0] || !face.isGiven[1] || !face.isGiven[2]) return {};
  FaceCorners made;
  made.corners.assign(face.points.begin(), face.points.begin() + (face.isGiven[3] ? 4 : 3));
  made.hiddenEdges = static_cast<std::uint32_t>(face.flags) & ALL_EDGES;
  return {made};
}

// The corners that a face of a polyface mesh names by their numbers, from 1; a negative number hides the edge
// behind it, 0 is none. Empty when a number is not that of a vertex: what the face would be cannot be known.
FaceCorners CornersOfMeshFace(const Shape& shape, const std::vector<Vec3>& vertices) {
  const auto count = static_cast<std::int64_t>(vertices.size());
  FaceCorners face;
  for (const std::int64_t number : shape.numbers) {
    if (number == 0) continue;
    if (number < -count || number > count) return {};
    if (number < 0) face.hiddenEdges |= 1U << face.corners.size();
    face.corners.push_back(vertices[static_cast<std::size_t>(std::abs(number)) - 1]);
  }
  return face;
}

std::vector<FaceCorners> FacesOfPolyface(const std::vector<Shape>& shapes) {
  std::vector<Vec3> vertices;
  std::vector<FaceCorners> faces;
  for (std::size_t i = 1; i < shapes.size(); ++i) {
    const Shape& vertex = shapes[i];
    if ((vertex.flags & dxf::VERTEX_OF_POLYFACE) == 0) continue;
    if ((vertex.flags & dxf::VERTEX_OF_MESH) != 0) {
      vertices.push_back(vertex.points[0]);
      continue;
    }
    faces.push_back(CornersOfMeshFace(vertex, vertices));
  }
  return faces;
}

std::vector<FaceCorners> FacesOfPolygonMesh(const std::vector<Shape>& shapes) {
  const std::int64_t flags = shapes[0].flags;
  const std::int64_t rows = shapes[0].numbers[dxf::CODE_MESH_ROWS - dxf::CODE_FIRST_FACE_VERTEX];
  const std::int64_t columns = shapes[0].numbers[dxf::CODE_MESH_COLUMNS - dxf::CODE_FIRST_FACE_VERTEX];
  std::vector<Vec3> vertices;
  for (std::size_t i = 1; i < shapes.size(); ++i) {
    if ((shapes[i].flags & dxf::VERTEX_SPLINE_FRAME) == 0) vertices.push_back(shapes[i].points[0]);
  }
  const auto count = static_cast<std::int64_t>(vertices.size());
  if (rows < 2 || columns < 2 || rows > count || columns > count || rows * columns != count) return {};
  const auto vertex = [&](std::int64_t row, std::int64_t column) {
    return vertices[static_cast<std::size_t>((row % rows) * columns + column % columns)];
  };
  std::vector<FaceCorners> faces;
  const std::int64_t rowSteps = (flags & dxf::POLYLINE_CLOSED) != 0 ? rows : rows - 1;
  const std::int64_t columnSteps = (flags & dxf::POLYLINE_CLOSED_ACROSS) != 0 ? columns : columns - 1;
  for (std::int64_t row = 0; row < rowSteps; ++row) {
    for (std::int64_t column = 0; column < columnSteps; ++column) {
      faces.push_back({{vertex(row, column), vertex(row, column + 1), vertex(row + 1, column + 1),
                        vertex(row + 1, column)}});
    }
  }
  return faces;
}

std::vector<FaceCorners> FacesOfPolyline(const std::vector<Shape>& shapes) {
  FaceCorners face;
  for (std::size_t i = 1; i < shapes.size(); ++i) {
    if ((shapes[i].flags & dxf::VERTEX_SPLINE_FRAME) == 0) face.corners.push_back(shapes[i].points[0]);
  }
  return {face};
}

}  // namespace

EntityFaces FacesOf(const dxf::Document& drawing, const dxf::Entity& entity) {
  const bool isFace = dxf::SameName(entity.type, dxf::TYPE_FACE);
  if (!isFace && !dxf::SameName(entity.type, dxf::TYPE_POLYLINE)) return {};
  const std::vector<dxf::TagList> lists = drawing.TagLists(entity.text);
  const std::string layer = lists[0].Text(dxf::CODE_LAYER);
  const std::vector<Shape> shapes = ShapesOf(lists);
  const Shape& own = shapes[0];
  if (isFace) return {"3DFACE", layer, FacesOf3dFace(own)};
  if ((own.flags & dxf::POLYLINE_POLYFACE_MESH) != 0)
    return {"POLYFACE MESH", layer, FacesOfPolyface(shapes)};
  if ((own.flags & dxf::POLYLINE_POLYGON_MESH) != 0)
    return {"POLYGON MESH", layer, FacesOfPolygonMesh(shapes)};
  const bool closed3d = (own.flags & dxf::POLYLINE_3D) != 0 && (own.flags & dxf::POLYLINE_CLOSED) != 0;
  if (closed3d) return {"3D POLYLINE", layer, FacesOfPolyline(shapes)};
  return {};
}

}  // namespace teskarlt
