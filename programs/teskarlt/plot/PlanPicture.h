// PlanPicture.h - the surfaces and lines of a plan on paper.
#pragma once

#include <cstddef>
#include <vector>

#include "teskarlt/plot/Canvas.h"
#include "teskarlt/plot/PlanMap.h"
#include "teskarlt/plot/PlanNotes.h"
#include "teskarlt/preview/Scene.h"
#include "teskarlt/preview/View.h"

namespace teskarlt::plot {

// What is drawn, and where. The scene's unit is known.
struct PlanPicture {
  const preview::Scene* scene = nullptr;  // never null
  preview::Frame frame;                   // what of it is shown, drawing units
  PlanMap map;
};

// Surfaces with a light wash of their colours, a group for each layer with its lines, and above them the
// windows, so that no line of a wall runs over their glass. `footprints` are what they cover.
void DrawPlan(const PlanPicture& picture, const std::vector<Quad>& footprints, Canvas& canvas);

// What each window covers in the plan: the rectangle along its edges around all that is drawn of it, or its
// frame where the scene shows nothing of it.
std::vector<Quad> FootprintsOf(const std::vector<PlanWindow>& windows, const PlanPicture& picture);

// What the texts of the scene cover, about.
std::vector<Quad> TextRoomOf(const PlanPicture& picture);

}  // namespace teskarlt::plot
