// ObstacleWords.h - tells people what stands in the way of a window.
#pragma once

#include <string>
#include <vector>

#include "teskarlt/drawing/LengthText.h"
#include "teskarlt/drawing/Obstacles.h"
#include "teskarlt/drawing/SlopeBox.h"

namespace teskarlt {

// "it comes nearer than its clearance of 0.200 m to", for a clearance in the spoken unit.
std::string NearerThan(double clearance, const SpokenUnit& unit);

// What reaches into the frame, and what comes nearer to it than the clearance; a
// sentence for each layer: "it meets faces 2F and 30 of layer CHIMNEY by 0.310 m". By how much is the
// shortest way along the eaves or the slope that makes it end. Lengths are in the spoken unit; what is
// shorter than the tolerance does not count.
std::vector<std::string> ObstacleWords(const std::vector<Obstacle>& obstacles, const SlopeBox& frame,
                                       double clearance, double tolerance, const SpokenUnit& unit);

// "0.400 m to the left"; as seen from below the eaves.
std::string WayWords(const SlopePoint& way, const SpokenUnit& unit);

}  // namespace teskarlt
