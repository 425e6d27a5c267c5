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
        unit(drawingUnit),
        tolerance(RoofTolerance(unit)),
        roofs(FindRoofs(drawing, tolerance)),
        windows(FindWindows(drawing, unit.perMetre)),
        numbers(NumbersOf(drawing, windows)) {}

  dxf::Document& drawing;
  const DrawingUnit& unit;
  const double tolerance;  // in drawing units
  const Roofs roofs;
  const std::vector<DrawnWindow> windows;
  const WindowNumbers numbers;
};

}  // namespace teskarlt
