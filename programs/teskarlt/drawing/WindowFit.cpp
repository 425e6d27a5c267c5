// WindowFit.cpp - outlines of windows against each other and against the faces of roofs.
#include "teskarlt/drawing/WindowFit.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>
#include <utility>

#include <fmt/format.h>

#include "geometry/PlanCover.h"
#include "geometry/Vectors.h"
#include "inc/RecordPoints.h"
#include "teskarlt/Error.h"
#include "teskarlt/drawing/SlopeReach.h"
#include "teskarlt/drawing/WindowShape.h"
#include "window/SecondPlane.h"

namespace teskarlt {

namespace {

using brevanta::RecordPoint;
using brevanta::WindowParams;
using geometry::Vec3;

constexpr double PERCENT = 100.0;

Vec3 UnitNormal(const Outline& outline) {
  Vec3 normal = Cross(Difference(outline[3], outline[0]), Difference(outline[1], outline[0]));
  geometry::VecNormalize(normal, normal);
  return normal;
}

// From where to where the outline reaches along a direction, seen from `origin`.
std::pair<double, double> Reach(const Outline& outline, const Vec3& origin, const Vec3& direction) {
  std::array<double, 4> along{};
  std::transform(outline.begin(), outline.end(), along.begin(),
                 [&](const Vec3& corner) { return geometry::VecDot(Difference(corner, origin), direction); });
  const auto [least, most] = std::minmax_element(along.begin(), along.end());
  return {*least, *most};
}

std::pair<double, double> ReachAlongX(const Outline& outline) {
  return Reach(outline, {0, 0, 0}, {1, 0, 0});
}

std::pair<double, double> ReachAlongY(const Outline& outline) {
  return Reach(outline, {0, 0, 0}, {0, 1, 0});
}

bool LiesInPlane(const Outline& outline, const Vec3& origin, const Vec3& normal, double tolerance) {
  const auto [least, most] = Reach(outline, origin, normal);
  return least >= -tolerance && most <= tolerance;
}

// The plan of corners, seen from `origin`: far from the drawing's own, numbers lose their last digits.
template <typename Corners>
geometry::PlanPolygon PlanOf(const Corners& corners, const Vec3& origin) {
  geometry::PlanPolygon plan;
  for (const Vec3& corner : corners)
    plan.push_back(Difference(corner, origin));
  return plan;
}

// The faces near the outline of surfaces in whose plane it lies.
std::vector<const RoofFace*> FacesInPlaneOf(const Outline& outline, const Roofs& roofs) {
  const auto isElsewhere = [&](const RoofFace* face) {
    const RoofSurface* surface = roofs.SurfaceOf(*face);
    return surface == nullptr || !surface->isPlanar ||
           !LiesInPlane(outline, surface->plane.point, surface->plane.normal,
                        roofs.Tolerance() + surface->warp);
  };
  std::vector<const RoofFace*> faces = roofs.FacesNear(PlanBoxOf(outline));
  faces.erase(std::remove_if(faces.begin(), faces.end(), isElsewhere), faces.end());
  return faces;
}

}  // namespace

std::optional<Outline> DrawnOutline(const dxf::Document& drawing, const DrawnWindow& window) {
  if (!window.isComplete || !EntityMismatch(window).empty()) return std::nullopt;
  try {
    return ShapeOf(drawing, window).outline;
  } catch (const Error&) {
    return std::nullopt;
  }
}

Outline OutlineOf(const WindowParams& record) {
  return brevanta::DrawnFrame(record);
}

bool Overlap(const Outline& a, const Outline& b, double tolerance) {
  if (!LiesInPlane(b, a[0], UnitNormal(a), tolerance)) return false;
  // Windows of one plane have parallel edges: each lower edge is horizontal.
  for (const std::size_t neighbour : {std::size_t{1}, std::size_t{3}}) {
    const Vec3 direction = Unit(Difference(a[neighbour], a[0]));
    const auto [leastA, mostA] = Reach(a, a[0], direction);
    const auto [leastB, mostB] = Reach(b, a[0], direction);
    if (std::min(mostA, mostB) - std::max(leastA, leastB) <= tolerance) return false;
  }
  return true;
}

const RoofFace* FaceUnder(const WindowParams& window, const Roofs& roofs) {
  for (const FaceOver& over : roofs.FacesAt(window.storedPoint.x, window.storedPoint.y)) {
    const auto liesInIt = [&](const RecordPoint& point) {
      return std::abs(DistanceFrom(over.surface->plane, ToVec3(point))) <=
             roofs.Tolerance() + over.surface->warp;
    };
    const bool isIts =
        std::all_of(std::begin(window.roofPlanePoints), std::end(window.roofPlanePoints), liesInIt);
    if (isIts && over.surface->isPlanar) return over.face;
  }
  return nullptr;
}

double CoveredPart(const Outline& outline, const Roofs& roofs) {
  std::vector<geometry::PlanPolygon> polygons;
  for (const RoofFace* face : FacesInPlaneOf(outline, roofs))
    polygons.push_back(PlanOf(LineAround(face->corners, face->holes), outline[0]));
  const geometry::PlanPolygon plan = PlanOf(outline, outline[0]);
  return polygons.empty() ? 0.0 : geometry::CoveredArea(plan, polygons) / geometry::PlanArea(plan);
}

double UnevennessIn(const Outline& outline, const Roofs& roofs) {
  const Plane plane{outline[0], UnitNormal(outline)};
  const std::vector<Vec3> corners(outline.begin(), outline.end());
  double most = 0.0;
  const auto measure = [&](const Vec3& p) { most = std::max(most, std::abs(DistanceFrom(plane, p))); };
  for (const RoofFace* face : FacesInPlaneOf(outline, roofs)) {
    for (const Vec3& corner : face->corners)
      if (LiesOver(corners, corner.x, corner.y)) measure(corner);
    for (const Vec3& corner : corners)
      if (LiesOver(*face, corner.x, corner.y)) measure(Plumb(face->plane, corner));
  }
  return most;
}

void WindowFit::AddAll(const dxf::Document& drawing, const std::vector<DrawnWindow>& windows,
                       const DrawnWindow* except) {
  for (const DrawnWindow& window : windows) {
    const std::optional<Outline> outline = &window == except ? std::nullopt : DrawnOutline(drawing, window);
    if (outline) Add(window.number, *outline);
  }
}

void WindowFit::Add(std::int32_t number, const Outline& outline) {
  const auto [least, most] = ReachAlongX(outline);
  const auto [leastY, mostY] = ReachAlongY(outline);
  places_.emplace(least, Place{number, outline, leastY, mostY});
  widest_ = std::max(widest_, most - least);
}

void WindowFit::Remove(std::int32_t number, const Outline& outline) {
  const auto [begin, end] = places_.equal_range(ReachAlongX(outline).first);
  const auto found =
      std::find_if(begin, end, [&](const auto& entry) { return entry.second.number == number; });
  if (found != end) places_.erase(found);
}

std::optional<Outline> WindowFit::OutlineOf(std::int32_t number) const {
  for (const auto& [x, place] : places_)
    if (place.number == number) return place.outline;
  return std::nullopt;
}

// "it overlaps windows 1, 2 and 3 more"; empty when it overlaps none.
std::string WindowFit::Overlapped(const Outline& outline) const {
  constexpr std::size_t MOST_NAMED = 10;
  const auto [least, most] = ReachAlongX(outline);
  const auto [leastY, mostY] = ReachAlongY(outline);
  std::set<std::int32_t> numbers;
  const auto end = places_.upper_bound(most);
  for (auto at = places_.lower_bound(least - widest_); at != end; ++at) {
    const Place& place = at->second;
    const bool isNear = place.leastY <= mostY && place.mostY >= leastY;
    if (isNear && Overlap(outline, place.outline, roofs_.Tolerance())) numbers.insert(place.number);
  }
  if (numbers.empty()) return {};
  const std::size_t named = std::min(numbers.size(), MOST_NAMED);
  const std::vector<std::int32_t> names(numbers.begin(),
                                        std::next(numbers.begin(), static_cast<std::ptrdiff_t>(named)));
  std::string text =
      fmt::format("it overlaps window{} {}", numbers.size() == 1 ? "" : "s", fmt::join(names, ", "));
  if (numbers.size() > named) text += fmt::format(" and {} more", numbers.size() - named);
  return text;
}

// "it passes the ridge by 0.12 m"; over a hole, how much of it.
std::string WindowFit::Outside(const WindowParams& record, const Outline& outline, double covered) const {
  const RoofFace& face = *FacesInPlaneOf(outline, roofs_).front();
  const std::string passed =
      PassedEdges(outline, teskarlt::OutlineOf(*roofs_.SurfaceOf(face), roofs_.Faces(), roofs_.Tolerance()),
                  record.unitFactor);
  if (!passed.empty()) return "it " + passed;
  return fmt::format("{:.1f} % of it lie outside its roof face", (1.0 - covered) * PERCENT);
}

std::vector<std::string> WindowFit::Misfits(const WindowParams& record, const Outline& outline) const {
  std::vector<std::string> misfits;
  if (std::string overlapped = Overlapped(outline); !overlapped.empty())
    misfits.push_back(std::move(overlapped));
  if (roofs_.IsEmpty() || HasOwnSecondPlane(record, roofs_.Tolerance())) return misfits;
  const double covered = CoveredPart(outline, roofs_);
  if (covered <= 0.0) {
    misfits.emplace_back("it lies on no roof face");
  } else if (!IsWhole(covered)) {
    misfits.push_back(Outside(record, outline, covered));
  }
  const double unevenness = UnevennessIn(outline, roofs_) / roofs_.Tolerance();
  if (unevenness > ROOF_UNEVENNESS)
    misfits.push_back(fmt::format("its roof is uneven there, {:.0f} mm off its plane", unevenness));
  return misfits;
}

}  // namespace teskarlt
