// WindowOutlines.cpp - the outer, inner and opening rectangle of a window in the roof plane.
#include "arx/BvMakeWindow/WindowOutlines.h"

#include <cmath>
#include <initializer_list>

#include "geometry/Trigonometry.h"

namespace brevanta {

namespace {

// Directions of the roof in the local frame.
struct Slope {
  double sine;
  double cosine;
  double tangent;
  double side;  // 1 or -1: direction of the fall line along y
};

// What the depth D of the roof layer does to the opening.
struct Depth {
  double e1 = 0.0;  // lengthening along the slope
  double e2 = 0.0;
  double dy = 0.0;  // displacement between window and opening
  double dz = 0.0;
};

void MoveUpSlope(const Slope& slope, double distance, GcGePoint3d& p) {
  p.y += slope.side * std::abs(distance * slope.cosine);
  p.z += std::abs(distance * slope.sine);
}

Depth RoofDepth(const Slope& slope, double d, std::int32_t mode) {
  Depth depth;
  if (!(d > 0.0)) return depth;
  if (mode == 1 || mode == 3) depth.e1 = std::abs(d * slope.tangent);
  if (mode == 1 || mode == 2) depth.e2 = std::abs(d / slope.tangent);
  if (mode == 1 || mode == 3) depth.dz = std::abs(d / slope.cosine);
  if (mode == 0 || mode == 2) {
    depth.dy = -slope.side * std::abs(d * slope.sine);
    depth.dz = std::abs(d * slope.cosine);
  }
  return depth;
}

// The rectangle from `start`, up the slope by `length` and across by `width`, which may be negative.
struct Rectangle {
  GcGePoint3d corner[4];

  Rectangle(const GcGePoint3d& start, const Slope& slope, double length, double width)
      : corner{start, start, start, start} {
    MoveUpSlope(slope, length, corner[1]);
    corner[2] = corner[1];
    corner[2].x += width;
    corner[3].x += width;
  }
};

GcGePoint3d ToWorld(const GcGePoint3d& local, const GcGeMatrix3d& roofTransform) {
  GcGePoint3d world = local;
  return world.transformBy(roofTransform);
}

}  // namespace

void ComputeWindowOutlines(const CbvMakeWindow& maker, const GcGePoint3d& insertion, double slopeAngle,
                           std::int16_t slopeSide, std::int32_t widthSide, Point3dArray& outer,
                           Point3dArray& inner, Point3dArray& opening, GcGePoint3d& corner0World,
                           GcGePoint3d& corner3World) {
  const WindowParams& params = *maker.params;
  const Slope slope{geometry::Sine(slopeAngle), geometry::Cosine(slopeAngle), geometry::Tangent(slopeAngle),
                    static_cast<double>(slopeSide)};
  const double width = maker.Scaled(params.width);
  const double length = maker.Scaled(params.length);
  const double frame = maker.Scaled(params.frameWidth);
  double w = widthSide;

  GcGePoint3d outerStart = insertion;
  GcGePoint3d openingStart = insertion;
  if (params.roofBuildUp == BUILD_UP_SLOPE_OFFSET) {
    // Without absolute values, unlike every other displacement here.
    const double offset = maker.Scaled(params.slopeOffset);
    for (GcGePoint3d* start : {&outerStart, &openingStart}) {
      start->y += slope.cosine * offset * slope.side;
      start->z += slope.sine * offset;
    }
  }

  const Depth depth = RoofDepth(slope, maker.Scaled(params.layerThickness), params.heightReference);
  if (params.roofBuildUp != BUILD_UP_SECOND_PLANE) {
    openingStart.y -= depth.dy;
    openingStart.z -= depth.dz;
  } else {
    outerStart.y += depth.dy;
    outerStart.z += depth.dz;
  }

  GcGePoint3d innerStart = outerStart;
  innerStart.x += w * frame;
  MoveUpSlope(slope, frame, innerStart);

  // Once for a centred window, twice for one that ends at the insertion point. Ending there and running along
  // -x leaves the inner outline off the middle of the outer one; kept.
  const int halves = params.widthAnchor == ANCHOR_START ? 0 : params.widthAnchor == ANCHOR_END ? 2 : 1;
  for (int half = 0; half < halves; ++half) {
    innerStart.x -= width / 2;
    if (w == -1) innerStart.x += 2 * frame;
    outerStart.x -= width / 2;
    openingStart.x -= width / 2;
  }
  if (halves > 0) w = 1;

  const Rectangle outerRectangle(outerStart, slope, length, w * width);
  const Rectangle openingRectangle(openingStart, slope, length + depth.e1 + depth.e2, w * width);
  const Rectangle innerRectangle(innerStart, slope, length - 2 * frame, w * (width - 2 * frame));
  corner0World = ToWorld(outerRectangle.corner[0], maker.roofTransform);
  corner3World = ToWorld(outerRectangle.corner[3], maker.roofTransform);
  for (int k = 0; k < 4; ++k) {
    opening.Append(openingRectangle.corner[k]);
    outer.Append(outerRectangle.corner[k]);
    inner.Append(innerRectangle.corner[k]);
  }
}

}  // namespace brevanta
