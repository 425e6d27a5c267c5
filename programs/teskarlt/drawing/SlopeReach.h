// SlopeReach.h - how far a roof reaches around a frame, and which of its edges the frame passes.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "teskarlt/drawing/LengthText.h"
#include "teskarlt/drawing/SlopeBox.h"
#include "teskarlt/drawing/SurfaceOutline.h"
#include "window/Outlines.h"

namespace teskarlt {

// The box around the outline in the frame of a roof; of a roof with a slope by the heights of the corners, so
// that those of windows on other roofs count as well.
SlopeBox BoxOf(const brevanta::Outline& outline, const SlopeFrame& frame);

// True below a rise on which heights can be measured.
bool IsFlat(const SlopeFrame& frame);

// The point of the slope that is as high as p; on a flat roof, its foot.
SlopePoint AsHighAs(const geometry::Vec3& p, const SlopeFrame& frame);

// From the left edge to the right one, as far as there is roof everywhere between two levels: of a hip, the
// narrowest. Holes do not count. None where the roof does not reach the levels.
using SlopeReach = std::optional<std::pair<double, double>>;
SlopeReach ReachAcross(const std::vector<SlopeRing>& rings, double bottom, double top);

// The same up the slope, between two places along the eaves.
SlopeReach ReachUp(const std::vector<SlopeRing>& rings, double left, double right);

// Which edges of the roof the frame passes and by how much, for people: "passes the ridge by 0.120 m; the
// highest lower edge is 4.310 m". Empty where it passes none, as over a hole, and where no way along the
// eaves or the slope would bring it inside. The outline is in the spoken unit.
std::string PassedEdges(const brevanta::Outline& frame, const SurfaceOutline& outline,
                        const SpokenUnit& unit);

// Which edges of the roof the frame, which lies within it, comes nearer to than the clearance: "the ridge,
// 0.080 m away"; empty for none.
std::string EdgesWithin(double clearance, const brevanta::Outline& frame, const SurfaceOutline& outline,
                        const SpokenUnit& unit);

}  // namespace teskarlt
