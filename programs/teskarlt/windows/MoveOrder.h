// MoveOrder.h - what the user says of windows that move.
#pragma once

#include <string>

#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// Why the order is none to move windows by, in a sentence for people: it says nothing of where they go, or
// says a way and a place. Empty when it is one.
std::string MoveMistake(const WindowOrder& order);

}  // namespace teskarlt
