// PreviewSchedule.h - what previews show of a drawing's schedule.
#pragma once

#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/preview/Page.h"
#include "teskarlt/preview/Scene.h"
#include "teskarlt/schedule/Schedule.h"

namespace teskarlt {

// The schedule of the scene's drawing, read once for all that a preview shows of it. The scene's windows get
// from it their names and values.
schedule::Schedule DescribeWindows(const dxf::Document& drawing, const AskedUnit& units,
                                   preview::Scene& scene);

// The same as table and file for the page, by marks.
preview::PageSchedule PageScheduleOf(schedule::Schedule schedule);

}  // namespace teskarlt
