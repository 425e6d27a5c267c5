// Columns.cpp - the columns that a schedule can have.
#include "teskarlt/schedule/Columns.h"

#include <algorithm>
#include <iterator>

#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::schedule {

const Column* FindColumn(std::string_view name) {
  const auto* const found = std::find_if(std::begin(COLUMNS), std::end(COLUMNS), [&](const Column& column) {
    return dxf::SameName(column.name, name);
  });
  return found == std::end(COLUMNS) ? nullptr : found;
}

bool IsTold(const Column& column, const Schedule& schedule) {
  return std::any_of(schedule.rows.begin(), schedule.rows.end(), [&](const ScheduleRow& row) {
    return column.text != nullptr ? !(row.*column.text).empty() : (row.*column.number).has_value();
  });
}

std::optional<double> TotalOf(const Column& column, const Schedule& schedule) {
  std::optional<double> total;
  const bool isQuantity = column.number == &ScheduleRow::quantity;
  for (const ScheduleRow& row : schedule.rows) {
    const std::optional<double>& value = row.*column.number;
    if (value) total = total.value_or(0.0) + *value * (isQuantity ? 1.0 : row.quantity.value_or(1.0));
  }
  return total;
}

}  // namespace teskarlt::schedule
