// Comparison.h - what came, went and changed between two schedules.
#pragma once

#include <vector>

#include "teskarlt/schedule/Columns.h"
#include "teskarlt/schedule/Schedule.h"
#include "teskarlt/schedule/Sheet.h"

namespace teskarlt::schedule {

// By what a row of one schedule is found again in the other.
enum class SameBy {
  Mark,  // rows for windows
  Type,  // rows for types, which differ in their quantity then
};

// A row that is in both schedules, and the columns in which they show other values.
struct ChangedRow {
  const ScheduleRow* before;
  const ScheduleRow* after;
  std::vector<const Column*> columns;
};

// Rows of the two schedules, which must outlive it.
struct Comparison {
  std::vector<const ScheduleRow*> came;
  std::vector<const ScheduleRow*> went;
  std::vector<ChangedRow> changed;
};

// Of several windows with one mark, the first ones are compared with each other. Both schedules have rows of
// the same kind and count in the same unit.
Comparison Compare(const Schedule& before, const Schedule& after, Columns columns, SameBy by = SameBy::Mark);

// A row for each window or type that came or went, and one for each value that changed.
Sheet SheetOf(const Comparison& comparison, const Schedule& before, const Schedule& after,
              const SheetStyle& style);

}  // namespace teskarlt::schedule
