// RenumberCopies.cpp - gives copies of roof windows numbers of their own.
#include "teskarlt/windows/RenumberCopies.h"

#include <map>
#include <set>
#include <string>
#include <vector>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/PlanOutline.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/drawing/WindowTag.h"
#include "teskarlt/windows/TagDrawing.h"
#include "teskarlt/windows/WindowMarks.h"

namespace teskarlt {

namespace {

// A window, and the number that it has from now on.
struct Numbered {
  const DrawnWindow* window;
  std::int32_t number;
};

using ByFormerNumber = std::map<std::int32_t, std::vector<Numbered>>;

void StoreNumber(const DrawnWindow& window, std::int32_t number, dxf::Document& drawing) {
  for (const dxf::Entity* const entity : window.entities) {
    const auto tag = NumberTagOf(drawing, *entity);
    if (tag) drawing.ReplaceValue(*tag, std::to_string(number));
  }
}

// A tag that was copied with its window leads to the copy, and gets its number.
void RenumberTags(const ByFormerNumber& windows, dxf::Document& drawing) {
  const std::vector<WindowTag> tags = FindWindowTags(drawing);
  if (tags.empty()) return;
  std::map<const DrawnWindow*, Ring> outlines;
  for (const WindowTag& tag : tags) {
    const auto bearers = windows.find(tag.number);
    if (bearers == windows.end() || !tag.leaderEnd) continue;
    std::map<double, std::int32_t> byDistance;
    for (const auto& [window, number] : bearers->second) {
      Ring& outline = outlines[window];
      if (outline.empty()) outline = PlanOutlineOf(drawing, *window);
      byDistance.emplace(PlanDistance(NearestOn(outline, *tag.leaderEnd), *tag.leaderEnd), number);
    }
    TagPlan plan = PlanAsDrawn(tag);
    plan.number = byDistance.begin()->second;
    if (plan.number == tag.number) continue;
    plan.put = plan.place;
    RedrawTag(tag, plan, drawing);
  }
}

}  // namespace

std::vector<Renumbered> RenumberCopies(dxf::Document& drawing) {
  const std::vector<DrawnWindow> windows = FindWindows(drawing, IN_DRAWING_UNITS);
  WindowNumbers taken = NumbersOf(drawing, windows);
  std::set<std::int32_t> firsts;  // numbers of which a whole window was seen
  ByFormerNumber bearers;
  std::vector<Renumbered> changes;
  for (const DrawnWindow& window : windows) {
    std::vector<Numbered>& known = bearers[window.number];
    known.push_back({&window, window.number});
    const bool isWhole = window.isComplete && EntityMismatch(window).empty();
    if (window.number == 0 || !isWhole || firsts.insert(window.number).second) continue;
    const std::int32_t number = taken.Free();
    taken.Take(number);
    known.back().number = number;
    const brevanta::RecordPoint place = ReadWindow(drawing, window).params.storedPoint;
    changes.push_back({window.number, number, place, window.entities.size()});
    StoreNumber(window, number, drawing);
    if (!window.mark.empty()) StoreMark(window, {}, drawing);
  }
  if (!changes.empty()) RenumberTags(bearers, drawing);
  return changes;
}

}  // namespace teskarlt
