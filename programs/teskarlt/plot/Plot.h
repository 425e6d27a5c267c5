// Plot.h - a plan to scale on paper.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "teskarlt/drawing/FeetInches.h"
#include "teskarlt/plot/Paper.h"
#include "teskarlt/plot/PlanNotes.h"
#include "teskarlt/preview/Scene.h"
#include "teskarlt/preview/View.h"
#include "teskarlt/schedule/Sheet.h"

namespace teskarlt::plot {

struct PlotOptions {
  Paper paper;
  bool isUpright = false;         // for what the refusal proposes
  std::optional<int> scale = {};  // 50 for 1:50; none: the largest usual one that fits
  preview::Zoom zoom = {};        // what is shown
  LengthStyle lengths = LengthStyle::Metres;
  std::string project = {};  // UTF-8, as the two below
  std::string title = {};
  std::string date = {};
};

// What is drawn: a scene whose unit is known, its roofs and windows, and their schedule.
struct PlotContent {
  const preview::Scene* scene = nullptr;  // none of these is null
  const PlanNotes* notes = nullptr;
  const schedule::Sheet* schedule = nullptr;
};

struct Plot {
  std::string text;  // an SVG document, whose lengths are millimetres
  int scale = 1;
  std::string paper;  // its name
  std::size_t labelsWithoutRoom = 0;
  bool hasSchedule = true;  // false: it found no room
};

// The plan within a frame with a title block, and beside or below it the schedule where there is room for it.
// Throws Error, naming scales and papers that would do, when the plan does not fit.
Plot PlotOf(const PlotContent& content, const PlotOptions& options);

}  // namespace teskarlt::plot
