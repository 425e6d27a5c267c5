// PlanNotes.h - what a plan tells of roofs and windows besides their lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "teskarlt/drawing/SlopeFrame.h"
#include "window/Outlines.h"

namespace teskarlt::plot {

// Everything here is metres, in the directions of the drawing.
struct PlanRoof {
  std::string name;  // as `roofs` lists it
  double pitch = 0;  // degrees from the horizontal
  SlopeFrame frame;
  std::vector<SlopeRing> rings;  // of its outline, in its frame
  double eaves = 0;              // how far up the frame its lowest edge lies
  bool isShown = true;           // its fall is to be drawn
};

struct PlanWindow {
  std::string mark;  // as the schedule calls it
  std::int32_t number = 0;
  brevanta::Outline frame{};        // as it is drawn
  std::optional<std::size_t> roof;  // index in PlanNotes::roofs
  bool hasTag = false;              // the drawing shows its mark beside it
};

struct PlanNotes {
  std::vector<PlanRoof> roofs;
  std::vector<PlanWindow> windows;
};

}  // namespace teskarlt::plot
