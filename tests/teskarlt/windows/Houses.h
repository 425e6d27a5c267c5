// Houses.h - small drawings for the tests, with a roof and windows that the real module makes.
#pragma once

#include <string>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/Error.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/dxf/tags/Units.h"
#include "teskarlt/modules/WindowModule.h"
#include "teskarlt/windows/PlacedWindow.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// An R2000 drawing with a 3D face for each list of four corners.
dxf::Document DrawingWithFaces(const std::vector<std::vector<geometry::Vec3>>& faces,
                               int units = dxf::UNITS_MILLIMETRES);

// Such a drawing with one roof face at 45 degrees: it rises from the x axis, 8000 wide, to y = z = 6000.
dxf::Document House();

// A roof at 45 degrees like that of House, `height` above it.
std::vector<geometry::Vec3> RoofAt(double height);

// The drawing as another program would load it.
dxf::Document Reloaded(const dxf::Document& drawing);

// House with one window, number 1, whose anchor stands at (4000, 2000, 2000).
dxf::Document HouseWithWindow();

// The same with a copy of the window in its place, as CAD programs make it: with the same number.
dxf::Document HouseWithCopy();

// A drawing that House began, whose roof then rose by `height`.
dxf::Document WithRisenRoof(dxf::Document house, double height);

// HouseWithWindow, whose roof then rose by `height`.
dxf::Document HouseWithRisenRoof(double height);

// The order for a window at a point of the plan.
WindowOrder OrderAt(double x, double y);

const DrawingUnit& Millimetres();

// The numbers of the windows in the order of the drawing.
std::vector<int> NumbersIn(const dxf::Document& drawing);

// The message of the Error that the call throws; empty when it throws none.
template <typename Call>
std::string RefusalOf(Call call) {
  try {
    call();
  } catch (const Error& error) {
    return error.what();
  }
  return {};
}

}  // namespace teskarlt
