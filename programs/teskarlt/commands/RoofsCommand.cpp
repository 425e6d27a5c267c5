// RoofsCommand.cpp - the subcommand "roofs": lists the roof faces of a drawing.
#include <algorithm>
#include <memory>

#include <fmt/format.h>

#include "teskarlt/commands/Subcommands.h"
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
  std::string units;
  bool asJson = false;
};

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
  json["pitch"] = Pitch(face);
  const std::optional<double> fall = FallDirection(face);
  json["fallDirection"] = fall ? Json(*fall) : Json(nullptr);
  json["area"] = Area(face) / (unitFactor * unitFactor);
  for (const geometry::Vec3& corner : face.corners)
    json["corners"].Add(Json::List({corner.x, corner.y, corner.z}));
  return json;
}

// Whoever misses a roof in the list learns why.
void TellOfWarped(const std::vector<RoofFace>& warped, const DrawingUnit& unit) {
  for (const RoofFace& face : warped) {
    TellNote(fmt::format("face {} of layer {} is left out: it is not planar; a corner lies {:.3f} m off",
                         face.name, face.layer, Warp(face) / unit.perMetre));
  }
}

void PrintRoofs(const RoofFaces& faces, const DrawingUnit& unit) {
  Json json;
  json["version"] = JSON_VERSION;
  json["units"] = unit.name;
  json["unitFactor"] = unit.perMetre;
  json["roofs"] = Json::List();
  for (const RoofFace& face : faces.planar)
    json["roofs"].Add(ToJson(face, unit.perMetre));
  json["warped"] = Json::List();
  for (const RoofFace& face : faces.warped) {
    json["warped"].Add(
        Json::Object({{"face", face.name}, {"layer", face.layer}, {"offPlane", Warp(face) / unit.perMetre}}));
  }
  PrintJson(json);
}

std::string FallText(const RoofFace& face) {
  const std::optional<double> fall = FallDirection(face);
  return fall ? fmt::format("{:.1f}", *fall) : "flat";
}

void PrintTable(const std::vector<RoofFace>& faces, double unitFactor) {
  Table table({"face", "type", "layer", "pitch deg", "falls to deg", "area m2", "from m", "to m"});
  for (const RoofFace& face : faces) {
    const auto [low, high] = HeightRange(face, unitFactor);
    table.Add({face.name, face.type, face.layer, fmt::format("{:.2f}", Pitch(face)), FallText(face),
               fmt::format("{:.2f}", Area(face) / (unitFactor * unitFactor)), fmt::format("{:.3f}", low),
               fmt::format("{:.3f}", high)});
  }
  table.Print();
}

void RunRoofs(const RoofsOptions& options) {
  const dxf::Document drawing = dxf::Document::Load(options.file);
  const DrawingUnit& unit = UnitOf(drawing, options.units);
  const RoofFaces faces = FindAllRoofFaces(drawing, RoofTolerance(unit));
  TellOfWarped(faces.warped, unit);
  WarnOfTexts(drawing);
  if (options.asJson) {
    PrintRoofs(faces, unit);
  } else if (faces.planar.empty()) {
    fmt::print("{} holds no planar face that can take a roof window.\n", options.file);
  } else {
    PrintTable(faces.planar, unit.perMetre);
  }
}

}  // namespace

void AddRoofsCommand(OptionParser& parser) {
  Subcommand command = parser.Add("roofs", "List the faces that can take a roof window");
  const auto options = std::make_shared<RoofsOptions>();
  command.Argument("FILE", options->file, "the drawing").Required();
  command.Value("--units", options->units, UNITS_HELP).Named("UNIT");
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "A face is named by the handle of its entity. Its pitch is measured from the horizontal; the "
      "direction\n"
      "in which it falls counter-clockwise from the drawing's x axis.\n"
      "Example: teskarlt roofs house.dxf");
  command.Run([options] { RunRoofs(*options); });
}

}  // namespace teskarlt
