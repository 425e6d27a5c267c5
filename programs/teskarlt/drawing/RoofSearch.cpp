// RoofSearch.cpp - finds the faces of a drawing of which roofs can be made.
#include "teskarlt/drawing/RoofSearch.h"

#include <fmt/format.h>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/EntityFaces.h"

namespace teskarlt {

namespace {

// "HANDLE", or "HANDLE/N" where the entity has several faces; entities without a handle are numbered.
std::string FaceName(const dxf::Entity& entity, std::size_t entityNumber, std::size_t faceNumber,
                     std::size_t faceCount) {
  const std::string name =
      entity.handle != 0 ? fmt::format("{:X}", entity.handle) : fmt::format("#{}", entityNumber);
  return faceCount == 1 ? name : fmt::format("{}/{}", name, faceNumber);
}

}  // namespace

std::vector<RoofFace> FindFaces(const dxf::Document& drawing, double tolerance) {
  std::vector<RoofFace> found;
  std::size_t entityNumber = 0;
  for (const dxf::Entity& entity : drawing.Entities()) {
    ++entityNumber;
    if (IsWindowEntity(drawing, entity)) continue;
    const EntityFaces entityFaces = FacesOf(drawing, entity);
    for (std::size_t i = 0; i < entityFaces.faces.size(); ++i) {
      std::optional<RoofFace> face = MakeRoofFace(entityFaces.faces[i].corners, tolerance);
      if (!face) continue;
      face->name = FaceName(entity, entityNumber, i + 1, entityFaces.faces.size());
      face->layer = entityFaces.layer;
      face->type = entityFaces.type;
      found.push_back(*std::move(face));
    }
  }
  return found;
}

}  // namespace teskarlt
