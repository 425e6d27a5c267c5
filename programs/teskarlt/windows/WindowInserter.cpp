// WindowInserter.cpp - inserts windows into one drawing, one after the other.
#include "teskarlt/windows/WindowInserter.h"

#include <algorithm>
#include <string_view>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/SlopeFrame.h"
#include "teskarlt/windows/AllOrNone.h"
#include "teskarlt/windows/OntoRoof.h"
#include "teskarlt/windows/OrderUnits.h"
#include "teskarlt/windows/Placing.h"

namespace teskarlt {

namespace {

bool Sets(const WindowOrder& order, std::string_view field) {
  return std::any_of(order.settings.begin(), order.settings.end(),
                     [&](const FieldSetting& setting) { return setting.field == field; });
}

// Refuses what would put all windows of a row at one place.
void CheckRoomForRow(const WindowOrder& order) {
  if (!order.at && !IsGiven(order.placing)) {
    throw Error(
        "--row: say where the row goes, with its point, --at X,Y, or with words, as --from-eaves 1.2 "
        "--centre");
  }
  if (!order.at && order.row.from)
    throw Error("--row-from says which window stands at the point; add --at X,Y or leave it out");
  if (Sets(order, "roofPlanePoints"))
    throw Error("--row: roofPlanePoints cannot be set for a row; --roof gives its plane");
  if (!order.row.isColumn.value_or(false)) return;
  for (const std::string_view field : {"lowerEdgeHeight", "upperEdgeHeight"}) {
    if (Sets(order, field))
      throw Error(fmt::format("--column: {} would put all windows at one height; leave it out", field));
  }
}

}  // namespace

WindowInserter::WindowInserter(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit)
    : own_(std::make_unique<JobSite>(module, drawing, unit)), site_(*own_) {}

PlacedWindow WindowInserter::Insert(const WindowOrder& drawnOrder) {
  const WindowOrder order = InWorkingUnits(drawnOrder, Work().unit);
  PlacedWindow window = AllOrNone(Work().drawing, [&] {
    return Draw(order, ChooseRoof(order, Work().drawing.FileName(), Work().roofs), site_.Numbers());
  });
  Note(window);
  return window;
}

std::vector<PlacedWindow> WindowInserter::InsertAll(const WindowOrder& drawnOrder) {
  CheckRow(drawnOrder.row);
  if (!drawnOrder.row.count) return {Insert(drawnOrder)};
  CheckRoomForRow(drawnOrder);
  const WindowOrder order = InWorkingUnits(drawnOrder, Work().unit);
  const RoofChoice roof = ChooseRoof(order, Work().drawing.FileName(), Work().roofs);
  std::vector<PlacedWindow> windows = AllOrNone(Work().drawing, [&] { return DrawRow(order, roof); });
  for (const PlacedWindow& window : windows)
    Note(window);
  return windows;
}

WindowRequest WindowInserter::RequestFor(const WindowOrder& order, const RoofChoice& roof,
                                         const WindowNumbers& numbers) {
  WindowRequest request;
  request.unit = Work().unit;
  request.numbersInUse = &numbers;
  request.answers = AnswersOf(order, Work().drawing, site_.Shelf());
  request.markOf = MarkFor(order, roof, Work().drawing, site_.Marks());
  if (order.at) request.point = {order.at->x, order.at->y};
  PutRoof(roof, request);
  return request;
}

PlacedWindow WindowInserter::Draw(const WindowOrder& order, const RoofChoice& roof,
                                  const WindowNumbers& numbers) {
  WindowRequest request = RequestFor(order, roof, numbers);
  if (IsGiven(order.placing)) request.point = FindPlace(order, roof, request);
  PlacedWindow window = PlacedBy(InsertOnto(roof, request, order.lengths), Work().unit, roof);
  window.bounds = BoundsOf(order, roof, Work().roofs);
  window.misfits = site_.Fit().Misfits(window.record, window.outline, RulesFor(window, order));
  if (order.isStrict && !window.misfits.empty()) RefuseMisfits(window.misfits);
  return window;
}

std::vector<PlacedWindow> WindowInserter::DrawRow(const WindowOrder& order, const RoofChoice& roof) {
  const double step = StepOf(order, roof);
  const SlopeFrame frame = FrameOf(PlaneOf(roof.corners));
  WindowNumbers numbers = site_.Numbers();
  WindowOrder one = order;
  one.placing = {};
  std::vector<PlacedWindow> windows;
  // While the row is drawn, its windows are in the way of those that follow, and their marks are taken.
  const auto forget = [&] {
    for (const PlacedWindow& window : windows) {
      site_.NoteMoved(window.record.markerValue, window.outline, std::nullopt);
      site_.Marks().Release(window.mark, window.record.markerValue);
    }
  };
  try {
    for (const PlanPoint& point :
         RowPoints(order.row, PointOfRow(order, roof, step), frame, step, Work().unit)) {
      one.at = point;
      windows.push_back(DrawOfRow(one, roof, numbers, windows.size() + 1));
      numbers.Take(windows.back().record.markerValue);
      site_.NoteMoved(windows.back().record.markerValue, std::nullopt, windows.back().outline);
      site_.Marks().Take(windows.back().mark, windows.back().record.markerValue);
    }
  } catch (...) {
    forget();
    throw;
  }
  forget();
  return windows;
}

PlacedWindow WindowInserter::DrawOfRow(const WindowOrder& order, const RoofChoice& roof,
                                       const WindowNumbers& numbers, std::size_t place) {
  try {
    return Draw(order, roof, numbers);
  } catch (const Error& error) {
    throw Error(fmt::format("window {} of the row, at {}: {}", place, order.at->text, error.Message()),
                error.Place());
  }
}

PlanPoint WindowInserter::PointOfRow(const WindowOrder& order, const RoofChoice& roof, double step) {
  if (!IsGiven(order.placing)) return *order.at;
  const WindowRequest request = RequestFor(order, roof, site_.Numbers());
  const auto [x, y] = FindPlace(order, roof, request, ReachOf(order.row, step));
  return {x, y, {}};
}

// A window somewhere on the roof, which has no bounds then, tells the size of all.
double WindowInserter::StepOf(const WindowOrder& order, RoofChoice roof) {
  WindowOrder sampleOrder = order;
  sampleOrder.isStrict = false;
  sampleOrder.placing = {};
  sampleOrder.mark.clear();
  if (!order.at) sampleOrder.at = PlanPoint{roof.corners.front().x, roof.corners.front().y, {}};
  roof.facesNear = nullptr;
  const dxf::EditMark before = Work().drawing.Mark();
  const brevanta::WindowParams sample = Draw(sampleOrder, roof, site_.Numbers()).record;
  Work().drawing.Rollback(before);
  const double size = order.row.isColumn.value_or(false) ? sample.length : sample.width;
  const double step = order.row.gap ? size + *order.row.gap : *order.row.spacing;
  if (step < size) {
    const auto said = [&](double length) {
      return order.lengths == LengthStyle::Metres ? fmt::format("{:g} m", length) : FeetInchesText(length);
    };
    throw Error(fmt::format(
        "--spacing: the windows of the row, {} each, would overlap {} apart; say a longer one, or --gap 0",
        said(size), said(step)));
  }
  return step * sample.unitFactor;
}

void WindowInserter::Note(const PlacedWindow& window) {
  site_.NoteInserted(window.record.markerValue, window.outline, window.mark);
}

CommandOutcome WindowInserter::InsertOnto(const RoofChoice& roof, const WindowRequest& request,
                                          LengthStyle lengths) {
  return RunOntoRoof(request, roof, Work().roofs, Work().drawing, lengths,
                     [&](const WindowRequest& run) { return site_.Module().Insert(Work().drawing, run); });
}

std::array<double, 2> WindowInserter::FindPlace(const WindowOrder& order, const RoofChoice& roof,
                                                const WindowRequest& request, const RowReach& row) {
  const auto tryOut = [&](const WindowRequest& trial) {
    const dxf::EditMark before = Work().drawing.Mark();
    const CommandOutcome outcome = site_.Module().Insert(Work().drawing, trial);
    Work().drawing.Rollback(before);
    return *outcome.confirmed;
  };
  const auto outlineOf = [&](int number) { return site_.Fit().OutlineOf(number); };
  return PlaceFor(order, MeasuredOn(order, roof, Work().roofs), request, tryOut, outlineOf, row);
}

}  // namespace teskarlt
