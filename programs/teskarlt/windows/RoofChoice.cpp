// RoofChoice.cpp - the roof onto which a window goes.
#include "teskarlt/windows/RoofChoice.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/PlanRoof.h"

namespace teskarlt {

namespace {

constexpr std::string_view PLANE_FIELD = "roofPlanePoints";
constexpr double MILLIMETRES_A_METRE = 1000.0;

bool SetsPlane(const WindowOrder& order) {
  return std::any_of(order.settings.begin(), order.settings.end(),
                     [](const FieldSetting& setting) { return setting.field == PLANE_FIELD; });
}

bool TakesWindow(const RoofFace& face, const Roofs& roofs) {
  const RoofSurface* surface = roofs.SurfaceOf(face);
  return surface != nullptr && surface->isPlanar;
}

// The rectangle in the plan around the faces that take a window, for people: "x 0 to 8000, y 0 to 6000".
std::string PlanExtents(const Roofs& roofs) {
  std::vector<geometry::Vec3> corners;
  for (const RoofFace& face : roofs.Faces()) {
    if (TakesWindow(face, roofs)) corners.insert(corners.end(), face.corners.begin(), face.corners.end());
  }
  const PlanBox box = PlanBoxOf(corners);
  const auto drawn = [&](double coordinate) { return ToDrawn(coordinate, roofs.Unit()); };
  return fmt::format("x {:.12g} to {:.12g}, y {:.12g} to {:.12g}", drawn(box.lowX), drawn(box.highX),
                     drawn(box.lowY), drawn(box.highY));
}

// Why a window cannot go onto a face, for people.
std::string Hindrance(const RoofFace& face, const Roofs& roofs) {
  if (IsSteep(face))
    return fmt::format("is a wall, {:.1f} degrees steep, and no roof above 85", Pitch(face.plane));
  return fmt::format("is not planar: a corner lies {:.0f} mm off its plane",
                     std::ceil(Warp(face) / roofs.Tolerance()));
}

constexpr const char* PLANE_HINT = "--roof X,Y,Z X,Y,Z X,Y,Z or --eaves gives a plane in its place";

// The surface's face at the point, if there is one, else the largest.
const RoofFace& FaceOf(const RoofSurface& surface, const std::optional<PlanPoint>& at, const Roofs& roofs) {
  if (at) {
    for (const FaceOver& over : roofs.FacesAt(at->x, at->y))
      if (over.surface == &surface) return *over.face;
  }
  return roofs.Faces()[surface.faces.front()];
}

const RoofFace& FaceNamed(const std::string& name, const std::string& file, const Roofs& roofs) {
  const std::vector<const RoofFace*> named = roofs.FacesNamed(name);
  if (named.empty() && roofs.IsWall(name)) {
    throw Error(
        fmt::format("--on {}: that face of {} is a wall, vertical, and no roof; {}", name, file, PLANE_HINT),
        {.value = name});
  }
  if (named.empty()) {
    throw Error(
        fmt::format("--on {}: {} has no roof or face of that name; teskarlt roofs lists them", name, file),
        {.value = name});
  }
  if (named.size() > 1) {
    throw Error(fmt::format("--on {}: {} faces of {} have that handle; leave it out, and --at chooses", name,
                            named.size(), file),
                {.value = name});
  }
  const RoofFace& face = *named.front();
  if (TakesWindow(face, roofs)) return face;
  throw Error(fmt::format("--on {}: that face of {} {}; {}", name, file, Hindrance(face, roofs), PLANE_HINT),
              {.value = name});
}

const RoofFace& NamedFace(const WindowOrder& order, const std::string& file, const Roofs& roofs) {
  const RoofSurface* surface = roofs.SurfaceNamed(order.roofName);
  return surface != nullptr ? FaceOf(*surface, order.at, roofs) : FaceNamed(order.roofName, file, roofs);
}

// What may be roofs besides, behind a semicolon; empty when nothing is.
std::string UnreadClause(const Roofs& roofs) {
  const std::string text = TextOf(roofs.Unread());
  return text.empty() ? text : "; " + text;
}

// The uppermost face, or none: what lies under an uneven one is the ceiling of its room, and no roof.
const RoofFace& FaceAt(const PlanPoint& point, const std::string& file, const Roofs& roofs) {
  const std::optional<FaceOver> over = roofs.UppermostAt(point.x, point.y);
  if (over && over->surface->isPlanar) return *over->face;
  if (over) {
    throw Error(
        fmt::format("{} {}: the uppermost face over that point, {} of layer {}, {}; --on names another "
                    "one, and {}",
                    point.option, point.text, over->face->name, over->face->layer,
                    Hindrance(*over->face, roofs), PLANE_HINT),
        {.value = point.text});
  }
  if (roofs.IsEmpty()) {
    throw Error(
        fmt::format("{} holds no planar face that can take a roof window{}", file, UnreadClause(roofs)));
  }
  throw Error(fmt::format("{} {}: no roof face lies over that point; the roofs lie within {}{}", point.option,
                          point.text, PlanExtents(roofs), UnreadClause(roofs)),
              {.value = point.text});
}

// Whether the plane of the face itself is that of its whole surface. Planes are farthest apart at a corner of
// the surface's box.
bool SpansSurface(const RoofFace& face, const RoofSurface& surface, const Roofs& roofs) {
  constexpr double EXACT = 0.1;  // millimetres
  const auto differ = [&](double x, double y) {
    return std::abs(HeightAt(face.plane, x, y) - HeightAt(surface.plane, x, y));
  };
  const PlanBox& box = surface.box;
  const double apart = std::max({differ(box.lowX, box.lowY), differ(box.lowX, box.highY),
                                 differ(box.highX, box.lowY), differ(box.highX, box.highY)});
  return !IsNarrow(face, roofs.Tolerance()) && apart + surface.warp <= EXACT * roofs.Tolerance();
}

// The face's corners, straight up or down in the plane.
std::vector<geometry::Vec3> CornersIn(const Plane& plane, const RoofFace& face) {
  std::vector<geometry::Vec3> corners;
  corners.reserve(face.corners.size());
  for (const geometry::Vec3& corner : face.corners)
    corners.push_back(Plumb(plane, corner));
  return corners;
}

}  // namespace

RoofChoice OnFace(const RoofFace& face, const Roofs& roofs) {
  const RoofSurface* const surface = roofs.SurfaceOf(face);
  RoofChoice roof{.face = &face, .surface = surface};
  roof.corners = SpansSurface(face, *surface, roofs)
                     ? face.corners
                     : CornersIn(surface->plane, roofs.Faces()[surface->faces.front()]);
  roof.facesNear = [&roofs, surface](const PlanBox& area) {
    std::vector<FaceCorners> near;
    for (const RoofFace* other : roofs.FacesNear(area))
      if (roofs.SurfaceOf(*other) == surface) near.push_back(LineAround(other->corners, other->holes));
    return near;
  };
  return roof;
}

RoofChoice OnPlane(std::vector<geometry::Vec3> points) {
  return {.corners = std::move(points)};
}

RoofChoice ChooseRoof(const WindowOrder& order, const std::string& file, const Roofs& roofs) {
  const bool setsPlane = SetsPlane(order);
  if (setsPlane && (!order.roof.empty() || !order.roofName.empty() || order.planRoof.IsGiven()))
    throw Error("--set roofPlanePoints gives the roof already; leave --roof, --on, --eaves and --ridge out");
  if (order.planRoof.IsGiven())
    return OnPlane(PlaneOf(order.planRoof, MILLIMETRES_A_METRE * roofs.Tolerance()));
  if (!order.roof.empty()) return OnPlane(order.roof);
  if (setsPlane) return {};
  if (!order.roofName.empty()) return OnFace(NamedFace(order, file, roofs), roofs);
  if (!order.at)
    throw Error("say where the window goes with --at X,Y, or on which roof with --on NAME and where on it");
  return OnFace(FaceAt(*order.at, file, roofs), roofs);
}

bool NamesPlace(const WindowOrder& order) {
  return order.at || !order.roof.empty() || !order.roofName.empty() || order.planRoof.IsGiven() ||
         SetsPlane(order);
}

void PutRoof(const RoofChoice& roof, WindowRequest& request) {
  request.roof = roof.corners;
  request.facesNear = roof.facesNear;
}

}  // namespace teskarlt
