// Notes.h - roofs and windows for the tests of plans.
#pragma once

#include <string>

#include "teskarlt/plot/PlanNotes.h"

namespace teskarlt::plot {

// A roof of 45 degrees over 10 x 5 m of the plan, which rises from the x axis to the north.
inline PlanRoof SouthRoof() {
  const double root = 0.70710678118654757;
  const double length = 5 / root;
  return {"R1", 45,  {{0, 0, 0}, {1, 0, 0}, {0, root, root}}, {{{0, 0}, {10, 0}, {10, length}, {0, length}}},
          0,    true};
}

// A window of that roof, whose lower left corner lies there in the plan: 1 m wide, 1 m long in the plan.
inline PlanWindow WindowAt(double x, double y, const std::string& mark, int number) {
  PlanWindow window{mark, number, {}, 0};
  window.frame = {{{x, y, y}, {x, y + 1, y + 1}, {x + 1, y + 1, y + 1}, {x + 1, y, y}}};
  return window;
}

}  // namespace teskarlt::plot
