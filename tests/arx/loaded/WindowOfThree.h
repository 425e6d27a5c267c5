// WindowOfThree.h - the window that the outside tests insert, and what it must become in the drawing.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "inc/WindowParams.h"
#include "tests/support/NodeList.h"

// The roof rises 3 in 4 towards +x. Its frame's origin is (1000, 2000), so the local point (x, y, z) is (1000
// + y, 2000 - x, z) in the drawing, with 10 drawing units a metre. A window of 10 m x 20 m with a frame 1 m
// wide and 0.5 m deep starts at the origin.
namespace window_of_three {

using node_list::NodeList;
using node_list::Point;
using Corners = std::array<Point, 4>;

constexpr std::int32_t UNIT_FACTOR = 10;

brevanta::WindowParams Record();

// Outlines in drawing coordinates. The frame's depth is (-3, 0, 4), a skirt of 1 m (-6, 0, 8).
constexpr Corners OUTER = {{{1000, 2000, 0}, {1160, 2000, 120}, {1160, 1900, 120}, {1000, 1900, 0}}};
constexpr Corners INNER = {{{1008, 1990, 6}, {1152, 1990, 114}, {1152, 1910, 114}, {1008, 1910, 6}}};
constexpr Corners OUTER_TOP = {{{997, 2000, 4}, {1157, 2000, 124}, {1157, 1900, 124}, {997, 1900, 4}}};
constexpr Corners INNER_TOP = {{{1005, 1990, 10}, {1149, 1990, 118}, {1149, 1910, 118}, {1005, 1910, 10}}};
// 0.2 below the top: (0.12, 0, -0.16) from it.
constexpr Corners GLASS = {
    {{1005.12, 1990, 9.84}, {1149.12, 1990, 117.84}, {1149.12, 1910, 117.84}, {1005.12, 1910, 9.84}}};
constexpr Corners SKIRT_OUTER = {{{994, 2000, 8}, {1154, 2000, 128}, {1154, 1900, 128}, {994, 1900, 8}}};
constexpr Corners SKIRT_INNER = {{{1002, 1990, 14}, {1146, 1990, 122}, {1146, 1910, 122}, {1002, 1910, 14}}};
constexpr Corners SKIRT_OUTER_TOP = {
    {{991, 2000, 12}, {1151, 2000, 132}, {1151, 1900, 132}, {991, 1900, 12}}};
constexpr Corners SKIRT_INNER_TOP = {
    {{999, 1990, 18}, {1143, 1990, 126}, {1143, 1910, 126}, {999, 1910, 18}}};
constexpr Corners SKIRT_GLASS = {
    {{999.12, 1990, 17.84}, {1143.12, 1990, 125.84}, {1143.12, 1910, 125.84}, {999.12, 1910, 17.84}}};

constexpr const char* BODY_LAYER = "ROOF_WINDOW_BODY";
constexpr const char* SYMBOL_LAYER = "ROOF_WINDOW_SYMBOL";
constexpr const char* OUTLINE_LAYER = "ROOF_WINDOW_OUTLINE";
constexpr const char* OPENING_LAYER = "ROOF_WINDOW_OPENING";

// The extended data of Record().
NodeList ExtendedData();

// Whole entities with that extended data.
NodeList Face(const Corners& corners, std::int64_t hiddenEdges);
NodeList ColouredFace(const Corners& corners, std::int64_t colour);
NodeList Line(const std::string& layer, const Point& from, const Point& to);
NodeList LineOfType(const std::string& layer, const std::string& linetype, const Point& from,
                    const Point& to);

// Four faces from one outline to the other.
void AppendBand(const Corners& from, const Corners& to, std::int64_t hiddenEdges,
                std::vector<NodeList>& faces);

// The 17 faces without and the 21 with a skirt.
std::vector<NodeList> Body();
std::vector<NodeList> BodyWithSkirt();

// The expected list that the actual entities differ from first, with the difference; empty when none does.
std::string FirstDifference(const std::vector<NodeList>& expected, const std::vector<NodeList>& actual);

}  // namespace window_of_three
