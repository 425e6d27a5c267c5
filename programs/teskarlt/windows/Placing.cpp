// Placing.cpp - finds the point for which an order's words stand.
#include "teskarlt/windows/Placing.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include <fmt/format.h>

#include "geometry/Vectors.h"
#include "teskarlt/Error.h"
#include "teskarlt/drawing/RingsAround.h"
#include "teskarlt/drawing/SlopeReach.h"
#include "teskarlt/drawing/SurfaceOutline.h"

namespace teskarlt {

namespace {

constexpr double MILLIMETRES_A_METRE = 1000.0;

// The one word of a list that is given; none when none is.
using GivenWord = std::pair<const char*, bool>;
const char* OneOf(const std::vector<GivenWord>& words, const char* what) {
  const char* given = nullptr;
  for (const auto& [name, isGiven] : words) {
    if (!isGiven) continue;
    if (given != nullptr) throw Error(fmt::format("{} and {} both say {}; leave one out", given, name, what));
    given = name;
  }
  return given;
}

class Placer {
 public:
  Placer(const Placing& placing, const MeasuredRoof& roof, const SlopeBox& frame, const KnownPlace& known,
         const OutlineOfWindow& outlineOf)
      : placing_(placing), roof_(roof), frame_(frame), known_(known), outlineOf_(outlineOf) {}

  SlopePoint Way() {
    if (placing_.edge && !placing_.align) throw Error("--edge says what --align N lines up; add --align");
    const double up = WayUp();
    frame_.bottom += up;
    frame_.top += up;
    return {WayAcross(), up};
  }

 private:
  bool IsUpKnown() const { return known_.isPoint || known_.isHeight; }
  bool AlignsAxis() const { return placing_.align && placing_.edge == AlignedEdge::Axis; }
  bool AlignsHeight() const { return placing_.align && !AlignsAxis(); }

  double Units(double metres) const { return metres * roof_.perMetre; }

  double WayUp() const {
    const char* word = OneOf({{"--from-eaves", placing_.fromEaves.has_value()},
                              {"--from-ridge", placing_.fromRidge.has_value()},
                              {"--sill", placing_.sill.has_value()},
                              {"--head", placing_.head.has_value()},
                              {"--align", AlignsHeight()},
                              {"an edge's height of --set", known_.isHeight}},
                             "how far up the slope the window goes");
    if (placing_.fromEaves) return Edge(roof_.eaves, word) + Units(*placing_.fromEaves) - frame_.bottom;
    if (placing_.fromRidge) return Edge(roof_.ridge, word) - Units(*placing_.fromRidge) - frame_.top;
    if (placing_.sill) return UpAt(Units(*placing_.sill), word) - frame_.bottom;
    if (placing_.head) return UpAt(Units(*placing_.head), word) - frame_.top;
    if (AlignsHeight()) return WayToLineUp();
    if (placing_.between && !IsUpKnown())
      return BoxOfWindow("--between", placing_.between->front()).bottom - frame_.bottom;
    if (!IsUpKnown()) {
      throw Error(
          "say how far up the slope the window goes: with --from-eaves, --from-ridge, --sill, --head, "
          "--align N "
          "or a point, --at X,Y");
    }
    return placing_.snap && !known_.isHeight ? Snapped(frame_.bottom, Edge(roof_.eaves, "--snap")) : 0.0;
  }

