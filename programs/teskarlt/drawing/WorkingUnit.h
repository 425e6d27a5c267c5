// WorkingUnit.h - the unit in which windows are computed, and the way into it and out of it.
#pragma once

#include <cstdint>

#include "geometry/Vec3.h"
#include "inc/WindowParams.h"

namespace teskarlt {

// The module takes a whole number of units a metre. Where the drawing's unit has one, that is what windows
// are computed in, and nothing changes on the way; else they are computed in millimetres. Roofs, points and
// windows come into it where the drawing is read, and what the module draws goes out of it in ValueListTags.
struct WorkingUnit {
  std::int32_t perMetre = 1;    // working units a metre, the record's `unitFactor`
  double perDrawingUnit = 1.0;  // working units a drawing unit; 1 where the two are the same
};

// For what is not compared with lengths in metres: drawing units as they are.
inline constexpr WorkingUnit IN_DRAWING_UNITS{};

// A length or coordinate in drawing units.
constexpr double ToWorking(double drawn, const WorkingUnit& unit) {
  return drawn * unit.perDrawingUnit;
}
constexpr double ToDrawn(double working, const WorkingUnit& unit) {
  return working / unit.perDrawingUnit;
}

constexpr geometry::Vec3 ToWorking(const geometry::Vec3& p, const WorkingUnit& unit) {
  return {ToWorking(p.x, unit), ToWorking(p.y, unit), ToWorking(p.z, unit)};
}

constexpr brevanta::RecordPoint ToDrawn(const brevanta::RecordPoint& p, const WorkingUnit& unit) {
  return {ToDrawn(p.x, unit), ToDrawn(p.y, unit), ToDrawn(p.z, unit)};
}

// The record with its points in drawing units, as people and programs are told them.
brevanta::WindowParams WithDrawnPoints(const brevanta::WindowParams& record, const WorkingUnit& unit);

// Drawing units a metre.
constexpr double DrawingUnitsPerMetre(const WorkingUnit& unit) {
  return ToDrawn(unit.perMetre, unit);
}

}  // namespace teskarlt
