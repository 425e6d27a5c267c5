// RoofSurface.cpp - gathers faces into surfaces.
#include "teskarlt/drawing/RoofSurface.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "geometry/Matrix4.h"
#include "geometry/Trigonometry.h"
#include "geometry/Vectors.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

constexpr double SAME_EDGE = 2.0;       // millimetres between edges that are one
constexpr double SAME_DIRECTION = 2.0;  // degrees between the normals of faces that continue each other

// The best fit to faces that come one by one, each counting by its area.
class PlaneSum {
 public:
  explicit PlaneSum(const RoofFace& first) : origin_(first.plane.point) { Add(first); }

  void Add(const RoofFace& face) {
    const double area = Area(face);
    area_ += area;
    offset_ = Moved(offset_, Difference(face.plane.point, origin_), area);
    normal_ = Moved(normal_, face.plane.normal, area);
  }

  Plane Fit() const {
    return {Moved(origin_, offset_, 1.0 / area_), Scaled(normal_, 1.0 / geometry::VecLength(normal_))};
  }

 private:
  Vec3 origin_;  // far from the drawing's own, sums lose their last digits
  Vec3 offset_{};
  Vec3 normal_{};
  double area_ = 0.0;
};

double DistanceFromLine(const Vec3& a, const Vec3& direction, const Vec3& p) {
  return geometry::VecLength(Cross(Difference(p, a), direction));
}

// Whether the edges a to b and c to d run along each other for more than the tolerance, which is also how far
// apart they may lie.
bool RunTogether(const Vec3& a, const Vec3& b, const Vec3& c, const Vec3& d, double tolerance) {
  const double length = Distance(a, b);
  if (length <= tolerance) return false;
  const Vec3 direction = Scaled(Difference(b, a), 1.0 / length);
  const double from = geometry::VecDot(Difference(c, a), direction);
  const double to = geometry::VecDot(Difference(d, a), direction);
  if (std::min(std::max(from, to), length) - std::max(std::min(from, to), 0.0) <= tolerance) return false;
  return DistanceFromLine(a, direction, c) <= tolerance && DistanceFromLine(a, direction, d) <= tolerance;
}

bool ShareEdge(const RoofFace& one, const RoofFace& other, double tolerance) {
  const std::size_t count = one.corners.size();
  const std::size_t otherCount = other.corners.size();
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t j = 0; j < otherCount; ++j) {
      if (RunTogether(one.corners[i], one.corners[(i + 1) % count], other.corners[j],
                      other.corners[(j + 1) % otherCount], tolerance))
        return true;
    }
  }
  return false;
}

bool HaveSameDirection(const Plane& a, const Plane& b) {
  static const double LEAST_COSINE = geometry::Cosine(geometry::DegToRad(SAME_DIRECTION));
  return geometry::VecDot(a.normal, b.normal) >= LEAST_COSINE;
}

// By the order of their first faces; no handle of an entity has an R.
void SortAndName(std::vector<RoofSurface>& surfaces) {
  const auto firstFace = [](const RoofSurface& surface) {
    return *std::min_element(surface.faces.begin(), surface.faces.end());
  };
  std::sort(surfaces.begin(), surfaces.end(),
            [&](const RoofSurface& a, const RoofSurface& b) { return firstFace(a) < firstFace(b); });
  std::size_t number = 0;
  for (RoofSurface& surface : surfaces)
    if (surface.isPlanar) surface.name = fmt::format("R{}", ++number);
}

class SurfaceFinder {
 public:
  SurfaceFinder(const std::vector<RoofFace>& faces, const PlanIndex& index, double tolerance)
      : faces_(faces), index_(index), tolerance_(tolerance), isTaken_(faces.size()) {}

  std::vector<RoofSurface> Find() {
    std::vector<RoofSurface> surfaces;
    for (const std::size_t seed : Seeds())
      if (!isTaken_[seed]) surfaces.push_back(SurfaceFrom(seed));
    return surfaces;
  }

