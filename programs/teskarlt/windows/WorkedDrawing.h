// WorkedDrawing.h - a drawing that is worked on, with what windows need to know of it.
#pragma once

#include <vector>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/drawing/WindowNumbers.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// The drawing must outlive the object. Roofs, windows and numbers are those that it had at first.
struct WorkedDrawing {
  WorkedDrawing(dxf::Document& worked, const DrawingUnit& drawingUnit)
      : drawing(worked),
        unit(drawingUnit.working),
        tolerance(RoofTolerance(unit)),
        roofs(FindRoofs(drawing, unit)),
        windows(FindWindows(drawing, unit)),
        numbers(NumbersOf(windows)) {}

  dxf::Document& drawing;
  const WorkingUnit unit;  // of the roofs, the windows and their points
  const double tolerance;  // in it
  const Roofs roofs;
  const std::vector<DrawnWindow> windows;
  const WindowNumbers numbers;
};

}  // namespace teskarlt
