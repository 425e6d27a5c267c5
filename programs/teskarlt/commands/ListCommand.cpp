// ListCommand.cpp - the subcommand "list": lists the roof windows of a drawing.
#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "teskarlt/commands/FieldWords.h"
#include "teskarlt/commands/LengthWords.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/UnitOptions.h"
#include "teskarlt/commands/WindowWords.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/windows/WindowListing.h"
#include "window/EdgeHeights.h"
#include "window/RecordFields.h"

namespace teskarlt {

namespace {

struct ListOptions {
  std::string file;
  AskedUnit units;
  std::string lengths;
  bool asJson = false;
};

// Texts as they were read, which may be longer than the record holds; the opening code, which is ASCII, as
// the window stands now.
Json ListedJson(const DrawnWindow& window, const brevanta::WindowParams& params,
                const brevanta::RecordField& field, const dxf::Document& drawing) {
  const bool isText = field.kind == brevanta::FieldKind::Text && field.name != "openingCode";
  return isText ? Json(window.*TextMember(field)) : FieldJson(params, field, drawing);
}

// Every field, under its name in the record.
Json FieldsJson(const DrawnWindow& window, const brevanta::WindowParams& params,
                const dxf::Document& drawing) {
  Json json;
  for (const brevanta::RecordField* field : brevanta::LISTED_FIELDS)
    json[field->name] = ListedJson(window, params, *field, drawing);
  return json;
}

Json ToJson(const ListedWindow& row, const dxf::Document& drawing) {
  const auto& [window, reading] = row;
  const brevanta::WindowParams params = WithDrawnPoints(reading.params, window.unit);
  const std::optional<double> fall = window.isComplete ? FallDirection(reading.params) : std::nullopt;
  Json json;
  json["number"] = window.number;
  json["mark"] = MarkJson(window.mark);
  json["complete"] = window.isComplete;
  json["editable"] = reading.obstacle.empty() && reading.longText.empty();
  json["mirrored"] = reading.isMirrored;
  json["faces"] = window.faces;
  json["lines"] = window.entities.size() - window.faces;
  json["fallDirection"] = fall ? Json(*fall) : Json(nullptr);
  json["frame"] = FrameJson(reading.outline, reading.params);
  json["fields"] = window.isComplete ? FieldsJson(window, params, drawing) : Json(nullptr);
  json["sources"] = SourcesJson(reading);
  json["notes"] = reading.notes;
  return json;
}

void PrintRows(const std::vector<ListedWindow>& rows, const dxf::Document& drawing, const DrawingUnit& unit) {
  Json json;
  json["version"] = JSON_VERSION;
  json["units"] = UnitJson(unit);
  json["windows"] = Json::List();
  for (const ListedWindow& row : rows)
    json["windows"].Add(ToJson(row, drawing));
  PrintJson(json);
}

std::string Texts(const DrawnWindow& window) {
  std::string texts;
  for (const std::string* text : {&window.text1, &window.text2, &window.text3}) {
    if (!text->empty()) texts += (texts.empty() ? "" : " / ") + *text;
  }
  return texts;
}

std::string FallText(const brevanta::WindowParams& params) {
  const std::optional<double> fall = FallDirection(params);
  return fall ? fmt::format("{:.1f}", *fall) : "flat";
}

// The height of an edge of the frame as it is drawn, and in brackets what the record says where it is
// another.
std::string EdgeText(const WindowReading& reading, double brevanta::Edges::*edge, const LengthWords& words) {
  const std::string recorded = words.Cell(brevanta::RecordedEdges(reading.params).*edge);
  if (!reading.outline) return fmt::format("({})", recorded);
  const std::string drawn = words.Cell(brevanta::EdgesOf(*reading.outline, reading.params.unitFactor).*edge);
  return drawn == recorded ? drawn : fmt::format("{} ({})", drawn, recorded);
}

std::vector<std::string> TableRow(const ListedWindow& row, const LengthWords& words) {
  const auto& [window, reading] = row;
  const std::string number = std::to_string(window.number);
  const std::string entities = std::to_string(window.entities.size());
  if (!window.isComplete)
    return {number, "?", "?", "?", "?", "?", "?", "?", "?", "?", "?", entities, "(description damaged)"};
  const brevanta::WindowParams p = WithDrawnPoints(reading.params, window.unit);
  return {number,
          words.Size(p.width),
          words.Size(p.length),
          fmt::format("{:.2f}", p.pitch),
          FallText(p),
          EdgeText(reading, &brevanta::Edges::lower, words),
          EdgeText(reading, &brevanta::Edges::upper, words),
          fmt::format("{:.3f}", p.storedPoint.x),
          fmt::format("{:.3f}", p.storedPoint.y),
          fmt::format("{:.3f}", p.storedPoint.z),
          p.openingCode,
          entities,
          Texts(window)};
}

// Marks have a column where there are any, behind the numbers.
void PrintTable(const std::vector<ListedWindow>& rows, const LengthWords& words) {
  const bool hasMarks =
      std::any_of(rows.begin(), rows.end(), [](const ListedWindow& row) { return !row.window.mark.empty(); });
  const auto withMark = [&](std::vector<std::string> cells, const std::string& mark) {
    if (hasMarks) cells.insert(cells.begin() + 1, OneLine(mark));
    return cells;
  };
  Table table(withMark(
      {"number", words.Column("width"), words.Column("length"), "pitch deg", "falls to deg",
       words.Column("lower edge"), words.Column("upper edge"), "x", "y", "z", "code", "entities", "texts"},
      "mark"));
  for (const ListedWindow& row : rows)
    table.Add(withMark(TableRow(row, words), row.window.mark));
  table.Print();
  for (const auto& [window, reading] : rows) {
    for (const std::string& note : reading.notes)
      fmt::print("window {}: {}\n", window.number, note);
  }
}

void RunList(const ListOptions& options) {
  const dxf::Document drawing = dxf::Document::Load(options.file);
  const DrawingUnit& unit = UnitToLookIn(drawing, options.units).unit;
  const std::vector<ListedWindow> rows = ListWindows(drawing, unit.working);
  WarnOfTexts(drawing);
  if (options.asJson) {
    PrintRows(rows, drawing, unit);
  } else if (rows.empty()) {
    fmt::print("{} holds no roof window.\n", options.file);
  } else {
    PrintTable(rows, LengthWords(StyleSaid(options.lengths), IsStated(unit)));
  }
}

}  // namespace

void AddListCommand(OptionParser& parser) {
  Subcommand command = parser.Add("list", "List the roof windows of a drawing");
  const auto options = std::make_shared<ListOptions>();
  command.Argument("FILE", options->file, "the drawing").Required();
  AddUnitOptions(command, options->units);
  AddLengthsOption(command, options->lengths);
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "Sizes are in metres, or as --lengths says, the place in drawing units; the direction in which the "
      "roof falls is in degrees\n"
      "counter-clockwise from the drawing's x axis. The edges are those of the frame as it is drawn; in "
      "brackets\n"
      "stands what the record says where it is another height. Windows that another program moved, turned, "
      "mirrored or\n"
      "scaled are listed as they stand in the drawing, with a note; those that cannot be changed any more "
      "as\n"
      "their descriptions say.\n"
      "Example: teskarlt list house-with-window.dxf --json");
  command.Run([options] { RunList(*options); });
}

}  // namespace teskarlt
