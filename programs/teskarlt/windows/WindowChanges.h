// WindowChanges.h - what differs between two states of one window.
#pragma once

#include <vector>

#include "inc/WindowParams.h"
#include "window/RecordFields.h"

namespace teskarlt {

// The fields, in the order in which windows are listed, whose values differ by more than a micrometre or a
// millionth. Planes are compared as such, whatever points they are given by. Left out is what follows from
// other fields: how the window came to its place (placeByHeight, pickOffset, rotation, insertionPoint), a
// second plane that is the roof's underside, an offset that the roof's construction does not use. Both
// records are of one drawing.
std::vector<const brevanta::RecordField*> ChangedFields(const brevanta::WindowParams& before,
                                                        const brevanta::WindowParams& after);

// Whether the record would be described in other words than the window's entities carry, which are
// DrawnWindow::params; texts aside.
bool DiffersFromDescription(const brevanta::WindowParams& described, const brevanta::WindowParams& after);

}  // namespace teskarlt
