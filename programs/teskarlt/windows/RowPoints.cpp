// RowPoints.cpp - where the windows of a row stand.
#include "teskarlt/windows/RowPoints.h"

#include <fmt/format.h>

namespace teskarlt {

namespace {

// How many steps lie between the first window and the point.
double StepsToPoint(const RowOrder& row, int count) {
  switch (PlaceOfPoint(row)) {
    case RowPlace::First:
      return 0.0;
    case RowPlace::Middle:
      return (count - 1) / 2.0;
    case RowPlace::Last:
      return count - 1;
  }
  return 0.0;
}

PlanPoint PointAt(const geometry::Vec3& place, const WorkingUnit& unit) {
  return {place.x, place.y, fmt::format("{:.9g},{:.9g}", ToDrawn(place.x, unit), ToDrawn(place.y, unit))};
}

}  // namespace

RowReach ReachOf(const RowOrder& row, double step) {
  const int count = row.count.value_or(1);
  const double steps = StepsToPoint(row, count);
  return {steps * step, (count - 1 - steps) * step, row.isColumn.value_or(false)};
}

std::vector<PlanPoint> RowPoints(const RowOrder& row, const PlanPoint& point, const SlopeFrame& roof,
                                 double step, const WorkingUnit& unit) {
  const int count = row.count.value_or(1);
  const double steps = StepsToPoint(row, count);
  std::vector<PlanPoint> points;
  points.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    const double along = step * (i - steps);
    const SlopePoint way = row.isColumn.value_or(false) ? SlopePoint{0.0, along} : SlopePoint{along, 0.0};
    points.push_back(PointAt(SlopeFrame{{point.x, point.y, 0.0}, roof.across, roof.up}.At(way), unit));
  }
  return points;
}

}  // namespace teskarlt
