// Placement.cpp - puts the window onto the roof.
#include "dialog/Placement.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "dialog/Refusal.h"
#include "geometry/PlanCover.h"
#include "geometry/RoofPlane.h"
#include "inc/RecordPoints.h"
#include "window/Choices.h"
#include "window/EdgeHeights.h"
#include "window/Outlines.h"
#include "window/SecondPlane.h"

namespace brevanta {

namespace {

using geometry::KernelTolerance;
using geometry::PlanPolygon;
using geometry::RoofPlane;
using geometry::Vec3;

constexpr double PITCH_TOLERANCE = 0.01;  // degrees, between a pitch that the user gives and the roof's own
constexpr double COVER_TOLERANCE = 1e-6;  // of the window's area, for what lies on the edge of a face

bool IsFlat(const RoofPlane& plane) {
  return SlopeAngle(plane) <= KernelTolerance;
}

bool IsVertical(const RoofPlane& plane) {
  return std::abs(plane.localNormal.z) < KernelTolerance;
}

RoofPlane FitRoof(const WindowParams& record) {
  const std::optional<RoofPlane> roof = PlaneThrough(record.roofPlanePoints);
  if (!roof) throw Refusal("the three roof points lie on one line; they do not span a roof plane");
  if (IsVertical(*roof))
    throw Refusal("the roof is vertical; a roof window needs a roof that can be seen from above");
  return *roof;
}

void TakePitch(const Answers& answers, const RoofPlane& roof, WindowParams& record) {
  const double roofPitch = geometry::RadToDeg(SlopeAngle(roof));
  if (answers.Has("pitch") && std::abs(record.pitch - roofPitch) > PITCH_TOLERANCE) {
    throw Refusal("pitch " + NumberText(record.pitch) + " is not that of the roof, " + NumberText(roofPitch) +
                  " degrees from the horizontal; leave it out");
  }
  record.pitch = roofPitch;
}

// On a flat roof the opening with a level reveal through a thick layer would be infinitely long.
void CheckReveals(const RoofPlane& roof, const WindowParams& record) {
  if (!IsFlat(roof) || !HasLevelUpperReveal(record) || record.layerThickness <= 0.0) return;
  throw Refusal("heightReference " + NumberText(record.heightReference) + " with layerThickness " +
                NumberText(record.layerThickness) +
                " makes the opening of a flat roof infinitely long; set heightReference to 0 or 3, or "
                "layerThickness to 0");
}

// The plane that the window is placed by. The second plane is the roof's underside, unless the user gave
// another.
RoofPlane FitPlacingPlane(const Answers& answers, const RoofPlane& roof, WindowParams& record) {
  if (!answers.Has("secondPlanePoints")) {
    for (int i = 0; i < 3; ++i) {
      const Vec3 onRoof = ToVec3(record.roofPlanePoints[i]);
      record.secondPlanePoints[i] = ToRecordPoint(OnUnderside(onRoof, roof.normal, record));
    }
  }
  if (!UsesSecondPlane(record)) return roof;
  const std::optional<RoofPlane> second = PlaneThrough(record.secondPlanePoints);
  if (!second) throw Refusal("the three secondPlanePoints lie on one line; they do not span a plane");
  if (IsVertical(*second)) throw Refusal("the plane of secondPlanePoints is vertical");
  return *second;
}

void TakePoint(const DialogServices& services, const Answers& answers, const RoofPlane& plane,
               WindowParams& record) {
  double xy[2] = {};
  const bool picked = services.pickedPoint(services.context, xy) != 0;
  if (answers.Has("insertionPoint")) {
    if (picked) throw Refusal("insertionPoint gives the window's place already; leave the picked point out");
    return;
  }
  if (!picked) throw Refusal("no place was given for the window");
  record.insertionPoint = ToRecordPoint(PointOver(plane, ToLocal(plane, {xy[0], xy[1], 0.0})));
}

// Decides between the point and a height for the lower edge, and gives the anchor's final place, local.
Vec3 TakeHeights(const Answers& answers, const RoofPlane& plane, WindowParams& record) {
  const bool lower = answers.Has("lowerEdgeHeight");
  const bool upper = answers.Has("upperEdgeHeight");
  if (lower && upper)
    throw Refusal("lowerEdgeHeight and upperEdgeHeight cannot both be given; one follows from the other");
  if ((lower || upper) && answers.Has("placeByHeight") && record.placeByHeight == PLACED_AT_POINT)
    throw Refusal("placeByHeight 0 leaves the window at its point; leave it out with an edge height");
  if (answers.Has("placeByHeight") && record.placeByHeight == PLACED_BY_HEIGHT && !lower && !upper)
    throw Refusal("placeByHeight 1 needs a lowerEdgeHeight or an upperEdgeHeight");
  const Vec3 anchor = PointOver(plane, MovedInsertionPoint(record, record.unitFactor));
  const bool byHeight = lower || upper;
  record.placeByHeight = byHeight ? PLACED_BY_HEIGHT : PLACED_AT_POINT;
  if (!byHeight) {
    record.lowerEdgeHeight = anchor.z / record.unitFactor;
    return anchor;
  }
  if (IsFlat(plane)) {
    throw Refusal("a flat roof has one height only, " + NumberText(anchor.z / record.unitFactor) +
                  " m; leave lowerEdgeHeight, upperEdgeHeight and placeByHeight out");
  }
  if (upper)
    record.lowerEdgeHeight = EdgeHeight(record, LOWER_FROM_UPPER, record.unitFactor) / record.unitFactor;
  return PointAtHeight(plane, anchor, record.lowerEdgeHeight * record.unitFactor);
}

// The outline in the plan of the frame that the module will draw at the anchor, local.
PlanPolygon FrameInPlan(const RoofPlane& plane, const Vec3& anchor, const WindowParams& record) {
  const Outline frame = OutlinesAt(anchor, record, record.unitFactor, SlopeOf(plane)).outer;
  return {frame.begin(), frame.end()};
}

// For people: between which heights the roof's faces lie, in metres.
std::string HeightRange(const DialogServices& services, std::int32_t unitFactor) {
  double low = std::numeric_limits<double>::max();
  double high = std::numeric_limits<double>::lowest();
  for (const FaceCorners& face : RoofFaces(services)) {
    for (const Vec3& corner : face) {
      low = std::fmin(low, corner.z);
      high = std::fmax(high, corner.z);
    }
  }
  const auto metres = [&](double z) { return NumberText(std::round(z / unitFactor * 1000.0) / 1000.0); };
  return metres(low) + " to " + metres(high) + " m";
}

// The part of the outline, local, that lies on no face of the roof.
double PartOutside(const DialogServices& services, const RoofPlane& plane, const PlanPolygon& outline) {
  FaceCorners corners(outline.size());
  std::transform(outline.begin(), outline.end(), corners.begin(),
                 [&](const Vec3& corner) { return ToWorld(plane, corner); });
  std::vector<PlanPolygon> faces;
  for (const FaceCorners& face : RoofFacesNear(services, corners)) {
    PlanPolygon& local = faces.emplace_back(face.size());
    for (std::size_t i = 0; i < face.size(); ++i)
      local[i] = ToLocal(plane, face[i]);
  }
  return 1.0 - geometry::CoveredArea(outline, faces) / geometry::PlanArea(outline);
}

void CheckInside(const DialogServices& services, const RoofPlane& plane, const PlanPolygon& outline,
                 const WindowParams& record) {
  const double area = geometry::PlanArea(outline);
  if (!(area > 0.0) || !std::isfinite(area))
    throw Refusal("the window would lie farther away than numbers reach; check its sizes and offsets");
  const double outside = PartOutside(services, plane, outline);
  if (outside <= COVER_TOLERANCE) return;
  const double percent = std::ceil(outside * 1000.0) / 10.0;
  throw Refusal("the window would leave the roof face: " + NumberText(percent) +
                " % of its area lies outside; move it or make it smaller" +
                (record.placeByHeight == PLACED_BY_HEIGHT
                     ? " (the face lies at " + HeightRange(services, record.unitFactor) + ")"
                     : std::string()));
}

}  // namespace

void PlaceWindow(const DialogServices& services, const Answers& answers, WindowParams& record) {
  const Roof roof = ChosenRoof(services);
  if (!answers.Has("roofPlanePoints")) {
    if (roof.span.empty()) throw Refusal("no roof was given for the window");
    SpanPlane(roof.span, record.roofPlanePoints);
  }
  const RoofPlane roofPlane = FitRoof(record);
  TakePitch(answers, roofPlane, record);
  CheckReveals(roofPlane, record);
  const RoofPlane plane = FitPlacingPlane(answers, roofPlane, record);
  TakePoint(services, answers, plane, record);
  const Vec3 anchor = TakeHeights(answers, plane, record);

  if (roof.isBounded && !answers.Has("roofPlanePoints"))
    CheckInside(services, plane, FrameInPlan(plane, anchor, record), record);
  if (!answers.Has("storedPoint")) record.storedPoint = ToRecordPoint(ToWorld(plane, anchor));
}

}  // namespace brevanta
