// ScheduleJson.h - schedules for programs.
#pragma once

#include "teskarlt/schedule/Comparison.h"
#include "teskarlt/schedule/Language.h"
#include "teskarlt/schedule/Schedule.h"
#include "teskarlt/schedule/Sheet.h"
#include "teskarlt/terminal/Json.h"

namespace teskarlt::schedule {

// "windows", a list of objects whose members have the names of the columns, and "totals". Lengths in metres,
// areas in square metres, or in drawing units; what is not known is null. The opening is in words.
Json JsonOf(const Schedule& schedule, Columns columns, const Language& language);

// "came" and "went", lists of windows, and "changed": marks with the changed values, before and now.
Json JsonOf(const Comparison& comparison, Columns columns, const Language& language);

}  // namespace teskarlt::schedule
