// NodeList.h - the value list of an entity as plain data that a test can write down, compare and print.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "inc/ValueNode.h"

namespace node_list {

using Point = std::array<double, 3>;

// Nothing (a marker), a text, a point, a real or an integer.
using Value = std::variant<std::monostate, std::string, Point, double, std::int64_t>;

struct Node {
  int code;
  Value value;
};

using NodeList = std::vector<Node>;

// A value of each kind, so that literal lists read well.
inline Node Marker(int code) {
  return {code, std::monostate()};
}
inline Node Text(int code, std::string text) {
  return {code, std::move(text)};
}
inline Node Coordinates(int code, double x, double y, double z) {
  return {code, Point{x, y, z}};
}
inline Node Real(int code, double value) {
  return {code, value};
}
inline Node Integer(int code, std::int64_t value) {
  return {code, value};
}

// Copies a list as a host reads it. Only the codes that a window's entities have are known; any other one
// fails the running test.
NodeList Copy(const brevanta::ValueNode* list);

// As "code value", for messages.
std::string ToString(const Node& node);

// Coordinates and reals may differ by this, everything else by nothing.
constexpr double SAME_NUMBER = 1e-9;

// What differs first between the two lists, in words; empty when nothing does.
std::string FirstDifference(const NodeList& expected, const NodeList& actual, double tolerance = SAME_NUMBER);

// For EXPECT_TRUE.
testing::AssertionResult Same(const NodeList& expected, const NodeList& actual,
                              double tolerance = SAME_NUMBER);

// The values of the first node with this code; a missing one fails the running test.
Point PointOf(const NodeList& list, int code);
std::string TextOf(const NodeList& list, int code);
std::int64_t IntegerOf(const NodeList& list, int code);
bool Has(const NodeList& list, int code);

// A face's four corners, or a line's two ends.
std::vector<Point> PointsOf(const NodeList& list);

}  // namespace node_list
