// PlanMap.h - how a plan lies on the paper.
#pragma once

#include "geometry/Vec3.h"
#include "teskarlt/plot/Shapes.h"

namespace teskarlt::plot {

struct PlanMap {
  double scale = 1;        // 50 for 1:50
  geometry::Vec3 shown{};  // a point of the drawing in metres
  PaperPoint at{};         // where it comes to lie

  // Millimetres of paper for a length in metres.
  double OnPaper(double metres) const { return metres * 1000 / scale; }

  // Where a point in metres comes to lie, seen from above.
  PaperPoint Of(const geometry::Vec3& p) const {
    return {at.x + OnPaper(p.x - shown.x), at.y - OnPaper(p.y - shown.y)};
  }
};

}  // namespace teskarlt::plot
