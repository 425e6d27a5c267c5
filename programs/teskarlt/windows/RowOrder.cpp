// RowOrder.cpp - what the user wants of windows that are inserted in a row.
#include "teskarlt/windows/RowOrder.h"

#include <cstdint>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

int ParseRowCount(const std::string& text) {
  constexpr int MOST = 1000;
  const std::optional<std::int64_t> count = dxf::ParseInteger(text);
  if (!count || *count < 1 || *count > MOST) {
    throw Error(fmt::format("--row {}: the number of windows in a row is from 1 to {}", text, MOST),
                {.value = text});
  }
  return static_cast<int>(*count);
}

RowPlace PlaceOfPoint(const RowOrder& row) {
  const bool isColumn = row.isColumn.value_or(false);
  const char* const first = isColumn ? "bottom" : "left";
  const char* const last = isColumn ? "top" : "right";
  const std::string word = row.from.value_or(first);
  if (word == first) return RowPlace::First;
  if (word == "centre") return RowPlace::Middle;
  if (word == last) return RowPlace::Last;
  throw Error(fmt::format("--row-from {}: the point of a {} is its {}, centre or {}", word,
                          isColumn ? "column" : "row", first, last),
              {.value = word});
}

void CheckRow(const RowOrder& row) {
  if (!row.count) {
    if (!row.spacing && !row.gap && !row.isColumn && !row.from) return;
    throw Error(
        "--spacing, --gap, --column and --row-from belong to a row; --row N says of how many windows");
  }
  if (row.spacing.has_value() == row.gap.has_value()) {
    throw Error(
        fmt::format("--row {}: say how far its windows stand apart, by either --spacing, from axis to "
                    "axis, or --gap, from frame to frame",
                    *row.count));
  }
  PlaceOfPoint(row);
}

}  // namespace teskarlt
