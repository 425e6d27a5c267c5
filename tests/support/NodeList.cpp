// NodeList.cpp - copies, compares and prints value lists.
#include "tests/support/NodeList.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace node_list {

namespace {

bool IsText(int code) {
  return code == 0 || code == 6 || code == 8 || code == 100 || code == 1000 || code == 1001;
}
bool IsPoint(int code) {
  return (code >= 10 && code <= 13) || code == 1011;
}
bool IsReal(int code) {
  return code >= 1040 && code <= 1042;
}
bool IsShort(int code) {
  return code == 62 || code == 70 || code == 1070;
}

Node CopyNode(const brevanta::ValueNode& node) {
  const int code = node.typeCode;
  if (code == -3) return Marker(code);
  if (IsText(code)) return Text(code, node.value.text);
  if (IsPoint(code)) return Coordinates(code, node.value.point[0], node.value.point[1], node.value.point[2]);
  if (IsReal(code)) return Real(code, node.value.real);
  if (IsShort(code)) return Integer(code, node.value.shortInteger);
  if (code == 1071) return Integer(code, node.value.longInteger);
  ADD_FAILURE() << "a window's entity has no group " << code;
  return Marker(code);
}

// Also infinities and not-a-number equal themselves.
bool SameNumber(double a, double b, double tolerance) {
  return a == b || (std::isnan(a) && std::isnan(b)) || std::abs(a - b) <= tolerance;
}

bool SameValue(const Value& a, const Value& b, double tolerance) {
  if (a.index() != b.index()) return false;
  if (const auto* real = std::get_if<double>(&a)) return SameNumber(*real, std::get<double>(b), tolerance);
  if (const auto* point = std::get_if<Point>(&a)) {
    return std::equal(point->begin(), point->end(), std::get<Point>(b).begin(),
                      [tolerance](double u, double v) { return SameNumber(u, v, tolerance); });
  }
  return a == b;
}

const Node* Find(const NodeList& list, int code) {
  const auto found =
      std::find_if(list.begin(), list.end(), [code](const Node& node) { return node.code == code; });
  if (found != list.end()) return &*found;
  ADD_FAILURE() << "no group " << code;
  return nullptr;
}

template <typename Kind>
Kind ValueOf(const NodeList& list, int code) {
  const Node* node = Find(list, code);
  if (node == nullptr || !std::holds_alternative<Kind>(node->value)) return {};
  return std::get<Kind>(node->value);
}

}  // namespace

NodeList Copy(const brevanta::ValueNode* list) {
  NodeList nodes;
  for (; list != nullptr; list = list->next)
    nodes.push_back(CopyNode(*list));
  return nodes;
}

std::string ToString(const Node& node) {
  std::ostringstream out;
  out.precision(17);
  out << node.code << ' ';
  if (const auto* text = std::get_if<std::string>(&node.value)) {
    out << '"' << *text << '"';
  } else if (const auto* point = std::get_if<Point>(&node.value)) {
    out << '(' << (*point)[0] << ", " << (*point)[1] << ", " << (*point)[2] << ')';
  } else if (const auto* real = std::get_if<double>(&node.value)) {
    out << "real " << *real;
  } else if (const auto* integer = std::get_if<std::int64_t>(&node.value)) {
    out << "integer " << *integer;
  } else {
    out << "marker";
  }
  return out.str();
}

std::string FirstDifference(const NodeList& expected, const NodeList& actual, double tolerance) {
  const std::size_t common = std::min(expected.size(), actual.size());
  for (std::size_t i = 0; i < common; ++i) {
    if (expected[i].code == actual[i].code && SameValue(expected[i].value, actual[i].value, tolerance))
      continue;
    return "group " + std::to_string(i + 1) + ": expected " + ToString(expected[i]) + ", got " +
           ToString(actual[i]);
  }
  if (expected.size() > common)
    return "missing from group " + std::to_string(common + 1) + " on: " + ToString(expected[common]);
  if (actual.size() > common)
    return "too many from group " + std::to_string(common + 1) + " on: " + ToString(actual[common]);
  return {};
}

testing::AssertionResult Same(const NodeList& expected, const NodeList& actual, double tolerance) {
  const std::string difference = FirstDifference(expected, actual, tolerance);
  return difference.empty() ? testing::AssertionSuccess() : testing::AssertionFailure() << difference;
}

Point PointOf(const NodeList& list, int code) {
  return ValueOf<Point>(list, code);
}

std::string TextOf(const NodeList& list, int code) {
  return ValueOf<std::string>(list, code);
}

std::int64_t IntegerOf(const NodeList& list, int code) {
  return ValueOf<std::int64_t>(list, code);
}

bool Has(const NodeList& list, int code) {
  return std::any_of(list.begin(), list.end(), [code](const Node& node) { return node.code == code; });
}

std::vector<Point> PointsOf(const NodeList& list) {
  const int last = TextOf(list, 0) == "LINE" ? 11 : 13;
  std::vector<Point> points;
  for (int code = 10; code <= last; ++code)
    points.push_back(PointOf(list, code));
  return points;
}

}  // namespace node_list
