// DescriptionOutput.h - the extended data that marks an entity as one of a roof window and describes the
// window.
#pragma once

#include "arx/BvMakeWindow/BvMakeWindow.h"
#include "arx/BvMakeWindow/ListBuilder.h"

namespace brevanta {

// Appends the 31 items of the block: the mark with the window's number, and the description (Description.h).
// A record whose `markerValue` is 0 damages the list on purpose: the item is left out and the low half of the
// text before it is overwritten.
void AppendDescription(const CbvMakeWindow& window, ListBuilder& list);

}  // namespace brevanta
