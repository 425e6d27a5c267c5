// DrawLabels.cpp - draws the labels of a plan.
#include "teskarlt/plot/DrawLabels.h"

#include <cmath>
#include <numbers>
#include <string_view>

namespace teskarlt::plot {

namespace {

constexpr double TICK = 1.2;  // half the length of the stroke at the end of a dimension
constexpr double ARROW_HEAD = 2.4;
constexpr double DIAGONAL = 0.70710678118654757;  // 1 / sqrt(2)
constexpr std::string_view THIN_LINE = R"( fill="none" stroke="#000000" stroke-width="0.18")";
// Of texts, so that the lines under them leave them readable.
constexpr std::string_view TEXT_LOOK =
    R"( fill="#000000" stroke="#ffffff" stroke-width="0.5" stroke-linejoin="round" )"
    "paint-order=\"stroke\"";

// The place of a text's baseline, in the direction of the text, for a text around the middle.
PaperPoint Baseline(const PaperPoint& middle, const PaperPoint& down, double size) {
  return Moved(middle, down, size * CAPITAL / 2);
}

// Across the direction of the line.
PaperLine TickAt(const PaperPoint& p, const PaperPoint& direction) {
  const PaperPoint slanted{(direction.x - direction.y) * DIAGONAL, (direction.x + direction.y) * DIAGONAL};
  return {Moved(p, slanted, -TICK), Moved(p, slanted, TICK)};
}

void DrawDimension(const PlacedDimension& dimension, Canvas& canvas) {
  const PaperPoint along = DirectionOf(dimension.line);
  const PaperPoint& read = dimension.along;
  canvas.Line(dimension.line, THIN_LINE);
  if (LengthOf(dimension.extension) > 0) canvas.Line(dimension.extension, THIN_LINE);
  for (const PaperPoint& end : {dimension.line.from, dimension.line.to})
    canvas.Line(TickAt(end, along), R"( fill="none" stroke="#000000" stroke-width="0.35")");
  canvas.Text({dimension.text, Baseline(dimension.middle, {-read.y, read.x}, DIMENSION_SIZE), DIMENSION_SIZE,
               Anchor::Middle, false, std::atan2(read.y, read.x) * 180 / std::numbers::pi});
}

void DrawFall(const PlacedFall& fall, Canvas& canvas) {
  const PaperPoint along = DirectionOf(fall.arrow);
  const PaperPoint neck = Moved(fall.arrow.to, along, -ARROW_HEAD);
  const PaperPoint aside{-along.y, along.x};
  canvas.Line({fall.arrow.from, neck}, R"( fill="none" stroke="#000000" stroke-width="0.25")");
  canvas.Shape({fall.arrow.to, Moved(neck, aside, ARROW_HEAD / 4), Moved(neck, aside, -ARROW_HEAD / 4)},
               R"( fill="#000000" stroke="none")");
  canvas.Text({fall.text, Baseline(fall.middle, {0, 1}, FALL_SIZE), FALL_SIZE, Anchor::Middle});
}

void DrawTag(const PlacedTag& tag, Canvas& canvas) {
  canvas.Line(tag.leader, THIN_LINE);
  canvas.Box(tag.box, R"( rx="1" fill="#ffffff" stroke="#000000" stroke-width="0.25")");
  canvas.Text({tag.text, Baseline(tag.box.Middle(), {0, 1}, TAG_SIZE), TAG_SIZE, Anchor::Middle, true});
}

}  // namespace

void DrawLabels(const PlacedLabels& labels, Canvas& canvas) {
  canvas.BeginGroup("falls", TEXT_LOOK);
  for (const PlacedFall& fall : labels.falls)
    DrawFall(fall, canvas);
  canvas.EndGroup();
  canvas.BeginGroup("dimensions", TEXT_LOOK);
  for (const PlacedDimension& dimension : labels.dimensions)
    DrawDimension(dimension, canvas);
  canvas.EndGroup();
  canvas.BeginGroup("tags", " fill=\"#000000\"");
  for (const PlacedTag& tag : labels.tags)
    DrawTag(tag, canvas);
  canvas.EndGroup();
}

}  // namespace teskarlt::plot
