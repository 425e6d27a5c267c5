// Labels.cpp - tries the places of labels one after the other.
#include "teskarlt/plot/Labels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include <fmt/format.h>

#include "teskarlt/drawing/SlopeReach.h"

namespace teskarlt::plot {

namespace {

constexpr double AROUND = 0.6;     // what is kept free around a text
constexpr double LINE_ROOM = 0.6;  // and what a line takes
constexpr double SHORTEST = 1.0;   // dimensions that are shorter on paper are not drawn
constexpr double TAG_PADDING = 1.2;
constexpr double ARROW = 9;
constexpr std::size_t NOBODY = static_cast<std::size_t>(-1);

// Where along an edge of a window a dimension may begin.
constexpr std::array SHARES = {0.5, 0.25, 0.75, 0.1, 0.9};
// Where along its line its text may stand.
constexpr std::array TEXT_SHARES = {0.5, 0.35, 0.65, 0.2, 0.8};
// How far below a window its dimension to the verge may run, and how far away its tag may stand.
constexpr std::array BELOW = {4.0, 8.0, 12.0, 16.0, 20.0};
constexpr std::array AWAY = {3.0, 6.0, 10.0, 15.0, 21.0, 28.0};
constexpr std::array ASIDE = {0.0, -6.0, 6.0, -12.0, 12.0};

// Whether a line may cross lines that lie there already; it never lies on them.
enum class Crossing { Forbidden, Allowed };

// What lies on the paper already.
class TakenRoom {
 public:
  // `owner` is the window whose footprint it is.
  void Take(const Quad& quad, std::size_t owner = NOBODY) {
    taken_.push_back({quad, BoxOf(quad), owner, {}});
  }
  void TakeLine(const PaperLine& line) {
    if (!(LengthOf(line) > 0)) return;
    const Quad strip = StripOf(line, LINE_ROOM);
    taken_.push_back({strip, BoxOf(strip), NOBODY, DirectionOf(line)});
  }

  bool IsFree(const Quad& quad) const {
    const PaperBox box = BoxOf(quad);
    return std::none_of(taken_.begin(), taken_.end(), [&](const Piece& piece) {
      return Touch(piece.box, box) && Overlap(piece.quad, quad);
    });
  }

  // Whether nothing lies there but the footprint of the window at which the line begins.
  bool IsFreeLine(const PaperLine& line, std::size_t window, Crossing crossing) const {
    const Quad strip = StripOf(line, LINE_ROOM);
    const PaperBox box = BoxOf(strip);
    const PaperPoint direction = DirectionOf(line);
    return std::none_of(taken_.begin(), taken_.end(), [&](const Piece& piece) {
      if (!Touch(piece.box, box)) return false;
      const bool isOwn = window != NOBODY && piece.owner == window;
      const bool mayCross =
          crossing == Crossing::Allowed && piece.line && !AreParallel(*piece.line, direction);
      return !isOwn && !mayCross && Overlap(piece.quad, strip);
    });
  }

 private:
  struct Piece {
    Quad quad;
    PaperBox box;                    // around it
    std::size_t owner;               // NOBODY for what is no footprint
    std::optional<PaperPoint> line;  // the direction of one
  };

  static bool Touch(const PaperBox& a, const PaperBox& b) {
    return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
  }

  static bool AreParallel(const PaperPoint& a, const PaperPoint& b) {
    constexpr double least = 0.1;  // sine of the angle between them
    return std::abs(a.x * b.y - a.y * b.x) < least;
  }

  std::vector<Piece> taken_;
};

// The direction or the one against it: in which a text is read from below or from the right.
PaperPoint Readable(const PaperPoint& direction) {
  constexpr double least = 1e-6;
  const bool isBackwards = direction.x < -least || (direction.x <= least && direction.y > 0);
  return isBackwards ? PaperPoint{-direction.x, -direction.y} : direction;
}

// "35", or "35.5".
std::string PitchText(double degrees) {
  std::string text = fmt::format("{:.1f}", degrees);
  if (text.ends_with(".0")) text.resize(text.size() - 2);
  return text + "°";
}

using PaperRings = std::vector<std::vector<PaperPoint>>;

// By the even-odd rule.
bool LieAround(const PaperRings& rings, const PaperPoint& p) {
  bool isInside = false;
  for (const std::vector<PaperPoint>& ring : rings) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
      const PaperPoint& a = ring[i];
      const PaperPoint& b = ring[(i + 1) % ring.size()];
      if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x))
        isInside = !isInside;
    }
  }
  return isInside;
}

