// UnitProposal.h - which unit a drawing that states none is likely to be drawn in.
#pragma once

#include <optional>
#include <string>

#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// The unit in which the longer side in the plan, in drawing units, of a drawing's largest roof face is likely
// to be one of a house. In feet and inches only where people of the drawing count in them.
const DrawingUnit& LikelyUnit(double longSide, bool isImperial);

// The unit that a drawing which states none is likely to be drawn in, by the size of its largest roof.
struct UnitProposal {
  double longer;  // sides of the roof's box in the plan, drawing units
  double shorter;
  const DrawingUnit* unit;  // never null
};

// Nothing where the drawing holds no roof face. Reads all of them.
std::optional<UnitProposal> ProposeUnit(const dxf::Document& drawing);

// A millimetre in drawing units, for roofs that are only looked at: where no unit is stated, in the one that
// the drawing is likely to be drawn in, which is looked for where it is not given.
double ToleranceToLookWith(const dxf::Document& drawing, const DrawingUnit& unit);
double ToleranceToLookWith(const DrawingUnit& unit, const std::optional<UnitProposal>& proposal);

// What to do about a drawing that states no unit, for people: "a roof of 12000 by 9000: millimetres? say
// --units mm".
std::string UnitRemedy(const std::optional<UnitProposal>& proposal);

}  // namespace teskarlt
