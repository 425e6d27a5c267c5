// SceneHoles.cpp - finds the surfaces of a scene that are holes, and cuts them out.
#include "teskarlt/preview/SceneHoles.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "teskarlt/drawing/OutlineHoles.h"
#include "teskarlt/drawing/RoofFace.h"
#include "teskarlt/preview/Bridges.h"

namespace teskarlt::preview {

namespace {

// The surfaces that are not vertical, named by their numbers.
std::vector<RoofFace> FacesIn(const Scene& scene, const std::vector<std::size_t>& outlines,
                              double tolerance) {
  std::vector<bool> areOutlines(scene.surfaces.size());
  for (const std::size_t outline : outlines)
    areOutlines[outline] = true;
  std::vector<RoofFace> faces;
  for (std::size_t i = 0; i < scene.surfaces.size(); ++i) {
    const Surface& surface = scene.surfaces[i];
    if (surface.window != NO_WINDOW) continue;
    std::optional<RoofFace> face = MakeRoofFace(surface.corners, tolerance);
    if (!face) continue;
    face->name = std::to_string(i);
    face->layer = scene.layers[surface.layer].name;
    if (areOutlines[i]) face->type = "POLYLINE";
    faces.push_back(*std::move(face));
  }
  return faces;
}

void TakeOut(const std::vector<bool>& areHoles, Scene& scene) {
  std::vector<std::size_t> places(scene.surfaces.size(), NO_SURFACE);
  std::size_t kept = 0;
  for (std::size_t i = 0; i < scene.surfaces.size(); ++i) {
    if (areHoles[i]) continue;
    if (kept != i) scene.surfaces[kept] = std::move(scene.surfaces[i]);
    places[i] = kept++;
  }
  scene.surfaces.resize(kept);
  for (Curve& curve : scene.curves)
    if (curve.outlined != NO_SURFACE) curve.outlined = places[curve.outlined];
}

}  // namespace

void CutOutHoles(Scene& scene, const std::vector<std::size_t>& outlines, double tolerance) {
  std::vector<RoofFace> faces = FacesIn(scene, outlines, tolerance);
  std::vector<bool> areHoles(scene.surfaces.size());
  for (const RoofFace& face : faces)
    areHoles[std::stoul(face.name)] = true;
  CutHoles(faces, tolerance);
  for (const RoofFace& face : faces) {
    const std::size_t number = std::stoul(face.name);
    areHoles[number] = false;
    if (!face.holes.empty()) scene.surfaces[number].corners = LineOverBridges(face.corners, face.holes);
  }
  TakeOut(areHoles, scene);
}

}  // namespace teskarlt::preview
