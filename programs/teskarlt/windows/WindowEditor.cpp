// WindowEditor.cpp - changes windows of a drawing.
#include "teskarlt/windows/WindowEditor.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "inc/DialogServices.h"
#include "inc/RecordPoints.h"
#include "teskarlt/drawing/SlopeFrame.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/windows/AllOrNone.h"
#include "teskarlt/windows/Answers.h"
#include "teskarlt/windows/ClosedLayers.h"
#include "teskarlt/windows/OntoRoof.h"
#include "teskarlt/windows/OrderUnits.h"
#include "teskarlt/windows/Placing.h"
#include "teskarlt/windows/RoofChoice.h"
#include "teskarlt/windows/WindowChanges.h"
#include "teskarlt/windows/WindowChoice.h"
#include "window/Choices.h"

namespace teskarlt {

namespace {

using brevanta::RecordPoint;
using brevanta::WindowParams;

// The window stays where it is, on the face there, or on its own plane where that face is gone. It stays in
// its own plane on the face too: the two may differ by a hair, which on a nearly flat roof decides which way
// the window runs.
RoofChoice RoofUnder(const WindowReading& reading, const WorkedDrawing& work) {
  const WindowParams& window = reading.params;
  std::vector<geometry::Vec3> plane;
  for (const RecordPoint& p : window.roofPlanePoints)
    plane.push_back(brevanta::ToVec3(p));
  const RoofFace* face = FaceUnder(window, work.roofs);
  if (face == nullptr) return OnPlane(plane);
  RoofChoice roof = OnFace(*face, work.roofs);
  const auto& recovered = reading.recovered;
  if (std::find(recovered.begin(), recovered.end(), "roofPlanePoints") == recovered.end())
    roof.corners = plane;
  // What stuck out before may do so still.
  const bool wasInside =
      HasOwnSecondPlane(window, work.tolerance) || IsWhole(CoveredPart(OutlineOf(window), work.roofs));
  if (!wasInside) roof.facesNear = nullptr;
  return roof;
}

// A second plane of the user's own stays; the dialog would put the roof's underside in its place.
void KeepSecondPlane(const WindowParams& window, double tolerance, DialogAnswers& answers) {
  if (window.roofBuildUp != brevanta::BUILD_UP_SECOND_PLANE || IsUnderside(window, tolerance)) return;
  std::string points;
  for (const RecordPoint& p : window.secondPlanePoints)
    points += fmt::format("{},{},{}{}", p.x, p.y, p.z, brevanta::POINT_DELIMITER);
  points.pop_back();
  answers.emplace("secondPlanePoints", points);
}

// The window's place, moved in its roof; in the plan.
std::array<double, 2> MovedPlace(const WindowParams& window, const SlopeMove& move) {
  const std::vector<geometry::Vec3> roof = {brevanta::ToVec3(window.roofPlanePoints[0]),
                                            brevanta::ToVec3(window.roofPlanePoints[1]),
                                            brevanta::ToVec3(window.roofPlanePoints[2])};
  SlopeFrame frame = FrameOf(PlaneOf(roof));
  frame.origin = brevanta::ToVec3(window.storedPoint);
  const geometry::Vec3 place = frame.At({move.across * window.unitFactor, move.up * window.unitFactor});
  return {place.x, place.y};
}

// The picked point: where the window is to stand, or where it stands; none where the order says it in the
// roof's own frame.
std::optional<std::array<double, 2>> PointOf(const WindowOrder& order, const WindowParams& window) {
  if (order.at) return std::array{order.at->x, order.at->y};
  const bool setsPoint = std::any_of(order.settings.begin(), order.settings.end(),
                                     [](const auto& setting) { return setting.field == "insertionPoint"; });
  if (setsPoint) return std::nullopt;
  if (order.by) return MovedPlace(window, *order.by);
  return std::array{window.storedPoint.x, window.storedPoint.y};
}

// Whether entities and description stood there as `record` has them.
bool StandsAs(const EditableWindow& window, const WindowParams& record) {
  return window.reading.notes.empty() && !DiffersFromDescription(window.drawn->params, record) &&
         ChangedFields(window.reading.params, record).empty();
}

}  // namespace

WindowEditor::WindowEditor(JobSite& site, const WindowSelection& selection, bool isLockedToo) : site_(site) {
  Choose(selection, isLockedToo);
}

WindowEditor::WindowEditor(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit,
                           const WindowSelection& selection, bool isLockedToo)
    : own_(std::make_unique<JobSite>(module, drawing, unit)), site_(*own_) {
  Choose(selection, isLockedToo);
}

void WindowEditor::Choose(const WindowSelection& selection, bool isLockedToo) {
  site_.ReadFor(selection);
  const dxf::Document& drawing = Work().drawing;
  for (const DrawnWindow* const window : ChooseWindows(drawing, Work().windows, selection)) {
    if (!isLockedToo) RefuseClosedLayers(drawing, *window);
    windows_.push_back({window, ReadEditableWindow(drawing, *window), DrawnOutline(drawing, *window)});
  }
}

std::vector<EditedWindow> WindowEditor::Edit(const WindowOrder& order) {
  if (order.at && windows_.size() > 1) {
    throw Error(fmt::format("{} windows cannot all stand at the point {}; name one window", windows_.size(),
                            order.at->text),
                {.value = order.at->text});
  }
  std::vector<EditedWindow> edited;
  edited.reserve(windows_.size());
  for (const EditableWindow& window : windows_)
    site_.Marks().Release(window.drawn->mark, window.drawn->number);
  try {
    AllOrNone(Work().drawing, [&] { EditAll(order, edited); });
  } catch (...) {
    for (const EditedWindow& window : edited)
      site_.Marks().Release(window.placed.mark, window.placed.record.markerValue);
    for (const EditableWindow& window : windows_)
      site_.Marks().Take(window.drawn->mark, window.drawn->number);
    throw;
  }
  return edited;
}

void WindowEditor::EditAll(const WindowOrder& order, std::vector<EditedWindow>& edited) {
  const WindowOrder working = InWorkingUnits(order, Work().unit);
  for (const EditableWindow& window : windows_) {
    try {
      edited.push_back(EditOne(window, working));
    } catch (const Error& error) {
      throw Naming(window, error);
    }
    site_.Marks().Take(edited.back().placed.mark, window.drawn->number);
  }
  Fit(edited, order);
}

EditedWindow WindowEditor::EditOne(const EditableWindow& window, const WindowOrder& order) {
  const WindowParams& record = window.reading.params;
  WindowRequest request;
  request.unit = Work().unit;
  request.edited = record;
  request.replaced = window.drawn->entities;
  request.parts = PartsByRole(Work().drawing, *window.drawn);
  request.numbersInUse = &site_.Numbers();
  request.answers = AnswersOf(order, Work().drawing, site_.Shelf());
  request.point = PointOf(order, record);
  const bool moves = NamesPlace(order);
  if (!moves) KeepSecondPlane(record, Work().tolerance, request.answers);
  const RoofChoice roof =
      moves ? ChooseRoof(order, Work().drawing.FileName(), Work().roofs) : RoofUnder(window.reading, Work());
  request.markOf = MarkFor(order, roof, Work().drawing, site_.Marks(), window.drawn->mark);
  PutRoof(roof, request);
  if (IsGiven(order.placing)) PutPlace(order, roof, request);

  const dxf::EditMark before = Work().drawing.Mark();
  EditedWindow edited;
  edited.placed = PlacedBy(EditOnto(roof, request, order.lengths), Work().unit, roof);
  edited.placed.bounds = BoundsOf(order, roof, Work().roofs);
  const WindowParams& after = edited.placed.record;
  edited.markBefore = window.drawn->mark;
  edited.changes = ChangedFields(record, after);
  edited.isRewritten = !StandsAs(window, after) || edited.placed.mark != edited.markBefore;
  if (!edited.isRewritten) Work().drawing.Rollback(before);
  return edited;
}

CommandOutcome WindowEditor::EditOnto(const RoofChoice& roof, const WindowRequest& request,
                                      LengthStyle lengths) {
  return RunOntoRoof(request, roof, Work().roofs, Work().drawing, lengths,
                     [&](const WindowRequest& run) { return site_.Module().Edit(Work().drawing, run); });
}

void WindowEditor::PutPlace(const WindowOrder& order, const RoofChoice& roof, WindowRequest& request) {
  const auto tryOut = [&](const WindowRequest& trial) {
    const dxf::EditMark before = Work().drawing.Mark();
    const CommandOutcome outcome = site_.Module().Edit(Work().drawing, trial);
    Work().drawing.Rollback(before);
    return *outcome.confirmed;
  };
  const auto outlineOf = [&](int number) { return site_.Fit().OutlineOf(number); };
  request.point = PlaceFor(order, MeasuredOn(order, roof, Work().roofs), request, tryOut, outlineOf);
}

void WindowEditor::Fit(std::vector<EditedWindow>& edited, const WindowOrder& order) {
  for (const EditableWindow& window : windows_)
    site_.NoteMoved(window.drawn->number, window.outline, std::nullopt);
  for (EditedWindow& window : edited) {
    PlacedWindow& placed = window.placed;
    placed.misfits = site_.Fit().Misfits(placed.record, placed.outline, RulesFor(placed, order));
    site_.NoteMoved(placed.record.markerValue, std::nullopt, placed.outline);
  }
  try {
    if (order.isStrict) RefuseMisfitting(edited);
  } catch (...) {
    for (std::size_t i = 0; i < edited.size(); ++i)
      site_.NoteMoved(windows_[i].drawn->number, edited[i].placed.outline, windows_[i].outline);
    throw;
  }
  for (const EditedWindow& window : edited)
    if (window.isRewritten) site_.NoteRedrawn(window.placed.record.markerValue);
}

void WindowEditor::RefuseMisfitting(const std::vector<EditedWindow>& edited) const {
  for (std::size_t i = 0; i < edited.size(); ++i) {
    if (edited[i].placed.misfits.empty()) continue;
    try {
      RefuseMisfits(edited[i].placed.misfits);
    } catch (const Error& error) {
      throw Naming(windows_[i], error);
    }
  }
}

Error WindowEditor::Naming(const EditableWindow& window, const Error& error) const {
  if (windows_.size() == 1) return error;
  return Error(fmt::format("window {}: {}", window.drawn->number, error.Message()), error.Place());
}

}  // namespace teskarlt
