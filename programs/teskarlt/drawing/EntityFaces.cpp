// EntityFaces.cpp - reads the faces of 3D faces, meshes and closed 3D polylines.
#include "teskarlt/drawing/EntityFaces.h"

#include <cstdlib>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

constexpr std::uint32_t ALL_EDGES = 15;  // of a 3D face: group 70 hides edge k by its bit k

// The numbers of one entity or vertex that faces are made of.
struct Shape {
  std::string layer;
  std::vector<Vec3> points = std::vector<Vec3>(4);  // groups 10 to 13
  bool isGiven[4] = {false, false, false, false};   // which of the points
  std::int64_t flags = 0;                           // group 70
  std::int64_t count[4] = {0, 0, 0, 0};             // groups 71 to 74
};

void TakeTag(const dxf::Document& drawing, const dxf::TagReader& reader, const dxf::Tag& tag, Shape& shape) {
  const int code = tag.code;
  if (code >= 10 && code <= 39 && code % 10 <= 3) {
    Vec3& point = shape.points[static_cast<std::size_t>(code % 10)];
    (code < 20 ? point.x : code < 30 ? point.y : point.z) = reader.Real(tag);
    shape.isGiven[code % 10] = true;
  } else if (code == 70) {
    shape.flags = reader.Integer(tag);
  } else if (code >= 71 && code <= 74) {
    shape.count[code - 71] = reader.Integer(tag);
  } else if (code == dxf::CODE_LAYER) {
    shape.layer = drawing.Text(tag);
  }
}

// The shapes of an entity: its own and, behind it, those of its vertices.
std::vector<Shape> ReadShapes(const dxf::Document& drawing, const dxf::Entity& entity) {
  std::vector<Shape> shapes;
  dxf::TagReader reader = drawing.Reader(entity);
  bool isShape = true;
  for (dxf::Tag tag; reader.Next(tag);) {
    if (tag.code == dxf::CODE_TYPE) {
      isShape = shapes.empty() || dxf::SameName(dxf::Trimmed(tag.value), dxf::TYPE_VERTEX);
      if (isShape) shapes.emplace_back();
    } else if (isShape && !dxf::IsExtendedData(tag.code)) {
      TakeTag(drawing, reader, tag, shapes.back());
    }
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
  for (const std::int64_t number : shape.count) {
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
  const std::int64_t rows = shapes[0].count[0];
  const std::int64_t columns = shapes[0].count[1];
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
  const std::vector<Shape> shapes = ReadShapes(drawing, entity);
  const Shape& own = shapes[0];
  if (isFace) return {"3DFACE", own.layer, FacesOf3dFace(own)};
  if ((own.flags & dxf::POLYLINE_POLYFACE_MESH) != 0)
    return {"POLYFACE MESH", own.layer, FacesOfPolyface(shapes)};
  if ((own.flags & dxf::POLYLINE_POLYGON_MESH) != 0)
    return {"POLYGON MESH", own.layer, FacesOfPolygonMesh(shapes)};
  const bool closed3d = (own.flags & dxf::POLYLINE_3D) != 0 && (own.flags & dxf::POLYLINE_CLOSED) != 0;
  if (closed3d) return {"3D POLYLINE", own.layer, FacesOfPolyline(shapes)};
  return {};
}

}  // namespace teskarlt
