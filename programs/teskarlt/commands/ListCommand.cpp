// ListCommand.cpp - the subcommand "list": lists the roof windows of a drawing.
#include "teskarlt/commands/ListCommand.h"

#include <memory>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "geometry/Matrix4.h"
#include "teskarlt/commands/Report.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/Units.h"

namespace teskarlt {

namespace {

using Json = nlohmann::ordered_json;

struct ListOptions {
  std::string file;
  std::string units;
  bool asJson = false;
};

Json PointJson(const brevanta::RecordPoint& p) {
  return {p.x, p.y, p.z};
}

Json PointsJson(const brevanta::RecordPoint (&points)[3]) {
  return {PointJson(points[0]), PointJson(points[1]), PointJson(points[2])};
}

// Every field that the extended data holds, under its name in the record.
Json FieldsJson(const DrawnWindow& window) {
  const brevanta::WindowParams& params = window.params;
  Json json;
  json["width"] = params.width;
  json["length"] = params.length;
  json["frameWidth"] = params.frameWidth;
  json["frameDepth"] = params.frameDepth;
  json["lowerEdgeHeight"] = params.lowerEdgeHeight;
  json["heightReference"] = params.heightReference;
  json["widthAnchor"] = params.widthAnchor;
  json["roofBuildUp"] = params.roofBuildUp;
  json["layerThickness"] = params.layerThickness;
  json["pitch"] = params.pitch;
  json["drawOpeningSymbol"] = params.drawOpeningSymbol;
  json["text1"] = window.text1;
  json["text2"] = window.text2;
  json["text3"] = window.text3;
  json["openingCode"] = window.openingCode;
  json["storedPoint"] = PointJson(params.storedPoint);
  json["insertionPoint"] = PointJson(params.insertionPoint);
  json["rotation"] = params.rotation;
  json["rotation2"] = params.rotation2;
  json["secondPlanePoints"] = PointsJson(params.secondPlanePoints);
  json["roofPlanePoints"] = PointsJson(params.roofPlanePoints);
  json["unitFactor"] = params.unitFactor;
  json["markerValue"] = params.markerValue;
  return json;
}

Json ToJson(const DrawnWindow& window) {
  Json json;
  json["number"] = window.number;
  json["complete"] = window.isComplete;
  json["faces"] = window.faces;
  json["lines"] = window.entities.size() - window.faces;
  json["fields"] = window.isComplete ? FieldsJson(window) : Json(nullptr);
  return json;
}

void PrintWindows(const std::vector<DrawnWindow>& windows, const DrawingUnit& unit) {
  Json json;
  json["version"] = JSON_VERSION;
  json["units"] = unit.name;
  json["windows"] = Json::array();
  for (const DrawnWindow& window : windows)
    json["windows"].push_back(ToJson(window));
  PrintJson(json);
}

std::string Texts(const DrawnWindow& window) {
  std::string texts;
  for (const std::string* text : {&window.text1, &window.text2, &window.text3}) {
    if (!text->empty()) texts += (texts.empty() ? "" : " / ") + *text;
  }
  return texts;
}

void PrintTable(const std::vector<DrawnWindow>& windows) {
  Table table({"number", "width m", "length m", "pitch deg", "turned deg", "x", "y", "z", "code", "entities",
               "texts"});
  for (const DrawnWindow& window : windows) {
    const brevanta::WindowParams& p = window.params;
    const std::string entities = std::to_string(window.entities.size());
    if (!window.isComplete) {
      table.Add({std::to_string(window.number), "?", "?", "?", "?", "?", "?", "?", "?", entities,
                 "(description damaged)"});
      continue;
    }
    table.Add({std::to_string(window.number), fmt::format("{:g}", p.width), fmt::format("{:g}", p.length),
               fmt::format("{:.2f}", p.pitch), fmt::format("{:.1f}", geometry::RadToDeg(p.rotation)),
               fmt::format("{:.3f}", p.storedPoint.x), fmt::format("{:.3f}", p.storedPoint.y),
               fmt::format("{:.3f}", p.storedPoint.z), window.openingCode, entities, Texts(window)});
  }
  table.Print();
}

void RunList(const ListOptions& options) {
  const dxf::Document drawing = dxf::Document::Load(options.file);
  const DrawingUnit& unit = UnitOf(drawing, options.units);
  const std::vector<DrawnWindow> windows = FindWindows(drawing, unit.perMetre);
  if (options.asJson) {
    PrintWindows(windows, unit);
  } else if (windows.empty()) {
    fmt::print("{} holds no roof window.\n", options.file);
  } else {
    PrintTable(windows);
  }
}

}  // namespace

void AddListCommand(CLI::App& app) {
  CLI::App* command = app.add_subcommand("list", "List the roof windows of a drawing");
  const auto options = std::make_shared<ListOptions>();
  command->add_option("FILE", options->file, "the drawing")->required()->type_name("");
  command->add_option("--units", options->units, UNITS_HELP)->type_name("UNIT");
  command->add_flag("--json", options->asJson, JSON_HELP);
  command->footer(
      "Sizes are in metres, the place in drawing units; a window is turned by the angle of its lower edge\n"
      "counter-clockwise from the drawing's x axis.\n"
      "Example: teskarlt list house-with-window.dxf --json");
  command->callback([options] { RunList(*options); });
}

}  // namespace teskarlt
