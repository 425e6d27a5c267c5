// ObstacleWords.h - tells people what stands in the way of a window.
#pragma once

#include <string>
#include <vector>

#include "teskarlt/drawing/Obstacles.h"
#include "teskarlt/drawing/SlopeBox.h"

namespace teskarlt {

// "it comes nearer than its clearance of 0.200 m to", for a clearance in units of which `perMetre` are a
// metre.
std::string NearerThan(double clearance, double perMetre);

// What reaches into the frame, and what comes nearer to it than the clearance along the eaves or the slope; a
// sentence for each layer: "it meets faces 2F and 30 of layer CHIMNEY by 0.310 m". By how much is the
// shortest way along the eaves or the slope that makes it end. Lengths in units; what is shorter than the
// tolerance does not count.
std::vector<std::string> ObstacleWords(const std::vector<Obstacle>& obstacles, const SlopeBox& frame,
                                       double clearance, double tolerance, double perMetre);

// "0.400 m to the left"; as seen from below the eaves.
std::string WayWords(const SlopePoint& way, double perMetre);

}  // namespace teskarlt