// A grid of places over the box around the rings, those near its middle first.
std::vector<PaperPoint> PlacesIn(const PaperRings& rings) {
  constexpr int tries = 16;
  PaperBox box{HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL};
  for (const std::vector<PaperPoint>& ring : rings) {
    for (const PaperPoint& p : ring) {
      box = {std::min(box.left, p.x), std::min(box.top, p.y), std::max(box.right, p.x),
             std::max(box.bottom, p.y)};
    }
  }
  std::vector<PaperPoint> places;
  places.reserve(std::size_t{tries} * tries);
  for (int row = 0; row < tries; ++row) {
    for (int column = 0; column < tries; ++column) {
      places.push_back(
          {box.left + box.Width() * (column + 0.5) / tries, box.top + box.Height() * (row + 0.5) / tries});
    }
  }
  std::stable_sort(places.begin(), places.end(), [&](const PaperPoint& a, const PaperPoint& b) {
    return LengthOf({a, box.Middle()}) < LengthOf({b, box.Middle()});
  });
  return places;
}

class Placer {
 public:
  explicit Placer(const LabelGround& ground) : ground_(ground), notes_(*ground.notes) {
    for (std::size_t i = 0; i < ground.footprints.size(); ++i)
      room_.Take(ground.footprints[i], i);
    for (const Quad& text : ground.texts)
      room_.Take(text);
  }

  PlacedLabels Run() {
    for (std::size_t i = 0; i < notes_.windows.size(); ++i)
      PlaceDimensions(i);
    for (std::size_t i = 0; i < notes_.windows.size(); ++i)
      if (!notes_.windows[i].hasTag) PlaceTag(i);
    for (const PlanRoof& roof : notes_.roofs)
      if (roof.isShown) PlaceFall(roof);
    return std::move(labels_);
  }

 private:
  // A dimension that is to be placed, in the frame of a roof.
  struct Measure {
    SlopePoint from;    // at the window, or straight below it
    SlopePoint to;      // at the edge of the roof
    SlopePoint corner;  // of the window, from which an extension leads to `from`
  };

  bool IsFree(const Quad& quad) const { return LiesIn(quad, ground_.area) && room_.IsFree(quad); }
  bool IsFreeLine(const PaperLine& line, std::size_t window, Crossing crossing) const {
    return LiesIn(StripOf(line, LINE_ROOM), ground_.area) && room_.IsFreeLine(line, window, crossing);
  }

  PaperPoint At(const PlanRoof& roof, const SlopePoint& p) const { return ground_.map.Of(roof.frame.At(p)); }

  std::string Words(double metres) const {
    return ground_.lengths == LengthStyle::Metres ? fmt::format("{:.3f}", metres) : FeetInchesText(metres);
  }

  void PlaceDimensions(std::size_t window);
  bool PlaceDimension(const std::vector<Measure>& measures, const PlanRoof& roof, std::size_t window);
  bool TryDimension(const Measure& measure, const PlanRoof& roof, std::size_t window, Crossing crossing);
  bool TryText(PlacedDimension& dimension);
  std::vector<Measure> ToEaves(const PlanRoof& roof, const SlopeBox& box) const;
  std::vector<Measure> ToVerge(bool isLeft, const PlanRoof& roof, const SlopeBox& box) const;
  void PlaceTag(std::size_t window);
  bool TryTag(const PaperPoint& edge, const PaperPoint& outward, double away, double aside,
              const std::string& text);
  PaperRings RingsOf(const PlanRoof& roof) const;
  void PlaceFall(const PlanRoof& roof);
  bool TryFall(const PlacedFall& fall, const PaperRings& rings);

  const LabelGround& ground_;
  const PlanNotes& notes_;
  TakenRoom room_;
  PlacedLabels labels_;
};

// From the lower edge straight down the slope.
std::vector<Placer::Measure> Placer::ToEaves(const PlanRoof& roof, const SlopeBox& box) const {
  std::vector<Measure> measures;
  measures.reserve(SHARES.size());
  for (const double share : SHARES) {
    const SlopePoint from{box.left + share * (box.right - box.left), box.bottom};
    measures.push_back({from, {from.across, roof.eaves}, from});
  }
  return measures;
}

