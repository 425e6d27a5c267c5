// WindowWords.cpp - what commands say of the windows that they insert, change and list.
#include "teskarlt/commands/WindowWords.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/commands/FieldWords.h"
#include "teskarlt/commands/LengthWords.h"
#include "teskarlt/commands/SaveDrawing.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/windows/ClosedLayers.h"
#include "teskarlt/windows/UnitChoice.h"
#include "window/Choices.h"
#include "window/EdgeHeights.h"

namespace teskarlt {

namespace {

Json AnswerJson(const WindowOptions& options, const PlacedWindow& window) {
  Json json;
  json["version"] = JSON_VERSION;
  json.AddMembers(WindowJson(window));
  options.target.AddTo(json);
  return json;
}

Json ChangesJson(const EditedWindow& window, const WindowReading& before, const dxf::Document& drawing) {
  Json json = Json::List();
  const brevanta::WindowParams from = WithDrawnPoints(before.params, window.placed.unit);
  const brevanta::WindowParams to = WithDrawnPoints(window.placed.record, window.placed.unit);
  for (const brevanta::RecordField* const field : window.changes) {
    json.Add(Json::Object({{"field", field->name},
                           {"from", FieldJson(from, *field, drawing)},
                           {"to", FieldJson(to, *field, drawing)}}));
  }
  if (window.placed.mark != window.markBefore) {
    json.Add(Json::Object(
        {{"field", "mark"}, {"from", MarkJson(window.markBefore)}, {"to", MarkJson(window.placed.mark)}}));
  }
  return json;
}

LengthWords WordsOf(const WindowOptions& options) {
  return LengthWords(StyleSaid(options.lengths));
}

void PrintPlace(const PlacedWindow& window, const LengthWords& words) {
  const brevanta::WindowParams& record = window.record;
  const std::string where = window.face ? fmt::format("roof {}, face {} of layer {}", window.face->roof,
                                                      window.face->name, window.face->layer)
                                        : "the given plane";
  const brevanta::Edges frame = brevanta::EdgesOf(window.outline, record.unitFactor);
  const brevanta::Edges recorded = brevanta::RecordedEdges(record);
  const std::string mark = window.mark.empty() ? std::string() : fmt::format(" ({})", window.mark);
  fmt::print("Window {}{}: {} x {} on {}, pitch {:.2f} degrees.\n", record.markerValue, mark,
             words.Size(record.width), words.SpokenSize(record.length), where, record.pitch);
  fmt::print("Its frame lies from {} to {}; lowerEdgeHeight {}, upperEdgeHeight {}.\n",
             words.Spoken(frame.lower), words.Spoken(frame.upper), words.Cell(recorded.lower),
             words.Cell(recorded.upper));
}

// What became of the window's entities; of a changed window, others have taken their places.
void PrintEntities(const WindowOptions& options, const PlacedWindow& window, bool isChange = false) {
  fmt::print(
      "{} faces and {} lines {}.\n", window.faces, window.lines,
      isChange ? options.target.Ending("redrawn", "be redrawn") : options.target.Ending("added", "be added"));
}

// Nothing drawn told the skirt's height, and the window now has one.
bool AssumesSkirt(const WindowReading& before, const brevanta::WindowParams& after) {
  const bool isUnknown =
      std::find(before.defaults.begin(), before.defaults.end(), "skirtHeight") != before.defaults.end();
  return isUnknown && (after.bodyAsFaces != brevanta::LINES_ONLY || DrawsSymbol(after));
}

// "width: 0.94 m -> 1.14 m" for each field.
std::vector<std::string> ChangeTexts(const EditedWindow& window, const WindowReading& before,
                                     const dxf::Document& drawing, const LengthWords& words) {
  const brevanta::WindowParams from = WithDrawnPoints(before.params, window.placed.unit);
  const brevanta::WindowParams to = WithDrawnPoints(window.placed.record, window.placed.unit);
  std::vector<std::string> texts;
  texts.reserve(window.changes.size());
  for (const brevanta::RecordField* const field : window.changes) {
    texts.push_back(OneLine(fmt::format("{}: {} -> {}", field->name, FieldText(from, *field, drawing, words),
                                        FieldText(to, *field, drawing, words))));
  }
  const auto shown = [](const std::string& mark) { return mark.empty() ? std::string("none") : mark; };
  if (window.placed.mark != window.markBefore)
    texts.push_back(fmt::format("mark: {} -> {}", shown(window.markBefore), shown(window.placed.mark)));
  return texts;
}

void PrintChanges(const EditedWindow& window, const WindowReading& before, const dxf::Document& drawing,
                  const LengthWords& words) {
  const brevanta::WindowParams& after = window.placed.record;
  const std::vector<std::string> texts = ChangeTexts(window, before, drawing, words);
  if (texts.empty()) fmt::print("No value changed; its description says again what is drawn.\n");
  for (const std::string& text : texts)
    fmt::print("{}\n", text);
  if (AssumesSkirt(before, after)) {
    fmt::print("skirtHeight: {} by default, since nothing drawn told it\n",
               words.SpokenSize(after.skirtHeight));
  }
}

// "Window 3: width: 0.94 m -> 1.14 m; openingCode: "D" -> "B"".
std::string EditedLine(const EditedWindow& window, const WindowReading& before, const dxf::Document& drawing,
                       const LengthWords& words) {
  std::string changes = fmt::format("{}", fmt::join(ChangeTexts(window, before, drawing, words), "; "));
  if (changes.empty())
    changes = window.isRewritten ? "its description says again what is drawn" : "nothing changes";
  return fmt::format("Window {}: {}", window.placed.record.markerValue, changes);
}

// For programs: the windows of a selection.
void PrintEdited(const ResultTarget& target, const std::vector<EditedWindow>& windows,
                 const std::vector<EditableWindow>& before, const dxf::Document& drawing) {
  Json json = Json::Object({{"version", JSON_VERSION}});
  json["windows"] = Json::List();
  for (std::size_t i = 0; i < windows.size(); ++i)
    json["windows"].Add(EditedJson(windows[i], before[i].reading, drawing));
  target.AddTo(json);
  PrintJson(json);
}

void WarnOfMisfits(const PlacedWindow& window) {
  const std::string misfit = MisfitWarning(window.record.markerValue, window.misfits);
  if (!misfit.empty()) TellWarning(misfit);
}

void Warn(const dxf::Document& drawing, const PlacedWindow& window) {
  WarnOfMisfits(window);
  WarnOfClosedLayers(drawing, window.layers);
  WarnOfTexts(drawing);
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
  json["mark"] = MarkJson(window.mark);
  json["roof"] = window.face ? Json(window.face->roof) : Json(nullptr);
  json["face"] = window.face ? Json(window.face->name) : Json(nullptr);
  json["pitch"] = record.pitch;
  const brevanta::RecordPoint place = ToDrawn(record.storedPoint, window.unit);
  json["place"] = Json::List({place.x, place.y, place.z});
  const brevanta::Edges recorded = brevanta::RecordedEdges(record);
  json["lowerEdgeHeight"] = recorded.lower;
  json["upperEdgeHeight"] = recorded.upper;
  json["frame"] = FrameJson(window.outline, record);
  json["unitFactor"] = UnitFactorJson(DrawingUnitsPerMetre(window.unit));
  json["faces"] = window.faces;
  json["lines"] = window.lines;
  json["warnings"] = window.misfits;
  return json;
}

Json EditedJson(const EditedWindow& window, const WindowReading& before, const dxf::Document& drawing) {
  Json json = WindowJson(window.placed);
  json["sources"] = SourcesJson(before);
  json["notes"] = before.notes;
  json["changes"] = ChangesJson(window, before, drawing);
  return json;
}

Json MarkJson(const std::string& mark) {
  return mark.empty() ? Json(nullptr) : Json(mark);
}

Json UnitJson(const DrawingUnit& unit) {
  return IsStated(unit) ? Json(unit.name) : Json(nullptr);
}

Json UnitFactorJson(double perMetre) {
  const auto whole = static_cast<std::int64_t>(perMetre);
  return static_cast<double>(whole) == perMetre ? Json(whole) : Json(perMetre);
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

void SaveAndTell(WindowOptions& options, dxf::Document& drawing, const PlacedWindow& window) {
  Warn(drawing, window);
  SaveDrawing(drawing, options.target);
  if (options.asJson) {
    PrintJson(AnswerJson(options, window));
  } else {
    PrintPlace(window, WordsOf(options));
    PrintEntities(options, window);
  }
}

void SaveAndTell(WindowOptions& options, dxf::Document& drawing, const std::vector<PlacedWindow>& windows) {
  PlacedWindow all;  // their sums
  for (const PlacedWindow& window : windows) {
    WarnOfMisfits(window);
    all.faces += window.faces;
    all.lines += window.lines;
    all.layers.insert(window.layers.begin(), window.layers.end());
  }
  WarnOfClosedLayers(drawing, all.layers);
  WarnOfTexts(drawing);
  SaveDrawing(drawing, options.target);
  if (options.asJson) {
    Json json = Json::Object({{"version", JSON_VERSION}});
    json["windows"] = Json::List();
    for (const PlacedWindow& window : windows)
      json["windows"].Add(WindowJson(window));
    options.target.AddTo(json);
    PrintJson(json);
    return;
  }
  for (const PlacedWindow& window : windows)
    PrintPlace(window, WordsOf(options));
  fmt::print("{} windows: ", windows.size());
  PrintEntities(options, all);
}

void SaveAndTell(WindowOptions& options, dxf::Document& drawing, const EditedWindow& window,
                 const WindowReading& before) {
  Warn(drawing, window.placed);
  if (window.isRewritten || options.target.IsNamed()) SaveDrawing(drawing, options.target);
  if (options.asJson) {
    Json json = AnswerJson(options, window.placed);
    json.AddMembers(EditedJson(window, before, drawing));
    PrintJson(json);
    return;
  }
  PrintPlace(window.placed, WordsOf(options));
  if (window.isRewritten) {
    PrintEntities(options, window.placed, true);
    PrintChanges(window, before, drawing, WordsOf(options));
  } else {
    fmt::print("Nothing changes: it stands there as ordered; {}.\n", options.target.UnchangedEnding());
  }
}

void SaveAndTell(WindowOptions& options, dxf::Document& drawing, const std::vector<EditedWindow>& windows,
                 const std::vector<EditableWindow>& before) {
  std::set<std::string> layers;
  std::size_t rewritten = 0;
  for (const EditedWindow& window : windows) {
    WarnOfMisfits(window.placed);
    layers.insert(window.placed.layers.begin(), window.placed.layers.end());
    if (window.isRewritten) ++rewritten;
  }
  WarnOfClosedLayers(drawing, layers);
  WarnOfTexts(drawing);
  if (rewritten > 0 || options.target.IsNamed()) SaveDrawing(drawing, options.target);
  if (options.asJson) {
    PrintEdited(options.target, windows, before, drawing);
    return;
  }
  for (std::size_t i = 0; i < windows.size(); ++i)
    fmt::print("{}\n", EditedLine(windows[i], before[i].reading, drawing, WordsOf(options)));
  if (rewritten > 0) {
    fmt::print("{} of {} window{} {}.\n", rewritten, windows.size(), windows.size() == 1 ? "" : "s",
               options.target.Ending("changed", "be changed"));
  } else {
    fmt::print("Nothing changes: the windows stand there as ordered; {}.\n",
               options.target.UnchangedEnding());
  }
}

}  // namespace teskarlt
