// Curves.cpp - divides curves into straight pieces.
#include "teskarlt/drawing/Curves.h"

#include <algorithm>
#include <cmath>

#include "geometry/Trigonometry.h"
#include "geometry/Vectors.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

using geometry::Matrix4;
using geometry::Vec3;

constexpr double ARC_STEP = 5 * geometry::PI / 180;
constexpr double MOST_STEPS = 10000;
// Entities whose curves are faces' edges.
constexpr std::int64_t POLYLINE_MESHES = dxf::POLYLINE_POLYGON_MESH | dxf::POLYLINE_POLYFACE_MESH;

std::size_t StepsOf(double angle) {
  return static_cast<std::size_t>(std::clamp(std::ceil(std::abs(angle) / ARC_STEP), 1.0, MOST_STEPS));
}

CurvePoints Placed(const dxf::TagList& entity, CurvePoints points) {
  const Matrix4 matrix = ObjectToDrawing(entity.Point(dxf::CODE_EXTRUSION, UPWARDS));
  for (Vec3& point : points)
    geometry::MatTransformPoint(matrix, point, point);
  return points;
}

// centre + cos t * a + sin t * b for t from `start` on.
CurvePoints Sweep(const Vec3& centre, const Vec3& a, const Vec3& b, double start, double angle) {
  const std::size_t steps = StepsOf(angle);
  CurvePoints points;
  for (std::size_t i = 0; i <= steps; ++i) {
    const double t = start + angle * static_cast<double>(i) / static_cast<double>(steps);
    const double c = geometry::Cosine(t);
    const double s = geometry::Sine(t);
    points.push_back(
        {centre.x + c * a.x + s * b.x, centre.y + c * a.y + s * b.y, centre.z + c * a.z + s * b.z});
  }
  return points;
}

CurvePoints Circle(const dxf::TagList& entity, bool isArc) {
  const Vec3 centre = entity.Point(dxf::CODE_CIRCLE_CENTRE);
  const double radius = entity.Real(dxf::CODE_CIRCLE_RADIUS);
  const double start = isArc ? geometry::DegToRad(entity.Real(dxf::CODE_ARC_START)) : 0.0;
  double angle = isArc ? geometry::DegToRad(entity.Real(dxf::CODE_ARC_END)) - start : geometry::TWO_PI;
  if (isArc) angle = std::fmod(angle, geometry::TWO_PI);
  if (angle <= 0) angle += geometry::TWO_PI;
  return Placed(entity, ArcPoints(centre, radius, start, angle));
}

CurvePoints Ellipse(const dxf::TagList& entity) {
  const Vec3 major = entity.Point(dxf::CODE_ELLIPSE_MAJOR_AXIS);
  const Vec3 minor = geometry::Scaled(geometry::Cross(entity.Point(dxf::CODE_EXTRUSION, UPWARDS), major),
                                      entity.Real(dxf::CODE_ELLIPSE_RATIO, 1.0));
  const double start = entity.Real(dxf::CODE_ELLIPSE_START);
  double angle = entity.Real(dxf::CODE_ELLIPSE_END, geometry::TWO_PI) - start;
  if (angle <= 0) angle += geometry::TWO_PI;
  return Sweep(entity.Point(dxf::CODE_ELLIPSE_CENTRE), major, minor, start, angle);
}

CurvePoints LightPolyline(const dxf::TagList& entity) {
  std::vector<BulgeVertex> vertices;
  const double elevation = entity.Real(dxf::CODE_ELEVATION);
  for (const dxf::Tag& tag : entity.Tags()) {
    if (tag.code == dxf::CODE_VERTEX_POINT) {
      vertices.push_back({{entity.RealOf(tag), 0, elevation}, 0});
    } else if (!vertices.empty() && tag.code == dxf::CODE_VERTEX_POINT + dxf::Y_DISTANCE) {
      vertices.back().point.y = entity.RealOf(tag);
    } else if (!vertices.empty() && tag.code == dxf::CODE_BULGE) {
      vertices.back().bulge = entity.RealOf(tag);
    }
  }
  if (vertices.empty()) return {};
  return Placed(entity,
                WithBulges(vertices, (entity.Integer(dxf::CODE_POLYLINE_FLAGS) & dxf::POLYLINE_CLOSED) != 0));
}

