// WindowInserter.cpp - inserts windows into one drawing, one after the other.
#include "teskarlt/commands/WindowInserter.h"

#include <utility>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/RoofSearch.h"

namespace teskarlt {

WindowInserter::WindowInserter(const WindowOptions& options)
    : drawing_(dxf::Document::Load(options.file)),
      unit_(TakeUnit(options, drawing_)),
      faces_(FindRoofFaces(drawing_, RoofTolerance(unit_))),
      numbers_(NumbersOf(FindWindows(drawing_, unit_.perMetre))) {}

InsertedWindow WindowInserter::Insert(const WindowOptions& options) {
  WindowRequest request;
  request.unitFactor = unit_.perMetre;
  request.numbersInUse = &numbers_;
  TakeAnswers(options, drawing_, catalogues_, request);
  const RoofFace* face = TakeRoof(options, faces_, RoofTolerance(unit_), request);
  InsertedWindow window{module_.Insert(drawing_, request), face};
  numbers_.Take(window.outcome.confirmed->markerValue);
  return window;
}

}  // namespace teskarlt