  double WayAcross() const {
    const char* word = OneOf({{"--from-verge", placing_.fromVerge.has_value()},
                              {"--from-right-verge", placing_.fromRightVerge.has_value()},
                              {"--centre", placing_.isCentred},
                              {"--between", placing_.between.has_value()},
                              {"--over", placing_.over.has_value()},
                              {"--align with --edge axis", AlignsAxis()}},
                             "how far along the eaves the window goes");
    if (placing_.fromVerge) return Verges(word).first + Units(*placing_.fromVerge) - frame_.left;
    if (placing_.fromRightVerge) return Verges(word).second - Units(*placing_.fromRightVerge) - frame_.right;
    if (placing_.isCentred) return (Verges(word).first + Verges(word).second) / 2 - frame_.Middle();
    if (placing_.between) return MiddleBetween() - frame_.Middle();
    if (placing_.over)
      return roof_.frame.Of({placing_.over->x, placing_.over->y, 0}).across - frame_.Middle();
    if (AlignsAxis()) return BoxOfWindow("--align", *placing_.align).Middle() - frame_.Middle();
    if (!known_.isPoint) {
      throw Error(
          "say how far along the eaves the window goes: with --from-verge, --from-right-verge, --centre, "
          "--between N M, --over X,Y or a point, --at X,Y");
    }
    return placing_.snap ? Snapped(frame_.left, Verges("--snap").first) : 0.0;
  }

  static double Edge(const std::optional<double>& edge, const char* word) {
    if (edge) return *edge;
    throw Error(fmt::format(
        "{}: the roof is a plane without that edge; --on NAME takes a roof of the drawing", word));
  }

  // How far up the slope a height lies.
  double UpAt(double height, const char* word) const {
    if (IsFlat(roof_.frame))
      throw Error(fmt::format("{}: a flat roof has one height only; say the place with --at X,Y", word));
    return AsHighAs({0, 0, height}, roof_.frame).up;
  }

  std::pair<double, double> Verges(const char* word) const {
    if (roof_.rings.empty()) Edge(std::nullopt, word);
    if (const auto reach = ReachAcross(roof_.rings, frame_.bottom, frame_.top)) return *reach;
    throw Error(fmt::format(
        "the window would lie above or below its roof, whose slope is {} long from "
        "eaves to ridge",
        LengthText(roof_.ridge.value_or(0.0) - roof_.eaves.value_or(0.0), {roof_.perMetre, roof_.lengths})));
  }

  SlopeBox BoxOfWindow(const char* word, int number) const {
    if (const std::optional<Outline> outline = outlineOf_(number)) return BoxOf(*outline, roof_.frame);
    throw Error(fmt::format("{} {}: the drawing shows no window of that number; teskarlt list names them",
                            word, number),
                {.value = std::to_string(number)});
  }

  double WayToLineUp() const {
    const SlopeBox other = BoxOfWindow("--align", *placing_.align);
    return placing_.edge == AlignedEdge::Top ? other.top - frame_.top : other.bottom - frame_.bottom;
  }

  // The middle of the gap between two windows.
  double MiddleBetween() const {
    const SlopeBox first = BoxOfWindow("--between", placing_.between->front());
    const SlopeBox second = BoxOfWindow("--between", placing_.between->back());
    return (std::min(first.right, second.right) + std::max(first.left, second.left)) / 2;
  }

  // The way that makes the distance from `edge` to `place` a multiple of the step.
  double Snapped(double place, double edge) const {
    const double step = Units(*placing_.snap);
    return edge + std::round((place - edge) / step) * step - place;
  }

