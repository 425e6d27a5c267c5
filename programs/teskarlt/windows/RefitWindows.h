// RefitWindows.h - puts windows back onto roofs that have changed.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "inc/WindowParams.h"
#include "teskarlt/drawing/FeetInches.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/modules/WindowModule.h"

namespace teskarlt {

// What stays of a window's place: its point in the plan, or the height of its lower edge.
enum class RefitKeeps { Plan, Height };

struct RefitOrder {
  std::vector<int> numbers;  // of the windows; none: all
  RefitKeeps keeps = RefitKeeps::Plan;
  bool isLockedToo = false;                   // also windows on locked and frozen layers
  double reach = REFIT_REACH;                 // how far over or under a window its roof may have come, metres
  double clearance = 0.0;                     // metres that windows keep to what is in their way
  LengthStyle lengths = LengthStyle::Metres;  // in which messages say lengths
};

// A window that was put onto another face.
struct Refitted {
  brevanta::WindowParams before;
  brevanta::WindowParams after;
  std::string face;                  // its name
  std::vector<std::string> misfits;  // as WindowFit tells them
};

// How far the window's place moved in the plan, and up; metres.
double Shift(const Refitted& window);
double Rise(const Refitted& window);

// A window that is not put back, and why.
struct NotRefitted {
  int number;
  std::string message;
};

struct RefitReport {
  WorkingUnit unit;  // of the records
  std::vector<Refitted> refitted;
  std::vector<NotRefitted> staying;   // on planes of their own: no roof face is within reach
  std::vector<NotRefitted> problems;  // that should be put back and cannot be
  std::size_t fitting = 0;            // windows that lie on a roof face and stay as they are
};

// Inserts each window of the order whose roof face was moved, or has another pitch since, again on the face
// that now lies over or under its place; of several, on the one nearest in height. A window without such a
// face within reach stays where it is. Throws Error when a number
// names no window, or several.
RefitReport RefitWindows(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit,
                         const RefitOrder& order);

}  // namespace teskarlt
