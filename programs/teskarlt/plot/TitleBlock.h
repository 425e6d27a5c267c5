// TitleBlock.h - what stands in the strip below a plan: north arrow, scale bar, notes and the title block.
#pragma once

#include <string>

#include "teskarlt/drawing/FeetInches.h"
#include "teskarlt/plot/Canvas.h"

namespace teskarlt::plot {

// UTF-8; what is empty leaves its field empty.
struct TitleTexts {
  std::string project;
  std::string title;
  std::string drawing;  // its file, with the unit
  std::string paper;
  std::string date;
};

// In the box, on a plan to 1:scale whose y is north.
void DrawTitleBlock(const TitleTexts& texts, const PaperBox& box, int scale, Canvas& canvas);
void DrawLegend(const PaperBox& box, int scale, LengthStyle lengths, Canvas& canvas);

}  // namespace teskarlt::plot