 private:
  // The faces that can begin a surface: slivers last, and the largest first.
  std::vector<std::size_t> Seeds() const {
    struct Seed {
      bool isNarrow;
      double area;
      std::size_t number;
    };
    std::vector<Seed> seeds;
    for (std::size_t i = 0; i < faces_.size(); ++i) {
      if (!IsSteep(faces_[i])) seeds.push_back({IsNarrow(faces_[i], tolerance_), Area(faces_[i]), i});
    }
    std::stable_sort(seeds.begin(), seeds.end(), [](const Seed& a, const Seed& b) {
      return a.isNarrow != b.isNarrow ? b.isNarrow : a.area > b.area;
    });
    std::vector<std::size_t> numbers;
    numbers.reserve(seeds.size());
    for (const Seed& seed : seeds)
      numbers.push_back(seed.number);
    return numbers;
  }

  RoofSurface SurfaceFrom(std::size_t seed) {
    const double limit = WarpLimit(faces_[seed], tolerance_);
    RoofSurface surface;
    surface.isPlanar = IsPlanar(faces_[seed], tolerance_);
    isTaken_[seed] = true;
    surface.faces = surface.isPlanar ? WalkFrom(seed, limit) : std::vector{seed};
    surface.plane = FitOf(surface.faces);
    DropAllOff(limit, surface);
    surface.box = PlanBoxOf(faces_[seed].corners);
    for (const std::size_t face : surface.faces) {
      surface.warp = std::max(surface.warp, Warp(faces_[face], surface.plane));
      surface.box = Around(surface.box, PlanBoxOf(faces_[face].corners));
    }
    return surface;
  }

  // The plane turns a little with each face, so that one of the first may lie off it in the end.
  void DropAllOff(double limit, RoofSurface& surface) {
    const auto isOn = [&](std::size_t face) { return Warp(faces_[face], surface.plane) <= limit; };
    const auto dropped = std::stable_partition(surface.faces.begin() + 1, surface.faces.end(), isOn);
    if (dropped == surface.faces.end()) return;
    for (auto face = dropped; face != surface.faces.end(); ++face)
      isTaken_[*face] = false;
    surface.faces.erase(dropped, surface.faces.end());
    surface.plane = FitOf(surface.faces);
  }

  Plane FitOf(const std::vector<std::size_t>& members) const {
    PlaneSum sum(faces_[members.front()]);
    for (std::size_t i = 1; i < members.size(); ++i)
      sum.Add(faces_[members[i]]);
    return sum.Fit();
  }

  // The seed, which is the largest, and all that continue it, nearest first.
  std::vector<std::size_t> WalkFrom(std::size_t seed, double limit) {
    std::vector<std::size_t> walked = {seed};
    PlaneSum sum(faces_[seed]);
    for (std::size_t at = 0; at < walked.size(); ++at) {
      const RoofFace& face = faces_[walked[at]];
      for (const std::size_t next : index_.Touching(PlanBoxOf(face.corners, SAME_EDGE * tolerance_))) {
        if (isTaken_[next] || !Continues(face, faces_[next], sum.Fit(), limit)) continue;
        isTaken_[next] = true;
        walked.push_back(next);
        sum.Add(faces_[next]);
      }
    }
    return walked;
  }

  // Whether the neighbour lies in the surface's plane and has a part of an edge with the face. In one plane
  // without doubt, faces need only be near: some drawings have them overlap.
  bool Continues(const RoofFace& face, const RoofFace& neighbour, const Plane& plane, double limit) const {
    const double warp = Warp(neighbour, plane);
    const bool isAlike = IsNarrow(neighbour, tolerance_) || HaveSameDirection(plane, neighbour.plane);
    if (warp > limit || !isAlike) return false;
    return warp <= tolerance_ || ShareEdge(face, neighbour, SAME_EDGE * tolerance_);
  }

  const std::vector<RoofFace>& faces_;
  const PlanIndex& index_;
  const double tolerance_;
  std::vector<bool> isTaken_;
};

}  // namespace

bool IsFlat(const RoofSurface& surface) {
  constexpr double FLATTEST = 1.0;  // degrees
  return Pitch(surface.plane) < FLATTEST;
}

std::vector<RoofSurface> SurfacesOf(const std::vector<RoofFace>& faces, const PlanIndex& index,
                                    double tolerance) {
  std::vector<RoofSurface> surfaces = SurfaceFinder(faces, index, tolerance).Find();
  SortAndName(surfaces);
  return surfaces;
}

}  // namespace teskarlt
