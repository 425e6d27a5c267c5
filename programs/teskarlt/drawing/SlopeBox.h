// SlopeBox.h - rectangles along the eaves and up the slope of a roof.
#pragma once

#include "teskarlt/drawing/SlopeFrame.h"

namespace teskarlt {

// In the frame of a roof; drawing units.
struct SlopeBox {
  double left;
  double right;
  double bottom;
  double top;

  double Middle() const { return (left + right) / 2; }
};

inline SlopeBox Moved(const SlopeBox& box, const SlopePoint& way) {
  return {box.left + way.across, box.right + way.across, box.bottom + way.up, box.top + way.up};
}

// The box with a margin on every side.
inline SlopeBox Grown(const SlopeBox& box, double margin) {
  return {box.left - margin, box.right + margin, box.bottom - margin, box.top + margin};
}

}  // namespace teskarlt
