// HatchFaces.cpp - reads the boundaries of a HATCH.
#include "teskarlt/drawing/HatchFaces.h"

#include <cstddef>
#include <cstdint>
#include <utility>

#include "geometry/Matrix4.h"
#include "teskarlt/drawing/Curves.h"
#include "teskarlt/drawing/Rings.h"
#include "teskarlt/dxf/tags/Codes.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

// An edge of a boundary as its tags tell it; which of the values it has depends on the type.
struct HatchEdge {
  std::int64_t type = 0;
  Vec3 start{};  // or the centre of an arc
  Vec3 end{};
  double radius = 0;
  double fromAngle = 0;  // degrees, in the direction in which the arc runs
  double toAngle = 0;
  bool isCounterClockwise = true;
};

// Gathers the boundaries of a hatch from its tags, which must come in their order: a boundary is either a
// polyline or a row of edges.
class BoundaryReader {
 public:
  explicit BoundaryReader(const dxf::TagList& hatch) : hatch_(hatch) {}

  // In the coordinates of the hatch, at height 0; empty when a boundary is of a kind that is not read.
  std::vector<Ring> Read() {
    for (const dxf::Tag& tag : hatch_.Tags()) {
      if (isInside_ && tag.code == dxf::CODE_HATCH_STYLE) break;
      if (tag.code == dxf::CODE_HATCH_PATH) {
        ClosePath();
        isInside_ = true;
        isPolyline_ = (hatch_.IntegerOf(tag) & dxf::HATCH_PATH_POLYLINE) != 0;
      } else if (isInside_ && isPolyline_) {
        ReadVertex(tag);
      } else if (isInside_) {
        ReadEdge(tag);
      }
    }
    ClosePath();
    return isReadable_ ? std::move(rings_) : std::vector<Ring>();
  }

 private:
  void ReadVertex(const dxf::Tag& tag) {
    if (tag.code == dxf::CODE_VERTEX_POINT) {
      vertices_.push_back({{hatch_.RealOf(tag), 0, 0}, 0});
    } else if (!vertices_.empty() && tag.code == dxf::CODE_VERTEX_POINT + dxf::Y_DISTANCE) {
      vertices_.back().point.y = hatch_.RealOf(tag);
    } else if (!vertices_.empty() && tag.code == dxf::CODE_BULGE) {
      vertices_.back().bulge = hatch_.RealOf(tag);
    }
  }

  void ReadEdge(const dxf::Tag& tag) {
    switch (tag.code) {
      case dxf::CODE_HATCH_EDGE:
        CloseEdge();
        edge_.type = hatch_.IntegerOf(tag);
        break;
      case dxf::CODE_LINE_START:
        edge_.start.x = hatch_.RealOf(tag);
        break;
      case dxf::CODE_LINE_START + dxf::Y_DISTANCE:
        edge_.start.y = hatch_.RealOf(tag);
        break;
      case dxf::CODE_LINE_END:
        edge_.end.x = hatch_.RealOf(tag);
        break;
      case dxf::CODE_LINE_END + dxf::Y_DISTANCE:
        edge_.end.y = hatch_.RealOf(tag);
        break;
      case dxf::CODE_CIRCLE_RADIUS:
        edge_.radius = hatch_.RealOf(tag);
        break;
      case dxf::CODE_ARC_START:
        edge_.fromAngle = hatch_.RealOf(tag);
        break;
      case dxf::CODE_ARC_END:
        edge_.toAngle = hatch_.RealOf(tag);
        break;
      case dxf::CODE_HATCH_COUNTER_CLOCKWISE:
        edge_.isCounterClockwise = hatch_.IntegerOf(tag) != 0;
        break;
      default:
        break;
    }
  }

  void CloseEdge() {
    if (edge_.type == dxf::HATCH_EDGE_LINE) {
      edges_.insert(edges_.end(), {edge_.start, edge_.end});
    } else if (edge_.type == dxf::HATCH_EDGE_ARC) {
      AddArc();
    } else if (edge_.type != 0) {
      isReadable_ = false;
    }
    edge_ = {};
  }

  void AddArc() {
    const double sense = edge_.isCounterClockwise ? 1 : -1;
    double sweep = edge_.toAngle - edge_.fromAngle;
    if (sweep <= 0) sweep += FULL_TURN;
    const double start = geometry::DegToRad(sense * edge_.fromAngle);
    const CurvePoints points = ArcPoints(edge_.start, edge_.radius, start, geometry::DegToRad(sense * sweep));
    edges_.insert(edges_.end(), points.begin(), points.end());
  }

  void ClosePath() {
    CloseEdge();
    Ring ring = vertices_.empty() ? std::move(edges_) : WithBulges(vertices_, true);
    if (!ring.empty() && !vertices_.empty()) ring.pop_back();  // which is the first again
    if (!ring.empty()) rings_.push_back(std::move(ring));
    vertices_.clear();
    edges_.clear();
  }

  static constexpr double FULL_TURN = 360;  // degrees

  const dxf::TagList& hatch_;
  bool isInside_ = false;  // behind the head of a boundary
  bool isPolyline_ = false;
  bool isReadable_ = true;
  std::vector<BulgeVertex> vertices_;
  CurvePoints edges_;  // their points in turn
  HatchEdge edge_;
  std::vector<Ring> rings_;
};

// How many boundaries within one another count.
std::size_t DeepestOf(std::int64_t style) {
  if (style == dxf::HATCH_STYLE_OUTER) return 1;
  return style == dxf::HATCH_STYLE_IGNORE ? 0 : SIZE_MAX;
}

void Place(const geometry::Matrix4& matrix, double elevation, Ring& ring) {
  for (Vec3& point : ring) {
    point.z = elevation;
    geometry::MatTransformPoint(matrix, point, point);
  }
}

}  // namespace

std::vector<EntityFace> FacesOfHatch(const std::vector<dxf::TagList>& lists) {
  const dxf::TagList& hatch = lists.front();
  const std::vector<Ring> rings = BoundaryReader(hatch).Read();
  const RingNest nest = NestOf(rings, [](std::size_t, std::size_t) { return true; });
  const std::size_t deepest = DeepestOf(hatch.Integer(dxf::CODE_HATCH_STYLE));
  const geometry::Matrix4 matrix = ObjectToDrawing(hatch.Point(dxf::CODE_EXTRUSION, UPWARDS));
  const double elevation = hatch.Real(dxf::CODE_HATCH_ELEVATION);
  std::vector<EntityFace> faces;
  for (std::size_t outer = 0; outer < rings.size(); ++outer) {
    if (nest.depths[outer] % 2 != 0 || nest.depths[outer] > deepest) continue;
    EntityFace& face = faces.emplace_back();
    face.corners = rings[outer];
    if (nest.depths[outer] < deepest) {
      for (const std::size_t hole : nest.holes[outer])
        face.holes.push_back(TurnedAgainst(rings[outer], rings[hole]));
    }
    Place(matrix, elevation, face.corners);
    for (Ring& hole : face.holes)
      Place(matrix, elevation, hole);
  }
  return faces;
}

}  // namespace teskarlt
