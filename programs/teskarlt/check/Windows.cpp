// Windows.cpp - half windows, windows with one number, and foreign data under our names.
#include "teskarlt/check/Windows.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <span>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/drawing/WindowTag.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "window/Parts.h"

namespace teskarlt::check {
namespace {

constexpr std::string_view OUR_PREFIX = "TK_LT_";

// What the checks look at.
struct Scene {
  const dxf::Document& drawing;
  const std::vector<DrawnWindow>& windows;
  const DrawingUnit* unit;  // null when the header does not name it: lengths cannot be compared then
  const FitRules& rules;    // for places
  Findings& findings;
};

void Report(const Scene& scene, Kind kind, const DrawnWindow& window, std::string message,
            Severity severity = Severity::Error) {
  const dxf::Entity& first = *window.entities.front();
  scene.findings.Add(severity, kind, first.type.data(), std::move(message), first.handle);
}

void CheckNumbers(const Scene& scene) {
  std::set<std::int32_t> known;
  for (const DrawnWindow& window : scene.windows) {
    if (window.number == 0) {
      Report(scene, Kind::WindowNumber, window, "the window that begins here has no number");
    } else if (!known.insert(window.number).second) {
      Report(scene, Kind::WindowNumber, window,
             fmt::format("a window before this one has the number {}, too", window.number));
    }
  }
}

// A mark that two windows bear names neither.
void CheckMarks(const Scene& scene) {
  std::map<std::string_view, std::int32_t> bearers;
  for (const DrawnWindow& window : scene.windows) {
    if (window.mark.empty()) continue;
    const auto [known, isNew] = bearers.emplace(window.mark, window.number);
    if (isNew) continue;
    Report(scene, Kind::WindowMark, window,
           fmt::format("window {} bears the mark {} of window {}, too; teskarlt mark gives it one of its own",
                       window.number, window.mark, known->second),
           Severity::Warning);
  }
}

// What is wrong with a tag, which is the first of its window or not; empty when nothing is. `bearers` are the
// windows of its number.
std::string FaultOf(const WindowTag& tag, const std::vector<const DrawnWindow*>& bearers, bool isFirst) {
  if (bearers.empty())
    return fmt::format("this is a part of the tag of window {}, which is gone", tag.number);
  if (bearers.size() > 1) return {};  // nobody knows whose it is
  if (!tag.HasText()) {
    return fmt::format("the tag of window {} has lost its text; teskarlt mark --tags draws it anew",
                       tag.number);
  }
  if (!isFirst) return fmt::format("window {} has another tag before this one", tag.number);
  const std::string mark = ShownMark(*bearers.front());
  if (tag.text == mark) return {};
  return fmt::format(
      "the tag of window {} reads {}, and the window is called {}; teskarlt mark --tags "
      "rewrites it",
      tag.number, tag.text, mark);
}

void CheckTags(const Scene& scene) {
  const std::vector<WindowTag> tags = FindWindowTags(scene.drawing);
  std::map<std::int32_t, std::vector<const DrawnWindow*>> bearers;
  for (const DrawnWindow& window : scene.windows)
    bearers[window.number].push_back(&window);
  std::set<std::int32_t> known;
  for (const WindowTag& tag : tags) {
    const std::string fault = FaultOf(tag, bearers[tag.number], known.insert(tag.number).second);
    if (fault.empty()) continue;
    const dxf::Entity& first = *tag.parts.front().entity;
    scene.findings.Warning(Kind::WindowTag, first.type.data(), fault, first.handle);
  }
}

void CheckDescriptions(const Scene& scene) {
  for (const DrawnWindow& window : scene.windows) {
    if (!window.isComplete) {
      Report(scene, Kind::WindowDescription, window,
             fmt::format("the description of window {} is damaged", window.number));
    }
  }
}

// Half a window, or one with something added.
void CheckEntities(const Scene& scene) {
  for (const DrawnWindow& window : scene.windows) {
    if (!window.isComplete) continue;
    const std::string mismatch = EntityMismatch(window);
    if (!mismatch.empty())
      Report(scene, Kind::WindowEntities, window, fmt::format("window {}: {}", window.number, mismatch));
  }
}

// What another program did to a window is no error as long as the window can still be changed.
void CheckShapes(const Scene& scene) {
  if (scene.unit == nullptr) return;
  for (const DrawnWindow& window : scene.windows) {
    if (!window.isComplete || !EntityMismatch(window).empty()) continue;
    const WindowReading reading = ReadWindow(scene.drawing, window);
    if (!reading.obstacle.empty()) {
      Report(scene, Kind::WindowSize, window,
             fmt::format("window {} cannot be changed: {}", window.number, reading.obstacle));
    }
    for (const std::string& note : reading.notes) {
      Report(scene, Kind::WindowSize, window, fmt::format("window {}: {}", window.number, note),
             Severity::Warning);
    }
  }
}

// Windows in each other's way, and those whose roof was changed.
void CheckFits(const Scene& scene) {
  if (scene.unit == nullptr) return;
  const Roofs roofs = FindRoofs(scene.drawing, scene.unit->working);
  WindowFit fit(roofs);
  for (const DrawnWindow& window : scene.windows) {
    const std::optional<Outline> outline = DrawnOutline(scene.drawing, window);
    if (!outline) continue;
    const brevanta::WindowParams record = ReadWindow(scene.drawing, window).params;
    for (const std::string& misfit : fit.Misfits(record, *outline, scene.rules)) {
      Report(scene, Kind::WindowMisfit, window, fmt::format("window {}: {}", window.number, misfit),
             Severity::Warning);
    }
    fit.Add(window.number, *outline);
  }
}

// Whatever else can be wrong with windows and their roofs is one more function of this list.
constexpr void (*CHECKS[])(const Scene&) = {CheckNumbers,  CheckMarks,  CheckTags, CheckDescriptions,
                                            CheckEntities, CheckShapes, CheckFits};

bool IsWindowElement(std::span<const dxf::Tag> section) {
  for (const dxf::Tag& tag : section)
    if (tag.code == dxf::CODE_XDATA_TEXT) return dxf::Trimmed(tag.value) == brevanta::WINDOW_ELEMENT;
  return false;
}

// The tags from an application's name up to the next one.
std::span<const dxf::Tag> SectionOf(std::span<const dxf::Tag> extended, std::string_view application) {
  const auto isName = [](const dxf::Tag& tag) { return tag.code == dxf::CODE_XDATA_APPLICATION; };
  for (std::size_t i = 0; i < extended.size(); ++i) {
    if (!isName(extended[i]) || !dxf::SameName(dxf::Trimmed(extended[i].value), application)) continue;
    std::size_t end = i + 1;
    while (end < extended.size() && !isName(extended[end]))
      ++end;
    return extended.subspan(i, end - i);
  }
  return {};
}

}  // namespace

void CheckWindowData(const Object& object, Findings& findings) {
  const auto extended = object.Extended();
  const bool isOurs = std::any_of(extended.begin(), extended.end(), [](const dxf::Tag& tag) {
    return tag.code == dxf::CODE_XDATA_APPLICATION && tag.value.starts_with(OUR_PREFIX);
  });
  if (!isOurs) return;
  const auto element = SectionOf(extended, brevanta::ELEMENT_APPLICATION);
  const auto description = SectionOf(extended, brevanta::DESCRIPTION_APPLICATION);
  const auto mark = SectionOf(extended, brevanta::MARK_APPLICATION);
  const auto report = [&](const dxf::Tag& tag, std::string_view what) {
    findings.Warning(Kind::WindowForeignData, tag.value.data(), fmt::format("the {} {}", object.type, what),
                     object.number);
  };
  if (!element.empty() && IsWindowElement(element) && !CanBePart(object.type)) {
    report(element[0], "is marked as a part of a roof window, which has lines and 3D faces only");
  } else if (!element.empty() && !IsWindowElement(element)) {
    report(element[0], "is marked as an element of ours that is no roof window");
  } else if (element.empty() && !description.empty()) {
    report(description[0], "has a description of a roof window and is not marked as one");
  } else if (element.empty() && !mark.empty()) {
    report(mark[0], "bears the mark of a roof window and is no part of one");
  } else if (!element.empty() && description.empty()) {
    report(element[0], "is marked as a part of a roof window and has no description of it");
  }
}

void CheckWindows(const dxf::Document& drawing, const FitRules& rules, Findings& findings) {
  const DrawingUnit* const unit = KnownUnit(drawing);
  const std::vector<DrawnWindow> windows =
      FindWindows(drawing, unit == nullptr ? IN_DRAWING_UNITS : unit->working);
  for (const auto check : CHECKS)
    check({drawing, windows, unit, rules, findings});
}

}  // namespace teskarlt::check
