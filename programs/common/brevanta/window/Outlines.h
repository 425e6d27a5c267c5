// Outlines.h - the three rectangles of a window in its roof, and the way between them and the anchor.
#pragma once

#include <array>
#include <optional>

#include "geometry/RoofPlane.h"
#include "geometry/Vec3.h"
#include "inc/WindowParams.h"

namespace brevanta {

// The corners of a rectangle in a roof: 0 the start of its lower edge, 1 up the slope from it, 2 across from
// 1, 3 across from 0.
using Outline = std::array<geometry::Vec3, 4>;

struct WindowOutlines {
  Outline outer;    // of the frame
  Outline inner;    // of the glazed opening, inset by the frame's width
  Outline opening;  // of the hole through the roof's construction
};

// How a window lies in the roof's local frame.
struct LocalSlope {
  double angle;   // radians from the horizontal
  int ySide = 1;  // 1 when the roof rises along +y, -1 along -y
  int xSide = 1;  // 1 when the width runs along +x, -1 along -x
};

// How the module lays a window into the plane. A fitted plane rises along +y, but one that is too flat to be
// turned (both plan components of its unit normal are below the kernel's tolerance) may rise along -y by a
// hair; the window then runs from its anchor along -y.
LocalSlope SlopeOf(const geometry::RoofPlane& plane);

// The outlines, roof-local, of the window whose anchor is given, roof-local too; `unitFactor` in drawing
// units per metre. On a flat roof a layer makes the opening infinite where its upper reveal is level.
WindowOutlines OutlinesAt(const geometry::Vec3& anchor, const WindowParams& params, double unitFactor,
                          const LocalSlope& slope);

// What a roof layer adds to the length of the opening, at a plumb lower and a level upper reveal.
struct RevealLengths {
  double lower = 0.0;
  double upper = 0.0;  // infinite on a flat roof
};

// For a layer of that thickness, in any unit, on a roof whose slope has that tangent.
RevealLengths RevealLengthsOf(const WindowParams& params, double thickness, double tangent);

// The record's insertion point, moved by its `pickOffset` in the direction `rotation`. Roof-local.
geometry::Vec3 MovedInsertionPoint(const WindowParams& params, double unitFactor);

// The plane that the window is placed by, the second one or the roof's; none when its points lie on one line.
std::optional<geometry::RoofPlane> PlacingPlane(const WindowParams& params);

// The frame's outline in drawing coordinates, by a record whose `storedPoint` is the anchor and whose points
// span the placing plane.
Outline DrawnFrame(const WindowParams& params);

// The way back, in drawing coordinates: the point of the placing plane that belongs to `onEdge`, a point on
// the lower edge of the frame. `normal` is the roof's unit normal, upwards, `pitch` in radians.
geometry::Vec3 OnPlacingPlane(const geometry::Vec3& onEdge, const geometry::Vec3& normal, double pitch,
                              const WindowParams& params);

}  // namespace brevanta
