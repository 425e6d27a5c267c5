// ScheduleJson.h - schedules for programs.
#pragma once

#include "teskarlt/schedule/Comparison.h"
#include "teskarlt/schedule/Language.h"
#include "teskarlt/schedule/Schedule.h"
#include "teskarlt/schedule/Sheet.h"
#include "teskarlt/terminal/Json.h"

namespace teskarlt::schedule {

// An object whose members have the names of the columns. Lengths in metres, areas in square metres, or in
// drawing units; what is not known is null. The opening is in words.
Json JsonOf(const ScheduleRow& row, Columns columns, const Language& language);

// "windows", a list of such objects, and "totals".
Json JsonOf(const Schedule& schedule, Columns columns, const Language& language);

// "came" and "went", lists of windows, and "changed": marks with the changed values, before and now.
Json JsonOf(const Comparison& comparison, Columns columns, const Language& language);

}  // namespace teskarlt::schedule
