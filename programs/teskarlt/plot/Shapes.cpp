// Shapes.cpp - points and shapes on paper.
#include "teskarlt/plot/Shapes.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace teskarlt::plot {

namespace {

constexpr double TOUCHING = 1e-6;  // shapes that lie less deep in each other only touch

// From where to where the quad reaches along a direction.
std::pair<double, double> ReachOf(const Quad& quad, const PaperPoint& direction) {
  std::pair<double, double> reach{HUGE_VAL, -HUGE_VAL};
  for (const PaperPoint& corner : quad) {
    const double along = corner.x * direction.x + corner.y * direction.y;
    reach = {std::min(reach.first, along), std::max(reach.second, along)};
  }
  return reach;
}

// Whether a line square to an edge of `edges` runs between the two.
bool IsSeparatedByEdge(const Quad& edges, const Quad& other) {
  for (std::size_t i = 0; i < edges.size(); ++i) {
    const PaperPoint along = DirectionOf({edges[i], edges[(i + 1) % edges.size()]});
    const PaperPoint normal{-along.y, along.x};
    const auto own = ReachOf(edges, normal);
    const auto others = ReachOf(other, normal);
    if (own.second <= others.first + TOUCHING || others.second <= own.first + TOUCHING) return true;
  }
  return false;
}

// Of the font's size.
double AdvanceOf(unsigned char c) {
  constexpr std::string_view narrow = "iljtfIr.,:;'|!()[]/- ";
  constexpr std::string_view wide = "mMW@%";
  constexpr unsigned char continued = 0x80;
  constexpr unsigned char lead = 0xC0;
  if (c >= continued && c < lead) return 0;  // a further byte of a character
  if (c >= lead) return 0.8;
  const char letter = static_cast<char>(c);
  if (narrow.find(letter) != std::string_view::npos) return 0.42;
  if (wide.find(letter) != std::string_view::npos) return 1.05;
  return letter >= 'A' && letter <= 'Z' ? 0.78 : 0.66;
}

}  // namespace

double LengthOf(const PaperLine& line) {
  const double x = line.to.x - line.from.x;
  const double y = line.to.y - line.from.y;
  return std::sqrt(x * x + y * y);
}

PaperPoint DirectionOf(const PaperLine& line) {
  const double length = LengthOf(line);
  if (!(length > 0)) return {1, 0};
  return {(line.to.x - line.from.x) / length, (line.to.y - line.from.y) / length};
}

PaperPoint Moved(const PaperPoint& p, const PaperPoint& direction, double along) {
  return {p.x + direction.x * along, p.y + direction.y * along};
}

PaperBox Grown(const PaperBox& box, double margin) {
  return {box.left - margin, box.top - margin, box.right + margin, box.bottom + margin};
}

Quad QuadOf(const PaperBox& box) {
  return {{{box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}}};
}

PaperBox BoxOf(const Quad& quad) {
  const auto [left, right] = ReachOf(quad, {1, 0});
  const auto [top, bottom] = ReachOf(quad, {0, 1});
  return {left, top, right, bottom};
}

Quad QuadAround(const PaperPoint& middle, const PaperPoint& direction, const Size& size) {
  const PaperPoint square{-direction.y, direction.x};
  const auto corner = [&](double along, double aside) {
    return Moved(Moved(middle, direction, along * size.width / 2), square, aside * size.height / 2);
  };
  return {corner(-1, -1), corner(1, -1), corner(1, 1), corner(-1, 1)};
}

Quad StripOf(const PaperLine& line, double width) {
  const PaperPoint middle{(line.from.x + line.to.x) / 2, (line.from.y + line.to.y) / 2};
  return QuadAround(middle, DirectionOf(line), {LengthOf(line), width});
}

bool Overlap(const Quad& a, const Quad& b) {
  return !IsSeparatedByEdge(a, b) && !IsSeparatedByEdge(b, a);
}

bool LiesIn(const Quad& quad, const PaperBox& box) {
  return std::all_of(quad.begin(), quad.end(), [&](const PaperPoint& corner) {
    return corner.x >= box.left && corner.x <= box.right && corner.y >= box.top && corner.y <= box.bottom;
  });
}

double TextWidth(const std::string& text, double size) {
  double width = 0;
  for (const char c : text)
    width += AdvanceOf(static_cast<unsigned char>(c)) * size;
  return width;
}

}  // namespace teskarlt::plot
