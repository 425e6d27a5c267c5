// RoofsCommand.cpp - the subcommand "roofs": lists the roof faces of a drawing.
#include <algorithm>
#include <memory>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/UnitOptions.h"
#include "teskarlt/commands/WindowWords.h"
#include "teskarlt/drawing/RoofSearch.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Report.h"

namespace teskarlt {

namespace {

struct RoofsOptions {
  std::string file;
  AskedUnit units;
  bool isAll = false;
  bool asJson = false;
};

// The faces that take a window, and those that take none: uneven ones, and walls that are not quite upright.
struct RoofFaces {
  std::vector<RoofFace> planar;
  std::vector<RoofFace> warped;
  std::vector<RoofFace> steep;
};

RoofFaces FacesIn(const dxf::Document& drawing, double tolerance) {
  RoofFaces faces;
  for (RoofFace& face : FindFaces(drawing, tolerance)) {
    std::vector<RoofFace>& kind = IsSteep(face)               ? faces.steep
                                  : IsPlanar(face, tolerance) ? faces.planar
                                                              : faces.warped;
    kind.push_back(std::move(face));
  }
  return faces;
}

// Lowest and highest corner, in metres.
std::pair<double, double> HeightRange(const RoofFace& face, double unitFactor) {
  const auto [low, high] = std::minmax_element(face.corners.begin(), face.corners.end(),
                                               [](const auto& a, const auto& b) { return a.z < b.z; });
  return {low->z / unitFactor, high->z / unitFactor};
}

Json ToJson(const RoofFace& face, double unitFactor) {
  Json json;
  json["face"] = face.name;
  json["type"] = face.type;
  json["layer"] = face.layer;
  json["pitch"] = Pitch(face.plane);
  const std::optional<double> fall = FallDirection(face.plane);
  json["fallDirection"] = fall ? Json(*fall) : Json(nullptr);
  json["area"] = Area(face) / (unitFactor * unitFactor);
  for (const geometry::Vec3& corner : face.corners)
    json["corners"].Add(Json::List({corner.x, corner.y, corner.z}));
  return json;
}

// Whoever misses a roof in the list learns why.
void TellOfWarped(const std::vector<RoofFace>& warped, const DrawingUnit& unit) {
  if (warped.empty()) return;
  const auto worst = std::max_element(warped.begin(), warped.end(),
                                      [](const auto& a, const auto& b) { return Warp(a) < Warp(b); });
  const bool isOne = warped.size() == 1;
  TellNote(fmt::format(
      "{} face{} {} left out, not being planar: a corner of {} lies {:.3f} m off its plane; --all lists {}",
      warped.size(), isOne ? "" : "s", isOne ? "is" : "are", worst->name, Warp(*worst) / unit.perMetre,
      isOne ? "it" : "them"));
}

Json ListOf(const std::vector<RoofFace>& faces, const DrawingUnit& unit) {
  Json list = Json::List();
  for (const RoofFace& face : faces)
    list.Add(ToJson(face, unit.perMetre));
  return list;
}

void PrintRoofs(const RoofFaces& faces, const RoofsOptions& options, const DrawingUnit& unit) {
  Json json;
  json["version"] = JSON_VERSION;
  json["units"] = unit.name;
  json["unitFactor"] = UnitFactorJson(unit.perMetre);
  json["roofs"] = ListOf(faces.planar, unit);
  json["warped"] = Json::List();
  for (const RoofFace& face : faces.warped) {
    json["warped"].Add(
        Json::Object({{"face", face.name}, {"layer", face.layer}, {"offPlane", Warp(face) / unit.perMetre}}));
  }
  if (options.isAll) json["steep"] = ListOf(faces.steep, unit);
  PrintJson(json);
}

std::string FallText(const RoofFace& face) {
  const std::optional<double> fall = FallDirection(face.plane);
  return fall ? fmt::format("{:.1f}", *fall) : "flat";
}

// The face's cells of the table.
std::vector<std::string> Row(const RoofFace& face, const DrawingUnit& unit) {
  const auto [low, high] = HeightRange(face, unit.perMetre);
  return {face.name,
          face.type,
          face.layer,
          fmt::format("{:.2f}", Pitch(face.plane)),
          FallText(face),
          fmt::format("{:.2f}", Area(face) / (unit.perMetre * unit.perMetre)),
          fmt::format("{:.3f}", low),
          fmt::format("{:.3f}", high)};
}

const std::vector<std::string> COLUMNS = {"face",         "type",    "layer",  "pitch deg",
                                          "falls to deg", "area m2", "from m", "to m"};

void PrintTable(const std::vector<RoofFace>& faces, const DrawingUnit& unit) {
  Table table(COLUMNS);
  for (const RoofFace& face : faces)
    table.Add(Row(face, unit));
  table.Print();
}

// All faces, with the reason why one takes no window.
void PrintAll(const RoofFaces& faces, const DrawingUnit& unit) {
  std::vector<std::string> columns = COLUMNS;
  columns.emplace_back("takes a window");
  Table table(columns);
  const auto add = [&](const RoofFace& face, std::string verdict) {
    std::vector<std::string> row = Row(face, unit);
    row.push_back(std::move(verdict));
    table.Add(row);
  };
  for (const RoofFace& face : faces.planar)
    add(face, "yes");
  for (const RoofFace& face : faces.warped)
    add(face, fmt::format("no: {:.3f} m off its plane", Warp(face) / unit.perMetre));
  for (const RoofFace& face : faces.steep)
    add(face, "no: steeper than 85 degrees");
  table.Print();
}

void RunRoofs(const RoofsOptions& options) {
  const dxf::Document drawing = dxf::Document::Load(options.file);
  const DrawingUnit& unit = UnitOf(drawing, options.units);
  const RoofFaces faces = FacesIn(drawing, RoofTolerance(unit));
  if (!options.isAll) TellOfWarped(faces.warped, unit);
  WarnOfTexts(drawing);
  if (options.asJson) {
    PrintRoofs(faces, options, unit);
  } else if (options.isAll) {
    PrintAll(faces, unit);
  } else if (faces.planar.empty()) {
    fmt::print("{} holds no planar face that can take a roof window.\n", options.file);
  } else {
    PrintTable(faces.planar, unit);
  }
}

}  // namespace

void AddRoofsCommand(OptionParser& parser) {
  Subcommand command = parser.Add("roofs", "List the faces that can take a roof window");
  const auto options = std::make_shared<RoofsOptions>();
  command.Argument("FILE", options->file, "the drawing").Required();
  AddUnitOptions(command, options->units);
  command.Flag("--all", options->isAll, "list the faces that take no window too: uneven ones and walls");
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "A face is named by the handle of its entity. Its pitch is measured from the horizontal; the "
      "direction\n"
      "in which it falls counter-clockwise from the drawing's x axis.\n"
      "A face takes a window when its corners lie within 20 mm, or 1/500 of its extent where that is more,\n"
      "of its plane, and when it is no steeper than 85 degrees.\n"
      "Example: teskarlt roofs house.dxf");
  command.Run([options] { RunRoofs(*options); });
}

}  // namespace teskarlt
