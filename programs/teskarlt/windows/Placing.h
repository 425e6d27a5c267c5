// Placing.h - finds the point for which an order's words stand: so far from the eaves, in the middle, in
// line.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/drawing/SlopeFrame.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/modules/ModuleSession.h"
#include "teskarlt/windows/RoofChoice.h"
#include "teskarlt/windows/RowPoints.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// A roof as distances are measured on it, in its own frame and the unit of the faces.
struct MeasuredRoof {
  SlopeFrame frame;
  double perMetre = 1.0;                      // units a metre
  LengthStyle lengths = LengthStyle::Metres;  // in which refusals say lengths
  std::vector<SlopeRing> rings;               // of its outline; none for a plane without bounds
  std::optional<double> eaves;  // how far up its lowest and its highest edge lie; none where it has none
  std::optional<double> ridge;
};

// The chosen roof: a surface with its outline, a roof that is only drawn in plan with one edge and the two
// that go up from its ends, or a plane without bounds.
MeasuredRoof MeasuredOn(const WindowOrder& order, const RoofChoice& roof, const Roofs& roofs);

// The edges of a roof that is only drawn in plan, as far as they are known; none for other roofs.
std::optional<SurfaceOutline> BoundsOf(const WindowOrder& order, const RoofChoice& roof, const Roofs& roofs);

bool IsGiven(const Placing& placing);

// What of a window's place something besides the words says.
struct KnownPlace {
  bool isPoint = false;   // a point of the plan
  bool isHeight = false;  // a field of the record; no word may say another one
};

using OutlineOfWindow = std::function<std::optional<Outline>(int number)>;

// How far a frame that is drawn at `frame`, or a row with that frame at its point, must move along the eaves
// and up the slope to lie as the words say. Throws Error, naming the words, when they contradict one another,
// do not say all that is not known, name a window that there is not, or mean a place beside the roof.
SlopePoint WayToPlace(const Placing& placing, const MeasuredRoof& roof, const Outline& frame,
                      const KnownPlace& known, const OutlineOfWindow& outlineOf, const RowReach& row = {});

// Runs the command without leaving anything in the drawing and gives the record that the dialog confirms.
using TryOut = std::function<brevanta::WindowParams(const WindowRequest& trial)>;

// The point in the plan with which the request brings the frame to where the order's words say. A trial tells
// where the frame lies: that depends on settings, catalogue and build-up. Of a row, the words mean all of its
// windows together, and the point is the row's.
std::array<double, 2> PlaceFor(const WindowOrder& order, const MeasuredRoof& roof, WindowRequest request,
                               const TryOut& tryOut, const OutlineOfWindow& outlineOf,
                               const RowReach& row = {});

}  // namespace teskarlt