// Along the eaves to an edge of the roof: from a side of the window, or from below it.
std::vector<Placer::Measure> Placer::ToVerge(bool isLeft, const PlanRoof& roof, const SlopeBox& box) const {
  std::vector<double> levels;
  levels.reserve(SHARES.size() + BELOW.size());
  for (const double share : SHARES)
    levels.push_back(box.bottom + share * (box.top - box.bottom));
  const double run = std::sqrt(roof.frame.up.x * roof.frame.up.x + roof.frame.up.y * roof.frame.up.y);
  for (const double below : BELOW)
    levels.push_back(box.bottom - below / ground_.map.OnPaper(run));
  std::vector<Measure> measures;
  measures.reserve(levels.size());
  for (const double level : levels) {
    const SlopeReach reach = ReachAcross(roof.rings, level, level);
    if (!reach) continue;
    const double side = isLeft ? box.left : box.right;
    measures.push_back(
        {{side, level}, {isLeft ? reach->first : reach->second, level}, {side, std::max(level, box.bottom)}});
  }
  return measures;
}

void Placer::PlaceDimensions(std::size_t index) {
  const PlanWindow& window = notes_.windows[index];
  if (!window.roof) return;
  const PlanRoof& roof = notes_.roofs[*window.roof];
  const SlopeBox box = BoxOf(window.frame, roof.frame);
  if (!PlaceDimension(ToEaves(roof, box), roof, index)) ++labels_.withoutRoom;
  const SlopeReach reach = ReachAcross(roof.rings, box.bottom, box.top);
  const bool isLeftNearer = reach && box.left - reach->first <= reach->second - box.right;
  if (!PlaceDimension(ToVerge(isLeftNearer, roof, box), roof, index) &&
      !PlaceDimension(ToVerge(!isLeftNearer, roof, box), roof, index))
    ++labels_.withoutRoom;
}

// The first of the measures for which there is room; also true where they are too short to be drawn.
bool Placer::PlaceDimension(const std::vector<Measure>& measures, const PlanRoof& roof, std::size_t window) {
  const bool isShort = std::all_of(measures.begin(), measures.end(), [&](const Measure& measure) {
    return LengthOf({At(roof, measure.from), At(roof, measure.to)}) < SHORTEST;
  });
  const auto isPlaced = [&](Crossing crossing) {
    return std::any_of(measures.begin(), measures.end(),
                       [&](const Measure& measure) { return TryDimension(measure, roof, window, crossing); });
  };
  return (isShort && !measures.empty()) || isPlaced(Crossing::Forbidden) || isPlaced(Crossing::Allowed);
}

bool Placer::TryDimension(const Measure& measure, const PlanRoof& roof, std::size_t window,
                          Crossing crossing) {
  const double across = measure.to.across - measure.from.across;
  const double up = measure.to.up - measure.from.up;
  PlacedDimension dimension;
  dimension.line = {At(roof, measure.from), At(roof, measure.to)};
  dimension.extension = {At(roof, measure.corner), At(roof, measure.from)};
  dimension.text = Words(std::sqrt(across * across + up * up));
  if (LengthOf(dimension.line) < SHORTEST) return false;
  if (!IsFreeLine(dimension.line, window, crossing) || !IsFreeLine(dimension.extension, window, crossing) ||
      !TryText(dimension))
    return false;
  room_.TakeLine(dimension.line);
  room_.TakeLine(dimension.extension);
  labels_.dimensions.push_back(std::move(dimension));
  return true;
}

// Along the line on either side of it, or level beside its middle where it is too short for that.
bool Placer::TryText(PlacedDimension& dimension) {
  const PaperPoint along = DirectionOf(dimension.line);
  const double length = LengthOf(dimension.line);
  const double width = TextWidth(dimension.text, DIMENSION_SIZE);
  const auto isPlaced = [&](const PaperPoint& middle, const PaperPoint& direction) {
    const Quad quad = QuadAround(middle, direction, {width + AROUND, DIMENSION_SIZE + AROUND / 2});
    if (!IsFree(quad) || Overlap(quad, StripOf(dimension.line, AROUND / 2))) return false;
    room_.Take(quad);
    dimension.middle = middle;
    dimension.along = direction;
    return true;
  };
  for (const double side : {-1.0, 1.0}) {
    const PaperPoint aside{-along.y * side, along.x * side};
    for (const double share : TEXT_SHARES) {
      const PaperPoint beside =
          Moved(Moved(dimension.line.from, along, share * length), aside, DIMENSION_SIZE / 2 + AROUND);
      const bool hasRoom = width / 2 <= std::min(share, 1 - share) * length;
      if (hasRoom && isPlaced(beside, Readable(along))) return true;
    }
    const double reach = std::abs(aside.x) * width / 2 + std::abs(aside.y) * DIMENSION_SIZE / 2;
    if (isPlaced(Moved(Moved(dimension.line.from, along, length / 2), aside, reach + 2 * AROUND), {1, 0}))
      return true;
  }
  return false;
}

