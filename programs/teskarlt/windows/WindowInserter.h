// WindowInserter.h - inserts windows into one drawing, one after the other.
#pragma once

#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/drawing/WindowNumbers.h"
#include "teskarlt/modules/WindowModule.h"
#include "teskarlt/windows/Answers.h"
#include "teskarlt/windows/PlacedWindow.h"
#include "teskarlt/windows/RoofChoice.h"
#include "teskarlt/windows/WindowOrder.h"
#include "teskarlt/windows/WorkedDrawing.h"

namespace teskarlt {

class WindowInserter {
 public:
  // Module and drawing must outlive the object.
  WindowInserter(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit);
  WindowInserter(const WindowInserter&) = delete;
  WindowInserter& operator=(const WindowInserter&) = delete;

  // Inserts the window. Throws Error with the reason when it is refused; the drawing is what it was before
  // then.
  PlacedWindow Insert(const WindowOrder& order);

 private:
  CommandOutcome InsertOnto(const RoofChoice& roof, const WindowRequest& request);
  // Puts the point for which the order's words stand into the request.
  void PutPlace(const WindowOrder& order, const RoofChoice& roof, WindowRequest& request);

  const WindowModule& module_;
  const WorkedDrawing work_;
  WindowNumbers numbers_;  // of the windows that stand in the drawing now
  WindowFit fit_;
  CatalogueShelf shelf_;
};

}  // namespace teskarlt
