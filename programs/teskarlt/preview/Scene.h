// Scene.h - what is to be seen of a drawing: surfaces,
// curves, layers and roof windows, ready for any picture.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/preview/Colours.h"

namespace teskarlt::preview {

using geometry::Vec3;

// The smallest box along the axes around the points that were added.
struct Box {
  Vec3 low{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity(),
           std::numeric_limits<double>::infinity()};
  Vec3 high{-std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
            -std::numeric_limits<double>::infinity()};

  bool IsEmpty() const { return low.x > high.x; }
  void Add(const Vec3& point) {
    low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
  }
  Vec3 Centre() const;
};

constexpr int NO_WINDOW = -1;
constexpr std::size_t NO_SURFACE = std::numeric_limits<std::size_t>::max();

constexpr std::size_t HIDDEN_EDGE_BITS = 32;

// A flat piece of an entity. Coordinates are those of the drawing.
struct Surface {
  std::vector<Vec3> corners;      // 3 or more, in order around it
  std::uint32_t hiddenEdges = 0;  // bit k: the edge from corner k to the next one is not drawn
  std::size_t layer = 0;          // index in Scene::layers
  Colour colour;
  bool isGlass = false;    // the pane of a roof window
  int window = NO_WINDOW;  // index in Scene::windows
};

// A line of an entity, in one or more straight pieces; arcs
// are already divided. A closed one ends where it begins.
struct Curve {
  std::vector<Vec3> points;
  std::size_t layer = 0;
  Colour colour;
  std::size_t pattern = 0;  // index in Scene::patterns
  int window = NO_WINDOW;
  std::size_t outlined =
      NO_SURFACE;  // index in Scene::surfaces of the one whose corners it connects, in their order
};

enum class TextAnchor { Start, Middle, End };

// A line of text, which only plans show.
struct SceneText {
  std::string text;  // UTF-8, not empty
  Vec3 at{};         // of its anchor, on the baseline
  Vec3 along{};      // the way of the baseline, as long as capitals are high where letters are of usual width
  Vec3 up{};         // up the letters, as long as capitals are high
  TextAnchor anchor = TextAnchor::Start;
  Colour colour;
};

// What a level hatch fills, which only plans show.
struct SceneFilling {
  std::vector<std::vector<Vec3>> rings;  // around it and its holes
  Colour colour;
};

struct SceneLayer {
  std::string name;  // UTF-8
  Colour colour;
};

struct SceneWindow {
  std::int32_t number = 0;
  std::string name;      // its mark, as its schedule says it; empty where nobody has asked for it
  std::string values;    // likewise, the text of a JSON object with the schedule's values
  std::string label;     // "0.94 x 1.40 m"; empty where the drawing does not say it
  Vec3 facing{0, 0, 1};  // unit normal of its pane, z positive
  Box box;
};

// A roof that takes windows, for its name in pictures.
struct SceneRoof {
  std::string name;                      // as Roofs names its surface
  Vec3 normal;                           // of its plane, unit length, z positive
  std::vector<std::vector<Vec3>> rings;  // around it and its holes, in a plane over all of its faces
};

// Lengths of dash, gap, dash, gap ... in drawing units, a dash of 0 being a dot. Empty: an unbroken line.
using DashPattern = std::vector<double>;

struct Scene {
  std::string file;                // of the drawing, for messages
  std::string name;                // likewise, for titles
  std::string unit;                // "mm"; empty when the drawing does not say it
  double perMetre = 0;             // drawing units in a metre; 0 when not known
  std::vector<SceneLayer> layers;  // those that hold something to be seen, in the order of their first entity
  std::vector<DashPattern> patterns{DashPattern()};
  std::vector<Surface> surfaces;
  std::vector<Curve> curves;
  std::vector<SceneWindow> windows;
  std::vector<SceneRoof> roofs;  // where their names are asked for
  std::vector<SceneText> texts;
  std::vector<SceneFilling> fillings;
  std::map<std::string, std::size_t> leftOut;   // entities that no picture shows, by type
  std::map<std::string, std::size_t> planOnly;  // those that only plans show
  Box box;
};

// The surface as triangles: three indices of its corners each. A polygon with hollows is divided without
// leaving its outline; corners that make no area give no triangle.
std::vector<std::size_t> Triangles(const std::vector<Vec3>& corners);

// Unit normal of the corners' polygon; (0, 0, 0) when it has no area.
Vec3 NormalOf(const std::vector<Vec3>& corners);

// The colour of a surface in pictures and models.
Colour PaintOf(const Surface& surface);

// The shortest period of a pattern that can be told apart in a picture, in pixels.
constexpr double SHORTEST_PERIOD = 6;

// A pattern as it can be told apart: made longer, as a whole, up to this period, and its dots made short
// dashes.
DashPattern ReadablePattern(const DashPattern& pattern, double shortestPeriod);

// The dashes of a line whose pattern is used up to the length `offset` at its first point: the line itself
// when it is unbroken, or when there would be too many of them.
std::vector<std::vector<Vec3>> Dashes(const std::vector<Vec3>& points, const DashPattern& pattern,
                                      double offset = 0);

}  // namespace teskarlt::preview
