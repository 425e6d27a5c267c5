// GroupList.h - the group list of an entity as plain data that a test can write down, compare and print.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "inc/ValueNode.h"

namespace group_list {

using Point = std::array<double, 3>;

// Nothing (a marker), a text, a point, a real or an integer.
using Value = std::variant<std::monostate, std::string, Point, double, std::int64_t>;

struct Group {
  int code;
  Value value;
};

using GroupList = std::vector<Group>;

// A value of each kind, so that literal lists read well.
inline Group Marker(int code) {
  return {code, std::monostate()};
}
inline Group Text(int code, std::string text) {
  return {code, std::move(text)};
}
inline Group Coordinates(int code, double x, double y, double z) {
  return {code, Point{x, y, z}};
}
inline Group Real(int code, double value) {
  return {code, value};
}
inline Group Integer(int code, std::int64_t value) {
  return {code, value};
}

// Copies a list as a host reads it. Only the codes that a window's entities have are known; any other one
// fails the running test.
GroupList Copy(const brevanta::ValueNode* list);

// As "code value", for messages.
std::string ToString(const Group& group);

// Coordinates and reals may differ by this, everything else by nothing.
constexpr double SAME_NUMBER = 1e-9;

// What differs first between the two lists, in words; empty when nothing does.
std::string FirstDifference(const GroupList& expected, const GroupList& actual,
                            double tolerance = SAME_NUMBER);

// For EXPECT_TRUE.
testing::AssertionResult Same(const GroupList& expected, const GroupList& actual,
                              double tolerance = SAME_NUMBER);

// The values of the first group with this code; a missing one fails the running test.
Point PointOf(const GroupList& list, int code);
std::string TextOf(const GroupList& list, int code);
std::int64_t IntegerOf(const GroupList& list, int code);
bool Has(const GroupList& list, int code);

// A face's four corners, or a line's two ends.
std::vector<Point> PointsOf(const GroupList& list);

}  // namespace group_list
