// Layout.h - what lies where on the paper of a plan.
#pragma once

#include <optional>

#include "teskarlt/plot/Paper.h"
#include "teskarlt/plot/Shapes.h"

namespace teskarlt::plot {

struct Layout {
  PaperBox frame;    // around everything
  PaperBox legend;   // the left part of the strip at its foot
  PaperBox title;    // and the right one
  PaperBox plan;     // where the plan and its labels may lie
  PaperPoint table;  // the upper left corner of the schedule
  bool hasTable = false;
};

// Where the plan finds room on the paper without a schedule.
PaperBox RoomForPlan(const Paper& paper);

// Whether a plan of that size fits on it.
bool Fits(const Size& plan, const Paper& paper);

// With the schedule beside the plan or below it, where there is room for that; one without a height is none.
Layout LayOut(const Size& plan, const Size& table, const Paper& paper);

}  // namespace teskarlt::plot
