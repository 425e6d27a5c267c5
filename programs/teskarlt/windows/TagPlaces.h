// TagPlaces.h - where tags lie beside their windows, and over nothing else if there is room.
#pragma once

#include <cstddef>
#include <optional>
#include <unordered_set>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/drawing/PlanIndex.h"
#include "teskarlt/drawing/PlanLines.h"
#include "teskarlt/drawing/Rings.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/windows/TagDrawing.h"

namespace teskarlt {

// Drawing coordinates and units.
class TagPlaces {
 public:
  // `outlines` of all windows in the plan, none of them empty, must outlive the object. `passed` are entities
  // over which tags may lie: those of the windows, whose outlines count, and of tags that go. `largest` is
  // the plan of the tag that takes the most room.
  TagPlaces(const dxf::Document& drawing, const std::vector<Ring>& outlines,
            const std::unordered_set<const dxf::Entity*>& passed, const TagPlan& largest);

  // The middle of the tag for the window with that outline, whose place is taken from now on: the first
  // beside or around the window where the tag lies over nothing, near ones first, or that where it lies over
  // the least. It lies at the height of the outline's highest corner.
  geometry::Vec3 Take(std::size_t window, const TagPlan& plan);

 private:
  // How much the tag would lie over.
  int Disturbance(const PlanBox& tag) const;

  const std::vector<Ring>& outlines_;
  PlanIndex surroundings_;                     // of the windows, as far as their tags reach
  std::vector<std::optional<PlanBox>> taken_;  // by the tag of each window
  std::vector<PlanLine> lines_;
  PlanIndex lineIndex_;
};

}  // namespace teskarlt
