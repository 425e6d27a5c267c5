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

// That of the surface, which there is.
SurfaceOutline OutlineUnder(const Outline& outline, const Roofs& roofs) {
  return OutlineOf(*SurfaceUnder(outline, roofs), roofs.Faces(), roofs.Tolerance());
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

// The windows that cover a piece of it.
std::set<std::int32_t> WindowFit::NumbersOver(const Outline& outline) const {
  const auto [least, most] = ReachAlongX(outline);
  const auto [leastY, mostY] = ReachAlongY(outline);
  std::set<std::int32_t> numbers;
  const auto end = places_.upper_bound(most);
  for (auto at = places_.lower_bound(least - widest_); at != end; ++at) {
    const Place& place = at->second;
    const bool isNear = place.leastY <= mostY && place.mostY >= leastY;
    if (isNear && Overlap(outline, place.outline, roofs_.Tolerance())) numbers.insert(place.number);
  }
  return numbers;
}

double WindowFit::DistanceTo(std::int32_t number, const Outline& outline) const {
  const SlopeFrame frame = FrameOf({outline[0], UnitNormal(outline)});
  return DistanceBetween(RingOf(*OutlineOf(number), frame), BoxOf(outline, frame));
}

void WindowFit::TellWindows(const Outline& outline, double clearance, const SpokenUnit& unit,
                            Sentences& misfits) const {
  const std::set<std::int32_t> overlapped = NumbersOver(outline);
  if (!overlapped.empty()) misfits.push_back("it overlaps " + NumberWords(overlapped));
  if (clearance <= 0.0) return;
  std::set<std::int32_t> near;
  double least = clearance;
  for (const std::int32_t number : NumbersOver(Grown(outline, clearance))) {
    const double distance = overlapped.contains(number) ? clearance : DistanceTo(number, outline);
    if (distance >= clearance - roofs_.Tolerance()) continue;
    near.insert(number);
    least = std::min(least, distance);
  }
  if (!near.empty()) {
    misfits.push_back(fmt::format("{} {}, {} away", NearerThan(clearance, unit), NumberWords(near),
                                  LengthText(least, unit)));
  }
}

// "it passes the ridge by 0.12 m"; over a hole, how much of it.
std::string WindowFit::Outside(const Outline& outline, double covered, const SpokenUnit& unit) const {
  const std::string passed = PassedEdges(outline, OutlineUnder(outline, roofs_), unit);
  if (!passed.empty()) return "it " + passed;
  return fmt::format("{:.1f} % of it lie outside its roof face", (1.0 - covered) * PERCENT);
}

void WindowFit::TellEdges(const Outline& outline, double clearance, const SpokenUnit& unit,
                          Sentences& misfits) const {
  const double covered = CoveredPart(outline, roofs_);
  if (covered <= 0.0) {
    misfits.push_back("it lies on no roof face" + NearestRoof(outline, roofs_, unit));
  } else if (!IsWhole(covered)) {
    misfits.push_back(Outside(outline, covered, unit));
  } else if (clearance > 0.0) {
    const std::string edges = EdgesWithin(clearance, outline, OutlineUnder(outline, roofs_), unit);
    if (!edges.empty()) misfits.push_back(NearerThan(clearance, unit) + " " + edges);
  }
  const double unevenness = UnevennessIn(outline, roofs_) / roofs_.Tolerance();
  if (unevenness > ROOF_UNEVENNESS)
    misfits.push_back(fmt::format("its roof is uneven there, {:.0f} mm off its plane", unevenness));
}

void WindowFit::TellBounds(const Outline& outline, const SurfaceOutline& bounds, double clearance,
                           const SpokenUnit& unit, Sentences& misfits) {
  const std::string passed = PassedEdges(outline, bounds, unit);
  const std::string near = clearance > 0.0 ? EdgesWithin(clearance, outline, bounds, unit) : std::string();
  if (!passed.empty()) {
    misfits.push_back("it " + passed);
  } else if (!near.empty()) {
    misfits.push_back(NearerThan(clearance, unit) + " " + near);
  }
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

void WindowFit::TellObstacles(const Outline& outline, const FitRules& rules, const SpokenUnit& unit,
                              Sentences& misfits) const {
  const double clearance = rules.clearance * unit.perMetre;
  const RoofSurface* const surface = SurfaceUnder(outline, roofs_);
  if (surface == nullptr && !rules.isPlaneGiven && !roofs_.IsEmpty()) return;  // its roof was taken away
  const Plane plane = surface != nullptr ? surface->plane : Plane{outline[0], UnitNormal(outline)};
  const double tolerance = roofs_.Tolerance();
  const std::vector<Obstacle> around =
      surface != nullptr ? std::vector<Obstacle>()
                         : ObstaclesOn(plane, {}, PlanBoxOf(outline, AROUND * unit.perMetre + clearance),
                                       ROOF_UNEVENNESS * tolerance, roofs_);
  const std::vector<Obstacle>& obstacles = surface != nullptr ? ObstaclesOf(*surface) : around;
  const SlopeFrame frame = FrameOf(plane);
  Sentences met = ObstacleWords(obstacles, BoxOf(outline, frame), clearance, tolerance, unit);
  if (met.empty()) return;
  if (const auto way = WayToFreePlace(outline, frame, obstacles, clearance, unit.perMetre))
    met.back() += fmt::format("; the nearest free place is {}", WayWords(*way, unit));
  std::move(met.begin(), met.end(), std::back_inserter(misfits));
}

std::optional<SlopePoint> WindowFit::WayToFreePlace(const Outline& outline, const SlopeFrame& frame,
                                                    const std::vector<Obstacle>& obstacles, double clearance,
                                                    double perMetre) const {
  const double tolerance = roofs_.Tolerance();
  std::vector<SlopeRing> rings;
  rings.reserve(obstacles.size());
  for (const Obstacle& obstacle : obstacles)
    rings.push_back(obstacle.footprint);
  for (const auto& [x, place] : places_) {
    if (!LiesInPlane(place.outline, outline[0], UnitNormal(outline), tolerance)) continue;
    rings.push_back(RingOf(place.outline, frame));
  }
  const bool isBounded = SurfaceUnder(outline, roofs_) != nullptr;
  for (const SlopePoint& way : WaysClearOf(rings, Grown(BoxOf(outline, frame), clearance))) {
    Outline moved = Grown(outline, clearance);
    for (Vec3& corner : moved)
      corner = Moved(Moved(corner, frame.across, way.across), frame.up, way.up);
    if (isBounded ? IsWhole(CoveredPart(moved, roofs_)) : Length(way) <= AROUND * perMetre) return way;
  }
  return std::nullopt;
}

std::vector<std::string> WindowFit::Misfits(const WindowParams& record, const Outline& outline,
                                            const FitRules& rules) const {
  const SpokenUnit unit{static_cast<double>(record.unitFactor), rules.lengths};
  const double clearance = rules.clearance * unit.perMetre;
  Sentences misfits;
  TellWindows(outline, clearance, unit, misfits);
  if (HasOwnSecondPlane(record, roofs_.Tolerance())) return misfits;
  const bool hasFaces = !rules.isPlaneGiven || SurfaceUnder(outline, roofs_) != nullptr;
  if (rules.bounds && !hasFaces) {
    TellBounds(outline, *rules.bounds, clearance, unit, misfits);
  } else if (hasFaces && !roofs_.IsEmpty()) {
    TellEdges(outline, clearance, unit, misfits);
  }
  TellObstacles(outline, rules, unit, misfits);
  return misfits;
}

}  // namespace teskarlt
