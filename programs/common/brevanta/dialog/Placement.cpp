// Placement.cpp - puts the window onto the roof.
#include "dialog/Placement.h"

#include <cmath>
#include <string>
#include <vector>

#include "dialog/Refusal.h"
#include "geometry/PlanCover.h"
#include "geometry/RoofPlane.h"
#include "geometry/Trigonometry.h"
#include "geometry/Vectors.h"
#include "inc/EdgeHeights.h"
#include "inc/RecordPoints.h"

namespace brevanta {

namespace {

using geometry::KernelTolerance;
using geometry::PlanPolygon;
using geometry::roofPlane;
using geometry::Vec3;

constexpr double PITCH_TOLERANCE = 0.01;  // degrees, between a pitch that the user gives and the roof's own
constexpr double COVER_TOLERANCE = 1e-6;  // of the window's area, for what lies on the edge of a face

bool FitPlane(const RecordPoint (&points)[3], std::int32_t unitFactor) {
  return geometry::FitRoofPlane(ToVec3(points[0]), ToVec3(points[1]), ToVec3(points[2]), unitFactor) == 1;
}

// Slope of the fitted plane in radians.
double SlopeAngle() {
  const Vec3& normal = roofPlane.localNormal;
  return std::abs(geometry::ArcTangent(normal.y / normal.z));
}

bool IsFlat(double slopeAngle) {
  return slopeAngle <= KernelTolerance;
}

void FitRoof(const WindowParams& record) {
  if (!FitPlane(record.roofPlanePoints, record.unitFactor)) {
    throw Refusal("the three roof points lie on one line; they do not span a roof plane");
  }
  if (std::abs(roofPlane.localNormal.z) < KernelTolerance) {
    throw Refusal("the roof is vertical; a roof window needs a roof that can be seen from above");
  }
}

void TakePitch(const Answers& answers, WindowParams& record) {
  const double roofPitch = geometry::RadToDeg(SlopeAngle());
  if (answers.Has("pitch") && std::abs(record.pitch - roofPitch) > PITCH_TOLERANCE) {
    throw Refusal("pitch " + NumberText(record.pitch) + " is not that of the roof, " + NumberText(roofPitch) +
                  " degrees from the horizontal; leave it out");
  }
  record.pitch = roofPitch;
}

// On a flat roof the opening cut square to a thick layer would be infinitely long.
void CheckReveals(const WindowParams& record) {
  const bool cutSquare = record.heightReference == 1 || record.heightReference == 2;
  if (!IsFlat(SlopeAngle()) || !cutSquare || record.layerThickness <= 0.0) return;
  throw Refusal("heightReference " + NumberText(record.heightReference) + " with layerThickness " +
                NumberText(record.layerThickness) +
                " makes the opening of a flat roof infinitely long; set heightReference to 0 or 3, or "
                "layerThickness to 0");
}

bool UsesSecondPlane(const WindowParams& record) {
  return record.roofBuildUp == BUILD_UP_SECOND_PLANE && record.layerThickness > 0.0;
}

// The second plane is the roof's underside, unless the user gave another: the roof lowered by the layer's
// thickness along its normal.
void FitSecondPlane(const Answers& answers, WindowParams& record) {
  if (!answers.Has("secondPlanePoints")) {
    const Vec3 down = Scaled(roofPlane.normal, -record.layerThickness * record.unitFactor);
    for (int i = 0; i < 3; ++i)
      record.secondPlanePoints[i] = ToRecordPoint(Sum(ToVec3(record.roofPlanePoints[i]), down));
  }
  if (!UsesSecondPlane(record)) return;
  if (!FitPlane(record.secondPlanePoints, record.unitFactor)) {
    throw Refusal("the three secondPlanePoints lie on one line; they do not span a plane");
  }
  if (std::abs(roofPlane.localNormal.z) < KernelTolerance)
    throw Refusal("the plane of secondPlanePoints is vertical");
}

// The point of the fitted plane above or below p, local.
Vec3 OntoPlane(const Vec3& p) {
  Vec3 onPlane = p;
  geometry::ProjectAlong(p, {0, 0, 1}, roofPlane.localCorners[0], roofPlane.localNormal, onPlane);
  return onPlane;
}

void TakePoint(const DialogServices& services, const Answers& answers, WindowParams& record) {
  double xy[2] = {};
  const bool picked = services.pickedPoint(services.context, xy) != 0;
  if (answers.Has("insertionPoint")) {
    if (picked) throw Refusal("insertionPoint gives the window's place already; leave the picked point out");
    return;
  }
  if (!picked) throw Refusal("no place was given for the window");
  Vec3 local{};
  geometry::WorldToRoof({xy[0], xy[1], 0.0}, local);
  local = OntoPlane(local);
  record.insertionPoint = ToRecordPoint(local);
}

// Where the module will find the window's anchor: moved by `pickOffset`, on the plane. Local.
Vec3 MovedAnchor(const WindowParams& record) {
  const double distance = record.pickOffset * record.unitFactor;
  Vec3 anchor = ToVec3(record.insertionPoint);
  anchor.x += distance * geometry::Cosine(record.rotation);
  anchor.y += distance * geometry::Sine(record.rotation);
  return OntoPlane(anchor);
}

// Decides between the point and a height for the lower edge, and gives the anchor's final place, local.
Vec3 TakeHeights(const Answers& answers, WindowParams& record) {
  const bool lower = answers.Has("lowerEdgeHeight");
  const bool upper = answers.Has("upperEdgeHeight");
  if (lower && upper)
    throw Refusal("lowerEdgeHeight and upperEdgeHeight cannot both be given; one follows from the other");
  if ((lower || upper) && answers.Has("placeByHeight") && record.placeByHeight == 0)
    throw Refusal("placeByHeight 0 leaves the window at its point; leave it out with an edge height");
  if (answers.Has("placeByHeight") && record.placeByHeight == 1 && !lower && !upper)
    throw Refusal("placeByHeight 1 needs a lowerEdgeHeight or an upperEdgeHeight");
  const Vec3 anchor = MovedAnchor(record);
  const bool byHeight = lower || upper;
  record.placeByHeight = byHeight ? 1 : 0;
  if (!byHeight) {
    record.lowerEdgeHeight = anchor.z / record.unitFactor;
    return anchor;
  }
  if (IsFlat(SlopeAngle())) {
    throw Refusal("a flat roof has one height only, " + NumberText(anchor.z / record.unitFactor) +
                  " m; leave lowerEdgeHeight, upperEdgeHeight and placeByHeight out");
  }
  if (upper)
    record.lowerEdgeHeight = EdgeHeight(record, LOWER_FROM_UPPER, record.unitFactor) / record.unitFactor;
  Vec3 slid = anchor;
  geometry::ProjectAlong({anchor.x, anchor.y, record.lowerEdgeHeight * record.unitFactor}, {0, 1, 0}, anchor,
                         roofPlane.localNormal, slid);
  return slid;
}

// The frame's outer outline at the anchor, local; the outline that the module will draw.
PlanPolygon OuterOutline(const WindowParams& record, const Vec3& anchor) {
  const double factor = record.unitFactor;
  const double slope = SlopeAngle();
  const double up = geometry::Cosine(slope);
  double y = anchor.y;
  if (record.roofBuildUp == BUILD_UP_SLOPE_OFFSET) y += record.slopeOffset * factor * up;
  const bool square = record.heightReference == 0 || record.heightReference == 2;
  if (UsesSecondPlane(record) && square) y -= record.layerThickness * factor * geometry::Sine(slope);
  const double width = record.width * factor;
  const double halves = record.widthAnchor == ANCHOR_START ? 0.0
                        : record.widthAnchor == ANCHOR_END ? 2.0
                                                           : 1.0;
  const double x = anchor.x - halves * width / 2;
  const double rise = record.length * factor * up;
  return {{x, y, 0}, {x, y + rise, 0}, {x + width, y + rise, 0}, {x + width, y, 0}};
}

// For people: between which heights the faces lie, in metres.
std::string HeightRange(const Roof& roof, std::int32_t unitFactor) {
  double low = roof.faces.front().front().z;
  double high = low;
  for (const FaceCorners& face : roof.faces) {
    for (const Vec3& corner : face) {
      low = std::fmin(low, corner.z);
      high = std::fmax(high, corner.z);
    }
  }
  const auto metres = [&](double z) { return NumberText(std::round(z / unitFactor * 1000.0) / 1000.0); };
  return metres(low) + " to " + metres(high) + " m";
}

void CheckInside(const Roof& roof, const PlanPolygon& outline, const WindowParams& record) {
  const double area = geometry::PlanArea(outline);
  if (!(area > 0.0) || !std::isfinite(area))
    throw Refusal("the window would lie farther away than numbers reach; check its sizes and offsets");
  std::vector<PlanPolygon> faces;
  for (const FaceCorners& face : roof.faces) {
    PlanPolygon& local = faces.emplace_back(face.size());
    for (std::size_t i = 0; i < face.size(); ++i)
      geometry::WorldToRoof(face[i], local[i]);
  }
  const double outside = 1.0 - geometry::CoveredArea(outline, faces) / area;
  if (outside <= COVER_TOLERANCE) return;
  const double percent = std::ceil(outside * 1000.0) / 10.0;
  throw Refusal("the window would leave the roof face: " + NumberText(percent) +
                " % of its area lies outside; move it or make it smaller" +
                (record.placeByHeight == 1
                     ? " (the face lies at " + HeightRange(roof, record.unitFactor) + ")"
                     : std::string()));
}

}  // namespace

void PlaceWindow(const DialogServices& services, const Answers& answers, WindowParams& record) {
  const Roof roof = ChosenRoof(services);
  if (!answers.Has("roofPlanePoints")) {
    if (roof.faces.empty()) throw Refusal("no roof was given for the window");
    SpanPlane(roof.faces.front(), record.roofPlanePoints);
  }
  FitRoof(record);
  TakePitch(answers, record);
  CheckReveals(record);
  FitSecondPlane(answers, record);
  TakePoint(services, answers, record);
  const Vec3 anchor = TakeHeights(answers, record);

  if (roof.isBounded && !answers.Has("roofPlanePoints"))
    CheckInside(roof, OuterOutline(record, anchor), record);
  if (!answers.Has("storedPoint")) {
    Vec3 world{};
    geometry::RoofToWorld(anchor, world);
    record.storedPoint = ToRecordPoint(world);
  }
}

}  // namespace brevanta