CurvePoints Polyline(const std::vector<dxf::TagList>& lists) {
  const dxf::TagList& own = lists[0];
  const std::int64_t flags = own.Integer(dxf::CODE_POLYLINE_FLAGS);
  const bool is3d = (flags & dxf::POLYLINE_3D) != 0;
  const double elevation = own.Real(dxf::CODE_POLYLINE_ELEVATION);
  std::vector<BulgeVertex> vertices;
  for (std::size_t i = 1; i < lists.size(); ++i) {
    const dxf::TagList& vertex = lists[i];
    if (!dxf::SameName(vertex.Type(), dxf::TYPE_VERTEX) ||
        (vertex.Integer(dxf::CODE_VERTEX_FLAGS) & dxf::VERTEX_SPLINE_FRAME) != 0)
      continue;
    vertices.push_back({vertex.Point(dxf::CODE_VERTEX_POINT), is3d ? 0 : vertex.Real(dxf::CODE_BULGE)});
    if (!is3d) vertices.back().point.z = elevation;
  }
  if (vertices.empty()) return {};
  CurvePoints points = WithBulges(vertices, (flags & dxf::POLYLINE_CLOSED) != 0);
  return is3d ? points : Placed(own, std::move(points));
}

struct Weighted {
  double x, y, z, w;
};

Weighted Blend(const Weighted& a, const Weighted& b, double share) {
  return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share, a.z + (b.z - a.z) * share,
          a.w + (b.w - a.w) * share};
}

// De Boor's algorithm (C. de Boor, 1972) within the knots `span` and `span` + 1.
Vec3 SplinePoint(const std::vector<Weighted>& controls, const std::vector<double>& knots, std::size_t degree,
                 std::size_t span, double t) {
  std::vector<Weighted> d(controls.begin() + static_cast<std::ptrdiff_t>(span - degree),
                          controls.begin() + static_cast<std::ptrdiff_t>(span + 1));
  for (std::size_t round = 1; round <= degree; ++round) {
    for (std::size_t j = degree; j >= round; --j) {
      const double low = knots[j + span - degree];
      const double high = knots[j + 1 + span - round];
      d[j] = Blend(d[j - 1], d[j], high > low ? (t - low) / (high - low) : 0.0);
    }
  }
  const Weighted& p = d[degree];
  return {p.x / p.w, p.y / p.w, p.z / p.w};
}

CurvePoints Spline(const dxf::TagList& entity) {
  constexpr std::size_t stepsASpan = 12;
  const auto degree =
      static_cast<std::size_t>(std::clamp<std::int64_t>(entity.Integer(dxf::CODE_SPLINE_DEGREE, 3), 1, 25));
  const CurvePoints points = entity.Points(dxf::CODE_SPLINE_CONTROL_POINT);
  const std::vector<double> knots = entity.Reals(dxf::CODE_SPLINE_KNOT);
  const std::vector<double> weights = entity.Reals(dxf::CODE_SPLINE_WEIGHT);
  if (points.size() <= degree || knots.size() != points.size() + degree + 1)
    return entity.Points(dxf::CODE_SPLINE_FIT_POINT);
  std::vector<Weighted> controls;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const double w = weights.size() == points.size() && weights[i] > 0 ? weights[i] : 1.0;
    controls.push_back({points[i].x * w, points[i].y * w, points[i].z * w, w});
  }
  CurvePoints curve;
  for (std::size_t span = degree; span < points.size(); ++span) {
    const double length = knots[span + 1] - knots[span];
    if (!(length > 0)) continue;
    for (std::size_t i = curve.empty() ? 0 : 1; i <= stepsASpan; ++i) {
      const double t = knots[span] + length * static_cast<double>(i) / static_cast<double>(stepsASpan);
      curve.push_back(SplinePoint(controls, knots, degree, span, t));
    }
  }
  return curve;
}

}  // namespace

