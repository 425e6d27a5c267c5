// ObstacleWords.cpp - tells people what stands in the way of a window.
#include "teskarlt/drawing/ObstacleWords.h"

#include <algorithm>
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

std::string NearerThan(double clearance, double perMetre) {
  return fmt::format("it comes nearer than its clearance of {:.3f} m to", clearance / perMetre);
}

std::vector<std::string> ObstacleWords(const std::vector<Obstacle>& obstacles, const SlopeBox& frame,
                                       double clearance, double tolerance, double perMetre) {
  std::vector<std::string> words;
  const SlopeBox box = Grown(frame, -tolerance);
  const MetByLayer met = MetBy(obstacles, box);
  for (const auto& [layer, ofLayer] : met) {
    words.push_back(fmt::format("it meets {} by {:.3f} m", FaceWords(layer, ofLayer.faces),
                                (ShortestWay(ofLayer.rings, box) + tolerance) / perMetre));
  }
  if (clearance <= 0.0) return words;
  const SlopeBox grown = Grown(box, clearance);
  for (const auto& [layer, ofLayer] : MetBy(obstacles, grown)) {
    if (met.contains(layer)) continue;
    const double distance = clearance - ShortestWay(ofLayer.rings, grown) - tolerance;
    words.push_back(fmt::format("{} {}, {:.3f} m away", NearerThan(clearance, perMetre),
                                FaceWords(layer, ofLayer.faces), std::max(0.0, distance) / perMetre));
  }
  return words;
}

std::string WayWords(const SlopePoint& way, double perMetre) {
  const char* const direction = way.across < 0   ? "to the left"
                                : way.across > 0 ? "to the right"
                                : way.up > 0     ? "up the slope"
                                                 : "down the slope";
  return fmt::format("{:.3f} m {}", Length(way) / perMetre, direction);
}

}  // namespace teskarlt
