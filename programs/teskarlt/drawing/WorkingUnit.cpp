// WorkingUnit.cpp - records out of the unit in which windows are computed.
#include "teskarlt/drawing/WorkingUnit.h"

#include "window/RecordFields.h"

namespace teskarlt {

brevanta::WindowParams WithDrawnPoints(const brevanta::WindowParams& record, const WorkingUnit& unit) {
  brevanta::WindowParams drawn = record;
  for (const brevanta::RecordField& field : brevanta::RECORD_FIELDS) {
    if (field.kind != brevanta::FieldKind::Points) continue;
    for (brevanta::RecordPoint& point : PointsIn(drawn, field))
      point = ToDrawn(point, unit);
  }
  return drawn;
}

}  // namespace teskarlt
