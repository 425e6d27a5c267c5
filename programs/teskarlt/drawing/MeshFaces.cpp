// MeshFaces.cpp - reads the faces of meshes.
#include "teskarlt/drawing/MeshFaces.h"

#include <cstdlib>
#include <utility>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

using TagLists = std::vector<dxf::TagList>;

bool IsVertex(const dxf::TagList& tags) {
  return dxf::SameName(tags.Type(), dxf::TYPE_VERTEX);
}

// Without the vertices of the frame that shapes a smoothed mesh.
std::vector<Vec3> VerticesOf(const TagLists& lists) {
  std::vector<Vec3> vertices;
  vertices.reserve(lists.size());
  for (const dxf::TagList& tags : lists) {
    if (IsVertex(tags) && (tags.Integer(dxf::CODE_VERTEX_FLAGS) & dxf::VERTEX_SPLINE_FRAME) == 0)
      vertices.push_back(tags.Point(dxf::CODE_VERTEX_POINT));
  }
  return vertices;
}

// The corners that a face of a polyface mesh names by their numbers, from 1; a negative number hides the edge
// behind it, 0 is none.
EntityFace FaceOfPolyface(const dxf::TagList& tags, const std::vector<Vec3>& vertices) {
  const auto count = static_cast<std::int64_t>(vertices.size());
  EntityFace face;
  for (int code = dxf::CODE_FIRST_FACE_VERTEX; code <= dxf::CODE_LAST_FACE_VERTEX; ++code) {
    const std::int64_t number = tags.Integer(code);
    if (number == 0) continue;
    if (number < -count || number > count) return {};
    if (number < 0) face.hiddenEdges |= 1U << face.corners.size();
    face.corners.push_back(vertices[static_cast<std::size_t>(std::abs(number)) - 1]);
  }
  return face;
}

// The list of a MESH in which each face has the count of its vertices before their numbers.
std::vector<std::size_t> FaceList(const dxf::TagList& mesh) {
  std::vector<std::size_t> list;
  bool isInList = false;
  for (const dxf::Tag& tag : mesh.Tags()) {
    if (tag.code == dxf::CODE_MESH_FACE_COUNT) isInList = true;
    if (tag.code == dxf::CODE_MESH_EDGE_COUNT) break;
    if (isInList && tag.code == dxf::CODE_MESH_ITEM)
      list.push_back(static_cast<std::size_t>(mesh.IntegerOf(tag)));
  }
  return list;
}

EntityFace FaceOfMesh(const std::size_t* numbers, std::size_t count, const std::vector<Vec3>& vertices) {
  EntityFace face;
  face.corners.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    if (numbers[i] >= vertices.size()) return {};
    face.corners.push_back(vertices[numbers[i]]);
  }
  return face;
}

}  // namespace

std::vector<EntityFace> FacesOfMesh(const TagLists& lists) {
  const std::vector<Vec3> vertices = lists.front().Points(dxf::CODE_MESH_VERTEX);
  const std::vector<std::size_t> list = FaceList(lists.front());
  std::vector<EntityFace> faces;
  for (std::size_t at = 0; at < list.size();) {
    const std::size_t count = list[at++];
    if (count > list.size() - at) break;
    faces.push_back(FaceOfMesh(list.data() + at, count, vertices));
    at += count;
  }
  return faces;
}

std::vector<EntityFace> FacesOfPolyface(const TagLists& lists) {
  std::vector<Vec3> vertices;
  std::vector<EntityFace> faces;
  for (const dxf::TagList& tags : lists) {
    const std::int64_t flags = tags.Integer(dxf::CODE_VERTEX_FLAGS);
    if (!IsVertex(tags) || (flags & dxf::VERTEX_OF_POLYFACE) == 0) continue;
    if ((flags & dxf::VERTEX_OF_MESH) != 0) {
      vertices.push_back(tags.Point(dxf::CODE_VERTEX_POINT));
    } else {
      faces.push_back(FaceOfPolyface(tags, vertices));
    }
  }
  return faces;
}

std::vector<EntityFace> FacesOfPolygonMesh(const TagLists& lists) {
  const dxf::TagList& own = lists.front();
  const std::int64_t flags = own.Integer(dxf::CODE_POLYLINE_FLAGS);
  const std::int64_t rows = own.Integer(dxf::CODE_MESH_ROWS);
  const std::int64_t columns = own.Integer(dxf::CODE_MESH_COLUMNS);
  const std::vector<Vec3> vertices = VerticesOf(lists);
  const auto count = static_cast<std::int64_t>(vertices.size());
  if (rows < 2 || columns < 2 || rows > count || columns > count || rows * columns != count) return {};
  const auto vertex = [&](std::int64_t row, std::int64_t column) {
    return vertices[static_cast<std::size_t>((row % rows) * columns + column % columns)];
  };
  std::vector<EntityFace> faces;
  const std::int64_t rowSteps = (flags & dxf::POLYLINE_CLOSED) != 0 ? rows : rows - 1;
  const std::int64_t columnSteps = (flags & dxf::POLYLINE_CLOSED_ACROSS) != 0 ? columns : columns - 1;
  faces.reserve(static_cast<std::size_t>(rowSteps * columnSteps));
  for (std::int64_t row = 0; row < rowSteps; ++row) {
    for (std::int64_t column = 0; column < columnSteps; ++column) {
      EntityFace& face = faces.emplace_back();
      face.corners = {vertex(row, column), vertex(row, column + 1), vertex(row + 1, column + 1),
                      vertex(row + 1, column)};
    }
  }
  return faces;
}

}  // namespace teskarlt
