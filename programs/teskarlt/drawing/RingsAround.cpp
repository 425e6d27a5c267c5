// RingsAround.cpp - the rings around what polygons of a plane cover together.
#include "teskarlt/drawing/RingsAround.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <unordered_map>

#include "teskarlt/drawing/PlanIndex.h"

namespace teskarlt {

namespace {

using Joint = std::uint32_t;  // number of a corner that edges share

// An edge between two joints; what is on its left counts `times` more than what is on its right.
struct Edge {
  Joint from;
  Joint to;
  int times;
};

double Apart(const SlopePoint& a, const SlopePoint& b) {
  return std::hypot(b.across - a.across, b.up - a.up);
}

// Where p lies along the line from a to b, and how far off it, positive on its left; a and b must differ.
SlopePoint AlongLine(const SlopePoint& a, const SlopePoint& b, const SlopePoint& p) {
  const double length = Apart(a, b);
  const double dx = (b.across - a.across) / length;
  const double dy = (b.up - a.up) / length;
  const double px = p.across - a.across;
  const double py = p.up - a.up;
  return {px * dx + py * dy, dx * py - dy * px};
}

// The point where two edges cross, both away from their ends.
std::optional<SlopePoint> Crossing(const SlopePoint& a, const SlopePoint& b, const SlopePoint& c,
                                   const SlopePoint& d) {
  const double sideC = AlongLine(a, b, c).up;
  const double sideD = AlongLine(a, b, d).up;
  const double sideA = AlongLine(c, d, a).up;
  const double sideB = AlongLine(c, d, b).up;
  if ((sideC < 0) == (sideD < 0) || (sideA < 0) == (sideB < 0)) return std::nullopt;
  const double share = sideA / (sideA - sideB);
  return SlopePoint{a.across + share * (b.across - a.across), a.up + share * (b.up - a.up)};
}

// Points of which those within the gap of one another are one: the first that came.
class Joints {
 public:
  explicit Joints(double gap) : gap_(gap) {}

  Joint Of(const SlopePoint& p) {
    const Cell cell = CellOf(p);
    for (const std::int64_t dx : {0, -1, 1}) {
      for (const std::int64_t dy : {0, -1, 1}) {
        const auto [first, end] = cells_.equal_range({cell.x + dx, cell.y + dy});
        for (auto at = first; at != end; ++at)
          if (Apart(points_[at->second], p) <= gap_) return at->second;
      }
    }
    const auto joint = static_cast<Joint>(points_.size());
    points_.push_back(p);
    cells_.emplace(cell, joint);
    return joint;
  }

  const SlopePoint& operator[](Joint joint) const { return points_[joint]; }

 private:
  struct Cell {
    std::int64_t x;
    std::int64_t y;
    bool operator==(const Cell&) const = default;
  };
  struct HashOfCell {
    std::size_t operator()(const Cell& cell) const {
      constexpr std::uint64_t ODD = 0x9E3779B97F4A7C15U;  // of the golden ratio: spreads neighbours
      return (static_cast<std::uint64_t>(cell.x) * ODD + static_cast<std::uint64_t>(cell.y)) * ODD;
    }
  };

  Cell CellOf(const SlopePoint& p) const {
    return {static_cast<std::int64_t>(std::floor(p.across / gap_)),
            static_cast<std::int64_t>(std::floor(p.up / gap_))};
  }

