// PlaceWords.cpp - reads the words by which an order says where a window goes.
#include "teskarlt/windows/PlaceWords.h"

#include <algorithm>
#include <array>
#include <vector>

#include <fmt/format.h>

#include "geometry/Matrix4.h"
#include "geometry/Trigonometry.h"
#include "inc/DialogServices.h"
#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/windows/PointText.h"

namespace teskarlt {

namespace {

[[noreturn]] void Refuse(const PlaceWord& word, const std::string& text, const char* what) {
  throw Error(fmt::format("--{} {}: {}", word.name, text, what), {.value = text});
}

double Length(const PlaceWord& word, const std::string& text, const WindowOrder& order) {
  return ParseLength(fmt::format("--{}", word.name).c_str(), text, order.lengths);
}

PlanPoint Point(const PlaceWord& word, const std::string& text) {
  return ParsePlanPoint(fmt::format("--{}", word.name).c_str(), text);
}

std::vector<std::string> Parts(const std::string& text) {
  std::vector<std::string> parts(1);
  for (const char c : text) {
    if (c == brevanta::POINT_DELIMITER) {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

int Number(const PlaceWord& word, const std::string& text) {
  const auto number = dxf::ParseInteger(text);
  if (!number || *number != static_cast<int>(*number)) Refuse(word, text, "a window is named by its number");
  return static_cast<int>(*number);
}

// Of a roof drawn in plan, an edge goes before every other roof that was said.
std::vector<PlanPoint> Edge(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  const std::vector<std::string> parts = Parts(text);
  if (parts.size() != 2) Refuse(word, text, "an edge has two points, X,Y X,Y, in drawing units");
  order.roof.clear();
  order.roofName.clear();
  return {Point(word, parts[0]), Point(word, parts[1])};
}

void ApplyEaves(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  order.planRoof.eaves = Edge(word, text, order);
}

void ApplyRidge(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  order.planRoof.ridge = Edge(word, text, order);
}

// Degrees of "35", or of "8:12", rise to run; none of anything else.
std::optional<double> ParsePitch(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos) return dxf::ParseReal(text);
  const std::optional<double> rise = dxf::ParseReal(text.substr(0, colon));
  const std::optional<double> run = dxf::ParseReal(text.substr(colon + 1));
  if (!rise || !run || *run <= 0) return std::nullopt;
  return geometry::RadToDeg(geometry::ArcTangent(*rise / *run));
}

void ApplyPitch(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  constexpr double STEEPEST = 85.0;
  const std::optional<double> pitch = ParsePitch(text);
  if (!pitch || *pitch < 0 || *pitch > STEEPEST)
    Refuse(word, text, "a pitch is a number of degrees from 0 to 85, or rise to run, as 8:12");
  order.planRoof.pitch = *pitch;
}

void ApplyRisesTo(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  order.planRoof.risesTo = Point(word, text);
}

template <auto Member>
void ApplyHeight(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  order.planRoof.*Member = Length(word, text, order);
}

template <auto Member>
void ApplyLength(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  order.placing.*Member = Length(word, text, order);
}

// How far from an edge, which a window cannot be behind.
template <auto Member>
void ApplyDistance(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  order.placing.*Member = ParseDistance(fmt::format("--{}", word.name).c_str(), text, order.lengths);
}

void ApplyCentre(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  if (text != "0" && text != "1") Refuse(word, text, "it is said or not: true or false");
  order.placing.isCentred = text == "1";
}

void ApplyBetween(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  const std::vector<std::string> parts = Parts(text);
  if (parts.size() != 2) Refuse(word, text, "it takes the numbers of two windows");
  order.placing.between = {Number(word, parts[0]), Number(word, parts[1])};
}

void ApplyOver(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  order.placing.over = Point(word, text);
}

void ApplyAlign(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  order.placing.align = Number(word, text);
}

void ApplyEdge(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  if (text != "top" && text != "bottom" && text != "axis")
    Refuse(word, text, "the edges to align are top, bottom and axis");
  order.placing.edge = text == "top"      ? AlignedEdge::Top
                       : text == "bottom" ? AlignedEdge::Bottom
                                          : AlignedEdge::Axis;
}

void ApplySnap(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  const double step = Length(word, text, order);
  if (!(step > 0)) Refuse(word, text, "a step is more than 0");
  order.placing.snap = step;
}

void ApplyClearance(const PlaceWord& word, const std::string& text, WindowOrder& order) {
  order.clearance = ParseDistance(fmt::format("--{}", word.name).c_str(), text, order.lengths);
}

constexpr std::array PLAN_ROOF_WORDS = {
    PlaceWord{"eaves", 2, "X,Y",
              "the eaves of a roof that is only drawn in plan; it lies to the left of their direction",
              ApplyEaves},
    PlaceWord{"ridge", 2, "X,Y", "its ridge in place of the eaves; it lies to the left of it, too",
              ApplyRidge},
    PlaceWord{"pitch", 1, "DEGREES", "its pitch; or rise to run, as 8:12", ApplyPitch},
    PlaceWord{"eaves-height", 1, "LENGTH", "the height of the eaves", ApplyHeight<&PlanRoof::eavesHeight>},
    PlaceWord{"ridge-height", 1, "LENGTH", "the height of the ridge", ApplyHeight<&PlanRoof::ridgeHeight>},
    PlaceWord{"rises-to", 1, "X,Y", "a point on the side to which it rises", ApplyRisesTo},
};

constexpr std::array PLACING_WORDS = {
    PlaceWord{"from-eaves", 1, "LENGTH", "from the lowest edge of the roof up to the frame, along the slope",
              ApplyDistance<&Placing::fromEaves>},
    PlaceWord{"from-ridge", 1, "LENGTH",
              "from the highest edge of the roof down to the frame, along the slope",
              ApplyDistance<&Placing::fromRidge>},
    PlaceWord{"sill", 1, "LENGTH", "the height of the frame's lower edge", ApplyLength<&Placing::sill>},
    PlaceWord{"head", 1, "LENGTH", "the height of the frame's upper edge", ApplyLength<&Placing::head>},
    PlaceWord{"from-verge", 1, "LENGTH",
              "from the left edge of the roof to the frame, seen from below the eaves",
              ApplyDistance<&Placing::fromVerge>},
    PlaceWord{"from-right-verge", 1, "LENGTH", "from the right edge of the roof to the frame",
              ApplyDistance<&Placing::fromRightVerge>},
    PlaceWord{"centre", 0, "", "in the middle of the roof, between its left and right edge", ApplyCentre},
    PlaceWord{"between", 2, "N", "in the middle between two windows", ApplyBetween},
    PlaceWord{"over", 1, "X,Y", "on the axis of a point of the plan, as of a wall opening below", ApplyOver},
    PlaceWord{"align", 1, "N", "in line with window N, by the edge of --edge", ApplyAlign},
    PlaceWord{"edge", 1, "EDGE", "what --align lines up: top, bottom (without it) or axis", ApplyEdge},
    PlaceWord{"snap", 1, "LENGTH",
              "moves what a point says to multiples of this, from the left edge and from the eaves",
              ApplySnap},
};

constexpr PlaceWord CLEARANCE_WORD = {
    "clearance", 1, "LENGTH",
    "tells of other windows, edges of the roof and obstacles that are nearer to the frame than this",
    ApplyClearance};

}  // namespace

std::span<const PlaceWord> PlanRoofWords() {
  return PLAN_ROOF_WORDS;
}

std::span<const PlaceWord> PlacingWords() {
  return PLACING_WORDS;
}

const PlaceWord& ClearanceWord() {
  return CLEARANCE_WORD;
}

const PlaceWord* FindPlaceWord(std::string_view name) {
  for (const std::span<const PlaceWord> words : {PlanRoofWords(), PlacingWords()}) {
    const auto found =
        std::find_if(words.begin(), words.end(), [&](const PlaceWord& w) { return w.name == name; });
    if (found != words.end()) return &*found;
  }
  return name == CLEARANCE_WORD.name ? &CLEARANCE_WORD : nullptr;
}

}  // namespace teskarlt
