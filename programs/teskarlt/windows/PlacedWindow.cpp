// PlacedWindow.cpp - what becomes of a window that is inserted or edited.
#include "teskarlt/windows/PlacedWindow.h"

#include <fmt/format.h>

#include "teskarlt/Error.h"

namespace teskarlt {

PlacedWindow PlacedBy(const CommandOutcome& outcome, const WorkingUnit& unit, const RoofChoice& roof) {
  PlacedWindow window;
  window.record = *outcome.confirmed;
  window.mark = outcome.mark;
  window.unit = unit;
  window.outline = OutlineOf(window.record);
  if (roof.face != nullptr) window.face = FaceName{roof.face->name, roof.face->layer, roof.surface->name};
  window.faces = outcome.faces;
  window.lines = outcome.lines;
  window.layers = outcome.layers;
  return window;
}

FitRules RulesFor(const PlacedWindow& window, const WindowOrder& order) {
  return {.clearance = order.clearance,
          .isPlaneGiven = !window.face,
          .bounds = window.bounds,
          .lengths = order.lengths};
}

void RefuseMisfits(const std::vector<std::string>& misfits) {
  throw Error(fmt::format("--strict: the window is refused; {}", fmt::join(misfits, " and ")));
}

}  // namespace teskarlt
