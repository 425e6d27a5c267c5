// PlanPicture.cpp - the surfaces and lines of a plan on paper.
#include "teskarlt/plot/PlanPicture.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>

#include <fmt/format.h>

#include "geometry/Vectors.h"
#include "teskarlt/preview/PaintOrder.h"
#include "teskarlt/preview/SvgText.h"
#include "teskarlt/preview/VisibleLines.h"

namespace teskarlt::plot {

namespace {

using geometry::Vec3;
using preview::Escaped;
using preview::Number;
using preview::VisibleLine;

constexpr double EDGE_WIDTH = 0.25;  // of lines
constexpr double CURVE_WIDTH = 0.18;
constexpr double SHORTEST_LINE = 0.05;
constexpr double SHORTEST_PERIOD = 1.5;  // of dashes that can be told apart
constexpr double CLIP_MARGIN = 0.5;
constexpr double WASH = 0.72;  // share of white in the colours of surfaces
constexpr std::string_view GLASS_GROUND = R"( fill="#e6eff5" stroke="none")";

std::uint8_t Washed(std::uint8_t channel) {
  return static_cast<std::uint8_t>(channel + (255 - channel) * WASH);
}

Vec3 InMetres(const Vec3& p, const preview::Scene& scene) {
  return {p.x / scene.perMetre, p.y / scene.perMetre, p.z / scene.perMetre};
}

class Writer {
 public:
  Writer(const PlanPicture& picture, Canvas& canvas)
      : scene_(*picture.scene),
        view_(*preview::FindView("plan")),
        picture_(picture),
        canvas_(canvas),
        order_(preview::PaintOrder(scene_, view_)),
        lines_(preview::VisibleLines(scene_, view_, picture.frame)) {}

  void Run(const std::vector<Quad>& footprints) {
    BeginClip();
    Surfaces(false);
    Fillings();
    Layers();
    canvas_.BeginGroup("windows");
    for (const Quad& footprint : footprints)
      canvas_.Shape({footprint.begin(), footprint.end()}, GLASS_GROUND);
    Surfaces(true);
    Lines([](const VisibleLine& line) { return line.window != preview::NO_WINDOW; });
    canvas_.EndGroup();
    Texts();
    canvas_.EndGroup();
  }

 private:
  // Of a point that is projected from above.
  PaperPoint Place(const Vec3& p) const { return picture_.map.Of(InMetres(p, scene_)); }
  double OnPaper(double length) const { return picture_.map.OnPaper(length / scene_.perMetre); }

  void BeginClip();
  void Surfaces(bool ofWindows);
  void Fillings();
  void Layers();
  void Texts();
  template <typename Condition>
  void Lines(const Condition& isMeant);
  void Path(const std::string& path, const VisibleLine& line);
  std::string DashText(const VisibleLine& line) const;

