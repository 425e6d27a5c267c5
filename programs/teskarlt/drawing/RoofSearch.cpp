// RoofSearch.cpp - finds the faces of a drawing that can take a roof window.
#include "teskarlt/drawing/RoofSearch.h"

#include <fmt/format.h>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/EntityFaces.h"
#include "teskarlt/dxf/tags/TagValue.h"

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

RoofFaces FindAllRoofFaces(const dxf::Document& drawing, double tolerance) {
  RoofFaces found;
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
      (Warp(*face) <= tolerance ? found.planar : found.warped).push_back(*std::move(face));
    }
  }
  return found;
}

std::vector<RoofFace> FindRoofFaces(const dxf::Document& drawing, double tolerance) {
  return FindAllRoofFaces(drawing, tolerance).planar;
}

std::vector<const RoofFace*> FacesNamed(const std::vector<RoofFace>& faces, std::string_view name) {
  std::vector<const RoofFace*> named;
  for (const RoofFace& face : faces) {
    if (dxf::SameName(face.name, name)) named.push_back(&face);
  }
  return named;
}

}  // namespace teskarlt
