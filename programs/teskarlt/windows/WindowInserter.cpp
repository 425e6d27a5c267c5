// WindowInserter.cpp - inserts windows into one drawing, one after the other.
#include "teskarlt/windows/WindowInserter.h"

#include "teskarlt/windows/OntoRoof.h"
#include "teskarlt/windows/OrderUnits.h"
#include "teskarlt/windows/Placing.h"
#include "teskarlt/windows/RoofChoice.h"

namespace teskarlt {

WindowInserter::WindowInserter(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit)
    : module_(module), work_(drawing, unit), numbers_(work_.numbers), fit_(work_.roofs) {
  fit_.AddAll(drawing, work_.windows);
}

PlacedWindow WindowInserter::Insert(const WindowOrder& drawnOrder) {
  const WindowOrder order = InWorkingUnits(drawnOrder, work_.unit);
  WindowRequest request;
  request.unit = work_.unit;
  request.numbersInUse = &numbers_;
  request.answers = AnswersOf(order, work_.drawing, shelf_);
  if (order.at) request.point = {order.at->x, order.at->y};
  const RoofChoice roof = ChooseRoof(order, work_.drawing.FileName(), work_.roofs);
  PutRoof(roof, request);
  if (IsGiven(order.placing)) PutPlace(order, roof, request);

  const dxf::EditMark before = work_.drawing.Mark();
  PlacedWindow window = PlacedBy(InsertOnto(roof, request), work_.unit, roof);
  window.misfits = fit_.Misfits(window.record, window.outline);
  if (order.isStrict && !window.misfits.empty()) {
    work_.drawing.Rollback(before);
    RefuseMisfits(window.misfits);
  }
  fit_.Add(window.record.markerValue, window.outline);
  numbers_.Take(window.record.markerValue);
  return window;
}

CommandOutcome WindowInserter::InsertOnto(const RoofChoice& roof, const WindowRequest& request) {
  return RunOntoRoof(request, roof, work_.roofs, work_.drawing,
                     [&](const WindowRequest& run) { return module_.Insert(work_.drawing, run); });
}

void WindowInserter::PutPlace(const WindowOrder& order, const RoofChoice& roof, WindowRequest& request) {
  const auto tryOut = [&](const WindowRequest& trial) {
    const dxf::EditMark before = work_.drawing.Mark();
    const CommandOutcome outcome = module_.Insert(work_.drawing, trial);
    work_.drawing.Rollback(before);
    return *outcome.confirmed;
  };
  const auto outlineOf = [&](int number) { return fit_.OutlineOf(number); };
  request.point = PlaceFor(order, MeasuredOn(order, roof, work_.roofs), request, tryOut, outlineOf);
}

}  // namespace teskarlt
