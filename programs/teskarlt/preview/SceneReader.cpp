// SceneReader.cpp - turns entities into surfaces and curves.
#include "teskarlt/preview/SceneReader.h"

#include <algorithm>
#include <cmath>
#include <set>

#include <fmt/format.h>

#include "teskarlt/drawing/Blocks.h"
#include "teskarlt/drawing/Curves.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/EntityFaces.h"
#include "teskarlt/drawing/Rings.h"
#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/drawing/SurfaceOutline.h"
#include "teskarlt/drawing/UnitProposal.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodec.h"
#include "teskarlt/preview/Bridges.h"
#include "teskarlt/preview/SceneHoles.h"
#include "teskarlt/preview/Styles.h"
#include "teskarlt/preview/Texts.h"
#include "window/Parts.h"

namespace teskarlt::preview {

namespace {

using geometry::Matrix4;

constexpr std::size_t MOST_NESTED = 32;            // blocks in blocks
constexpr std::size_t MOST_ENTITIES = 20'000'000;  // with those of every inserted block
constexpr double FARTHEST = 1e12;                  // coordinate, in drawing units

// How an entity looks, after ByLayer and ByBlock.
struct Look {
  std::string layer{dxf::DEFAULT_LAYER};
  Colour colour = ColourOfNumber(dxf::COLOUR_WHITE);
  std::string linetype{dxf::LINETYPE_CONTINUOUS};
};

// Where the entities of a block come to lie.
struct Placement {
  Matrix4 matrix{};
  Look look;  // of the INSERT
  bool isBlock = false;
  std::size_t depth = 0;
  int window = NO_WINDOW;
};

std::string FileStem(const std::string& path) {
  const std::string name = path.substr(path.find_last_of("/\\") + 1);
  const auto dot = name.find_last_of('.');
  return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

bool IsLevel(const EntityFace& face) {
  return std::all_of(face.corners.begin(), face.corners.end(),
                     [&](const Vec3& corner) { return corner.z == face.corners.front().z; });
}

// Of outlines, keeps the faces that are surfaces: what lies level is a line of a plan, or its filling, and
// would hide the rest. Their edges are drawn otherwise: by lines.
void KeepSolid(EntityFaces& outlines) {
  if (outlines.isFlatKind) std::erase_if(outlines.faces, IsLevel);
  for (EntityFace& face : outlines.faces)
    face.hiddenEdges = ~0U;
}

// Its rings lie as far over its plane as its faces reach, and a little more.
SceneRoof ToSceneRoof(const RoofSurface& surface, const Roofs& roofs) {
  const SurfaceOutline outline = OutlineOf(surface, roofs.Faces(), roofs.Tolerance());
  const Vec3& normal = surface.plane.normal;
  SceneRoof roof{surface.name, normal, {}};
  for (const SlopeRing& ring : outline.rings) {
    std::vector<Vec3>& corners = roof.rings.emplace_back();
    for (const SlopePoint& corner : ring)
      corners.push_back(geometry::Moved(outline.frame.At(corner), normal, surface.warp + roofs.Tolerance()));
  }
  return roof;
}

class Reader {
 public:
  Reader(const dxf::Document& drawing, const SceneOptions& options)
      : drawing_(drawing), styles_(drawing), blocks_(ReadBlocks(drawing)) {
    for (const std::string& layer : options.layers)
      wanted_.insert(dxf::FoldedName(layer));
    const DrawingUnit* const unit = KnownUnit(drawing, options.units);
    scene_.file = drawing.FileName();
    scene_.name = FileStem(scene_.file);
    if (unit == nullptr) return;
    scene_.unit = unit->name;
    scene_.perMetre = unit->perMetre;
    working_ = unit->working;
  }

  Scene Run(const SceneOptions& options);

 private:
  void ReadWindows();
  void ReadRoofs(const AskedUnit& units);
  double Tolerance(const AskedUnit& units) const;
  void ReadEntity(const dxf::Entity& entity, const Placement& placement);
  void ReadAttributes(const std::vector<dxf::TagList>& lists, const Placement& placement);
  void AddTexts(const dxf::TagList& entity, const Look& look, const Placement& placement);
  void AddFillings(const std::vector<EntityFace>& faces, const Look& look, const Placement& placement);
  void ReadInsert(const dxf::TagList& insert, const Look& look, const Placement& placement);
  Look LookOf(const dxf::TagList& entity, const Placement& placement) const;
  bool IsVisible(const Look& look) const;
  std::size_t LayerIndex(const std::string& name);
  std::size_t PatternIndex(const std::string& linetype, double scale);
  void AddSurfaces(const std::vector<EntityFace>& faces, const dxf::TagList& entity, const Look& look,
                   const Placement& placement);
  void AddCurve(CurvePoints points, const dxf::TagList& entity, const Look& look, const Placement& placement,
                std::size_t outlined);
  void AddOutlines(const std::vector<EntityFace>& faces, const dxf::TagList& entity, const Look& look,
                   const Placement& placement, std::size_t surface);
  void Show(std::vector<Vec3>& points, const Placement& placement);

  const dxf::Document& drawing_;
  Styles styles_;
  Blocks blocks_;
  std::set<std::string> wanted_;
  WorkingUnit working_ = IN_DRAWING_UNITS;
  std::unordered_map<const dxf::Entity*, int> windowOf_;
  std::unordered_map<std::string, std::size_t> layerIndices_;
  std::set<std::string> planLayers_;  // of what only plans show
  std::map<DashPattern, std::size_t> patternIndices_;
  std::size_t entities_ = 0;
  std::vector<std::size_t> outlines_;  // surfaces of closed polylines, by number
  Scene scene_;
};

void Reader::ReadWindows() {
  for (const DrawnWindow& window : FindWindows(drawing_, working_)) {
    for (const dxf::Entity* entity : window.entities)
      windowOf_[entity] = static_cast<int>(scene_.windows.size());
    SceneWindow shown;
    shown.number = window.number;
    if (window.isComplete && scene_.perMetre > 0)
      shown.label = fmt::format("{:.2f} \u00d7 {:.2f} m", window.params.width, window.params.length);
    scene_.windows.push_back(std::move(shown));
  }
}

// A millimetre in drawing units.
double Reader::Tolerance(const AskedUnit& units) const {
  const DrawingUnit* const unit = KnownUnit(drawing_, units);
  return ToleranceToLookWith(drawing_, unit == nullptr ? UNSTATED : *unit);
}

// The sloped ones on layers that are seen.
void Reader::ReadRoofs(const AskedUnit& units) {
  const Roofs roofs = FindRoofs(drawing_, Tolerance(units));
  for (const RoofSurface& surface : roofs.Surfaces()) {
    if (!surface.isPlanar || IsFlat(surface)) continue;
    const bool isSeen = std::any_of(surface.faces.begin(), surface.faces.end(), [&](std::size_t face) {
      return layerIndices_.contains(dxf::FoldedName(roofs.Faces()[face].layer));
    });
    if (isSeen) scene_.roofs.push_back(ToSceneRoof(surface, roofs));
  }
}

Look Reader::LookOf(const dxf::TagList& entity, const Placement& placement) const {
  Look look;
  look.layer = entity.Text(dxf::CODE_LAYER, dxf::DEFAULT_LAYER);
  if (placement.isBlock && look.layer == dxf::DEFAULT_LAYER) look.layer = placement.look.layer;
  const dxf::Layer& layer = styles_.Layer(look.layer);
  const std::int64_t number = entity.Integer(dxf::CODE_COLOUR, dxf::COLOUR_BY_LAYER);
  if (entity.Has(dxf::CODE_TRUE_COLOUR)) {
    look.colour = ColourOfValue(entity.Integer(dxf::CODE_TRUE_COLOUR));
  } else if (number == dxf::COLOUR_BY_LAYER) {
    look.colour = ColourOfLayer(layer);
  } else {
    look.colour = number == dxf::COLOUR_BY_BLOCK ? placement.look.colour : ColourOfNumber(number);
  }
  look.linetype = entity.Text(dxf::CODE_LINETYPE, dxf::LINETYPE_BY_LAYER);
  if (dxf::SameName(look.linetype, dxf::LINETYPE_BY_LAYER)) look.linetype = layer.linetype;
  if (dxf::SameName(look.linetype, dxf::LINETYPE_BY_BLOCK)) look.linetype = placement.look.linetype;
  return look;
}

bool Reader::IsVisible(const Look& look) const {
  return IsVisibleLayer(styles_.Layer(look.layer)) &&
         (wanted_.empty() || wanted_.contains(dxf::FoldedName(look.layer)));
}

std::size_t Reader::LayerIndex(const std::string& name) {
  const auto [found, isNew] = layerIndices_.try_emplace(dxf::FoldedName(name), scene_.layers.size());
  if (isNew) scene_.layers.push_back({name, ColourOfLayer(styles_.Layer(name))});
  return found->second;
}

std::size_t Reader::PatternIndex(const std::string& linetype, double scale) {
  DashPattern pattern = styles_.Linetype(linetype);
  if (pattern.empty()) return 0;
  for (double& length : pattern)
    length *= scale;
  const auto [found, isNew] = patternIndices_.try_emplace(pattern, scene_.patterns.size());
  if (isNew) scene_.patterns.push_back(pattern);
  return found->second;
}

// Takes points to their place in the drawing and the picture's box around them.
void Reader::Show(std::vector<Vec3>& points, const Placement& placement) {
  for (Vec3& point : points) {
    if (placement.isBlock) geometry::MatTransformPoint(placement.matrix, point, point);
    scene_.box.Add(point);
    if (placement.window != NO_WINDOW)
      scene_.windows[static_cast<std::size_t>(placement.window)].box.Add(point);
  }
}

void Reader::AddSurfaces(const std::vector<EntityFace>& faces, const dxf::TagList& entity, const Look& look,
                         const Placement& placement) {
  for (const EntityFace& face : faces) {
    if (face.corners.size() < 3) continue;
    Surface surface{LineOverBridges(face.corners, face.holes),
                    face.hiddenEdges,
                    LayerIndex(look.layer),
                    look.colour,
                    false,
                    placement.window};
    Show(surface.corners, placement);
    if (placement.window != NO_WINDOW &&
        entity.Integer(dxf::CODE_COLOUR, dxf::COLOUR_BY_LAYER) == brevanta::GLASS_COLOUR) {
      surface.isGlass = true;
      const Vec3 normal = NormalOf(surface.corners);
      const double sign = normal.z < 0 ? -1 : 1;
      scene_.windows[static_cast<std::size_t>(placement.window)].facing = {sign * normal.x, sign * normal.y,
                                                                           sign * normal.z};
    }
    scene_.surfaces.push_back(std::move(surface));
  }
}

void Reader::AddCurve(CurvePoints points, const dxf::TagList& entity, const Look& look,
                      const Placement& placement, std::size_t outlined) {
  if (points.size() < 2) return;
  const double scale = std::abs(entity.Real(dxf::CODE_LINETYPE_SCALE, 1.0));
  Curve curve{std::move(points), LayerIndex(look.layer),
              look.colour,       PatternIndex(look.linetype, scale),
              placement.window,  outlined};
  Show(curve.points, placement);
  scene_.curves.push_back(std::move(curve));
}

// Of a hatch, which has no line of its own: around its faces and their holes. `surface` is the first one.
void Reader::AddOutlines(const std::vector<EntityFace>& faces, const dxf::TagList& entity, const Look& look,
                         const Placement& placement, std::size_t surface) {
  for (const EntityFace& face : faces) {
    if (face.corners.size() < 3) continue;
    const auto add = [&](CurvePoints ring) {
      ring.push_back(ring.front());
      AddCurve(std::move(ring), entity, look, placement, surface);
    };
    add(face.corners);
    std::for_each(face.holes.begin(), face.holes.end(), add);
    ++surface;
  }
}

// Texts stand where the entity does, also where that lies in a block.
void Reader::AddTexts(const dxf::TagList& entity, const Look& look, const Placement& placement) {
  std::vector<SceneText> texts = TextsOf(entity, drawing_);
  if (texts.empty()) return;
  ++scene_.planOnly[std::string(entity.Type())];
  planLayers_.insert(dxf::FoldedName(look.layer));
  for (SceneText& text : texts) {
    if (placement.isBlock) {
      geometry::MatTransformPoint(placement.matrix, text.at, text.at);
      geometry::MatTransformVector(placement.matrix, text.along, text.along);
      geometry::MatTransformVector(placement.matrix, text.up, text.up);
    }
    text.colour = look.colour;
    scene_.texts.push_back(std::move(text));
  }
}

// Of an INSERT: they stand beside it, not in its block.
void Reader::ReadAttributes(const std::vector<dxf::TagList>& lists, const Placement& placement) {
  for (const dxf::TagList& part : lists) {
    if (!dxf::SameName(part.Type(), dxf::TYPE_ATTRIBUTE)) continue;
    const Look look = LookOf(part, placement);
    if (part.Integer(dxf::CODE_INVISIBLE) == 0 && IsVisible(look)) AddTexts(part, look, placement);
  }
}

// The level faces of a hatch, which are no surfaces.
void Reader::AddFillings(const std::vector<EntityFace>& faces, const Look& look, const Placement& placement) {
  for (const EntityFace& face : faces) {
    if (face.corners.size() < 3 || !IsLevel(face)) continue;
    SceneFilling filling{{face.corners}, look.colour};
    filling.rings.insert(filling.rings.end(), face.holes.begin(), face.holes.end());
    if (placement.isBlock) {
      for (std::vector<Vec3>& ring : filling.rings) {
        for (Vec3& corner : ring)
          geometry::MatTransformPoint(placement.matrix, corner, corner);
      }
    }
    planLayers_.insert(dxf::FoldedName(look.layer));
    scene_.fillings.push_back(std::move(filling));
  }
}

// An INSERT, or a DIMENSION, whose block is drawn where it stands.
void Reader::ReadInsert(const dxf::TagList& insert, const Look& look, const Placement& placement) {
  const auto found = blocks_.find(dxf::FoldedName(insert.Text(dxf::CODE_NAME)));
  if (found == blocks_.end()) {
    ++scene_.leftOut[fmt::format("{} of a missing block", insert.Type())];
    return;
  }
  if (placement.depth == MOST_NESTED) drawing_.Source().Fail("holds blocks in blocks without an end");
  Placement inside = placement;
  inside.look = look;
  inside.isBlock = true;
  ++inside.depth;
  const auto readAt = [&](const Matrix4& matrix) {
    inside.matrix = matrix;
    if (placement.isBlock) geometry::MatMultiply(placement.matrix, matrix, inside.matrix);
    for (const dxf::Entity& entity : found->second.entities)
      ReadEntity(entity, inside);
  };
  if (found->second.entities.empty()) return;
  if (dxf::SameName(insert.Type(), dxf::TYPE_INSERT)) {
    const InsertCopies copies(insert, found->second.base);
    for (std::size_t copy = 0; copy < copies.Count(); ++copy)
      readAt(copies.At(copy));
  } else {
    Matrix4 where{};
    geometry::MatIdentity(where);
    readAt(where);
  }
}

void Reader::ReadEntity(const dxf::Entity& entity, const Placement& placement) {
  if (++entities_ > MOST_ENTITIES) drawing_.Source().Fail("holds too many entities for a picture");
  const std::vector<dxf::TagList> lists = drawing_.TagLists(entity.text);
  const dxf::TagList& own = lists.front();
  const Look look = LookOf(own, placement);
  const auto is = [&](std::string_view type) { return dxf::SameName(entity.type, type); };
  if (own.Integer(dxf::CODE_INVISIBLE) != 0 || !IsVisibleLayer(styles_.Layer(look.layer))) return;
  if (is(dxf::TYPE_INSERT) || is(dxf::TYPE_DIMENSION)) {
    ReadInsert(own, look, placement);
    ReadAttributes(lists, placement);
    return;
  }
  if (!IsVisible(look)) return;
  if (IsText(entity.type)) {
    AddTexts(own, look, placement);
    return;
  }
  EntityFaces faces = FacesOf(lists);
  std::optional<CurvePoints> points = PointsOf(lists);
  if (is(dxf::TYPE_HATCH)) AddFillings(faces.faces, look, placement);
  const bool isFilling = is(dxf::TYPE_HATCH) && !faces.faces.empty();
  if (points || is(dxf::TYPE_HATCH)) KeepSolid(faces);
  if (faces.faces.empty() && !points)
    ++(isFilling ? scene_.planOnly : scene_.leftOut)[std::string(entity.type)];
  const std::size_t next = scene_.surfaces.size();
  AddSurfaces(faces.faces, own, look, placement);
  if (points) {
    const bool isOutline = next < scene_.surfaces.size();
    if (isOutline && placement.window == NO_WINDOW) outlines_.push_back(next);
    AddCurve(*std::move(points), own, look, placement, isOutline ? next : NO_SURFACE);
  } else if (is(dxf::TYPE_HATCH)) {
    AddOutlines(faces.faces, own, look, placement, next);
  }
}

Scene Reader::Run(const SceneOptions& options) {
  ReadWindows();
  for (const dxf::Entity& entity : drawing_.Entities()) {
    Placement placement;
    const auto window = windowOf_.find(&entity);
    if (window != windowOf_.end()) placement.window = window->second;
    ReadEntity(entity, placement);
  }
  for (const std::string& layer : options.layers) {
    const std::string name = dxf::FoldedName(layer);
    if (!layerIndices_.contains(name) && !planLayers_.contains(name))
      drawing_.Source().Fail(fmt::format("nothing is to be seen on layer \"{}\"", layer));
  }
  if (scene_.box.IsEmpty()) drawing_.Source().Fail("nothing is to be seen in this drawing");
  if (outlines_.size() > 1) CutOutHoles(scene_, outlines_, Tolerance(options.units));
  if (options.withRoofs) ReadRoofs(options.units);
  const Box& box = scene_.box;
  for (const double reach : {box.low.x, box.low.y, box.low.z, box.high.x, box.high.y, box.high.z}) {
    if (!(std::abs(reach) <= FARTHEST)) drawing_.Source().Fail("reaches too far for a picture");
  }
  return std::move(scene_);
}

}  // namespace

Scene ReadScene(const dxf::Document& drawing, const SceneOptions& options) {
  return Reader(drawing, options).Run(options);
}

}  // namespace teskarlt::preview