  double gap_;
  std::vector<SlopePoint> points_;
  std::unordered_multimap<Cell, Joint, HashOfCell> cells_;
};

// The edges of the polygons, all run round counter-clockwise.
std::vector<Edge> EdgesOf(const std::vector<SlopeRing>& polygons, Joints& joints) {
  std::vector<Edge> edges;
  for (const SlopeRing& polygon : polygons) {
    const int times = SignedArea(polygon) < 0 ? -1 : 1;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
      const Joint from = joints.Of(polygon[i]);
      const Joint to = joints.Of(polygon[(i + 1) % polygon.size()]);
      edges.push_back({from, to, times});
    }
  }
  return edges;
}

// What remains where edges between the same joints add up, the left of each counting more than its right.
std::vector<Edge> Cancelled(std::vector<Edge> edges) {
  for (Edge& edge : edges)
    if (edge.from > edge.to) edge = {edge.to, edge.from, -edge.times};
  std::sort(edges.begin(), edges.end(),
            [](const Edge& a, const Edge& b) { return a.from != b.from ? a.from < b.from : a.to < b.to; });
  std::vector<Edge> kept;
  for (const Edge& edge : edges) {
    if (edge.from == edge.to) continue;
    const bool isSame = !kept.empty() && kept.back().from == edge.from && kept.back().to == edge.to;
    if (isSame) {
      kept.back().times += edge.times;
    } else {
      kept.push_back(edge);
    }
  }
  std::erase_if(kept, [](const Edge& edge) { return edge.times == 0; });
  for (Edge& edge : kept)
    if (edge.times < 0) edge = {edge.to, edge.from, -edge.times};
  return kept;
}

PlanIndex IndexOf(const std::vector<Edge>& edges, const Joints& joints, double margin) {
  std::vector<PlanBox> boxes;
  boxes.reserve(edges.size());
  for (const Edge& edge : edges) {
    const SlopePoint& a = joints[edge.from];
    const SlopePoint& b = joints[edge.to];
    boxes.push_back({std::min(a.across, b.across) - margin, std::min(a.up, b.up) - margin,
                     std::max(a.across, b.across) + margin, std::max(a.up, b.up) + margin});
  }
  return PlanIndex(boxes);
}

// Cuts edges where corners of others lie on them and where they cross.
class EdgeCutter {
 public:
  EdgeCutter(const std::vector<Edge>& edges, Joints& joints, double gap)
      : edges_(edges), joints_(joints), gap_(gap), cuts_(edges.size()) {}

  // Empty when there is nothing to cut.
  std::vector<Edge> Cut() {
    const PlanIndex index = IndexOf(edges_, joints_, gap_);
    for (std::size_t i = 0; i < edges_.size(); ++i) {
      const SlopePoint& a = joints_[edges_[i].from];
      const SlopePoint& b = joints_[edges_[i].to];
      const PlanBox box{std::min(a.across, b.across), std::min(a.up, b.up), std::max(a.across, b.across),
                        std::max(a.up, b.up)};
      for (const std::size_t j : index.Touching(box))
        if (i != j) CutAt(i, j);
    }
    const bool isCut = std::any_of(cuts_.begin(), cuts_.end(), [](const auto& cut) { return !cut.empty(); });
    return isCut ? Pieces() : std::vector<Edge>{};
  }

 private:
  void CutAt(std::size_t i, std::size_t j) {
    const Edge other = edges_[j];
    const bool touches = CutAtJoint(i, other.from) || CutAtJoint(i, other.to) || IsEndOf(i, other.from) ||
                         IsEndOf(i, other.to);
    if (touches || j > i) return;
    const Edge edge = edges_[i];
    const std::optional<SlopePoint> crossing =
        Crossing(joints_[edge.from], joints_[edge.to], joints_[other.from], joints_[other.to]);
    if (!crossing) return;
    const Joint joint = joints_.Of(*crossing);
    if (!IsEndOf(i, joint)) cuts_[i].push_back(joint);
    if (!IsEndOf(j, joint)) cuts_[j].push_back(joint);
  }

  bool IsEndOf(std::size_t i, Joint joint) const { return edges_[i].from == joint || edges_[i].to == joint; }

  bool CutAtJoint(std::size_t i, Joint joint) {
    if (IsEndOf(i, joint)) return false;
    const SlopePoint& a = joints_[edges_[i].from];
    const SlopePoint& b = joints_[edges_[i].to];
    const SlopePoint at = AlongLine(a, b, joints_[joint]);
    if (std::abs(at.up) > gap_ || at.across <= 0 || at.across >= Apart(a, b)) return false;
    cuts_[i].push_back(joint);
    return true;
  }

