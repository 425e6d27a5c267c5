// RoofsCommand.cpp - the subcommand "roofs": lists the roof surfaces of a drawing.
#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <tuple>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/commands/LengthWords.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/UnitOptions.h"
#include "teskarlt/commands/WindowWords.h"
#include "teskarlt/drawing/RingsAround.h"
#include "teskarlt/drawing/RoofSearch.h"
#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/drawing/SurfaceOutline.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Report.h"

namespace teskarlt {

namespace {

struct RoofsOptions {
  std::string file;
  AskedUnit units;
  std::string lengths;
  bool isAll = false;
  bool asJson = false;
};

// A surface that can take a window, with what is told of it. Drawing units.
struct ListedSurface {
  const RoofSurface* surface;
  const RoofFace* largest;  // of its faces
  SurfaceOutline outline;
  double area;
  double eaves;  // heights
  double ridge;
  std::map<std::string, std::size_t> entities;  // how many of which type
};

// The surfaces that take a window, and the faces that take none: uneven ones, walls that are not quite
// upright, and vertical ones.
struct RoofList {
  std::vector<ListedSurface> sloped;
  std::vector<ListedSurface> flat;
  std::vector<const RoofFace*> warped;
  std::vector<const RoofFace*> steep;
  std::vector<RoofFace> walls;  // vertical faces, where all are asked for
};

// A mesh has many faces and is one entity: its handle stands before the first slash of their names.
std::map<std::string, std::size_t> EntitiesOf(const RoofSurface& surface, const Roofs& roofs) {
  std::map<std::string, std::set<std::string>> handles;
  for (const std::size_t number : surface.faces) {
    const RoofFace& face = roofs.Faces()[number];
    handles[face.type].insert(face.entity);
  }
  std::map<std::string, std::size_t> counts;
  for (const auto& [type, ofType] : handles)
    counts[type] = ofType.size();
  return counts;
}

ListedSurface Listed(const RoofSurface& surface, const Roofs& roofs) {
  ListedSurface listed{&surface, &roofs.Faces()[surface.faces.front()], {}, 0.0, 0.0, 0.0, {}};
  listed.outline = OutlineOf(surface, roofs.Faces(), roofs.Tolerance());
  listed.area = AreaWithin(listed.outline.rings);
  std::tie(listed.eaves, listed.ridge) = HeightRange(listed.outline);
  listed.entities = EntitiesOf(surface, roofs);
  return listed;
}

RoofList ListOf(const Roofs& roofs) {
  RoofList list;
  for (const RoofSurface& surface : roofs.Surfaces()) {
    if (surface.isPlanar) (IsFlat(surface) ? list.flat : list.sloped).push_back(Listed(surface, roofs));
  }
  for (const RoofFace& face : roofs.Faces()) {
    if (IsSteep(face)) {
      list.steep.push_back(&face);
    } else if (!IsPlanar(face, roofs.Tolerance())) {
      list.warped.push_back(&face);
    }
  }
  return list;
}

// Whoever misses a roof in the list learns why.
void TellOfLeftOut(const RoofList& list, const DrawingUnit& unit, const LengthWords& words) {
  const auto isOrAre = [](std::size_t count) { return count == 1 ? "is" : "are"; };
  const auto itOrThem = [](std::size_t count) { return count == 1 ? "it" : "them"; };
  if (const std::size_t count = list.flat.size(); count > 0) {
    TellNote(fmt::format("{} flat surface{} {} left out; --all lists {}", count, count == 1 ? "" : "s",
                         isOrAre(count), itOrThem(count)));
  }
  if (list.warped.empty()) return;
  const RoofFace& worst =
      **std::max_element(list.warped.begin(), list.warped.end(),
                         [](const auto* a, const auto* b) { return Warp(*a) < Warp(*b); });
  const std::size_t count = list.warped.size();
  TellNote(fmt::format(
      "{} face{} {} left out, not being planar: a corner of {} lies {} off its plane; --all lists {}", count,
      count == 1 ? "" : "s", isOrAre(count), worst.name, words.Spoken(Warp(worst) / unit.perMetre),
      itOrThem(count)));
}

Json ToJson(const geometry::Vec3& point) {
  return Json::List({point.x, point.y, point.z});
}

void AddDirection(const Plane& plane, Json& json) {
  const std::optional<double> fall = FallDirection(plane);
  json["pitch"] = Pitch(plane);
  json["fallDirection"] = fall ? Json(*fall) : Json(nullptr);
  json["compass"] = fall ? Json(CompassPoint(*fall)) : Json(nullptr);
}

Json ToJson(const ListedSurface& listed, const Roofs& roofs, const DrawingUnit& unit) {
  Json json;
  json["roof"] = listed.surface->name;
  json["layer"] = listed.largest->layer;
  AddDirection(listed.surface->plane, json);
  json["area"] = listed.area / (unit.perMetre * unit.perMetre);
  json["eavesHeight"] = listed.eaves / unit.perMetre;
  json["ridgeHeight"] = listed.ridge / unit.perMetre;
  for (const auto& [type, count] : listed.entities)
    json["entities"][type] = count;
  for (const std::size_t face : listed.surface->faces)
    json["faces"].Add(roofs.Faces()[face].name);
  for (const SlopeRing& ring : listed.outline.rings) {
    Json corners = Json::List();
    for (const SlopePoint& corner : ring)
      corners.Add(ToJson(listed.outline.frame.At(corner)));
    json["outline"].Add(std::move(corners));
  }
  return json;
}

// Null for a vertical face, which none of the roofs has.
const RoofSurface* SurfaceOf(const RoofFace& face, const Roofs& roofs) {
  return IsVertical(face) ? nullptr : roofs.SurfaceOf(face);
}

Json ToJson(const RoofFace& face, const Roofs& roofs, const DrawingUnit& unit) {
  const RoofSurface* surface = SurfaceOf(face, roofs);
  Json json;
  json["face"] = face.name;
  json["roof"] = surface != nullptr && surface->isPlanar ? Json(surface->name) : Json(nullptr);
  json["type"] = face.type;
  json["layer"] = face.layer;
  AddDirection(face.plane, json);
  if (IsVertical(face)) json["fallDirection"] = json["compass"] = nullptr;
  json["area"] = Area(face) / (unit.perMetre * unit.perMetre);
  for (const geometry::Vec3& corner : face.corners)
    json["corners"].Add(ToJson(corner));
  return json;
}

Json ToJson(const std::vector<ListedSurface>& surfaces, const Roofs& roofs, const DrawingUnit& unit) {
  return Json::ListOf(surfaces.size(), [&](std::size_t i) { return ToJson(surfaces[i], roofs, unit); });
}

void PrintRoofs(const RoofList& list, const Roofs& roofs, const RoofsOptions& options,
                const DrawingUnit& unit) {
  Json json;
  json["version"] = JSON_VERSION;
  json["units"] = UnitJson(unit);
  json["unitFactor"] = IsStated(unit) ? UnitFactorJson(unit.perMetre) : Json(nullptr);
  json["roofs"] = ToJson(list.sloped, roofs, unit);
  for (const auto& [kind, count] : roofs.Unread())
    json["unread"][kind] = count;
  json["flat"] = ToJson(list.flat, roofs, unit);
  json["warped"] = Json::List();
  for (const RoofFace* face : list.warped) {
    json["warped"].Add(Json::Object(
        {{"face", face->name}, {"layer", face->layer}, {"offPlane", Warp(*face) / unit.perMetre}}));
  }
  if (options.isAll) {
    const auto before = [&](std::size_t count, const auto& faceOf) {  // those, then the vertical ones
      return Json::ListOf(count + list.walls.size(), [=, &list, &roofs, &unit](std::size_t i) {
        return ToJson(i < count ? faceOf(i) : list.walls[i - count], roofs, unit);
      });
    };
    json["steep"] =
        before(list.steep.size(), [&](std::size_t i) -> const RoofFace& { return *list.steep[i]; });
    json["faces"] =
        before(roofs.Faces().size(), [&](std::size_t i) -> const RoofFace& { return roofs.Faces()[i]; });
  }
  PrintJson(json);
}

std::string FallText(const Plane& plane) {
  const std::optional<double> fall = FallDirection(plane);
  return fall ? fmt::format("{:.1f} {}", *fall, CompassPoint(*fall)) : "flat";
}

// "4 3DFACE, 1 POLYFACE MESH"
std::string EntitiesText(const ListedSurface& listed) {
  std::string text;
  for (const auto& [type, count] : listed.entities)
    text += fmt::format("{}{} {}", text.empty() ? "" : ", ", count, type);
  return text;
}

void PrintTable(const RoofList& list, bool withFlat, const DrawingUnit& unit, const LengthWords& words) {
  Table table({"roof", "layer", "pitch deg", "falls to deg", words.AreaColumn(), words.Column("eaves"),
               words.Column("ridge"), "made of"});
  const auto add = [&](const ListedSurface& listed) {
    const Plane& plane = listed.surface->plane;
    table.Add({listed.surface->name, listed.largest->layer, fmt::format("{:.2f}", Pitch(plane)),
               FallText(plane), words.AreaCell(listed.area / (unit.perMetre * unit.perMetre)),
               words.Cell(listed.eaves / unit.perMetre), words.Cell(listed.ridge / unit.perMetre),
               EntitiesText(listed)});
  };
  std::for_each(list.sloped.begin(), list.sloped.end(), add);
  if (withFlat) std::for_each(list.flat.begin(), list.flat.end(), add);
  table.Print();
}

// The name of the face's roof, or why it takes no window.
std::string Verdict(const RoofFace& face, const Roofs& roofs, const DrawingUnit& unit,
                    const LengthWords& words) {
  const RoofSurface* surface = SurfaceOf(face, roofs);
  if (surface != nullptr && surface->isPlanar) return surface->name;
  if (IsVertical(face)) return "none: vertical";
  if (IsSteep(face)) return "none: steeper than 85 degrees";
  return fmt::format("none: {} off its plane", words.Spoken(Warp(face) / unit.perMetre));
}

void PrintFaces(const RoofList& list, const Roofs& roofs, const DrawingUnit& unit, const LengthWords& words) {
  Table table({"face", "type", "layer", "pitch deg", "falls to deg", words.AreaColumn(), words.Column("from"),
               words.Column("to"), "roof"});
  const auto add = [&](const RoofFace& face) {
    const auto [low, high] = std::minmax_element(face.corners.begin(), face.corners.end(),
                                                 [](const auto& a, const auto& b) { return a.z < b.z; });
    table.Add({face.name, face.type, face.layer, fmt::format("{:.2f}", Pitch(face.plane)),
               IsVertical(face) ? "-" : FallText(face.plane),
               words.AreaCell(Area(face) / (unit.perMetre * unit.perMetre)),
               words.Cell(low->z / unit.perMetre), words.Cell(high->z / unit.perMetre),
               Verdict(face, roofs, unit, words)});
  };
  std::for_each(roofs.Faces().begin(), roofs.Faces().end(), add);
  std::for_each(list.walls.begin(), list.walls.end(), add);
  table.Print();
}

void RunRoofs(const RoofsOptions& options) {
  const dxf::Document drawing = dxf::Document::Load(options.file);
  const LookingUnit looking = UnitToLookIn(drawing, options.units);
  const DrawingUnit& unit = looking.unit;
  const LengthWords words(StyleSaid(options.lengths), IsStated(unit));
  const Roofs roofs = FindRoofs(drawing, looking.tolerance);
  RoofList list = ListOf(roofs);
  if (options.isAll) list.walls = FindWalls(drawing, looking.tolerance);
  if (!options.isAll) TellOfLeftOut(list, unit, words);
  if (const std::string unread = TextOf(roofs.Unread()); !unread.empty()) TellNote(unread);
  WarnOfTexts(drawing);
  if (options.asJson) {
    PrintRoofs(list, roofs, options, unit);
  } else if (list.sloped.empty() && (list.flat.empty() || !options.isAll)) {
    fmt::print("{} holds no {} that can take a roof window.\n", options.file,
               list.flat.empty() ? "planar face" : "sloped roof");
  } else {
    PrintTable(list, options.isAll, unit, words);
  }
  if (!options.isAll || options.asJson || (roofs.Faces().empty() && list.walls.empty())) return;
  fmt::print("\n");
  PrintFaces(list, roofs, unit, words);
}

}  // namespace

void AddRoofsCommand(OptionParser& parser) {
  Subcommand command = parser.Add("roofs", "List the roofs that can take a window");
  const auto options = std::make_shared<RoofsOptions>();
  command.Argument("FILE", options->file, "the drawing").Required();
  AddUnitOptions(command, options->units);
  AddLengthsOption(command, options->lengths);
  command.Flag("--all", options->isAll,
               "list flat roofs too, and the faces behind all of them with those that take no window: uneven "
               "ones and walls");
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "A roof is all faces that lie in one plane and touch. R1 is the one whose first face comes first in "
      "the\n"
      "file; the names stay while the roofs do not change, whatever windows come. A face is named by the\n"
      "handle of its entity; its roof is the last column. insert --on takes either name.\n"
      "The pitch is measured from the horizontal; the direction in which a roof falls counter-clockwise "
      "from\n"
      "the drawing's x axis, and by the compass with north along y.\n"
      "A face takes a window when its corners lie within 20 mm, or 1/500 of its extent where that is more,\n"
      "of its plane, and when it is no steeper than 85 degrees. A roof below 1 degree is flat.\n"
      "Example: teskarlt roofs house.dxf");
  command.Run([options] { RunRoofs(*options); });
}

}  // namespace teskarlt