  const Placing& placing_;
  const MeasuredRoof& roof_;
  SlopeBox frame_;
  const KnownPlace& known_;
  const OutlineOfWindow& outlineOf_;
};

// How far up its lowest and its highest edge lie.
std::pair<double, double> UpRange(const std::vector<SlopeRing>& rings) {
  std::pair<double, double> range{std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()};
  for (const SlopeRing& ring : rings) {
    for (const SlopePoint& corner : ring)
      range = {std::min(range.first, corner.up), std::max(range.second, corner.up)};
  }
  return range;
}

// A roof of which one edge is known: it goes up or down from there without end.
void MeasureFromEdge(const PlanRoof& planRoof, const FaceCorners& corners, MeasuredRoof& roof) {
  constexpr double FAR = 1000.0;  // metres
  const SlopePoint from = roof.frame.Of(corners[0]);
  const SlopePoint to = roof.frame.Of(corners[1]);
  const bool isEaves = !planRoof.eaves.empty();
  (isEaves ? roof.eaves : roof.ridge) = from.up;
  const double end = from.up + (isEaves ? FAR : -FAR) * roof.perMetre;
  roof.rings = {{from, to, {to.across, end}, {from.across, end}}};
}

bool Sets(const WindowOrder& order, std::initializer_list<std::string_view> fields) {
  return std::any_of(order.settings.begin(), order.settings.end(), [&](const FieldSetting& setting) {
    return std::find(fields.begin(), fields.end(), setting.field) != fields.end();
  });
}

// The box around all windows of a row, of which the one at its point lies in `box`.
SlopeBox Widened(SlopeBox box, const RowReach& row) {
  (row.isColumn ? box.bottom : box.left) -= row.before;
  (row.isColumn ? box.top : box.right) += row.behind;
  return box;
}

// A point of the roof in the plan, for the trial.
std::array<double, 2> SomePoint(const MeasuredRoof& roof) {
  return {roof.frame.origin.x, roof.frame.origin.y};
}

}  // namespace

bool IsGiven(const Placing& placing) {
  return placing != Placing{};
}

MeasuredRoof MeasuredOn(const WindowOrder& order, const RoofChoice& roof, const Roofs& roofs) {
  MeasuredRoof measured;
  measured.perMetre = MILLIMETRES_A_METRE * roofs.Tolerance();
  measured.lengths = order.lengths;
  if (roof.surface != nullptr) {
    SurfaceOutline outline = OutlineOf(*roof.surface, roofs.Faces(), roofs.Tolerance());
    measured.frame = outline.frame;
    measured.rings = std::move(outline.rings);
    std::tie(measured.eaves, measured.ridge) = UpRange(measured.rings);
    return measured;
  }
  const std::optional<RoofFace> plane = MakeRoofFace(roof.corners, roofs.Tolerance());
  if (!plane) throw Error("the roof's points span no plane that a place can be measured on");
  measured.frame = FrameOf(plane->plane);
  if (order.planRoof.IsGiven()) MeasureFromEdge(order.planRoof, roof.corners, measured);
  return measured;
}

std::optional<SurfaceOutline> BoundsOf(const WindowOrder& order, const RoofChoice& roof, const Roofs& roofs) {
  if (!order.planRoof.IsGiven()) return std::nullopt;
  MeasuredRoof measured = MeasuredOn(order, roof, roofs);
  for (SlopeRing& ring : measured.rings)
    if (SignedArea(ring) < 0) std::reverse(ring.begin(), ring.end());
  return SurfaceOutline{measured.frame, std::move(measured.rings)};
}

SlopePoint WayToPlace(const Placing& placing, const MeasuredRoof& roof, const Outline& frame,
                      const KnownPlace& known, const OutlineOfWindow& outlineOf, const RowReach& row) {
  return Placer(placing, roof, Widened(BoxOf(frame, roof.frame), row), known, outlineOf).Way();
}

std::array<double, 2> PlaceFor(const WindowOrder& order, const MeasuredRoof& roof, WindowRequest request,
                               const TryOut& tryOut, const OutlineOfWindow& outlineOf, const RowReach& row) {
  const bool setsHeight = Sets(order, {"lowerEdgeHeight", "upperEdgeHeight"});
  const KnownPlace known{.isPoint = request.point.has_value(), .isHeight = setsHeight};
  if (!request.point) request.point = SomePoint(roof);
  request.facesNear = nullptr;
  const SlopePoint way = WayToPlace(order.placing, roof, OutlineOf(tryOut(request)), known, outlineOf, row);
  const geometry::Vec3 moved =
      geometry::Moved(geometry::Moved({}, roof.frame.across, way.across), roof.frame.up, way.up);
  return {request.point->front() + moved.x, request.point->back() + moved.y};
}

}  // namespace teskarlt
