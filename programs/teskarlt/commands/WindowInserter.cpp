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
      fit_(faces_, RoofTolerance(unit_)) {
  const std::vector<DrawnWindow> windows = FindWindows(drawing_, unit_.perMetre);
  numbers_ = NumbersOf(windows);
  fit_.AddAll(drawing_, windows);
}

InsertedWindow WindowInserter::Insert(const WindowOptions& options) {
  WindowRequest request;
  request.unitFactor = unit_.perMetre;
  request.numbersInUse = &numbers_;
  TakeAnswers(options, drawing_, catalogues_, request);
  const RoofFace* face = TakeRoof(options, faces_, RoofTolerance(unit_), request);
  const dxf::EditMark before = drawing_.Mark();
  InsertedWindow window{module_.Insert(drawing_, request), face, {}};
  const brevanta::WindowParams& record = *window.outcome.confirmed;
  const Outline outline = OutlineOf(record);
  window.misfits = fit_.Misfits(record, outline);
  try {
    RefuseMisfits(options, window.misfits);
  } catch (...) {
    drawing_.Rollback(before);
    throw;
  }
  fit_.Add(record.markerValue, outline);
  numbers_.Take(record.markerValue);
  return window;
}

}  // namespace teskarlt
