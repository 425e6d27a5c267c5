// WindowPropertiesTest.cpp - laws that hold for every window in every roof, over random ones.
#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "arx/BvMakeWindow/BvMakeWindow.h"
#include "tests/support/RecordingHost.h"
#include "window/Choices.h"

namespace brevanta {
namespace {

using node_list::NodeList;
using node_list::Point;
using Corners = std::array<Point, 4>;

constexpr double PI = 3.141592653589793;
constexpr int ROUNDS = 200;
constexpr unsigned SEED = 20240607;
constexpr double GLASS_INSET = 0.02;  // metres

Point operator+(const Point& a, const Point& b) {
  return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}
Point operator-(const Point& a, const Point& b) {
  return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}
Point operator*(double factor, const Point& p) {
  return {factor * p[0], factor * p[1], factor * p[2]};
}
double Dot(const Point& a, const Point& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
RecordPoint ToRecord(const Point& p) {
  return {p[0], p[1], p[2]};
}
Point FromRecord(const RecordPoint& p) {
  return {p.x, p.y, p.z};
}

// A window in a roof that rises at the angle `pitch` towards `direction` (radians, from +x).
struct Case {
  WindowParams record{};
  std::int32_t unitFactor = 1;
  double direction = 0;
  double pitch = 0;

  // Unit vectors in the drawing: across the roof, up the slope, and the normal.
  Point Across() const { return {std::sin(direction), -std::cos(direction), 0}; }
  Point Up() const {
    return {std::cos(direction) * std::cos(pitch), std::sin(direction) * std::cos(pitch), std::sin(pitch)};
  }
  Point Normal() const {
    return {-std::cos(direction) * std::sin(pitch), -std::sin(direction) * std::sin(pitch), std::cos(pitch)};
  }
  double Scaled(double metres) const { return metres * unitFactor; }

  bool OnSecondPlane() const { return record.roofBuildUp == BUILD_UP_SECOND_PLANE; }
  const RecordPoint (&FittedPoints() const)[3] {
    return OnSecondPlane() ? record.secondPlanePoints : record.roofPlanePoints;
  }
  // Of the frame's foot above the fitted plane, along the normal: the skirt, and the layer on a second plane.
  double FootDistance() const {
    return Scaled(record.skirtHeight + (OnSecondPlane() ? record.layerThickness : 0.0));
  }
  // Largest coordinate that takes part, by which rounding grows.
  double Size() const {
    double size = 1;
    for (const RecordPoint& p : FittedPoints())
      size = std::max({size, std::abs(p.x), std::abs(p.y), std::abs(p.z)});
    return size;
  }
  double Tolerance() const { return 1e-12 * Size(); }
};

class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}
  double Between(double low, double high) { return std::uniform_real_distribution(low, high)(engine_); }
  int Upto(int last) { return std::uniform_int_distribution(0, last)(engine_); }

