// Outlines.cpp - the outer, inner and opening rectangle of a window.
#include "window/Outlines.h"

#include <cmath>
#include <initializer_list>
#include <optional>

#include "geometry/Trigonometry.h"
#include "geometry/Vectors.h"
#include "inc/RecordPoints.h"
#include "window/Choices.h"
#include "window/SecondPlane.h"

namespace brevanta {

namespace {

using geometry::RoofPlane;
using geometry::Vec3;

// Directions of the roof in the local frame.
struct Slope {
  double sine;
  double cosine;
  double tangent;
  double side;  // 1 or -1: direction of the fall line along y
};

Slope DirectionsOf(const LocalSlope& slope) {
  return {geometry::Sine(slope.angle), geometry::Cosine(slope.angle), geometry::Tangent(slope.angle),
          static_cast<double>(slope.ySide)};
}

// Sizes in drawing units.
struct Sizes {
  double width;
  double length;
  double frame;
};

// What the roof's layer does to the opening.
struct LayerPart {
  RevealLengths longer;  // along the slope
  double dy = 0.0;       // displacement between window and opening
  double dz = 0.0;
};

// Where the rectangles start, and the direction of their width along x.
struct Starts {
  Vec3 outer;
  Vec3 inner;
  Vec3 opening;
  double direction;
};

void MoveUpSlope(const Slope& slope, double distance, Vec3& p) {
  p.y += slope.side * std::abs(distance * slope.cosine);
  p.z += std::abs(distance * slope.sine);
}

LayerPart PartOfLayer(const Slope& slope, double thickness, const WindowParams& params) {
  LayerPart part;
  if (!(thickness > 0.0)) return part;
  part.longer = RevealLengthsOf(params, thickness, slope.tangent);
  if (HasPlumbLowerReveal(params)) part.dz = std::abs(thickness / slope.cosine);
  if (HasSquareLowerReveal(params)) {
    part.dy = -slope.side * std::abs(thickness * slope.sine);
    part.dz = std::abs(thickness * slope.cosine);
  }
  return part;
}

// The lower edges' starts for a width that starts at the anchor.
Starts StartsAtAnchor(const Vec3& anchor, const WindowParams& params, double unitFactor, const Slope& slope,
                      const LayerPart& layer) {
  Starts starts{anchor, anchor, anchor, 1.0};
  if (params.roofBuildUp == BUILD_UP_SLOPE_OFFSET) {
    // Without absolute values, unlike every other displacement here.
    const double offset = params.slopeOffset * unitFactor;
    for (Vec3* start : {&starts.outer, &starts.opening}) {
      start->y += slope.cosine * offset * slope.side;
      start->z += slope.sine * offset;
    }
  }
  if (params.roofBuildUp != BUILD_UP_SECOND_PLANE) {
    starts.opening.y -= layer.dy;
    starts.opening.z -= layer.dz;
  } else {
    starts.outer.y += layer.dy;
    starts.outer.z += layer.dz;
  }
  return starts;
}

// Moves the starts by what lies before the anchor. A window that ends there and runs along -x leaves the
// inner outline off the middle of the outer one; kept.
void MoveBeforeAnchor(int halves, const Sizes& size, Starts& starts) {
  for (int half = 0; half < halves; ++half) {
    starts.inner.x -= size.width / 2;
    if (starts.direction == -1) starts.inner.x += 2 * size.frame;
    starts.outer.x -= size.width / 2;
    starts.opening.x -= size.width / 2;
  }
  if (halves > 0) starts.direction = 1;
}

// From `start`, up the slope by `length` and across by `width`, which may be negative.
Outline Rectangle(const Vec3& start, const Slope& slope, double length, double width) {
  Outline corners{start, start, start, start};
  MoveUpSlope(slope, length, corners[1]);
  corners[2] = corners[1];
  corners[2].x += width;
  corners[3].x += width;
  return corners;
}

}  // namespace

LocalSlope SlopeOf(const RoofPlane& plane) {
  const Vec3& normal = plane.localNormal;
  const bool risesBackwards = (normal.y > 0 && normal.z > 0) || (normal.y < 0 && normal.z < 0);
  return {SlopeAngle(plane), risesBackwards ? -1 : 1};
}

WindowOutlines OutlinesAt(const Vec3& anchor, const WindowParams& params, double unitFactor,
                          const LocalSlope& localSlope) {
  const Slope slope = DirectionsOf(localSlope);
  const Sizes size{params.width * unitFactor, params.length * unitFactor, params.frameWidth * unitFactor};
  const LayerPart layer = PartOfLayer(slope, params.layerThickness * unitFactor, params);

  Starts starts = StartsAtAnchor(anchor, params, unitFactor, slope, layer);
  starts.direction = localSlope.xSide;
  starts.inner = starts.outer;
  starts.inner.x += starts.direction * size.frame;
  MoveUpSlope(slope, size.frame, starts.inner);
  MoveBeforeAnchor(HalvesBeforeAnchor(params), size, starts);

  const double width = starts.direction * size.width;
  const double glazedWidth = starts.direction * (size.width - 2 * size.frame);
  return {Rectangle(starts.outer, slope, size.length, width),
          Rectangle(starts.inner, slope, size.length - 2 * size.frame, glazedWidth),
          Rectangle(starts.opening, slope, size.length + layer.longer.lower + layer.longer.upper, width)};
}

RevealLengths RevealLengthsOf(const WindowParams& params, double thickness, double tangent) {
  RevealLengths lengths;
  if (HasPlumbLowerReveal(params)) lengths.lower = std::abs(thickness * tangent);
  if (HasLevelUpperReveal(params)) lengths.upper = std::abs(thickness / tangent);
  return lengths;
}

Vec3 MovedInsertionPoint(const WindowParams& params, double unitFactor) {
  const double distance = params.pickOffset * unitFactor;
  Vec3 moved = ToVec3(params.insertionPoint);
  moved.x += distance * geometry::Cosine(params.rotation);
  moved.y += distance * geometry::Sine(params.rotation);
  return moved;
}

std::optional<RoofPlane> PlacingPlane(const WindowParams& params) {
  return PlaneThrough(UsesSecondPlane(params) ? params.secondPlanePoints : params.roofPlanePoints);
}

Outline DrawnFrame(const WindowParams& params) {
  const RoofPlane plane = PlacingPlane(params).value_or(RoofPlane{});
  const Vec3 anchor = ToLocal(plane, ToVec3(params.storedPoint));
  Outline frame = OutlinesAt(anchor, params, params.unitFactor, SlopeOf(plane)).outer;
  for (Vec3& corner : frame)
    corner = ToWorld(plane, corner);
  return frame;
}

Vec3 OnPlacingPlane(const Vec3& onEdge, const Vec3& normal, double pitch, const WindowParams& params) {
  if (!UsesSecondPlane(params)) return onEdge;
  if (HasSquareLowerReveal(params)) return OnUnderside(onEdge, normal, params);
  if (!HasPlumbLowerReveal(params)) return onEdge;
  const double depth = params.layerThickness * params.unitFactor;
  return Moved(onEdge, {0, 0, -1}, depth / geometry::Cosine(pitch));
}

}  // namespace brevanta
