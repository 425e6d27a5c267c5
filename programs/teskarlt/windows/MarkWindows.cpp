// MarkWindows.cpp - gives the windows of a drawing their marks.
#include "teskarlt/windows/MarkWindows.h"

#include <optional>

#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/windows/AllOrNone.h"
#include "teskarlt/windows/ClosedLayers.h"

namespace teskarlt {

namespace {

std::string RoofUnder(const dxf::Document& drawing, const DrawnWindow& window, const Roofs& roofs) {
  const RoofFace* const face = FaceUnder(ReadWindow(drawing, window).params, roofs);
  return face == nullptr ? std::string() : roofs.SurfaceOf(*face)->name;
}

// The windows of the order that get another mark, maybe the same one again.
std::vector<const DrawnWindow*> Chosen(const dxf::Document& drawing, const std::vector<DrawnWindow>& windows,
                                       const MarkOrder& order) {
  std::vector<const DrawnWindow*> chosen = ChooseWindows(drawing, windows, order.selection);
  if (order.isOnlyUnmarked)
    std::erase_if(chosen, [](const DrawnWindow* window) { return !window->mark.empty(); });
  return chosen;
}

}  // namespace

std::vector<MarkChange> MarkWindows(dxf::Document& drawing, const WorkingUnit& unit, const MarkOrder& order) {
  const std::optional<MarkPattern> pattern =
      order.mark.empty() ? std::nullopt : std::optional<MarkPattern>(order.mark);
  const std::vector<DrawnWindow> windows = FindWindows(drawing, unit);
  const Roofs roofs =
      pattern && pattern->NamesRoof() ? FindRoofs(drawing, unit) : Roofs({}, RoofTolerance(unit));
  WindowMarks marks(windows);
  const std::vector<const DrawnWindow*> chosen = Chosen(drawing, windows, order);
  for (const DrawnWindow* const window : chosen) {
    if (!order.isLockedToo) RefuseClosedLayers(drawing, *window);
    marks.Release(window->mark, window->number);
  }
  std::vector<MarkChange> changes;
  changes.reserve(chosen.size());
  for (const DrawnWindow* const window : chosen) {
    std::string mark;
    if (pattern)
      mark = marks.Fill(*pattern, {window->number, RoofUnder(drawing, *window, roofs), window->text2});
    marks.Take(mark, window->number);
    changes.push_back({window->number, window->mark, std::move(mark)});
  }
  AllOrNone(drawing, [&] {
    for (std::size_t i = 0; i < chosen.size(); ++i)
      if (changes[i].from != changes[i].to) StoreMark(*chosen[i], changes[i].to, drawing);
  });
  return changes;
}

}  // namespace teskarlt
