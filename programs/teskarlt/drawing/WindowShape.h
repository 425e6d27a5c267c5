// WindowShape.h - the shape of a roof window as its entities show it, whatever their description says.
#pragma once

#include <optional>

#include "geometry/Vec3.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/dxf/Document.h"
#include "window/Outlines.h"

namespace teskarlt {

// Lengths and points in working units.
struct WindowShape {
  // The frame's outline on the roof: from the start of the lower edge up, across and down to its end. From
  // below the eaves the start is on the left, and on the right when the window is mirrored.
  brevanta::Outline outline;
  double width;
  double length;
  std::optional<double> frameWidth;      // none without symbol and body, or where the sides differ
  std::optional<double> frameDepth;      // none without a body
  std::optional<double> glassDepth;      // below the frame's top; none without a body
  std::optional<double> skirtHeight;     // none without symbol and body
  std::optional<double> layerThickness;  // none with a symbol
  bool keepsDirections;                  // its edges run as the module drew them, by its description
  bool isMirrored;                       // its width runs against the local x axis of its roof
  bool isLeaning;                        // the body is not square to the roof

  geometry::Vec3 Across() const;  // unit vectors along the lower edge from its start, and up the slope
  geometry::Vec3 Up() const;
  geometry::Vec3 Normal() const;  // of the roof, upwards
  double Pitch() const;           // degrees from the horizontal
};

// The shape of a window with all its entities (EntityMismatch finds nothing). Throws Error, naming what is
// wrong, when they do not show a window that can stand in a roof: its parts were moved apart, it is no
// rectangle, its lower edge is not horizontal, it stands upside down or upright, or lies turned on a flat
// roof.
WindowShape ShapeOf(const dxf::Document& drawing, const DrawnWindow& window);

}  // namespace teskarlt
