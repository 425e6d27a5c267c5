// WindowWords.cpp - what commands say of the windows that they insert, change and list.
#include "teskarlt/commands/WindowWords.h"

#include <fmt/format.h>

#include "teskarlt/commands/SaveDrawing.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/windows/ClosedLayers.h"
#include "teskarlt/windows/UnitChoice.h"
#include "window/EdgeHeights.h"

namespace teskarlt {

namespace {

Json AnswerJson(const WindowOptions& options, const PlacedWindow& window, const WindowReading* edited) {
  Json json;
  json["version"] = JSON_VERSION;
  json.AddMembers(WindowJson(window));
  if (edited != nullptr) {
    json["sources"] = SourcesJson(*edited);
    json["notes"] = edited->notes;
  }
  options.target.AddTo(json);
  return json;
}

void PrintText(const WindowOptions& options, const PlacedWindow& window, const WindowReading* edited) {
  const brevanta::WindowParams& record = window.record;
  const std::string where = window.face
                                ? fmt::format("face {} of layer {}", window.face->name, window.face->layer)
                                : "the given plane";
  const brevanta::Edges frame = brevanta::EdgesOf(window.outline, record.unitFactor);
  const brevanta::Edges recorded = brevanta::RecordedEdges(record);
  fmt::print("Window {}: {:g} x {:g} m on {}, pitch {:.2f} degrees.\n", record.markerValue, record.width,
             record.length, where, record.pitch);
  fmt::print("Its frame lies from {:.3f} m to {:.3f} m; lowerEdgeHeight {:.3f}, upperEdgeHeight {:.3f}.\n",
             frame.lower, frame.upper, recorded.lower, recorded.upper);
  fmt::print("{} faces and {} lines {}.\n", window.faces, window.lines,
             options.target.Ending("added", "be added"));
  if (edited == nullptr) return;
  fmt::print("Not in its description: {} from the geometry; {} by default.\n",
             fmt::join(edited->recovered, ", "), fmt::join(edited->defaults, ", "));
}

}  // namespace

const DrawingUnit& ChooseUnitAndWarn(dxf::Document& drawing, const AskedUnit& asked) {
  const UnitChoice choice = ChooseUnit(drawing, asked);
  if (!choice.warning.empty()) TellWarning(choice.warning);
  return choice.unit;
}

std::string MisfitWarning(std::int32_t number, const std::vector<std::string>& misfits) {
  return misfits.empty() ? "" : fmt::format("window {}: {}", number, fmt::join(misfits, " and "));
}

void WarnOfClosedLayers(const dxf::Document& drawing, const std::set<std::string>& layers) {
  for (const std::string& warning : ClosedLayerWarnings(drawing, layers))
    TellWarning(warning);
}

void WarnOfTexts(const dxf::Document& drawing) {
  const std::string note = drawing.TextNote();
  if (!note.empty()) TellWarning(fmt::format("{}: {}", drawing.FileName(), note));
}

Json WindowJson(const PlacedWindow& window) {
  const brevanta::WindowParams& record = window.record;
  Json json;
  json["number"] = record.markerValue;
  json["face"] = window.face ? Json(window.face->name) : Json(nullptr);
  json["pitch"] = record.pitch;
  json["place"] = Json::List({record.storedPoint.x, record.storedPoint.y, record.storedPoint.z});
  const brevanta::Edges recorded = brevanta::RecordedEdges(record);
  json["lowerEdgeHeight"] = recorded.lower;
  json["upperEdgeHeight"] = recorded.upper;
  json["frame"] = FrameJson(window.outline, record);
  json["unitFactor"] = record.unitFactor;
  json["faces"] = window.faces;
  json["lines"] = window.lines;
  json["warnings"] = window.misfits;
  return json;
}

Json FrameJson(const std::optional<Outline>& outline, const brevanta::WindowParams& record) {
  if (!outline) return nullptr;
  const brevanta::Edges frame = brevanta::EdgesOf(*outline, record.unitFactor);
  return Json::Object({{"lowerEdge", frame.lower}, {"upperEdge", frame.upper}});
}

Json SourcesJson(const WindowReading& reading) {
  Json json = Json::Object();
  for (const std::string& field : reading.recovered)
    json[field] = "geometry";
  for (const std::string& field : reading.defaults)
    json[field] = "default";
  return json;
}

void SaveAndTell(WindowOptions& options, const dxf::Document& drawing, const PlacedWindow& window,
                 const WindowReading* edited) {
  const std::string misfit = MisfitWarning(window.record.markerValue, window.misfits);
  if (!misfit.empty()) TellWarning(misfit);
  WarnOfClosedLayers(drawing, window.layers);
  WarnOfTexts(drawing);
  SaveDrawing(drawing, options.target);
  if (options.asJson) {
    PrintJson(AnswerJson(options, window, edited));
  } else {
    PrintText(options, window, edited);
  }
}

}  // namespace teskarlt