  const preview::Scene& scene_;
  const preview::View& view_;
  const PlanPicture& picture_;
  Canvas& canvas_;
  std::vector<std::size_t> order_;
  std::vector<VisibleLine> lines_;
};

void Writer::BeginClip() {
  const preview::Frame& frame = picture_.frame;
  const PaperPoint corner = Place({frame.left, frame.top, 0});
  const PaperPoint other = Place({frame.right, frame.bottom, 0});
  canvas_.Put("<clipPath id=\"shown\">\n");
  canvas_.Box(Grown({corner.x, corner.y, other.x, other.y}, CLIP_MARGIN));
  canvas_.Put("</clipPath>\n");
  canvas_.BeginGroup("plan",
                     " clip-path=\"url(#shown)\" fill=\"none\" stroke-linecap=\"round\" "
                     "stroke-linejoin=\"round\"");
}

void Writer::Surfaces(bool ofWindows) {
  canvas_.BeginGroup(ofWindows ? "window-surfaces" : "surfaces", " stroke-width=\"0.1\"");
  for (const std::size_t index : order_) {
    const preview::Surface& surface = scene_.surfaces[index];
    if ((surface.window != preview::NO_WINDOW) != ofWindows) continue;
    const preview::Colour paint = preview::Lit(
        preview::PaintOf(surface), preview::Brightness(view_, preview::NormalOf(surface.corners)));
    const std::string colour = preview::Hex({Washed(paint.red), Washed(paint.green), Washed(paint.blue)});
    std::vector<PaperPoint> corners;
    corners.reserve(surface.corners.size());
    for (const Vec3& corner : surface.corners)
      corners.push_back(Place(corner));
    canvas_.Shape(corners, fmt::format(R"( fill="{0}" stroke="{0}")", colour));
  }
  canvas_.EndGroup();
}

void Writer::Fillings() {
  if (scene_.fillings.empty()) return;
  canvas_.BeginGroup("fillings", R"( fill-rule="evenodd" fill-opacity="0.2" stroke-width="0.13")");
  for (const preview::SceneFilling& filling : scene_.fillings) {
    std::string path;
    for (const std::vector<Vec3>& ring : filling.rings) {
      for (std::size_t i = 0; i < ring.size(); ++i)
        path += (i == 0 ? "M" : "L") + At(Place(ring[i]));
      path += "Z";
    }
    canvas_.Put(fmt::format("<path fill=\"{0}\" stroke=\"{0}\" d=\"{1}\"/>\n",
                            preview::Hex(preview::Ink(filling.colour)), path));
  }
  canvas_.EndGroup();
}

void Writer::Texts() {
  if (scene_.texts.empty()) return;
  canvas_.BeginGroup("texts", " stroke=\"none\"");
  for (const preview::SceneText& text : scene_.texts) {
    const PaperPoint at = Place(text.at);
    canvas_.Put(preview::TextElement(text, {{at.x, at.y, 0},
                                            {OnPaper(text.along.x), -OnPaper(text.along.y), 0},
                                            {OnPaper(text.up.x), -OnPaper(text.up.y), 0}}));
  }
  canvas_.EndGroup();
}

void Writer::Layers() {
  for (std::size_t layer = 0; layer < scene_.layers.size(); ++layer) {
    canvas_.BeginGroup(fmt::format("layer-{}", layer),
                       fmt::format(R"( inkscape:groupmode="layer" inkscape:label="{}")",
                                   Escaped(scene_.layers[layer].name)));
    Lines([layer](const VisibleLine& line) {
      return line.layer == layer && line.window == preview::NO_WINDOW;
    });
    canvas_.EndGroup();
  }
}

// One path for neighbouring lines of the same look.
template <typename Condition>
void Writer::Lines(const Condition& isMeant) {
  std::string path;
  std::string end;
  const VisibleLine* last = nullptr;
  for (const VisibleLine& line : lines_) {
    if (!isMeant(line) || LengthOf({Place(line.a), Place(line.b)}) < SHORTEST_LINE) continue;
    const bool joins = last != nullptr && last->colour == line.colour && last->isEdge == line.isEdge &&
                       last->pattern == 0 && line.pattern == 0;
    if (!joins && last != nullptr) {
      Path(path, *last);
      path.clear();
      end.clear();
    }
    const std::string from = At(Place(line.a));
    if (from != end) path += "M" + from;
    end = At(Place(line.b));
    path += "L" + end;
    last = &line;
  }
  if (last != nullptr) Path(path, *last);
}

void Writer::Path(const std::string& path, const VisibleLine& line) {
  canvas_.Put(fmt::format("<path stroke=\"{}\" stroke-width=\"{}\"{} d=\"{}\"/>\n",
                          preview::Hex(preview::Ink(line.colour)), line.isEdge ? EDGE_WIDTH : CURVE_WIDTH,
                          DashText(line), path));
}

// stroke-dasharray and its offset; empty for an unbroken line.
std::string Writer::DashText(const VisibleLine& line) const {
  preview::DashPattern pattern = scene_.patterns[line.pattern];
  for (double& length : pattern)
    length = OnPaper(length);
  double period = 0;
  std::string lengths;
  for (const double length : preview::ReadablePattern(pattern, SHORTEST_PERIOD)) {
    period += length;
    lengths += (lengths.empty() ? "" : ",") + Number(length);
  }
  if (lengths.empty()) return {};
  std::string text = fmt::format(R"( stroke-dasharray="{}" stroke-linecap="butt")", lengths);
  const double offset = std::fmod(OnPaper(line.offset), period);
  if (Number(offset) != "0") text += fmt::format(" stroke-dashoffset=\"{}\"", Number(offset));
  return text;
}

// Along the window's lower edge and square to it, as far as the points reach.
class Footprint {
 public:
  Footprint(const PlanWindow& window, const PlanMap& map)
      : map_(map), along_(DirectionOf({map.Of(window.frame[0]), map.Of(window.frame[3])})) {
    for (const Vec3& corner : window.frame)
      Add(corner);
  }

