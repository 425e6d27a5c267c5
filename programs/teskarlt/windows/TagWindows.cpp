// TagWindows.cpp - plans the tags of windows and draws what differs.
#include "teskarlt/windows/TagWindows.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/PlanOutline.h"
#include "teskarlt/windows/AllOrNone.h"
#include "teskarlt/windows/TagDrawing.h"
#include "teskarlt/windows/TagPlaces.h"

namespace teskarlt {

namespace {

constexpr double SAME_PLACE_OF_TAG = 1e-3;  // of the text's height

// A tag that is to be drawn.
struct TagJob {
  std::size_t window;              // its place in the list of windows
  const WindowTag* tag = nullptr;  // that the window has by now; null for none
  TagPlan plan = {};
  bool isPlaced = true;    // else its place is to be found
  bool isRebuilt = false;  // its entities give way to new ones
};

// Of the tag that takes the most room.
const TagPlan& LargestOf(const std::vector<TagJob>& jobs) {
  const auto room = [](const TagJob& job) {
    const TagExtent extent = ExtentOf(job.plan);
    return std::max(extent.across, extent.up);
  };
  return std::max_element(jobs.begin(), jobs.end(),
                          [&](const TagJob& a, const TagJob& b) { return room(a) < room(b); })
      ->plan;
}

// The tags of a drawing with its windows.
class Tagging {
 public:
  Tagging(dxf::Document& drawing, const WorkingUnit& unit)
      : drawing_(drawing), windows_(FindWindows(drawing, unit)), tags_(FindWindowTags(drawing)) {
    outlines_.reserve(windows_.size());
    for (const DrawnWindow& window : windows_) {
      windowsOf_[window.number].push_back(outlines_.size());
      outlines_.push_back(PlanOutlineOf(drawing, window));
    }
    for (const WindowTag& tag : tags_)
      tagOf_.try_emplace(tag.number, &tag);  // those that have lost their texts come last
  }

  const std::vector<DrawnWindow>& Windows() const { return windows_; }
  const std::vector<WindowTag>& Tags() const { return tags_; }

  // The windows of that number, by their places in the list.
  const std::vector<std::size_t>& WindowsOf(std::int32_t number) { return windowsOf_[number]; }

  // Plans the tag of a window as ordered.
  void Order(const DrawnWindow& window, double usualHeight, const TagOrder& order) {
    const auto place = static_cast<std::size_t>(&window - windows_.data());
    const auto known = tagOf_.find(window.number);
    const WindowTag* const tag = known == tagOf_.end() ? nullptr : known->second;
    const bool isWhole = tag != nullptr && tag->HasText();
    TagPlan plan = isWhole ? PlanAsDrawn(*tag) : TagPlan{.number = window.number, .height = usualHeight};
    if (order.height) plan.height = *order.height;
    if (order.shape) plan.shape = *order.shape;
    if (isWhole && plan.height == tag->height && plan.shape == tag->Shape()) {
      Follow(*tag, place);
      return;
    }
    plan.text = ShownMark(window);
    const bool isPlaced = isWhole && tag->IsMoved();
    if (isPlaced) plan.leaderEnd = NearestOn(outlines_[place], plan.place);
    jobs_.push_back({place, tag, std::move(plan), isPlaced, true});
  }

  // Plans what the tag needs to say where that window is and what it is called.
  void Follow(const WindowTag& tag, std::size_t window) {
    const Ring& outline = outlines_[window];
    const double tolerance = SAME_PLACE_OF_TAG * tag.height;
    TagJob job{window, &tag, PlanAsDrawn(tag)};
    job.plan.text = ShownMark(windows_[window]);
    if (tag.leaderEnd) job.plan.leaderEnd = NearestOn(outline, *tag.leaderEnd);
    const bool isLeft = PlanDistance(job.plan.leaderEnd, tag.leaderEnd.value_or(tag.place)) > tolerance;
    const double rise = tag.leaderEnd ? job.plan.leaderEnd.z - tag.leaderEnd->z : 0.0;
    if (!isLeft && std::abs(rise) <= tolerance && job.plan.text == tag.text) return;
    if (isLeft && tag.IsMoved()) job.plan.leaderEnd = NearestOn(outline, tag.place);
    job.isPlaced = !isLeft || tag.IsMoved();
    if (!tag.IsMoved()) {
      job.plan.place.z += rise;
      job.plan.put.z = job.plan.place.z;
    }
    jobs_.push_back(std::move(job));
  }

