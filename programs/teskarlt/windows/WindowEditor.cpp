// WindowEditor.cpp - changes a window of a drawing.
#include "teskarlt/windows/WindowEditor.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "inc/DialogServices.h"
#include "inc/RecordPoints.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/windows/Answers.h"
#include "teskarlt/windows/ClosedLayers.h"
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

// The picked point: where the window is to stand, or where it stands; none where the order says it in the
// roof's own frame.
std::optional<std::array<double, 2>> PointOf(const WindowOrder& order, const WindowParams& window) {
  if (order.at) return std::array{order.at->x, order.at->y};
  const bool setsPoint = std::any_of(order.settings.begin(), order.settings.end(),
                                     [](const auto& setting) { return setting.field == "insertionPoint"; });
  if (setsPoint) return std::nullopt;
  return std::array{window.storedPoint.x, window.storedPoint.y};
}

}  // namespace

WindowEditor::WindowEditor(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit,
                           int number, bool isLockedToo)
    : module_(module),
      work_(drawing, unit),
      window_(ChooseWindow(work_.windows, drawing.FileName(), number)) {
  if (!isLockedToo) RefuseClosedLayers(drawing, window_);
  reading_ = ReadEditableWindow(drawing, window_);
}

bool WindowEditor::StandsAs(const WindowParams& record) const {
  return reading_.notes.empty() && !DiffersFromDescription(window_.params, record) &&
         ChangedFields(reading_.params, record).empty();
}

EditedWindow WindowEditor::Edit(const WindowOrder& order) {
  const WindowParams& record = reading_.params;
  CatalogueShelf shelf;
  WindowRequest request;
  request.unitFactor = work_.unit.perMetre;
  request.edited = record;
  request.replaced = window_.entities;
  request.parts = PartsByRole(work_.drawing, window_);
  request.numbersInUse = &work_.numbers;
  request.answers = AnswersOf(order, work_.drawing, shelf);
  request.point = PointOf(order, record);
  const bool moves = NamesPlace(order);
  if (!moves) KeepSecondPlane(record, work_.tolerance, request.answers);
  const RoofChoice roof =
      moves ? ChooseRoof(order, work_.drawing.FileName(), work_.roofs) : RoofUnder(reading_, work_);
  PutRoof(roof, request);

  const dxf::EditMark before = work_.drawing.Mark();
  EditedWindow edited;
  edited.placed = PlacedBy(module_.Edit(work_.drawing, request), roof);
  WindowFit fit(work_.roofs);
  fit.AddAll(work_.drawing, work_.windows, &window_);
  const WindowParams& after = edited.placed.record;
  edited.placed.misfits = fit.Misfits(after, edited.placed.outline);
  edited.changes = ChangedFields(record, after);
  edited.isRewritten = !StandsAs(after);
  const bool isRefused = order.isStrict && !edited.placed.misfits.empty();
  if (isRefused || !edited.isRewritten) work_.drawing.Rollback(before);
  if (isRefused) RefuseMisfits(edited.placed.misfits);
  return edited;
}

}  // namespace teskarlt
