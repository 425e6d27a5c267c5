// WindowOptions.cpp - what the command lines that insert and change a window have in common.
#include "teskarlt/commands/WindowOptions.h"

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/catalogue/Catalogue.h"
#include "teskarlt/commands/ClosedLayers.h"
#include "teskarlt/drawing/RoofSearch.h"
#include "teskarlt/dxf/NewDrawing.h"
#include "teskarlt/dxf/tags/ExtendedData.h"
#include "teskarlt/modules/DataFolder.h"
#include "teskarlt/terminal/Numbers.h"
#include "teskarlt/terminal/Report.h"
#include "window/RecordFields.h"

namespace teskarlt {

namespace {

// A text in the drawing's code page, which extended data can hold in the drawing's version.
std::string StoredText(const std::string& utf8, const dxf::Document& drawing) {
  std::string bytes = drawing.ToCodePage(utf8);
  const std::size_t size = drawing.EncodedSize(bytes);
  if (size <= dxf::LONGEST_EXTENDED_TEXT) return bytes;
  throw Error(fmt::format("the text takes {} bytes in this drawing, and {} is the most that it can hold",
                          size, dxf::LONGEST_EXTENDED_TEXT));
}

// "field=value" into the answers; a text goes from the terminal's UTF-8 to the drawing's code page.
void TakeSetting(const std::string& setting, const dxf::Document& drawing, WindowRequest& request) {
  const auto equals = setting.find('=');
  if (equals == std::string::npos)
    throw Error(fmt::format("--set {}: a setting is FIELD=VALUE, as in --set width=0.94", setting));
  const std::string name = setting.substr(0, equals);
  const brevanta::RecordField* field = brevanta::FindRecordField(name);
  if (field == nullptr) {
    throw Error(
        fmt::format("--set {}: there is no such field; teskarlt insert --fields lists them", setting));
  }
  const std::string value = setting.substr(equals + 1);
  try {
    const bool isText = field->kind == brevanta::FieldKind::Text;
    request.answers[name] = isText ? StoredText(value, drawing) : value;
  } catch (const Error& error) {
    throw Error(fmt::format("--set {}: {}", name, error.what()), {.value = value});
  }
}

// The catalogue's item that the user named, in the drawing's code page.
void TakeWindow(const WindowOptions& options, const dxf::Document& drawing, Catalogues& catalogues,
                WindowRequest& request) {
  const auto [known, isNew] = catalogues.try_emplace(options.catalogue);
  Catalogue& catalogue = known->second;
  if (isNew || catalogue.sections.empty())
    catalogue = ReadCatalogue(options.catalogue.empty() ? DataFolder() : options.catalogue);
  const CatalogueItem& item = ChooseItem(catalogue, options.window);
  try {
    request.answers[brevanta::ANSWER_CATALOGUE_ITEM] = drawing.ToCodePage(CatalogueText(item.line));
    request.answers[brevanta::ANSWER_CATALOGUE_MAKER] =
        drawing.ToCodePage(CatalogueText(MakerOf(catalogue.sections[item.section])));
  } catch (const Error& error) {
    throw Error(fmt::format("--window {}: {}", options.window, error.what()), {.value = options.window});
  }
}

// The face that the user named, or the uppermost over the point.
const RoofFace& ChooseFace(const WindowOptions& options, const WindowRequest& request,
                           const std::vector<RoofFace>& faces) {
  if (!options.roofFace.empty()) {
    const std::vector<const RoofFace*> named = FacesNamed(faces, options.roofFace);
    if (named.size() == 1) return *named.front();
    if (named.size() > 1) {
      throw Error(
          fmt::format("--roof-face {}: {} faces of {} have that handle; leave it out, and --at chooses",
                      options.roofFace, named.size(), options.file));
    }
    throw Error(fmt::format("--roof-face {}: {} has no roof face of that name; teskarlt roofs lists them",
                            options.roofFace, options.file));
  }
  if (!request.point) throw Error("say where the window goes with --at X,Y");
  const auto [x, y] = *request.point;
  const RoofFace* over = UppermostOver(faces, x, y);
  if (over != nullptr) return *over;
  if (faces.empty())
    throw Error(fmt::format("{} holds no planar face that can take a roof window", options.file));
  throw Error(fmt::format("--at {}: no roof face lies over that point; the roofs lie within {}", options.at,
                          PlanExtents(faces)));
}

Json ToJson(const WindowOptions& options, const CommandOutcome& outcome, const RoofFace* face,
            const std::vector<std::string>& misfits, const WindowReading* edited, const std::string& target) {
  Json json;
  json["version"] = JSON_VERSION;
  json.AddMembers(WindowJson(outcome, face, misfits));
  if (edited != nullptr) {
    json["sources"] = SourcesJson(*edited);
    json["notes"] = edited->notes;
  }
  json["file"] = options.dryRun ? Json(nullptr) : Json(target);
  json["dryRun"] = options.dryRun;
  return json;
}

void PrintText(const WindowOptions& options, const CommandOutcome& outcome, const RoofFace* face,
               const WindowReading* edited, const std::string& target) {
  const brevanta::WindowParams& window = *outcome.confirmed;
  const std::string where =
      face == nullptr ? "the given plane" : fmt::format("face {} of layer {}", face->name, face->layer);
  fmt::print("Window {}: {:g} x {:g} m on {}, pitch {:.2f} degrees, lower edge at {:.3f} m.\n",
             window.markerValue, window.width, window.length, where, window.pitch, window.lowerEdgeHeight);
  fmt::print(
      "{} faces and {} lines {}.\n", outcome.faces, outcome.lines,
      options.dryRun ? "would be added; nothing was written (dry run)" : "added; written to " + target);
  if (edited == nullptr) return;
  fmt::print("Not in its description: {} from the geometry; {} by default.\n",
             fmt::join(edited->recovered, ", "), fmt::join(edited->defaults, ", "));
}

// The user's word goes before the header's, but a slip would make a window a thousand times too small.
void WarnOfOtherUnit(const WindowOptions& options, const dxf::Document& drawing, const DrawingUnit& unit) {
  if (options.units.empty() || drawing.Units() == dxf::UNITS_NONE || drawing.Units() == unit.insUnits) return;
  fmt::print(stderr,
             "teskarlt: warning: {} says that its unit is another one ($INSUNITS {}) than --units {}\n",
             options.file, drawing.Units(), options.units);
}

}  // namespace

Option AddWindowOptions(Subcommand& command, WindowOptions& options) {
  const Option at =
      command.Value("--at", options.at, "the place in the drawing; the uppermost roof face over it is taken")
          .Named("X,Y");
  const Option roofFace =
      command.Value("--roof-face", options.roofFace, "name of the roof face, as teskarlt roofs lists it")
          .Named("FACE");
  command.Values("--roof", 3, options.roof, "three points of the roof's plane")
      .Named("X,Y,Z")
      .Excludes(roofFace);
  const Option window =
      command.Value("--window", options.window, "a catalogue's window, whose sizes and texts are taken")
          .Named("MAKER/KEY")
          .NotEmpty();
  command
      .Value("--catalogue", options.catalogue,
             "the catalogue, or its folder; without it the one in the data folder")
      .Named("FILE")
      .NotEmpty()
      .Needs(window);
  command.Repeated("--set", options.settings, "a value of the window, as often as needed")
      .Named("FIELD=VALUE");
  command.Value("-o,--output", options.output, "the drawing to write; without it FILE is replaced")
      .Named("FILE")
      .NotEmpty();
  command.Value("--units", options.units, UNITS_HELP).Named("UNIT");
  command.Flag("--strict", options.isStrict,
               "refuse a window that overlaps another or does not lie on a roof face");
  command.Flag("--dry-run", options.dryRun, "say what would be done and write nothing");
  command.Flag("--json", options.asJson, JSON_HELP);
  return at;
}

const DrawingUnit& TakeUnit(const WindowOptions& options, dxf::Document& drawing) {
  const DrawingUnit& unit = UnitOf(drawing, options.units);
  WarnOfOtherUnit(options, drawing, unit);
  drawing.AssumeUnits(unit.insUnits);
  return unit;
}

void TakeAnswers(const WindowOptions& options, const dxf::Document& drawing, Catalogues& catalogues,
                 WindowRequest& request) {
  if (!options.window.empty()) TakeWindow(options, drawing, catalogues, request);
  for (const std::string& setting : options.settings)
    TakeSetting(setting, drawing, request);
  if (!options.at.empty()) request.point = ParsePlanPoint("--at", options.at);
}

const RoofFace* TakeRoof(const WindowOptions& options, const std::vector<RoofFace>& faces, double tolerance,
                         WindowRequest& request) {
  const bool hasPlaneField = request.answers.count("roofPlanePoints") != 0;
  if (hasPlaneField && (!options.roof.empty() || !options.roofFace.empty()))
    throw Error("--set roofPlanePoints gives the roof already; leave --roof and --roof-face out");
  if (!options.roof.empty()) {
    std::vector<geometry::Vec3> points;
    for (const std::string& point : options.roof)
      points.push_back(ParsePoint("--roof", point));
    request.faces = {points};
    return nullptr;
  }
  if (hasPlaneField) return nullptr;
  const RoofFace& face = ChooseFace(options, request, faces);
  BoundByFace(face, faces, tolerance, request);
  return &face;
}

void BoundByFace(const RoofFace& face, const std::vector<RoofFace>& faces, double tolerance,
                 WindowRequest& request) {
  request.faces = {face.corners};
  for (const RoofFace* other : CoplanarWith(face, faces, tolerance))
    request.faces.push_back(other->corners);
  request.isBounded = true;
}

Json WindowJson(const CommandOutcome& outcome, const RoofFace* face,
                const std::vector<std::string>& misfits) {
  const brevanta::WindowParams& window = *outcome.confirmed;
  Json json;
  json["number"] = window.markerValue;
  json["face"] = face == nullptr ? Json(nullptr) : Json(face->name);
  json["pitch"] = window.pitch;
  json["place"] = Json::List({window.storedPoint.x, window.storedPoint.y, window.storedPoint.z});
  json["lowerEdgeHeight"] = window.lowerEdgeHeight;
  json["unitFactor"] = window.unitFactor;
  json["faces"] = outcome.faces;
  json["lines"] = outcome.lines;
  json["warnings"] = misfits;
  return json;
}

Json SourcesJson(const WindowReading& reading) {
  Json json = Json::Object();
  for (const std::string& field : reading.recovered)
    json[field] = "geometry";
  for (const std::string& field : reading.defaults)
    json[field] = "default";
  return json;
}

const std::string& TargetOf(const WindowOptions& options) {
  return options.output.empty() ? options.file : options.output;
}

void SaveAndReport(const WindowOptions& options, const dxf::Document& drawing, const CommandOutcome& outcome,
                   const RoofFace* face, const std::vector<std::string>& misfits,
                   const WindowReading* edited) {
  const std::string& target = TargetOf(options);
  WarnOfClosedLayers(drawing, outcome.layers);
  if (!options.dryRun) drawing.Save(target);
  if (options.asJson) {
    PrintJson(ToJson(options, outcome, face, misfits, edited, target));
  } else {
    PrintText(options, outcome, face, edited, target);
  }
}

void RefuseMisfits(const WindowOptions& options, const std::vector<std::string>& misfits) {
  if (options.isStrict && !misfits.empty())
    throw Error(fmt::format("--strict: the window is refused; {}", fmt::join(misfits, " and ")));
}

void WarnOfMisfits(std::string_view place, std::int32_t number, const std::vector<std::string>& misfits) {
  if (misfits.empty()) return;
  fmt::print(stderr, "teskarlt: {}warning: window {}: {}\n", place, number, fmt::join(misfits, " and "));
}

}  // namespace teskarlt
