// RowOrder.h - what the user wants of windows that are inserted in a row.
#pragma once

#include <optional>
#include <string>

namespace teskarlt {

// Along the eaves, to the right as seen from below them, or as a column up the slope.
struct RowOrder {
  std::optional<int> count = {};         // of the windows; none: no row
  std::optional<double> spacing = {};    // from axis to axis, metres
  std::optional<double> gap = {};        // from frame to frame, metres
  std::optional<bool> isColumn = {};     // a row where nothing is said
  std::optional<std::string> from = {};  // a word of PlaceOfPoint
};

// Which window of a row stands at its point.
enum class RowPlace { First, Middle, Last };

// As users write it, from 1 to 1000. Throws Error, naming the option, for anything else.
int ParseRowCount(const std::string& text);

// "left", "centre" or "right", of a column "bottom", "centre" or "top"; where the order says nothing, the
// first window.
RowPlace PlaceOfPoint(const RowOrder& row);

// Refuses an order that is no row and says something of one, or that is one and says nothing, or two things,
// of the distance between its windows.
void CheckRow(const RowOrder& row);

}  // namespace teskarlt
