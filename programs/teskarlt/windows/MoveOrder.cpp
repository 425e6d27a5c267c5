// MoveOrder.cpp - what the user says of windows that move.
#include "teskarlt/windows/MoveOrder.h"

#include "teskarlt/windows/Placing.h"
#include "teskarlt/windows/RoofChoice.h"

namespace teskarlt {

std::string MoveMistake(const WindowOrder& order) {
  if (!order.by) {
    if (NamesPlace(order) || IsGiven(order.placing)) return {};
    return "say where the windows go: --by or --to, or words for a place, as --from-eaves";
  }
  Placing besideSnap = order.placing;
  besideSnap.snap.reset();
  if (!NamesPlace(order) && !IsGiven(besideSnap)) return {};
  return "--by says how far the windows go; leave --to, --on and the words for a place out";
}

}  // namespace teskarlt