CurvePoints WithBulges(const std::vector<BulgeVertex>& vertices, bool isClosed) {
  CurvePoints points;
  const std::size_t pieces = isClosed ? vertices.size() : vertices.size() - 1;
  for (std::size_t i = 0; i < pieces; ++i) {
    const Vec3& a = vertices[i].point;
    const Vec3& b = vertices[(i + 1) % vertices.size()].point;
    const double bulge = vertices[i].bulge;
    points.push_back(a);
    if (bulge == 0) continue;
    const double lift = (1 - bulge * bulge) / (4 * bulge);
    const Vec3 centre = {(a.x + b.x) / 2 - lift * (b.y - a.y), (a.y + b.y) / 2 + lift * (b.x - a.x), a.z};
    const Vec3 radius = {a.x - centre.x, a.y - centre.y, 0};
    CurvePoints arc = Sweep(centre, radius, {-radius.y, radius.x, 0}, 0, 4 * geometry::ArcTangent(bulge));
    points.insert(points.end(), arc.begin() + 1, arc.end() - 1);
  }
  points.push_back(isClosed ? vertices.front().point : vertices.back().point);
  return points;
}

CurvePoints ArcPoints(const Vec3& centre, double radius, double start, double angle) {
  return Sweep(centre, {radius, 0, 0}, {0, radius, 0}, start, angle);
}

Matrix4 ObjectToDrawing(const Vec3& extrusion) {
  Matrix4 matrix{};
  geometry::MatIdentity(matrix);
  const double length = geometry::VecLength(extrusion);
  if (!(length > 0)) return matrix;
  const Vec3 z = {extrusion.x / length, extrusion.y / length, extrusion.z / length};
  constexpr double closeToZ = 1.0 / 64;
  const bool isCloseToZ = std::abs(z.x) < closeToZ && std::abs(z.y) < closeToZ;
  const Vec3 across = geometry::Cross(isCloseToZ ? Vec3{0, 1, 0} : UPWARDS, z);
  const Vec3 x = geometry::Scaled(across, 1 / geometry::VecLength(across));
  const Vec3 y = geometry::Cross(z, x);
  const Vec3* const axes[3] = {&x, &y, &z};
  for (int column = 0; column < 3; ++column) {
    matrix.m[0][column] = axes[column]->x;
    matrix.m[1][column] = axes[column]->y;
    matrix.m[2][column] = axes[column]->z;
  }
  return matrix;
}

std::optional<CurvePoints> PointsOf(const std::vector<dxf::TagList>& lists) {
  const dxf::TagList& own = lists[0];
  const auto is = [&](std::string_view type) { return dxf::SameName(own.Type(), type); };
  if (is(dxf::TYPE_LINE)) return CurvePoints{own.Point(dxf::CODE_LINE_START), own.Point(dxf::CODE_LINE_END)};
  if (is(dxf::TYPE_LWPOLYLINE)) return LightPolyline(own);
  if (is(dxf::TYPE_POLYLINE) && (own.Integer(dxf::CODE_POLYLINE_FLAGS) & POLYLINE_MESHES) == 0)
    return Polyline(lists);
  if (is(dxf::TYPE_CIRCLE)) return Circle(own, false);
  if (is(dxf::TYPE_ARC)) return Circle(own, true);
  if (is(dxf::TYPE_ELLIPSE)) return Ellipse(own);
  if (is(dxf::TYPE_SPLINE)) return Spline(own);
  return std::nullopt;
}

}  // namespace teskarlt
