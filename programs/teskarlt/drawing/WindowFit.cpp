// WindowFit.cpp - outlines of windows against each other and against the faces of roofs.
#include "teskarlt/drawing/WindowFit.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include <fmt/format.h>

#include "geometry/PlanCover.h"
#include "geometry/Vectors.h"
#include "inc/RecordPoints.h"
#include "teskarlt/Error.h"
#include "teskarlt/drawing/ObstacleWords.h"
#include "teskarlt/drawing/SlopeMoves.h"
#include "teskarlt/drawing/SlopeReach.h"
#include "teskarlt/drawing/WindowShape.h"
#include "window/SecondPlane.h"

namespace teskarlt {

namespace {

using brevanta::RecordPoint;
using brevanta::WindowParams;
using geometry::Vec3;

constexpr double PERCENT = 100.0;
constexpr double AROUND = 3.0;  // metres around a window that are looked at on a plane without bounds
constexpr double FARTHEST_FREE_PLACE = 10.0;  // metres; beyond, it is no remedy any more

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

// The surface on which the outline lies, of several that under its middle; null where there is none in its
// plane.
const RoofSurface* SurfaceUnder(const Outline& outline, const Roofs& roofs) {
  const std::vector<const RoofFace*> faces = FacesInPlaneOf(outline, roofs);
  if (faces.empty()) return nullptr;
  const Vec3 middle = Between(outline[0], outline[2], 0.5);
  const auto under = std::find_if(faces.begin(), faces.end(),
                                  [&](const RoofFace* face) { return LiesOver(*face, middle.x, middle.y); });
  return roofs.SurfaceOf(under == faces.end() ? *faces.front() : **under);
}

// "; roof R1 lies 0.152 m over it", of the nearest within reach of a refit; empty for none.
std::string NearestRoof(const Outline& outline, const Roofs& roofs, const SpokenUnit& unit) {
  const Vec3 middle = Between(outline[0], outline[2], 0.5);
  const FaceOver* nearest = nullptr;
  const std::vector<FaceOver> faces = roofs.FacesAt(middle.x, middle.y);
  for (const FaceOver& over : faces) {
    const double distance = std::abs(over.height - middle.z);
    if (!over.surface->isPlanar || distance >= REFIT_REACH * unit.perMetre) continue;
    if (nearest == nullptr || distance < std::abs(nearest->height - middle.z)) nearest = &over;
  }
  if (nearest == nullptr) return {};
  return fmt::format("; roof {} lies {} {} it", nearest->surface->name,
                     LengthText(std::abs(nearest->height - middle.z), unit),
                     nearest->height > middle.z ? "over" : "under");
}

// The outline with a margin on every side.
Outline Grown(const Outline& outline, double margin) {
  const Vec3 up = Unit(Difference(outline[1], outline[0]));
  const Vec3 across = Unit(Difference(outline[3], outline[0]));
  const auto grow = [&](const Vec3& corner, double toRight, double toTop) {
    return Moved(Moved(corner, across, toRight), up, toTop);
  };
  return {grow(outline[0], -margin, -margin), grow(outline[1], -margin, margin),
          grow(outline[2], margin, margin), grow(outline[3], margin, -margin)};
}

SlopeRing RingOf(const Outline& outline, const SlopeFrame& frame) {
  SlopeRing ring;
  ring.reserve(outline.size());
  for (const Vec3& corner : outline)
    ring.push_back(frame.Of(corner));
  return ring;
}

// "window 3", "windows 1, 2 and 3 more"
std::string NumberWords(const std::set<std::int32_t>& numbers) {
  constexpr std::size_t MOST_NAMED = 10;
  const std::size_t named = std::min(numbers.size(), MOST_NAMED);
  const auto end = std::next(numbers.begin(), static_cast<std::ptrdiff_t>(named));
  std::string text =
      fmt::format("window{} {}", numbers.size() == 1 ? "" : "s", fmt::join(numbers.begin(), end, ", "));
  if (numbers.size() > named) text += fmt::format(" and {} more", numbers.size() - named);
  return text;
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

WindowFit::Site WindowFit::SiteOf(const Outline& outline, double clearance, const SpokenUnit& unit) const {
  const RoofSurface* const surface = SurfaceUnder(outline, roofs_);
  const Plane plane = surface != nullptr ? surface->plane : Plane{outline[0], UnitNormal(outline)};
  return {outline, surface, plane, clearance, unit};
}

std::vector<const WindowFit::Place*> WindowFit::PlacesAround(const Outline& outline, double distance) const {
  const auto [least, most] = ReachAlongX(outline);
  const auto [leastY, mostY] = ReachAlongY(outline);
  std::vector<const Place*> around;
  const auto end = places_.upper_bound(most + distance);
  for (auto at = places_.lower_bound(least - distance - widest_); at != end; ++at) {
    const Place& place = at->second;
    if (place.leastY <= mostY + distance && place.mostY >= leastY - distance) around.push_back(&place);
  }
  return around;
}

std::vector<const WindowFit::Place*> WindowFit::PlacesOver(const Outline& outline) const {
  std::vector<const Place*> over = PlacesAround(outline, 0.0);
  std::erase_if(over,
                [&](const Place* place) { return !Overlap(outline, place->outline, roofs_.Tolerance()); });
  std::sort(over.begin(), over.end(), [](const Place* a, const Place* b) { return a->number < b->number; });
  return over;
}

// "it overlaps window 3 by 0.310 m", the shortest way along the eaves or the slope that makes it end.
WindowFit::Sentences WindowFit::WindowsMet(const Site& site) const {
  const SlopeFrame frame = FrameOf(site.plane);
  const SlopeBox box = BoxOf(site.outline, frame);
  Sentences met;
  std::set<std::int32_t> overlapped;
  std::vector<SlopeRing> rings;
  for (const Place* place : PlacesOver(site.outline)) {
    overlapped.insert(place->number);
    rings.push_back(RingOf(place->outline, frame));
  }
  if (!overlapped.empty()) {
    met.push_back(fmt::format("it overlaps {} by {}", NumberWords(overlapped),
                              LengthText(Length(WaysClearOf(rings, box).front()), site.unit)));
  }
  if (site.clearance <= 0.0) return met;
  std::set<std::int32_t> near;
  double least = site.clearance;
  for (const Place* place : PlacesOver(Grown(site.outline, site.clearance))) {
    const double distance = DistanceBetween(RingOf(place->outline, frame), box);
    if (overlapped.contains(place->number) || distance >= site.clearance - roofs_.Tolerance()) continue;
    near.insert(place->number);
    least = std::min(least, distance);
  }
  if (!near.empty()) {
    met.push_back(fmt::format("{} {}, {} away", NearerThan(site.clearance, site.unit), NumberWords(near),
                              LengthText(least, site.unit)));
  }
  return met;
}

WindowFit::Sentences WindowFit::BoundsPassed(const Site& site, const SurfaceOutline& bounds) {
  const std::string passed = PassedEdges(site.outline, bounds, site.unit);
  if (!passed.empty()) return {"it " + passed};
  if (site.clearance <= 0.0) return {};
  const std::string near = EdgesWithin(site.clearance, site.outline, bounds, site.unit);
  return near.empty() ? Sentences() : Sentences{NearerThan(site.clearance, site.unit) + " " + near};
}

WindowFit::Sentences WindowFit::EdgesPassed(const Site& site) const {
  const double covered = CoveredPart(site.outline, roofs_);
  if (covered <= 0.0) return {"it lies on no roof face" + NearestRoof(site.outline, roofs_, site.unit)};
  Sentences passed;
  if (!IsWhole(covered) || site.clearance > 0.0)
    passed = BoundsPassed(site, teskarlt::OutlineOf(*site.surface, roofs_.Faces(), roofs_.Tolerance()));
  if (!IsWhole(covered) && passed.empty())  // as over a hole
    passed.push_back(fmt::format("{:.1f} % of it lie outside its roof face", (1.0 - covered) * PERCENT));
  const double unevenness = UnevennessIn(site.outline, roofs_) / roofs_.Tolerance();
  if (unevenness > ROOF_UNEVENNESS)
    passed.push_back(fmt::format("its roof is uneven there, {:.0f} mm off its plane", unevenness));
  return passed;
}

const std::vector<Obstacle>& WindowFit::ObstaclesOf(const RoofSurface& surface) const {
  const auto known = obstacles_.find(&surface);
  if (known != obstacles_.end()) return known->second;
  const double least = ROOF_UNEVENNESS * roofs_.Tolerance() + surface.warp;
  return obstacles_
      .emplace(&surface, ObstaclesOn(surface.plane, roofs_.Faces()[surface.faces.front()].layer, surface.box,
                                     least, roofs_))
      .first->second;
}

std::vector<Obstacle> WindowFit::ObstaclesAt(const Site& site) const {
  if (site.surface != nullptr) return ObstaclesOf(*site.surface);
  const double around = AROUND * site.unit.perMetre + site.clearance;
  return ObstaclesOn(site.plane, {}, PlanBoxOf(site.outline, around), ROOF_UNEVENNESS * roofs_.Tolerance(),
                     roofs_);
}

std::string WindowFit::FreePlace(const Site& site, const std::vector<Obstacle>& obstacles) const {
  const SlopeFrame frame = FrameOf(site.plane);
  const double reach = (site.surface != nullptr ? FARTHEST_FREE_PLACE : AROUND) * site.unit.perMetre;
  std::vector<SlopeRing> rings;
  rings.reserve(obstacles.size());
  for (const Obstacle& obstacle : obstacles)
    rings.push_back(obstacle.footprint);
  for (const Place* place : PlacesAround(site.outline, reach + site.clearance)) {
    if (LiesInPlane(place->outline, site.outline[0], UnitNormal(site.outline), roofs_.Tolerance()))
      rings.push_back(RingOf(place->outline, frame));
  }
  const Outline wanted = Grown(site.outline, site.clearance);
  for (const SlopePoint& way : WaysClearOf(rings, BoxOf(wanted, frame))) {
    Outline moved = wanted;
    for (Vec3& corner : moved)
      corner = Moved(Moved(corner, frame.across, way.across), frame.up, way.up);
    if (Length(way) <= reach && (site.surface == nullptr || IsWhole(CoveredPart(moved, roofs_))))
      return "; the nearest free place is " + WayWords(way, site.unit);
  }
  return {};
}

std::vector<std::string> WindowFit::Misfits(const WindowParams& record, const Outline& outline,
                                            const FitRules& rules) const {
  const SpokenUnit unit{static_cast<double>(record.unitFactor), rules.lengths};
  const Site site = SiteOf(outline, rules.clearance * unit.perMetre, unit);
  Sentences met = WindowsMet(site);
  if (HasOwnSecondPlane(record, roofs_.Tolerance())) return met;
  const bool hasRoof = site.surface != nullptr || rules.isPlaneGiven || roofs_.IsEmpty();
  Sentences misfits;
  if (site.surface != nullptr || !hasRoof) {
    misfits = EdgesPassed(site);
  } else if (rules.bounds) {
    misfits = BoundsPassed(site, *rules.bounds);
  }
  if (hasRoof) {
    const std::vector<Obstacle> obstacles = ObstaclesAt(site);
    Sentences stand = ObstacleWords(obstacles, BoxOf(outline, FrameOf(site.plane)), site.clearance,
                                    roofs_.Tolerance(), unit);
    std::move(stand.begin(), stand.end(), std::back_inserter(met));
    if (!met.empty()) met.back() += FreePlace(site, obstacles);
  }
  std::move(met.begin(), met.end(), std::back_inserter(misfits));
  return misfits;
}

}  // namespace teskarlt