bool Placer::TryTag(const PaperPoint& edge, const PaperPoint& outward, double away, double aside,
                    const std::string& text) {
  const double halfWidth = TextWidth(text, TAG_SIZE) / 2 + TAG_PADDING;
  const double halfHeight = TAG_SIZE / 2 + TAG_PADDING;
  const double support = std::abs(outward.x) * halfWidth + std::abs(outward.y) * halfHeight;
  const PaperPoint middle = Moved(Moved(edge, outward, away + support), {-outward.y, outward.x}, aside);
  const PaperBox box{middle.x - halfWidth, middle.y - halfHeight, middle.x + halfWidth,
                     middle.y + halfHeight};
  const PaperPoint target = Moved(edge, outward, LINE_ROOM / 2);
  const PaperPoint start{std::clamp(target.x, box.left, box.right),
                         std::clamp(target.y, box.top, box.bottom)};
  const PaperLine leader{start, target};
  const Quad quad = QuadOf(Grown(box, AROUND));
  if (!IsFree(quad) || !IsFreeLine(leader, NOBODY, Crossing::Forbidden)) return false;
  room_.Take(quad);
  room_.TakeLine(leader);
  labels_.tags.push_back({text, box, leader});
  return true;
}

// Beside each edge of the window, the nearest places first.
void Placer::PlaceTag(std::size_t index) {
  const Quad& quad = ground_.footprints[index];
  const std::string& text = notes_.windows[index].mark;
  PaperPoint middle{};
  for (const PaperPoint& corner : quad)
    middle = {middle.x + corner.x / 4, middle.y + corner.y / 4};
  for (const double away : AWAY) {
    for (const double aside : ASIDE) {
      for (std::size_t i = 0; i < quad.size(); ++i) {
        const PaperPoint& a = quad[i];
        const PaperPoint& b = quad[(i + 1) % quad.size()];
        const PaperPoint edge{(a.x + b.x) / 2, (a.y + b.y) / 2};
        if (TryTag(edge, DirectionOf({middle, edge}), away, aside, text)) return;
      }
    }
  }
  ++labels_.withoutRoom;
}

bool Placer::TryFall(const PlacedFall& fall, const PaperRings& rings) {
  const Quad arrow = StripOf(fall.arrow, 2 * LINE_ROOM + 1);
  const Quad text =
      QuadAround(fall.middle, {1, 0}, {TextWidth(fall.text, FALL_SIZE) + AROUND, FALL_SIZE + AROUND});
  if (Overlap(arrow, text)) return false;
  for (const Quad& quad : {arrow, text}) {
    const bool isOnRoof = std::all_of(quad.begin(), quad.end(),
                                      [&](const PaperPoint& corner) { return LieAround(rings, corner); });
    if (!isOnRoof || !IsFree(quad)) return false;
  }
  room_.Take(arrow);
  room_.Take(text);
  labels_.falls.push_back(fall);
  return true;
}

PaperRings Placer::RingsOf(const PlanRoof& roof) const {
  PaperRings rings;
  rings.reserve(roof.rings.size());
  for (const SlopeRing& ring : roof.rings) {
    rings.emplace_back();
    for (const SlopePoint& corner : ring)
      rings.back().push_back(At(roof, corner));
  }
  return rings;
}

// At the free place of a grid over the roof that is nearest to its middle: the text at the arrow's tail or
// beside it.
void Placer::PlaceFall(const PlanRoof& roof) {
  const PaperRings rings = RingsOf(roof);
  const PaperPoint down = DirectionOf({{}, {-roof.frame.up.x, roof.frame.up.y}});
  PlacedFall fall{{}, fmt::format("{}  {}", roof.name, PitchText(roof.pitch)), {}};
  const double beside = TextWidth(fall.text, FALL_SIZE) / 2 + 3 * AROUND;
  const double behind = (down.y > 0 ? -1 : 1) * (FALL_SIZE / 2 + 1.5 * AROUND);
  bool isInArea = false;
  for (const PaperPoint& place : PlacesIn(rings)) {
    isInArea = isInArea || LiesIn({place, place, place, place}, ground_.area);
    fall.arrow = {Moved(place, down, -ARROW / 2), Moved(place, down, ARROW / 2)};
    for (const PaperPoint& middle :
         {PaperPoint{fall.arrow.from.x, fall.arrow.from.y + behind}, PaperPoint{place.x + beside, place.y},
          PaperPoint{place.x, place.y - FALL_SIZE - AROUND}}) {
      fall.middle = middle;
      if (TryFall(fall, rings)) return;
    }
  }
  if (isInArea) ++labels_.withoutRoom;
}

}  // namespace

PlacedLabels PlaceLabels(const LabelGround& ground) {
  return Placer(ground).Run();
}

}  // namespace teskarlt::plot
