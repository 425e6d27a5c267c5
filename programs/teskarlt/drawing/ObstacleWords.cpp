// ObstacleWords.cpp - tells people what stands in the way of a window.
#include "teskarlt/drawing/ObstacleWords.h"

#include <algorithm>
#include <limits>
#include <map>

#include <fmt/format.h>

#include "teskarlt/drawing/SlopeMoves.h"

namespace teskarlt {

namespace {

// What of one layer reaches into a box.
struct Met {
  std::vector<std::string> faces;
  std::vector<SlopeRing> rings;
};
using MetByLayer = std::map<std::string, Met>;

MetByLayer MetBy(const std::vector<Obstacle>& obstacles, const SlopeBox& box) {
  MetByLayer met;
  for (const Obstacle& obstacle : obstacles) {
    if (!ReachesInto(obstacle.footprint, box)) continue;
    Met& ofLayer = met[obstacle.layer];
    ofLayer.faces.push_back(obstacle.face);
    ofLayer.rings.push_back(obstacle.footprint);
  }
  return met;
}

// What of one layer is nearer to a box than some distance.
struct Near {
  std::vector<std::string> faces;
  double distance = std::numeric_limits<double>::max();
};

std::map<std::string, Near> NearBy(const std::vector<Obstacle>& obstacles, const SlopeBox& box,
                                   double limit) {
  std::map<std::string, Near> near;
  for (const Obstacle& obstacle : obstacles) {
    const double distance = DistanceBetween(obstacle.footprint, box);
    if (distance >= limit) continue;
    Near& ofLayer = near[obstacle.layer];
    ofLayer.faces.push_back(obstacle.face);
    ofLayer.distance = std::min(ofLayer.distance, distance);
  }
  return near;
}

// "face 2F of layer CHIMNEY", "faces 2F, 30, 31 and 2 more of layer CHIMNEY"
std::string FaceWords(const std::string& layer, const std::vector<std::string>& faces) {
  constexpr std::size_t MOST_NAMED = 4;
  if (faces.size() == 1) return fmt::format("face {} of layer {}", faces.front(), layer);
  const std::size_t more = faces.size() > MOST_NAMED ? faces.size() - MOST_NAMED + 1 : 0;
  const std::string last = more > 0 ? fmt::format("{} more", more) : faces.back();
  const auto end = faces.end() - static_cast<std::ptrdiff_t>(std::max<std::size_t>(more, 1));
  return fmt::format("faces {} and {} of layer {}", fmt::join(faces.begin(), end, ", "), last, layer);
}

double ShortestWay(const std::vector<SlopeRing>& rings, const SlopeBox& box) {
  return Length(WaysClearOf(rings, box).front());
}

}  // namespace

std::string NearerThan(double clearance, const SpokenUnit& unit) {
  return fmt::format("it comes nearer than its clearance of {} to", LengthText(clearance, unit));
}

std::vector<std::string> ObstacleWords(const std::vector<Obstacle>& obstacles, const SlopeBox& frame,
                                       double clearance, double tolerance, const SpokenUnit& unit) {
  std::vector<std::string> words;
  const SlopeBox box = Grown(frame, -tolerance);
  const MetByLayer met = MetBy(obstacles, box);
  for (const auto& [layer, ofLayer] : met) {
    words.push_back(fmt::format("it meets {} by {}", FaceWords(layer, ofLayer.faces),
                                LengthText(ShortestWay(ofLayer.rings, box) + tolerance, unit)));
  }
  if (clearance <= 0.0) return words;
  for (const auto& [layer, near] : NearBy(obstacles, frame, clearance - tolerance)) {
    if (met.contains(layer)) continue;
    words.push_back(fmt::format("{} {}, {} away", NearerThan(clearance, unit), FaceWords(layer, near.faces),
                                LengthText(near.distance, unit)));
  }
  return words;
}

std::string WayWords(const SlopePoint& way, const SpokenUnit& unit) {
  const char* const direction = way.across < 0   ? "to the left"
                                : way.across > 0 ? "to the right"
                                : way.up > 0     ? "up the slope"
                                                 : "down the slope";
  return fmt::format("{} {}", LengthText(Length(way), unit), direction);
}

}  // namespace teskarlt
