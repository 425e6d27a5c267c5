// EdgeHeights.cpp - edge heights of a window in a roof of given pitch and build-up.
#include "window/EdgeHeights.h"

#include <cmath>

#include "geometry/Trigonometry.h"
#include "window/Choices.h"

namespace brevanta {

namespace {

constexpr double RADIANS_PER_DEGREE = 0.017453292519943295;

// In these combinations the roof layer has no part in the heights.
bool LayerSkipped(const WindowParams& params) {
  const bool isSquare = params.heightReference == REVEALS_SQUARE;
  return (isSquare && params.roofBuildUp == BUILD_UP_SECOND_PLANE) ||
         (HasLevelUpperReveal(params) && params.roofBuildUp == BUILD_UP_PLAIN);
}

// Takes a layer of the thickness t > 0 into the height, for a pitch in radians; m as in EdgeHeight.
void AddLayer(const WindowParams& params, double pitch, double t, double m, double& height) {
  const double plumb = std::abs(t / geometry::Sine(geometry::PI / 2 - pitch));
  const double square = std::abs(geometry::Cosine(pitch) * t);
  const bool secondPlane = params.roofBuildUp == BUILD_UP_SECOND_PLANE;
  if (HasSquareUpperReveal(params)) height -= m * square;
  if (HasPlumbLowerReveal(params) && secondPlane) height += m * plumb;
  if (params.heightReference == REVEALS_SQUARE_AND_LEVEL && secondPlane) height += m * square;
}

}  // namespace

double EdgeHeight(const WindowParams& params, int mode, int unitFactor) {
  const double factor = unitFactor;
  const double m = mode;
  const double pitch = params.pitch * RADIANS_PER_DEGREE;
  const double sine = geometry::Sine(pitch);
  const double rise = params.length * factor * sine;
  double height = mode == UPPER_FROM_LOWER ? params.lowerEdgeHeight * factor + rise
                                           : params.upperEdgeHeight * factor - rise;
  if (params.roofBuildUp == BUILD_UP_SLOPE_OFFSET) height += m * sine * (params.slopeOffset * factor);
  const double thickness = LayerSkipped(params) ? 0.0 : params.layerThickness * factor;
  if (thickness > 0.0) AddLayer(params, pitch, thickness, m, height);
  return height;
}

Edges RecordedEdges(const WindowParams& params) {
  return {params.lowerEdgeHeight,
          EdgeHeight(params, UPPER_FROM_LOWER, params.unitFactor) / params.unitFactor};
}

Edges EdgesOf(const Outline& frame, double unitFactor) {
  return {frame[0].z / unitFactor, frame[1].z / unitFactor};
}

}  // namespace brevanta
