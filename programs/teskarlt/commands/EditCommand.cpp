// EditCommand.cpp - the subcommand "edit": changes a roof window.
#include <algorithm>
#include <cmath>
#include <memory>

#include <fmt/format.h>

#include "teskarlt/commands/ClosedLayers.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/WindowChoice.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/drawing/RoofSearch.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/modules/WindowModule.h"
#include "window/Choices.h"

namespace teskarlt {

namespace {

using brevanta::RecordPoint;
using brevanta::WindowParams;
using geometry::Vec3;

struct EditOptions {
  WindowOptions window;
  int number = 0;
  bool isLockedToo = false;
};

Vec3 ToVec3(const RecordPoint& p) {
  return {p.x, p.y, p.z};
}

// The window stays where it is, on the face there, or on its own plane where that face is gone.
const RoofFace* KeepPlace(const WindowParams& window, const std::vector<RoofFace>& faces, double tolerance,
                          WindowRequest& request) {
  const RoofFace* face = FaceUnder(window, faces, tolerance);
  if (face != nullptr) {
    BoundByFace(*face, faces, tolerance, request);
    // What stuck out before may do so still.
    request.isBounded =
        HasOwnSecondPlane(window, tolerance) || IsWhole(CoveredPart(OutlineOf(window), faces, tolerance));
    return face;
  }
  request.faces = {{}};
  for (const RecordPoint& point : window.roofPlanePoints)
    request.faces[0].push_back(ToVec3(point));
  return nullptr;
}

// A second plane of the user's own stays; the dialog would put the roof's underside in its place.
void KeepSecondPlane(const WindowParams& window, double tolerance, WindowRequest& request) {
  if (window.roofBuildUp != brevanta::BUILD_UP_SECOND_PLANE || IsUnderside(window, tolerance)) return;
  std::string points;
  for (const RecordPoint& p : window.secondPlanePoints)
    points += fmt::format("{}{},{},{}", points.empty() ? "" : ";", p.x, p.y, p.z);
  request.answers.emplace("secondPlanePoints", points);
}

void RunEdit(const EditOptions& options) {
  const WindowModule module;
  dxf::Document drawing = dxf::Document::Load(options.window.file);
  const DrawingUnit& unit = TakeUnit(options.window, drawing);
  const std::vector<DrawnWindow> windows = FindWindows(drawing, unit.perMetre);
  const DrawnWindow& window = ChooseWindow(windows, options.window.file, options.number);
  RefuseClosedLayers(drawing, window, options.isLockedToo);
  const std::vector<RoofFace> faces = FindRoofFaces(drawing, RoofTolerance(unit));

  WindowRequest request;
  request.unitFactor = unit.perMetre;
  const WindowReading reading = ReadEditableWindow(drawing, window);
  for (const std::string& note : reading.notes)
    fmt::print(stderr, "teskarlt: note: window {}: {}\n", window.number, note);
  request.edited = reading.params;
  request.replaced = window.entities;
  const WindowNumbers numbers = NumbersOf(windows);
  request.numbersInUse = &numbers;
  Catalogues catalogues;
  TakeAnswers(options.window, drawing, catalogues, request);
  const bool moves = request.point || !options.window.roof.empty() || !options.window.roofFace.empty() ||
                     request.answers.count("roofPlanePoints") != 0;
  if (!request.point) request.point = {request.edited->storedPoint.x, request.edited->storedPoint.y};
  if (!moves) KeepSecondPlane(*request.edited, RoofTolerance(unit), request);
  const RoofFace* face = moves ? TakeRoof(options.window, faces, RoofTolerance(unit), request)
                               : KeepPlace(*request.edited, faces, RoofTolerance(unit), request);
  const CommandOutcome outcome = module.Edit(drawing, request);
  WindowFit fit(faces, RoofTolerance(unit));
  fit.AddAll(drawing, windows, &window);
  const std::vector<std::string> misfits = fit.Misfits(*outcome.confirmed, OutlineOf(*outcome.confirmed));
  RefuseMisfits(options.window, misfits);
  WarnOfMisfits("", window.number, misfits);
  SaveAndReport(options.window, drawing, outcome, face, misfits, &reading);
}

}  // namespace

void AddEditCommand(OptionParser& parser) {
  Subcommand command = parser.Add("edit", "Change a roof window");
  const auto options = std::make_shared<EditOptions>();
  command.Argument("FILE", options->window.file, "the drawing").Required();
  command.Argument("NUMBER", options->number, "the window's number, as teskarlt list shows it").Required();
  AddWindowOptions(command, options->window);
  AddLockedOption(command, options->isLockedToo);
  command.Footer(
      "What is not given stays as it is; the window keeps its number and, without --at, its place.\n"
      "teskarlt insert --fields lists the fields for --set.\n"
      "Examples:\n"
      "  teskarlt edit house-with-window.dxf 1 --set width=1.14\n"
      "  teskarlt edit house-with-window.dxf 1 --at 4800,1200");
  command.Run([options] { RunEdit(*options); });
}

}  // namespace teskarlt
