// Comparison.h - what came, went and changed between two schedules.
#pragma once

#include <vector>

#include "teskarlt/schedule/Columns.h"
#include "teskarlt/schedule/Schedule.h"
#include "teskarlt/schedule/Sheet.h"

namespace teskarlt::schedule {

// A window that is in both schedules, and the columns in which they show other values.
struct ChangedWindow {
  const ScheduleRow* before;
  const ScheduleRow* after;
  std::vector<const Column*> columns;
};

// Rows of the two schedules, which must outlive it.
struct Comparison {
  std::vector<const ScheduleRow*> came;
  std::vector<const ScheduleRow*> went;
  std::vector<ChangedWindow> changed;
};

// Windows are the same by their marks; of several with one mark, the first ones are compared with each other.
// Both schedules have a row for each window and count in the same unit.
Comparison Compare(const Schedule& before, const Schedule& after, Columns columns);

// A row for each window that came or went, and one for each value that changed.
Sheet SheetOf(const Comparison& comparison, const Schedule& before, const Schedule& after,
              const SheetStyle& style);

}  // namespace teskarlt::schedule
