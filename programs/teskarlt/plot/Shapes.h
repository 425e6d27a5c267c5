// Shapes.h - points and shapes on paper, and how much room texts take there.
#pragma once

#include <array>
#include <string>

namespace teskarlt::plot {

// Everything here is millimetres of the paper, x to the right and y down.
struct PaperPoint {
  double x = 0;
  double y = 0;
};

struct PaperLine {
  PaperPoint from;
  PaperPoint to;
};

struct PaperBox {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;

  double Width() const { return right - left; }
  double Height() const { return bottom - top; }
  PaperPoint Middle() const { return {(left + right) / 2, (top + bottom) / 2}; }
};

// Four corners in order around a shape without hollows.
using Quad = std::array<PaperPoint, 4>;

double LengthOf(const PaperLine& line);

// The unit vector along the line; (1, 0) for one without a length.
PaperPoint DirectionOf(const PaperLine& line);

// The point that lies `along` times the direction from p.
PaperPoint Moved(const PaperPoint& p, const PaperPoint& direction, double along);

PaperBox Grown(const PaperBox& box, double margin);

Quad QuadOf(const PaperBox& box);

// The box around the corners.
PaperBox BoxOf(const Quad& quad);

// The rectangle around a middle, `width` along the direction and `height` square to it.
struct Size {
  double width = 0;
  double height = 0;
};
Quad QuadAround(const PaperPoint& middle, const PaperPoint& direction, const Size& size);

// What a line of that width covers.
Quad StripOf(const PaperLine& line, double width);

// Whether two shapes have an area in common; edges may touch.
bool Overlap(const Quad& a, const Quad& b);

// Whether all corners lie within the box.
bool LiesIn(const Quad& quad, const PaperBox& box);

// The width of a text in a usual sans-serif font of that size; rather too much than too little.
double TextWidth(const std::string& text, double size);

}  // namespace teskarlt::plot
