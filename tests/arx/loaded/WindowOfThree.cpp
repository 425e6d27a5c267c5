// WindowOfThree.cpp - the record and the entities of the outside tests' window.
#include "tests/arx/loaded/WindowOfThree.h"

#include <algorithm>

#include "tests/support/RoundRecord.h"
#include "window/Choices.h"

namespace window_of_three {

using node_list::Coordinates;
using node_list::Integer;
using node_list::Marker;
using node_list::Real;
using node_list::Text;

brevanta::WindowParams Record() {
  brevanta::WindowParams record{};
  record.width = 10;
  record.length = 20;
  record.frameWidth = 1;
  record.frameDepth = 0.5;
  record.lowerEdgeHeight = 2.5;
  record.widthAnchor = brevanta::ANCHOR_START;
  record.roofBuildUp = brevanta::BUILD_UP_PLAIN;
  record.bodyAsFaces = 1;
  record.slopeOffset = 0.5;
  record.pitch = 36.86989764584402;
  round_record::SetText("Attic east", record.text1);
  round_record::SetText("oiled", record.text2);
  round_record::SetText("Maker 7", record.text3);
  round_record::SetText("BI", record.openingCode);
  record.storedPoint = {7, 8, 9};
  record.rotation2 = 0.25;
  for (int k = 0; k < 3; ++k)
    record.secondPlanePoints[k] = {10.0 + k, 20.0 + k, 30.0 + k};
  record.roofPlanePoints[0] = {1000, 2100, 0};
  record.roofPlanePoints[1] = {1100, 2000, 75};
  record.roofPlanePoints[2] = {1000, 2000, 0};
  record.markerValue = 70001;
  return record;
}

NodeList ExtendedData() {
  return {Marker(-3),
          Text(1001, "TK_LT_ELEM"),
          Text(1000, "TKBRVA"),
          Integer(1071, 70001),
          Text(1001, "TK_LT_DESC"),
          Integer(1070, 1),
          Real(1040, 200),
          Real(1041, 100),
          Real(1042, 10),
          Text(1000, "Attic east"),
          Text(1000, "Maker 7"),
          Text(1000, "BI"),
          Integer(1070, 0),
          Real(1040, 5),
          Real(1040, 25),
          Integer(1070, 0),
          Integer(1070, 1),
          Integer(1070, 1),
          Coordinates(1011, 7, 8, 9),
          Coordinates(1011, 0, 0, 0),
          Real(1040, 4.71238898038469),  // the window's x axis points along -y
          Real(1040, 0.25),
          Real(1040, 0),
          Real(1040, 36.86989764584402),
          Coordinates(1011, 10, 20, 30),
          Coordinates(1011, 1000, 2100, 0),
          Coordinates(1011, 11, 21, 31),
          Coordinates(1011, 1100, 2000, 75),
          Coordinates(1011, 12, 22, 32),
          Coordinates(1011, 1000, 2000, 0),
          Text(1000, "oiled")};
}

namespace {

NodeList WithExtendedData(NodeList entity) {
  const NodeList data = ExtendedData();
  entity.insert(entity.end(), data.begin(), data.end());
  return entity;
}

void AppendPoints(const Corners& corners, NodeList& list) {
  for (std::size_t k = 0; k < corners.size(); ++k)
    list.push_back(Coordinates(10 + static_cast<int>(k), corners[k][0], corners[k][1], corners[k][2]));
}

}  // namespace

NodeList Face(const Corners& corners, std::int64_t hiddenEdges) {
  NodeList face = {Text(0, "3DFACE"), Text(100, "AcDbEntity"), Text(8, BODY_LAYER), Text(100, "AcDbFace")};
  AppendPoints(corners, face);
  face.push_back(Integer(70, hiddenEdges));
  return WithExtendedData(face);
}

NodeList ColouredFace(const Corners& corners, std::int64_t colour) {
  NodeList face = Face(corners, 0);
  face.insert(face.begin() + 3, Integer(62, colour));
  return face;
}

NodeList Line(const std::string& layer, const Point& from, const Point& to) {
  return WithExtendedData({Text(0, "LINE"), Text(100, "AcDbEntity"), Text(8, layer), Text(100, "AcDbLine"),
                           Coordinates(10, from[0], from[1], from[2]), Coordinates(11, to[0], to[1], to[2])});
}

NodeList LineOfType(const std::string& layer, const std::string& linetype, const Point& from,
                    const Point& to) {
  NodeList line = Line(layer, from, to);
  line.insert(line.begin() + 3, Text(6, linetype));
  return line;
}

void AppendBand(const Corners& from, const Corners& to, std::int64_t hiddenEdges,
                std::vector<NodeList>& faces) {
  for (std::size_t k = 0; k < 4; ++k) {
    const std::size_t next = (k + 1) % 4;
    faces.push_back(Face({from[k], from[next], to[next], to[k]}, hiddenEdges));
  }
}

std::vector<NodeList> Body() {
  std::vector<NodeList> faces;
  AppendBand(OUTER, OUTER_TOP, 0, faces);
  AppendBand(INNER, INNER_TOP, 0, faces);
  AppendBand(OUTER, INNER, 10, faces);
  AppendBand(OUTER_TOP, INNER_TOP, 10, faces);
  faces.push_back(ColouredFace(GLASS, 4));
  return faces;
}

std::vector<NodeList> BodyWithSkirt() {
  std::vector<NodeList> faces;
  AppendBand(OUTER, SKIRT_OUTER, 0, faces);
  AppendBand(SKIRT_OUTER, SKIRT_OUTER_TOP, 0, faces);
  AppendBand(SKIRT_INNER, SKIRT_INNER_TOP, 0, faces);
  AppendBand(SKIRT_OUTER, SKIRT_INNER, 10, faces);
  AppendBand(SKIRT_OUTER_TOP, SKIRT_INNER_TOP, 10, faces);
  faces.push_back(ColouredFace(SKIRT_GLASS, 4));
  return faces;
}

std::string FirstDifference(const std::vector<NodeList>& expected, const std::vector<NodeList>& actual) {
  const std::size_t common = std::min(expected.size(), actual.size());
  for (std::size_t k = 0; k < common; ++k) {
    const std::string difference = node_list::FirstDifference(expected[k], actual[k]);
    if (!difference.empty()) return "entity " + std::to_string(k + 1) + ", " + difference;
  }
  if (expected.size() == actual.size()) return {};
  return std::to_string(expected.size()) + " entities expected, got " + std::to_string(actual.size());
}

}  // namespace window_of_three
