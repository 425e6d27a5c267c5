// ReadSchedule.cpp - the roof windows of a drawing as a schedule.
#include "teskarlt/windows/ReadSchedule.h"

#include <map>
#include <set>
#include <string>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/drawing/EntityLayers.h"
#include "teskarlt/drawing/Plane.h"
#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/drawing/SlopeReach.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/windows/Placing.h"
#include "teskarlt/windows/WindowListing.h"
#include "window/EdgeHeights.h"

namespace teskarlt {

namespace {

using schedule::ScheduleRow;

class Reader {
 public:
  Reader(const dxf::Document& drawing, const Roofs& roofs) : drawing_(drawing), roofs_(roofs) {}

  ScheduleRow RowOf(const ListedWindow& listed) {
    const auto& [window, reading] = listed;
    ScheduleRow row{.mark = ShownMark(window), .number = window.number};
    row.windowLayers = fmt::format("{}", fmt::join(LayersOf(drawing_, window.entities), ", "));
    row.notes = fmt::format("{}", fmt::join(reading.notes, "; "));
    row.isRead = window.isComplete;
    if (!window.isComplete) return row;
    row.maker = window.text1;
    row.key = window.text2;
    row.text = window.text3;
    PutShape(reading, row);
    PutRoof(reading, row);
    return row;
  }

 private:
  static void PutShape(const WindowReading& reading, ScheduleRow& row) {
    const brevanta::WindowParams& params = reading.params;
    row.width = params.width;
    row.length = params.length;
    row.frameWidth = params.frameWidth;
    row.frameDepth = params.frameDepth;
    row.openingCode = params.openingCode;
    row.pitch = params.pitch;
    if (const std::optional<double> fall = FallDirection(params)) row.compass = CompassPoint(*fall);
    row.glassArea = (params.width - 2 * params.frameWidth) * (params.length - 2 * params.frameWidth);
    row.frameArea = params.width * params.length - *row.glassArea;
    if (!reading.outline) return;
    const brevanta::Edges edges = brevanta::EdgesOf(*reading.outline, params.unitFactor);
    row.sill = edges.lower;
    row.head = edges.upper;
  }

  void PutRoof(const WindowReading& reading, ScheduleRow& row) {
    const RoofFace* const face = FaceUnder(reading.params, roofs_);
    if (face == nullptr) return;
    const RoofSurface& surface = *roofs_.SurfaceOf(*face);
    row.roof = surface.name;
    row.layer = roofs_.Faces()[surface.faces.front()].layer;
    if (!reading.outline) return;
    const MeasuredRoof& roof = Measured(*face, surface);
    const SlopeBox box = BoxOf(*reading.outline, roof.frame);
    row.toEaves = (box.bottom - *roof.eaves) / reading.params.unitFactor;
    row.toRidge = (*roof.ridge - box.top) / reading.params.unitFactor;
  }

  // Each roof is measured once.
  const MeasuredRoof& Measured(const RoofFace& face, const RoofSurface& surface) {
    const auto known = measured_.find(&surface);
    if (known != measured_.end()) return known->second;
    return measured_.emplace(&surface, MeasuredOn({}, {.face = &face, .surface = &surface}, roofs_))
        .first->second;
  }

  const dxf::Document& drawing_;
  const Roofs& roofs_;
  std::map<const RoofSurface*, MeasuredRoof> measured_;
};

// "house.dxf" of a path, whichever way round its slashes are.
std::string NameOf(const std::string& path) {
  return path.substr(path.find_last_of("/\\") + 1);
}

}  // namespace

schedule::Schedule ReadSchedule(const dxf::Document& drawing, const DrawingUnit& unit, double tolerance) {
  const Roofs roofs = IsStated(unit) ? FindRoofs(drawing, unit.working) : FindRoofs(drawing, tolerance);
  const std::vector<ListedWindow> windows = ListWindows(drawing, unit.working);
  schedule::Schedule schedule{NameOf(drawing.FileName()), IsStated(unit), {}};
  schedule.rows.reserve(windows.size());
  Reader reader(drawing, roofs);
  for (const ListedWindow& window : windows)
    schedule.rows.push_back(reader.RowOf(window));
  return schedule;
}

}  // namespace teskarlt
