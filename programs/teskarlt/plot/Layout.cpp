// Layout.cpp - what lies where on the paper of a plan.
#include "teskarlt/plot/Layout.h"

#include <algorithm>

namespace teskarlt::plot {

namespace {

constexpr double FILING_MARGIN = 20;  // on the left
constexpr double MARGIN = 10;
constexpr double STRIP = 33;
constexpr double LEGEND = 76;
constexpr double WIDEST_TITLE = 180;
constexpr double AROUND_PLAN = 6;  // for labels
constexpr double GAP = 5;

PaperBox FrameOf(const Paper& paper) {
  return {FILING_MARGIN, MARGIN, paper.width - MARGIN, paper.height - MARGIN};
}

// The frame without the strip.
PaperBox AreaOf(const Paper& paper) {
  PaperBox area = FrameOf(paper);
  area.bottom -= STRIP;
  return area;
}

}  // namespace

PaperBox RoomForPlan(const Paper& paper) {
  return Grown(AreaOf(paper), -AROUND_PLAN);
}

bool Fits(const Size& plan, const Paper& paper) {
  const PaperBox room = RoomForPlan(paper);
  return plan.width <= room.Width() && plan.height <= room.Height();
}

Layout LayOut(const Size& plan, const Size& table, const Paper& paper) {
  const PaperBox frame = FrameOf(paper);
  const PaperBox area = AreaOf(paper);
  const double titleLeft = std::max(frame.left + LEGEND, frame.right - WIDEST_TITLE);
  Layout layout;
  layout.frame = frame;
  layout.legend = {frame.left, area.bottom, frame.left + LEGEND, frame.bottom};
  layout.title = {titleLeft, area.bottom, frame.right, frame.bottom};
  layout.plan = area;
  if (!(table.height > 0)) return layout;
  const Size left{area.Width() - table.width - 2 * GAP, area.Height() - table.height - 2 * GAP};
  const Size needed{plan.width + 2 * AROUND_PLAN, plan.height + 2 * AROUND_PLAN};
  if (needed.width <= left.width && left.height >= 0) {
    layout.hasTable = true;
    layout.plan.right = area.left + left.width;
    layout.table = {layout.plan.right + GAP, area.top + GAP};
  } else if (needed.height <= left.height && left.width >= 0) {
    layout.hasTable = true;
    layout.plan.bottom = area.top + left.height;
    layout.table = {area.left + GAP, layout.plan.bottom + GAP};
  }
  return layout;
}

}  // namespace teskarlt::plot