  void Add(const Vec3& p) {
    const PaperPoint at = map_.Of(p);
    const double x = at.x * along_.x + at.y * along_.y;
    const double y = at.y * along_.x - at.x * along_.y;
    box_ = {std::min(box_.left, x), std::min(box_.top, y), std::max(box_.right, x), std::max(box_.bottom, y)};
  }

  Quad Corners() const {
    const PaperPoint middle = box_.Middle();
    return QuadAround({middle.x * along_.x - middle.y * along_.y, middle.x * along_.y + middle.y * along_.x},
                      along_, {box_.Width(), box_.Height()});
  }

 private:
  const PlanMap& map_;
  PaperPoint along_;
  PaperBox box_{HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL};
};

}  // namespace

void DrawPlan(const PlanPicture& picture, const std::vector<Quad>& footprints, Canvas& canvas) {
  Writer(picture, canvas).Run(footprints);
}

std::vector<Quad> FootprintsOf(const std::vector<PlanWindow>& windows, const PlanPicture& picture) {
  const preview::Scene& scene = *picture.scene;
  std::vector<Footprint> footprints;
  footprints.reserve(windows.size());
  std::unordered_map<int, std::size_t> byNumber;
  for (const PlanWindow& window : windows) {
    byNumber.try_emplace(window.number, footprints.size());
    footprints.emplace_back(window, picture.map);
  }
  const auto add = [&](const std::vector<Vec3>& points, int window) {
    if (window == preview::NO_WINDOW) return;
    const auto found = byNumber.find(scene.windows[static_cast<std::size_t>(window)].number);
    if (found == byNumber.end()) return;
    for (const Vec3& point : points)
      footprints[found->second].Add(InMetres(point, scene));
  };
  for (const preview::Surface& surface : scene.surfaces)
    add(surface.corners, surface.window);
  for (const preview::Curve& curve : scene.curves)
    add(curve.points, curve.window);
  std::vector<Quad> quads;
  quads.reserve(footprints.size());
  for (const Footprint& footprint : footprints)
    quads.push_back(footprint.Corners());
  return quads;
}

std::vector<Quad> TextRoomOf(const PlanPicture& picture) {
  const preview::Scene& scene = *picture.scene;
  std::vector<Quad> room;
  room.reserve(scene.texts.size());
  for (const preview::SceneText& text : scene.texts) {
    const PaperPoint at = picture.map.Of(InMetres(text.at, scene));
    const PaperPoint end = picture.map.Of(InMetres(geometry::Sum(text.at, text.along), scene));
    const PaperPoint top = picture.map.Of(InMetres(geometry::Sum(text.at, text.up), scene));
    const double height = LengthOf({at, top});
    const double width = TextWidth(text.text, LengthOf({at, end}) / CAPITAL);
    const double fromStart = text.anchor == preview::TextAnchor::Start    ? 0.5
                             : text.anchor == preview::TextAnchor::Middle ? 0
                                                                          : -0.5;
    const PaperPoint along = DirectionOf({at, end});
    const PaperPoint middle = Moved(Moved(at, along, fromStart * width), DirectionOf({at, top}), height / 2);
    room.push_back(QuadAround(middle, along, {width, height}));
  }
  return room;
}

}  // namespace teskarlt::plot