  // Draws what was planned, and gives the number of tags.
  std::size_t Draw() {
    FindPlaces();
    const std::string style = CurrentTextStyle(drawing_);
    for (const TagJob& job : jobs_) {
      if (job.isRebuilt) {
        if (job.tag != nullptr) RemoveTag(*job.tag, drawing_);
        DrawTag(job.plan, style, drawing_);
      } else {
        RedrawTag(*job.tag, job.plan, drawing_);
      }
    }
    return jobs_.size();
  }

 private:
  // The entities of the windows, and of the tags that are placed anew.
  std::unordered_set<const dxf::Entity*> EntitiesOutOfTheWay() const {
    std::unordered_set<const dxf::Entity*> entities;
    for (const DrawnWindow& window : windows_)
      entities.insert(window.entities.begin(), window.entities.end());
    for (const TagJob& job : jobs_) {
      if (job.tag == nullptr || job.isPlaced) continue;
      for (const TagPart& part : job.tag->parts)
        entities.insert(part.entity);
    }
    return entities;
  }

  void FindPlaces() {
    if (std::all_of(jobs_.begin(), jobs_.end(), [](const TagJob& job) { return job.isPlaced; })) return;
    TagPlaces places(drawing_, outlines_, EntitiesOutOfTheWay(), LargestOf(jobs_));
    for (TagJob& job : jobs_) {
      if (job.isPlaced) continue;
      job.plan.put = job.plan.place = places.Take(job.window, job.plan);
      job.plan.leaderEnd = NearestOn(outlines_[job.window], job.plan.place);
    }
  }

  dxf::Document& drawing_;
  const std::vector<DrawnWindow> windows_;
  const std::vector<WindowTag> tags_;
  std::vector<Ring> outlines_;  // of the windows in the plan
  std::unordered_map<std::int32_t, std::vector<std::size_t>> windowsOf_;
  std::unordered_map<std::int32_t, const WindowTag*> tagOf_;  // by the numbers of windows
  std::vector<TagJob> jobs_;
};

}  // namespace

std::size_t TagWindows(dxf::Document& drawing, const WorkingUnit& unit, const TagOrder& order) {
  Tagging tagging(drawing, unit);
  const double perMetre = DrawingUnitsPerMetre(unit);
  TagOrder drawn = order;
  if (drawn.height) *drawn.height *= perMetre;
  for (const DrawnWindow* const window : ChooseWindows(drawing, tagging.Windows(), order.selection))
    tagging.Order(*window, USUAL_TAG_HEIGHT * perMetre, drawn);
  return AllOrNone(drawing, [&] { return tagging.Draw(); });
}

std::size_t EraseTags(dxf::Document& drawing, const WorkingUnit& unit, const WindowSelection& selection) {
  const std::vector<DrawnWindow> windows = FindWindows(drawing, unit);
  std::set<std::int32_t> numbers;
  for (const DrawnWindow* const window : ChooseWindows(drawing, windows, selection))
    numbers.insert(window->number);
  std::size_t erased = 0;
  for (const WindowTag& tag : FindWindowTags(drawing)) {
    if (!numbers.contains(tag.number)) continue;
    RemoveTag(tag, drawing);
    ++erased;
  }
  return erased;
}

bool LetTagsFollow(dxf::Document& drawing) {
  if (FindWindowTags(drawing).empty()) return false;
  drawing.Settle();
  Tagging tagging(drawing, IN_DRAWING_UNITS);
  std::size_t changed = 0;
  for (const WindowTag& tag : tagging.Tags()) {
    const std::vector<std::size_t>& windows = tagging.WindowsOf(tag.number);
    if (windows.empty()) {
      RemoveTag(tag, drawing);
      ++changed;
    } else if (windows.size() == 1 && tag.HasText()) {  // else nobody knows whose it is
      tagging.Follow(tag, windows.front());
    }
  }
  changed += tagging.Draw();
  return changed > 0;
}

}  // namespace teskarlt