  std::vector<Edge> Pieces() {
    std::vector<Edge> pieces;
    for (std::size_t i = 0; i < edges_.size(); ++i) {
      const Edge& edge = edges_[i];
      const SlopePoint& start = joints_[edge.from];
      std::sort(cuts_[i].begin(), cuts_[i].end(),
                [&](Joint a, Joint b) { return Apart(start, joints_[a]) < Apart(start, joints_[b]); });
      Joint from = edge.from;
      for (const Joint to : cuts_[i]) {
        pieces.push_back({from, to, edge.times});
        from = to;
      }
      pieces.push_back({from, edge.to, edge.times});
    }
    return pieces;
  }

  const std::vector<Edge>& edges_;
  Joints& joints_;
  const double gap_;
  std::vector<std::vector<Joint>> cuts_;  // by the number of the edge
};

// How often the polygons cover what lies beside the middle of an edge on its right; by the edges that a ray
// meets which leaves the edge there, along the axis that is squarer to it.
int TimesOnRight(std::size_t number, const std::vector<Edge>& edges, const Joints& joints,
                 const PlanIndex& index) {
  constexpr double FAR = std::numeric_limits<double>::max();
  const SlopePoint& a = joints[edges[number].from];
  const SlopePoint& b = joints[edges[number].to];
  const SlopePoint middle{(a.across + b.across) / 2, (a.up + b.up) / 2};
  const bool runsUp = std::abs(b.up - a.up) >= std::abs(b.across - a.across);
  const auto turned = [&](const SlopePoint& p) { return runsUp ? p : SlopePoint{p.up, -p.across}; };
  const SlopePoint eye = turned(middle);
  int times = 0;
  const PlanBox ray = runsUp ? PlanBox{middle.across, middle.up, FAR, middle.up}
                             : PlanBox{middle.across, middle.up, middle.across, FAR};
  for (const std::size_t other : index.Touching(ray)) {
    if (other == number) continue;
    const SlopePoint from = turned(joints[edges[other].from]);
    const SlopePoint to = turned(joints[edges[other].to]);
    if ((from.up > eye.up) == (to.up > eye.up)) continue;
    const double met = from.across + (eye.up - from.up) / (to.up - from.up) * (to.across - from.across);
    if (met > eye.across) times += to.up > from.up ? edges[other].times : -edges[other].times;
  }
  const bool rayIsOnRight = turned(b).up > turned(a).up;
  return rayIsOnRight ? times : times - edges[number].times;
}

bool AreBalanced(const std::vector<Edge>& edges) {
  std::unordered_map<Joint, int> balance;
  for (const Edge& edge : edges) {
    --balance[edge.from];
    ++balance[edge.to];
  }
  return std::all_of(balance.begin(), balance.end(), [](const auto& joint) { return joint.second == 0; });
}

// The edges between what is covered and what is not, once each.
std::vector<Edge> BoundaryOf(const std::vector<Edge>& edges, const Joints& joints) {
  const PlanIndex index = IndexOf(edges, joints, 0.0);
  std::vector<Edge> boundary;
  for (std::size_t i = 0; i < edges.size(); ++i) {
    const int onRight = TimesOnRight(i, edges, joints, index);
    if (onRight <= 0 && onRight + edges[i].times > 0) boundary.push_back({edges[i].from, edges[i].to, 1});
  }
  return boundary;
}

// Walks along the edges; where a walk comes back to one of its joints, a ring is complete. As many edges must
// come to each joint as leave it.
std::vector<std::vector<Joint>> WalkRings(const std::vector<Edge>& edges) {
  std::map<Joint, std::vector<Joint>> leaving;
  for (const Edge& edge : edges)
    leaving[edge.from].insert(leaving[edge.from].end(), static_cast<std::size_t>(edge.times), edge.to);
  std::vector<std::vector<Joint>> rings;
  for (auto& [start, ends] : leaving) {
    while (!ends.empty()) {
      std::vector<Joint> path = {start};
      std::unordered_map<Joint, std::size_t> places = {{start, 0}};
      while (!path.empty() && !leaving[path.back()].empty()) {
        const Joint next = leaving[path.back()].back();
        leaving[path.back()].pop_back();
        const auto seen = places.find(next);
        if (seen == places.end()) {
          places.emplace(next, path.size());
          path.push_back(next);
          continue;
        }
        const auto first = path.begin() + static_cast<std::ptrdiff_t>(seen->second);
        rings.emplace_back(first, path.end());
        for (auto joint = first + 1; joint != path.end(); ++joint)
          places.erase(*joint);
        path.erase(first + 1, path.end());
      }
    }
  }
  return rings;
}

// Whether b lies on the straight way from a to c.
bool IsBetween(const SlopePoint& a, const SlopePoint& b, const SlopePoint& c, double tolerance) {
  if (Apart(a, c) <= tolerance) return false;
  const SlopePoint at = AlongLine(a, c, b);
  return std::abs(at.up) <= tolerance && at.across > 0 && at.across < Apart(a, c);
}

// Without corners on straight edges.
SlopeRing Straightened(SlopeRing ring, double tolerance) {
  for (std::size_t i = 0; i < ring.size() && ring.size() > 3;) {
    const SlopePoint& before = ring[(i + ring.size() - 1) % ring.size()];
    const SlopePoint& after = ring[(i + 1) % ring.size()];
    if (IsBetween(before, ring[i], after, tolerance)) {
      ring.erase(ring.begin() + static_cast<std::ptrdiff_t>(i));
    } else {
      ++i;
    }
  }
  return ring;
}

double Perimeter(const SlopeRing& ring) {
  double length = 0.0;
  for (std::size_t i = 0; i < ring.size(); ++i)
    length += Apart(ring[i], ring[(i + 1) % ring.size()]);
  return length;
}

}  // namespace

