// TagPlaces.cpp - tries the places around windows, near ones first.
#include "teskarlt/windows/TagPlaces.h"

#include <algorithm>
#include <array>
#include <limits>

#include "teskarlt/drawing/RoofFace.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

// In heights of the text: the nearest place is so far from the window, and each next one so much farther.
constexpr double FIRST_GAP = 1.0;
constexpr double NEXT_GAP = 2.5;
constexpr int GAPS = 6;

// What counts for a line that a tag lies over, and for a text, a window or another tag.
constexpr int OVER_LINE = 1;
constexpr int OVER_THING = 10;

// From the window to the tag: 1 to the right or up, -1 to the left or down.
struct Direction {
  int across;
  int up;
};
constexpr Direction DIRECTIONS[] = {{1, 0}, {-1, 0}, {0, -1}, {0, 1}, {1, -1}, {-1, -1}, {1, 1}, {-1, 1}};

double MiddleOf(double low, double high) {
  return low + (high - low) / 2;
}

// The room that the tag takes beside the box, that far from it.
PlanBox RoomBeside(const PlanBox& box, const Direction& direction, double gap, const TagExtent& extent) {
  const double x = direction.across == 0  ? MiddleOf(box.lowX, box.highX)
                   : direction.across > 0 ? box.highX + gap + extent.across
                                          : box.lowX - gap - extent.across;
  const double y = direction.up == 0  ? MiddleOf(box.lowY, box.highY)
                   : direction.up > 0 ? box.highY + gap + extent.up
                                      : box.lowY - gap - extent.up;
  return {x - extent.across, y - extent.up, x + extent.across, y + extent.up};
}

double GapOf(int step, const TagPlan& plan) {
  return (FIRST_GAP + step * NEXT_GAP) * plan.height;
}

// How far from the window the farthest tag ends.
double ReachOf(const TagPlan& plan) {
  const TagExtent extent = ExtentOf(plan);
  return GapOf(GAPS - 1, plan) + 2 * std::max(extent.across, extent.up);
}

std::vector<PlanBox> BoxesAround(const std::vector<Ring>& outlines, double reach) {
  std::vector<PlanBox> boxes;
  boxes.reserve(outlines.size());
  for (const Ring& outline : outlines)
    boxes.push_back(PlanBoxOf(outline, reach));
  return boxes;
}

std::vector<PlanBox> BoxesOfLines(const std::vector<PlanLine>& lines) {
  std::vector<PlanBox> boxes;
  boxes.reserve(lines.size());
  for (const PlanLine& line : lines)
    boxes.push_back(PlanBoxOf(std::array{line.from, line.to}));
  return boxes;
}

// Whether a part of the line lies in the box (Y. Liang, B. Barsky, A New Concept and Method for Line
// Clipping, 1984).
bool Crosses(const Vec3& from, const Vec3& to, const PlanBox& box) {
  double first = 0;
  double last = 1;
  const auto clip = [&](double start, double way, double low, double high) {
    if (way == 0) return start >= low && start <= high;
    const double a = (low - start) / way;
    const double b = (high - start) / way;
    first = std::max(first, std::min(a, b));
    last = std::min(last, std::max(a, b));
    return first <= last;
  };
  return clip(from.x, to.x - from.x, box.lowX, box.highX) && clip(from.y, to.y - from.y, box.lowY, box.highY);
}

bool LiesOverRing(const PlanBox& box, const Ring& ring) {
  for (std::size_t i = 0; i < ring.size(); ++i)
    if (Crosses(ring[i], ring[(i + 1) % ring.size()], box)) return true;
  return LiesOver(ring, box.lowX, box.lowY);
}

double TopOf(const Ring& ring) {
  return std::max_element(ring.begin(), ring.end(), [](const Vec3& a, const Vec3& b) { return a.z < b.z; })
      ->z;
}

}  // namespace

TagPlaces::TagPlaces(const dxf::Document& drawing, const std::vector<Ring>& outlines,
                     const std::unordered_set<const dxf::Entity*>& passed, const TagPlan& largest)
    : outlines_(outlines),
      surroundings_(BoxesAround(outlines, ReachOf(largest))),
      taken_(outlines.size()),
      lines_(PlanLinesIn(drawing, passed, surroundings_)),
      lineIndex_(BoxesOfLines(lines_)) {}

int TagPlaces::Disturbance(const PlanBox& tag) const {
  int sum = 0;
  for (const std::size_t number : lineIndex_.Touching(tag)) {
    const PlanLine& line = lines_[number];
    if (line.isText) {
      sum += OVER_THING;
    } else if (Crosses(line.from, line.to, tag)) {
      sum += OVER_LINE;
    }
  }
  for (const std::size_t window : surroundings_.Touching(tag)) {
    if (LiesOverRing(tag, outlines_[window])) sum += OVER_THING;
    if (taken_[window] && Touch(*taken_[window], tag)) sum += OVER_THING;
  }
  return sum;
}

Vec3 TagPlaces::Take(std::size_t window, const TagPlan& plan) {
  const PlanBox outline = PlanBoxOf(outlines_[window]);
  PlanBox best{};
  int least = std::numeric_limits<int>::max();
  for (int step = 0; step < GAPS && least > 0; ++step) {
    for (const Direction& direction : DIRECTIONS) {
      const PlanBox room = RoomBeside(outline, direction, GapOf(step, plan), ExtentOf(plan));
      const int disturbance = Disturbance(room);
      if (disturbance >= least) continue;
      least = disturbance;
      best = room;
    }
  }
  taken_[window] = best;
  return {MiddleOf(best.lowX, best.highX), MiddleOf(best.lowY, best.highY), TopOf(outlines_[window])};
}

}  // namespace teskarlt
