// WindowInserter.h - inserts windows into one drawing, one after the other.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "teskarlt/drawing/WindowNumbers.h"
#include "teskarlt/modules/WindowModule.h"
#include "teskarlt/windows/JobSite.h"
#include "teskarlt/windows/PlacedWindow.h"
#include "teskarlt/windows/RoofChoice.h"
#include "teskarlt/windows/RowPoints.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

class WindowInserter {
 public:
  // The site must outlive the object.
  explicit WindowInserter(JobSite& site) : site_(site) {}
  // With a site of its own. Module and drawing must outlive the object.
  WindowInserter(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit);
  WindowInserter(const WindowInserter&) = delete;
  WindowInserter& operator=(const WindowInserter&) = delete;

  // Inserts the window. Throws Error with the reason when it is refused; the drawing is what it was before
  // then.
  PlacedWindow Insert(const WindowOrder& order);

  // The same for an order that may be of a row: its windows from left to right or from the bottom to the top,
  // on one roof; all or none.
  std::vector<PlacedWindow> InsertAll(const WindowOrder& order);

 private:
  // What the module is asked for; words for the place are still to be followed.
  WindowRequest RequestFor(const WindowOrder& order, const RoofChoice& roof, const WindowNumbers& numbers);
  // Draws the window, which counts with none of the next ones yet. Throws Error, and may leave a part behind.
  PlacedWindow Draw(const WindowOrder& order, const RoofChoice& roof, const WindowNumbers& numbers);
  std::vector<PlacedWindow> DrawRow(const WindowOrder& order, const RoofChoice& roof);
  // Draws a window of a row, whose place in it, from 1, stands before an error.
  PlacedWindow DrawOfRow(const WindowOrder& order, const RoofChoice& roof, const WindowNumbers& numbers,
                         std::size_t place);
  // How far apart the points of a row lie, in working units along the roof.
  double StepOf(const WindowOrder& order, RoofChoice roof);
  // The point from which the row's windows are counted, where its order or its words say.
  PlanPoint PointOfRow(const WindowOrder& order, const RoofChoice& roof, double step);
  void Note(const PlacedWindow& window);
  const WorkedDrawing& Work() const { return site_.Work(); }
  CommandOutcome InsertOnto(const RoofChoice& roof, const WindowRequest& request, LengthStyle lengths);
  // The point for which the order's words stand, in working units.
  std::array<double, 2> FindPlace(const WindowOrder& order, const RoofChoice& roof,
                                  const WindowRequest& request, const RowReach& row = {});

  std::unique_ptr<JobSite> own_;
  JobSite& site_;
};

}  // namespace teskarlt