double SignedArea(const SlopeRing& ring) {
  double twice = 0.0;
  for (std::size_t i = 1; i + 1 < ring.size(); ++i) {
    const SlopePoint& o = ring[0];
    const SlopePoint& a = ring[i];
    const SlopePoint& b = ring[i + 1];
    twice += (a.across - o.across) * (b.up - o.up) - (a.up - o.up) * (b.across - o.across);
  }
  return twice / 2;
}

std::vector<SlopeRing> RingsAround(const std::vector<SlopeRing>& polygons, double gap) {
  constexpr int MOST_ROUNDS = 4;          // each cut bends edges a little, so that they may meet others
  constexpr double PART_FOR_EDGES = 0.1;  // of the gap: how far a corner that is left out may lie off an edge
  Joints joints(gap);
  std::vector<Edge> edges = Cancelled(EdgesOf(polygons, joints));
  for (int round = 0; round < MOST_ROUNDS; ++round) {
    std::vector<Edge> pieces = EdgeCutter(edges, joints, gap).Cut();
    if (pieces.empty()) break;
    edges = Cancelled(std::move(pieces));
  }
  const std::vector<Edge> boundary = BoundaryOf(edges, joints);
  std::vector<SlopeRing> rings;
  for (const std::vector<Joint>& corners : WalkRings(AreBalanced(boundary) ? boundary : edges)) {
    SlopeRing ring;
    ring.reserve(corners.size());
    for (const Joint corner : corners)
      ring.push_back(joints[corner]);
    const bool isSliver = 2 * std::abs(SignedArea(ring)) <= gap * Perimeter(ring) / 2;
    if (!isSliver) rings.push_back(Straightened(std::move(ring), PART_FOR_EDGES * gap));
  }
  std::stable_sort(rings.begin(), rings.end(), [](const SlopeRing& a, const SlopeRing& b) {
    return std::abs(SignedArea(a)) > std::abs(SignedArea(b));
  });
  return rings;
}

double AreaWithin(const std::vector<SlopeRing>& rings) {
  double area = 0.0;
  for (const SlopeRing& ring : rings)
    area += SignedArea(ring);
  return area;
}

}  // namespace teskarlt
