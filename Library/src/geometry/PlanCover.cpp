// PlanCover.cpp - clips polygons against a convex outline in the plan and measures what they cover together.
#include "geometry/PlanCover.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace geometry {

namespace {

// Positive when the corners run counter-clockwise.
// Coordinates are taken from the first corner, for precision.
double SignedArea(const PlanPolygon& polygon) {
  double twice = 0.0;
  for (std::size_t i = 1; i + 1 < polygon.size(); ++i) {
    const Vec3& o = polygon[0];
    const Vec3& a = polygon[i];
    const Vec3& b = polygon[i + 1];
    twice += (a.x - o.x) * (b.y - o.y) - (a.y - o.y) * (b.x - o.x);
  }
  return twice / 2;
}

// Signed distance measure of p from the directed line a to b, positive on its left.
double SideOf(const Vec3& a, const Vec3& b, const Vec3& p) {
  return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

// What of the polygon lies on the left of the directed line a to b (I.
// Sutherland, G. Hodgman, Reentrant polygon clipping, 1974). A concave polygon
// may come back with edges that run over each other, which cancel out.
PlanPolygon ClipLeftOf(const Vec3& a, const Vec3& b, const PlanPolygon& polygon) {
  PlanPolygon clipped;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Vec3& from = polygon[i];
    const Vec3& to = polygon[(i + 1) % polygon.size()];
    const double fromSide = SideOf(a, b, from);
    const double toSide = SideOf(a, b, to);
    if (fromSide >= 0.0) clipped.push_back(from);
    if ((fromSide < 0.0) != (toSide < 0.0)) {
      const double t = fromSide / (fromSide - toSide);
      clipped.push_back({from.x + t * (to.x - from.x), from.y + t * (to.y - from.y), 0.0});
    }
  }
  return clipped;
}

PlanPolygon ClipToOutline(const PlanPolygon& outline, const PlanPolygon& polygon) {
  const bool counterClockwise = SignedArea(outline) > 0.0;
  PlanPolygon inside = polygon;
  for (std::size_t i = 0; i < outline.size() && !inside.empty(); ++i) {
    const Vec3& a = outline[i];
    const Vec3& b = outline[(i + 1) % outline.size()];
    inside = counterClockwise ? ClipLeftOf(a, b, inside) : ClipLeftOf(b, a, inside);
  }
  return inside;
}

// An edge of one of the polygons, from left to right.
struct Edge {
  Vec3 left;
  Vec3 right;
  std::size_t polygon;

  double YAt(double x) const { return left.y + (x - left.x) / (right.x - left.x) * (right.y - left.y); }
};

// Edges along y have no part in a sweep along x.
void AppendEdges(const PlanPolygon& polygon, std::size_t number, std::vector<Edge>& edges) {
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Vec3& a = polygon[i];
    const Vec3& b = polygon[(i + 1) % polygon.size()];
    if (a.x != b.x) edges.push_back(a.x < b.x ? Edge{a, b, number} : Edge{b, a, number});
  }
}

// Puts the place where the edges cross behind the places.
void AppendCrossing(const Edge& a, const Edge& b, std::vector<double>& places) {
  const double from = std::max(a.left.x, b.left.x);
  const double to = std::min(a.right.x, b.right.x);
  if (from >= to) return;
  const double above = a.YAt(from) - b.YAt(from);
  const double aboveAtEnd = a.YAt(to) - b.YAt(to);
  if ((above < 0.0) != (aboveAtEnd < 0.0))
    places.push_back(from + (to - from) * above / (above - aboveAtEnd));
}

// The places along x between which no edge ends or crosses another, in ascending order.
std::vector<double> Places(const std::vector<Edge>& edges) {
  std::vector<double> places;
  for (std::size_t i = 0; i < edges.size(); ++i) {
    places.push_back(edges[i].left.x);
    places.push_back(edges[i].right.x);
    for (std::size_t j = 0; j < i; ++j)
      AppendCrossing(edges[i], edges[j], places);
  }
  std::sort(places.begin(), places.end());
  return places;
}

// How much of the line along y at x lies inside a polygon; inside is between its edges in turn.
double CoveredLength(const std::vector<Edge>& edges, std::size_t polygonCount, double x) {
  std::vector<std::pair<double, std::size_t>> hits;  // y and polygon
  for (const Edge& edge : edges) {
    if (edge.left.x < x && x < edge.right.x) hits.emplace_back(edge.YAt(x), edge.polygon);
  }
  std::sort(hits.begin(), hits.end());
  std::vector<bool> isInside(polygonCount);
  std::size_t depth = 0;  // polygons that the line is inside of
  double length = 0.0;
  for (std::size_t i = 0; i < hits.size(); ++i) {
    if (depth > 0) length += hits[i].first - hits[i - 1].first;
    const std::size_t polygon = hits[i].second;
    isInside[polygon] = !isInside[polygon];
    if (isInside[polygon]) {
      ++depth;
    } else {
      --depth;
    }
  }
  return length;
}

}  // namespace

double PlanArea(const PlanPolygon& polygon) {
  return std::abs(SignedArea(polygon));
}

double CoveredArea(const PlanPolygon& outline, const std::vector<PlanPolygon>& polygons) {
  std::vector<Edge> edges;
  for (std::size_t i = 0; i < polygons.size(); ++i)
    AppendEdges(ClipToOutline(outline, polygons[i]), i, edges);
  const std::vector<double> places = Places(edges);
  double area = 0.0;
  for (std::size_t i = 1; i < places.size(); ++i) {
    // Between two places all is bounded by straight lines: the middle tells the mean.
    const double width = places[i] - places[i - 1];
    if (width > 0.0) area += width * CoveredLength(edges, polygons.size(), places[i - 1] + width / 2);
  }
  return area;
}

}  // namespace geometry
