// Labels.h - finds places for what is written into a plan: tags, dimensions and falls.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "teskarlt/drawing/FeetInches.h"
#include "teskarlt/plot/PlanMap.h"
#include "teskarlt/plot/PlanNotes.h"
#include "teskarlt/plot/Shapes.h"

namespace teskarlt::plot {

// Heights of letters, as sizes of the font.
constexpr double TAG_SIZE = 3;
constexpr double DIMENSION_SIZE = 2;
constexpr double FALL_SIZE = 2.5;

// A window's mark in a frame of its own.
struct PlacedTag {
  std::string text;
  PaperBox box;
  PaperLine leader;  // from the frame to the window
};

// A length between two points, which lie at the ends of its line.
struct PlacedDimension {
  PaperLine line;
  PaperLine extension;  // from the window to the line; without a length where the line begins at the window
  std::string text;
  PaperPoint middle;       // of the text
  PaperPoint along{1, 0};  // the direction in which it is read
};

// Where a roof falls to, and how steeply.
struct PlacedFall {
  PaperLine arrow;  // down the slope
  std::string text;
  PaperPoint middle;  // of the text
};

struct PlacedLabels {
  std::vector<PlacedTag> tags;
  std::vector<PlacedDimension> dimensions;
  std::vector<PlacedFall> falls;
  std::size_t withoutRoom = 0;  // labels for which there is no free place
};

// What labels are placed on.
struct LabelGround {
  const PlanNotes* notes = nullptr;  // never null
  PlanMap map;
  PaperBox area;                 // beyond which no label may lie
  std::vector<Quad> footprints;  // what each window covers in the plan, in the order of the notes
  LengthStyle lengths = LengthStyle::Metres;
  std::vector<Quad> texts = {};  // of the drawing, over which no label may lie
};

// Of each window the dimensions to the eaves and to the nearer verge and, unless it has one, the tag, then of
// each roof its fall, each at the first free one of its usual places: over no window and no other label.
PlacedLabels PlaceLabels(const LabelGround& ground);

}  // namespace teskarlt::plot
