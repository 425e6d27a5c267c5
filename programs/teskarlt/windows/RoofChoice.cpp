// RoofChoice.cpp - the roof onto which a window goes.
#include "teskarlt/windows/RoofChoice.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/RoofSearch.h"

namespace teskarlt {

namespace {

constexpr std::string_view PLANE_FIELD = "roofPlanePoints";

bool SetsPlane(const WindowOrder& order) {
  return std::any_of(order.settings.begin(), order.settings.end(),
                     [](const FieldSetting& setting) { return setting.field == PLANE_FIELD; });
}

// The rectangle in the plan around the faces, of which there is at least one, for people:
// "x 0 to 8000, y 0 to 6000".
std::string PlanExtents(const std::vector<RoofFace>& faces) {
  geometry::Vec3 low = faces[0].corners[0];
  geometry::Vec3 high = low;
  for (const RoofFace& face : faces) {
    for (const geometry::Vec3& corner : face.corners) {
      low = {std::min(low.x, corner.x), std::min(low.y, corner.y), 0};
      high = {std::max(high.x, corner.x), std::max(high.y, corner.y), 0};
    }
  }
  return fmt::format("x {:.12g} to {:.12g}, y {:.12g} to {:.12g}", low.x, high.x, low.y, high.y);
}

const RoofFace& FaceNamed(const std::string& name, const std::string& file,
                          const std::vector<RoofFace>& faces) {
  const std::vector<const RoofFace*> named = FacesNamed(faces, name);
  if (named.size() == 1) return *named.front();
  if (named.size() > 1) {
    throw Error(fmt::format("--roof-face {}: {} faces of {} have that handle; leave it out, and --at chooses",
                            name, named.size(), file),
                {.value = name});
  }
  throw Error(
      fmt::format("--roof-face {}: {} has no roof face of that name; teskarlt roofs lists them", name, file),
      {.value = name});
}

const RoofFace& FaceAt(const PlanPoint& point, const std::string& file, const std::vector<RoofFace>& faces) {
  const RoofFace* over = UppermostOver(faces, point.x, point.y);
  if (over != nullptr) return *over;
  if (faces.empty()) throw Error(fmt::format("{} holds no planar face that can take a roof window", file));
  throw Error(fmt::format("--at {}: no roof face lies over that point; the roofs lie within {}", point.text,
                          PlanExtents(faces)),
              {.value = point.text});
}

}  // namespace

RoofChoice OnFace(const RoofFace& face, const std::vector<RoofFace>& faces, double tolerance) {
  RoofChoice roof{.face = &face, .faces = {face.corners}, .isBounded = true};
  for (const RoofFace* other : CoplanarWith(face, faces, tolerance))
    roof.faces.push_back(other->corners);
  return roof;
}

RoofChoice OnPlane(std::vector<geometry::Vec3> points) {
  RoofChoice roof;
  roof.faces.push_back(std::move(points));
  return roof;
}

RoofChoice ChooseRoof(const WindowOrder& order, const dxf::Document& drawing,
                      const std::vector<RoofFace>& faces, double tolerance) {
  const bool setsPlane = SetsPlane(order);
  if (setsPlane && (!order.roof.empty() || !order.roofFace.empty()))
    throw Error("--set roofPlanePoints gives the roof already; leave --roof and --roof-face out");
  if (!order.roof.empty()) return OnPlane(order.roof);
  if (setsPlane) return {};
  if (!order.roofFace.empty())
    return OnFace(FaceNamed(order.roofFace, drawing.FileName(), faces), faces, tolerance);
  if (!order.at) throw Error("say where the window goes with --at X,Y");
  return OnFace(FaceAt(*order.at, drawing.FileName(), faces), faces, tolerance);
}

bool NamesPlace(const WindowOrder& order) {
  return order.at || !order.roof.empty() || !order.roofFace.empty() || SetsPlane(order);
}

void PutRoof(const RoofChoice& roof, WindowRequest& request) {
  request.faces = roof.faces;
  request.isBounded = roof.isBounded;
}

}  // namespace teskarlt
