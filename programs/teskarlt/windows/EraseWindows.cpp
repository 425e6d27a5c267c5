// EraseWindows.cpp - takes windows out of a drawing.
#include "teskarlt/windows/EraseWindows.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/windows/AllOrNone.h"
#include "teskarlt/windows/ClosedLayers.h"

namespace teskarlt {

namespace {

void RefuseUnclear(const DrawnWindow& window) {
  if (!HasMoreThanOneWindow(window)) return;
  throw Error(
      fmt::format("window {} cannot be told from a part of a copy of it: {}; take the copy's parts out "
                  "in the CAD program",
                  window.number, EntityMismatch(window)));
}

std::int32_t HighestOf(const std::vector<const DrawnWindow*>& windows) {
  std::int32_t highest = 0;
  for (const DrawnWindow* const window : windows)
    highest = std::max(highest, window->number);
  return highest;
}

void RefuseAny(const dxf::Document& drawing, const std::vector<const DrawnWindow*>& windows,
               bool isLockedToo) {
  for (const DrawnWindow* const window : windows) {
    RefuseUnclear(*window);
    if (!isLockedToo) RefuseClosedLayers(drawing, *window);
  }
}

std::vector<ErasedWindow> EraseAll(const WindowModule& module, dxf::Document& drawing,
                                   const std::vector<const DrawnWindow*>& windows) {
  return AllOrNone(drawing, [&] {
    std::vector<ErasedWindow> erased;
    erased.reserve(windows.size());
    for (const DrawnWindow* const window : windows) {
      WindowRequest request;
      request.replaced = window->entities;
      erased.push_back({window->number, module.Erase(drawing, request).erased});
    }
    return erased;
  });
}

}  // namespace

std::vector<ErasedWindow> EraseWindows(JobSite& site, const WindowSelection& selection, bool isLockedToo) {
  site.ReadFor(selection);
  dxf::Document& drawing = site.Work().drawing;
  const std::vector<const DrawnWindow*> chosen = ChooseWindows(drawing, site.Work().windows, selection);
  RefuseAny(drawing, chosen, isLockedToo);
  std::vector<ErasedWindow> erased = EraseAll(site.Module(), drawing, chosen);
  std::for_each(chosen.rbegin(), chosen.rend(), [&](const DrawnWindow* window) {  // the highest number first
    site.NoteErased(window->number, DrawnOutline(drawing, *window), window->mark);
  });
  return erased;
}

std::vector<ErasedWindow> EraseWindows(const WindowModule& module, dxf::Document& drawing,
                                       const WindowSelection& selection, const WorkingUnit& unit,
                                       bool isLockedToo) {
  const std::vector<DrawnWindow> windows = FindWindows(drawing, unit);
  const std::vector<const DrawnWindow*> chosen = ChooseWindows(drawing, windows, selection);
  RefuseAny(drawing, chosen, isLockedToo);
  std::vector<ErasedWindow> erased = EraseAll(module, drawing, chosen);
  KeepNumberTaken(drawing, windows, HighestOf(chosen));
  return erased;
}

}  // namespace teskarlt