 private:
  std::mt19937_64 engine_;
};

// Three points of the roof, in either direction of picking.
void PickRoof(Random& random, const Case& c, const Point& origin, RecordPoint (&points)[3]) {
  const double side = random.Upto(1) == 0 ? -1 : 1;
  const double along = c.Scaled(random.Between(2, 10));
  const double across = c.Scaled(side * random.Between(2, 10));
  points[0] = ToRecord(origin);
  points[1] = ToRecord(origin + across * c.Across());
  points[2] = ToRecord(origin + along * c.Up() + c.Scaled(random.Between(-3, 3)) * c.Across());
}

void ChooseWindow(Random& random, WindowParams& record) {
  record.width = random.Between(0.5, 2);
  record.length = random.Between(0.6, 3);
  record.frameWidth = random.Between(0.02, 0.2);
  record.frameDepth = random.Between(0.01, 0.2);  // at times less than the inset of the glass
  record.skirtHeight = random.Upto(1) * random.Between(0.05, 0.3);
  record.heightReference = random.Upto(3);
  record.widthAnchor = random.Upto(2);
  record.roofBuildUp = random.Upto(2);
  record.slopeOffset = random.Between(0, 0.5);
  record.layerThickness = random.Between(0.05, 0.4);
  record.bodyAsFaces = 1;
  record.drawOpeningSymbol = random.Upto(1);
  record.openingCode[0] = 'D';
  record.lowerEdgeHeight = random.Between(0, 10);
  record.placeByHeight = random.Upto(1);
  record.markerValue = 1;
}

Case RandomCase(Random& random) {
  Case c;
  constexpr std::int32_t factors[] = {1, 100, 1000};
  c.unitFactor = factors[random.Upto(2)];
  c.direction = random.Between(0, 2 * PI);
  c.pitch = random.Between(5, 60) * PI / 180;
  ChooseWindow(random, c.record);
  c.record.unitFactor = c.unitFactor;
  c.record.pitch = c.pitch * 180 / PI;
  const Point origin =
      c.Scaled(1) * Point{random.Between(-1000, 1000), random.Between(-1000, 1000), random.Between(0, 20)};
  PickRoof(random, c, origin, c.record.roofPlanePoints);
  PickRoof(random, c, origin + c.Scaled(0.3) * c.Normal(), c.record.secondPlanePoints);
  c.record.insertionPoint = {c.Scaled(random.Between(-5, 5)), c.Scaled(random.Between(-5, 5)), 0};
  return c;
}

// The body's corners, in drawing coordinates.
struct Body {
  Corners outerFoot, innerFoot, outerTop, innerTop, glass;
};

Body Insert(const Case& c) {
  recording_host::Reset();
  WindowParams record = c.record;
  static CbvMakeWindow maker;  // one for all: making one looks for its resource module
  maker.hostTable = recording_host::Table();
  EXPECT_EQ(maker.Make(&record, c.unitFactor), 1);
  const auto faces = recording_host::Faces();
  const std::size_t rings = record.skirtHeight > 0 ? 12 : 8;
  EXPECT_EQ(faces.size(), rings + 9);
  Body body{};
  if (faces.size() != rings + 9) return body;
  for (std::size_t k = 0; k < 4; ++k) {
    body.outerFoot[k] = node_list::PointOf(faces[rings + k], 10);
    body.innerFoot[k] = node_list::PointOf(faces[rings + k], 13);
    body.outerTop[k] = node_list::PointOf(faces[rings + 4 + k], 10);
    body.innerTop[k] = node_list::PointOf(faces[rings + 4 + k], 13);
    body.glass[k] = node_list::PointsOf(faces.back())[k];
  }
  return body;
}

void ExpectSame(const Point& actual, const Point& expected, double tolerance) {
  for (std::size_t axis = 0; axis < 3; ++axis)
    EXPECT_NEAR(actual[axis], expected[axis], tolerance);
}

void ExpectRectangle(const Corners& corners, const Point& up, const Point& across, double tolerance) {
  ExpectSame(corners[1] - corners[0], up, tolerance);
  ExpectSame(corners[2] - corners[3], up, tolerance);
  ExpectSame(corners[3] - corners[0], across, tolerance);
  ExpectSame(corners[2] - corners[1], across, tolerance);
}

template <typename Law>
void ForRandomWindows(Law law) {
  Random random(SEED);
  for (int round = 0; round < ROUNDS && !testing::Test::HasFailure(); ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    const Case c = RandomCase(random);
    law(c, Insert(c));
  }
}

TEST(EveryWindow, FootLiesInTheRoofLiftedBySkirtAndLayer) {
  ForRandomWindows([](const Case& c, const Body& body) {
    const Point onPlane = FromRecord(c.FittedPoints()[0]);
    for (std::size_t k = 0; k < 4; ++k) {
      EXPECT_NEAR(Dot(body.outerFoot[k] - onPlane, c.Normal()), c.FootDistance(), c.Tolerance());
      EXPECT_NEAR(Dot(body.innerFoot[k] - onPlane, c.Normal()), c.FootDistance(), c.Tolerance());
    }
  });
}

TEST(EveryWindow, OppositeSidesAreParallelAndOfTheGivenLengths) {
  ForRandomWindows([](const Case& c, const Body& body) {
    const double length = c.Scaled(c.record.length);
    const double width = c.Scaled(c.record.width);
    const double frame = c.Scaled(2 * c.record.frameWidth);
    ExpectRectangle(body.outerFoot, length * c.Up(), width * c.Across(), c.Tolerance());
    ExpectRectangle(body.outerTop, length * c.Up(), width * c.Across(), c.Tolerance());
    ExpectRectangle(body.innerFoot, (length - frame) * c.Up(), (width - frame) * c.Across(), c.Tolerance());
  });
}

TEST(EveryWindow, FrameIsAsWideOnEverySide) {
  ForRandomWindows([](const Case& c, const Body& body) {
    const Point inset = c.Scaled(c.record.frameWidth) * (c.Up() + c.Across());
    ExpectSame(body.innerFoot[0] - body.outerFoot[0], inset, c.Tolerance());
    ExpectSame(body.outerFoot[2] - body.innerFoot[2], inset, c.Tolerance());
  });
}

TEST(EveryWindow, TopStandsOneDepthAboveTheFoot) {
  ForRandomWindows([](const Case& c, const Body& body) {
    const Point lift = c.Scaled(c.record.frameDepth) * c.Normal();
    for (std::size_t k = 0; k < 4; ++k) {
      ExpectSame(body.outerTop[k] - body.outerFoot[k], lift, c.Tolerance());
      ExpectSame(body.innerTop[k] - body.innerFoot[k], lift, c.Tolerance());
    }
  });
}

TEST(EveryWindow, GlassIsParallelToTheRoofBelowTheTop) {
  ForRandomWindows([](const Case& c, const Body& body) {
    const double depth = c.record.frameDepth;
    const double inset = c.Scaled(GLASS_INSET > depth ? depth / 2 : GLASS_INSET);
    for (std::size_t k = 0; k < 4; ++k)
      ExpectSame(body.innerTop[k] - body.glass[k], inset * c.Normal(), c.Tolerance());
  });
}

TEST(EveryWindow, CornersAreAllFinite) {
  ForRandomWindows([](const Case& /*c*/, const Body& /*body*/) {
    for (const NodeList& entity : recording_host::Entities()) {
      for (const Point& p : node_list::PointsOf(entity)) {
        EXPECT_TRUE(std::isfinite(p[0]) && std::isfinite(p[1]) && std::isfinite(p[2]));
      }
    }
  });
}

TEST(EveryWindow, InAPlainRoofItsAnchorIsTheInsertionPointInThePlan) {
  ForRandomWindows([](const Case& c, const Body& body) {
    if (c.record.roofBuildUp != BUILD_UP_PLAIN || c.record.placeByHeight == 1 || c.record.skirtHeight > 0)
      return;
    // The local frame: origin at the third point, x across, y up the slope in the plan.
    const Point third = FromRecord(c.record.roofPlanePoints[2]);
    const Point rise = {std::cos(c.direction), std::sin(c.direction), 0};
    const Point picked = third + c.record.insertionPoint.x * c.Across() + c.record.insertionPoint.y * rise;
    const Point middle = 0.5 * (body.outerFoot[0] + body.outerFoot[3]);
    const Point anchors[] = {middle, body.outerFoot[0], body.outerFoot[3]};
    const Point& anchor = anchors[c.record.widthAnchor];
    EXPECT_NEAR(anchor[0], picked[0], c.Tolerance());
    EXPECT_NEAR(anchor[1], picked[1], c.Tolerance());
  });
}

TEST(EveryWindow, PlacedByHeightInAPlainRoofItsLowerEdgeHasThatHeight) {
  ForRandomWindows([](const Case& c, const Body& body) {
    if (c.record.roofBuildUp != BUILD_UP_PLAIN || c.record.placeByHeight != 1 || c.record.skirtHeight > 0)
      return;
    EXPECT_NEAR(body.outerFoot[0][2], c.Scaled(c.record.lowerEdgeHeight), c.Tolerance());
    EXPECT_NEAR(body.outerFoot[3][2], c.Scaled(c.record.lowerEdgeHeight), c.Tolerance());
  });
}

// On a grid of 1/1024, so that moving far away does not round.
double OnGrid(double value) {
  return std::round(value * 1024) / 1024;
}

void MoveRoof(Case& c, double dx, double dy) {
  for (auto* points : {&c.record.roofPlanePoints, &c.record.secondPlanePoints}) {
    for (RecordPoint& p : *points)
      p = {OnGrid(p.x) + dx, OnGrid(p.y) + dy, OnGrid(p.z)};
  }
}

// Doubles are 6e-8 apart at 5e8, and a corner goes through a few products and sums there.
TEST(EveryWindow, FarFromTheOriginItIsTheSameWindowMoved) {
  constexpr double distance = 5e8;
  constexpr double bound = 5e-7;
  Random random(SEED);
  for (int round = 0; round < ROUNDS && !testing::Test::HasFailure(); ++round) {
    Case c = RandomCase(random);
    const double dx = (random.Upto(2) - 1) * distance;
    const double dy = (random.Upto(2) - 1) * distance;
    // The roof beside the origin.
    const RecordPoint origin = c.record.roofPlanePoints[0];
    MoveRoof(c, -OnGrid(origin.x), -OnGrid(origin.y));
    Insert(c);
    const std::vector<NodeList>& entities = recording_host::Entities();
    const std::vector<NodeList> beside(entities.begin(), entities.end());  // the next insertion empties them
    MoveRoof(c, dx, dy);
    Insert(c);
    const std::vector<NodeList>& moved = recording_host::Entities();
    ASSERT_EQ(beside.size(), moved.size());
    for (std::size_t k = 0; k < beside.size(); ++k) {
      const auto expected = node_list::PointsOf(beside[k]);
      const auto actual = node_list::PointsOf(moved[k]);
      for (std::size_t corner = 0; corner < expected.size(); ++corner)
        ExpectSame(actual[corner], expected[corner] + Point{dx, dy, 0}, bound);
    }
  }
}

}  // namespace
}  // namespace brevanta
