// NearlyFlatAndUprightTest.cpp - windows on roofs whose normals lie around the tolerances of the kernel.
#include <cmath>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "geometry/Matrix4.h"
#include "geometry/Vectors.h"
#include "inc/RecordPoints.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/windows/WindowEditor.h"
#include "teskarlt/windows/WindowInserter.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using geometry::Vec3;
using testing::IsEmpty;

constexpr double HALF = 5.0;        // metres, of the roof's sides
constexpr double SAME = 1e-5;       // metres
constexpr double TOLERANCE = 1e-4;  // of the kernel

// Around the kernel's tolerance for a horizontal plane: the plan length of unit normals.
constexpr double FLAT[] = {0,
                           1e-15,
                           1e-12,
                           1e-10,
                           1e-7,
                           TOLERANCE / 2,
                           TOLERANCE*(1 - 1e-12),
                           TOLERANCE,
                           TOLERANCE*(1 + 1e-12),
                           TOLERANCE * 1.2,  // below the tolerance along both axes, in some directions
                           1e-3};
// And for a vertical one: their upward part.
constexpr double UPRIGHT[] = {TOLERANCE * 1.001, 1e-3};
constexpr double DIRECTIONS[] = {0,   30,  45,  90,  135,
                                 180, 200, 225, 270, 300};  // degrees, of the normal's plan

// A square roof of 10 m around its centre.
struct Roof {
  Vec3 centre;  // drawing units
  Vec3 normal;
  Vec3 across;  // unit vectors in the roof
  Vec3 up;
  double scale;  // drawing units per metre

  std::vector<Vec3> Corners() const {
    const auto corner = [&](double x, double y) {
      return Moved(Moved(centre, across, x * HALF * scale), up, y * HALF * scale);
    };
    return {corner(-1, -1), corner(1, -1), corner(1, 1), corner(-1, 1)};
  }
  bool Holds(const Vec3& point) const {
    const Vec3 offset = Difference(point, centre);
    const double most = HALF * scale;
    return std::abs(VecDot(offset, normal)) <= RoofTolerance(scale) &&
           std::abs(VecDot(offset, across)) <= most && std::abs(VecDot(offset, up)) <= most;
  }
  static double RoofTolerance(double scale) { return 0.001 * scale; }
};

// Whose unit normal has that plan length and upward part, and falls in that direction (degrees).
Roof RoofWith(double planLength, double upward, double direction, double scale) {
  const double angle = geometry::DegToRad(direction);
  const Vec3 normal{planLength * std::cos(angle), planLength * std::sin(angle), upward};
  const Vec3 across = planLength == 0.0 ? Vec3{1, 0, 0} : Vec3{-std::sin(angle), std::cos(angle), 0};
  return {{12 * scale, -7 * scale, 300 * scale}, normal, across, Cross(normal, across), scale};
}

std::vector<Roof> Roofs(double scale) {
  std::vector<Roof> roofs;
  for (const double direction : DIRECTIONS) {
    for (const double length : FLAT)
      roofs.push_back(RoofWith(length, std::sqrt(1 - length * length), direction, scale));
    for (const double upward : UPRIGHT)
      roofs.push_back(RoofWith(std::sqrt(1 - upward * upward), upward, direction, scale));
  }
  return roofs;
}

// In the middle of the roof, which the order gives as a plane: nearly upright faces are no roofs.
WindowOrder InTheMiddle(const Roof& roof) {
  WindowOrder order;
  order.at = PlanPoint{roof.centre.x, roof.centre.y, "the middle"};
  const std::vector<Vec3> corners = roof.Corners();
  order.roof = {corners[0], corners[1], corners[2]};
  order.settings = {{"width", "1"}, {"length", "2"}, {"heightReference", "0"}};
  return order;
}

WindowOrder Wider() {
  WindowOrder order;
  order.settings = {{"width", "1.2"}};
  return order;
}

class RoofAroundTolerances : public testing::TestWithParam<const char*> {
 protected:
  const DrawingUnit& unit = UnitByName(GetParam());
  const double scale = unit.perMetre;
  const WindowModule module;

  // The outline of the only window, as it is drawn.
  Outline DrawnOnRoof(const Roof& roof, const dxf::Document& drawing) {
    const std::vector<DrawnWindow> windows = FindWindows(drawing, unit.working);
    const WindowReading reading = ReadWindow(drawing, windows.at(0));
    EXPECT_THAT(reading.obstacle, IsEmpty());
    EXPECT_THAT(reading.notes, IsEmpty());
    EXPECT_FALSE(reading.isMirrored);
    const Outline outline = DrawnOutline(drawing, windows.at(0)).value_or(Outline{});
    EXPECT_TRUE(std::all_of(outline.begin(), outline.end(), [&](const Vec3& p) { return roof.Holds(p); }));
    return outline;
  }
};

TEST_P(RoofAroundTolerances, WindowLiesAtItsPointAndCanBeEdited) {
  for (const Roof& roof : Roofs(scale)) {
    SCOPED_TRACE(fmt::format("normal {}, {}, {}", roof.normal.x, roof.normal.y, roof.normal.z));
    dxf::Document drawing = DrawingWithFaces({}, unit.insUnits);
    const PlacedWindow placed = WindowInserter(module, drawing, unit).Insert(InTheMiddle(roof));
    drawing = Reloaded(drawing);
    const Outline drawn = DrawnOnRoof(roof, drawing);
    const Vec3 middle = Scaled(Sum(drawn[0], drawn[3]), 0.5);  // of the lower edge
    EXPECT_LT(std::hypot(middle.x - roof.centre.x, middle.y - roof.centre.y), SAME * scale);
    const Outline foreseen = OutlineOf(placed.record);
    for (std::size_t k = 0; k < drawn.size(); ++k)
      EXPECT_LT(Distance(drawn[k], foreseen[k]), SAME * scale) << k;

    WindowEditor(module, drawing, unit, {.numbers = {{1, 1}}}, false).Edit(Wider());
    const Outline wider = DrawnOnRoof(roof, Reloaded(drawing));
    EXPECT_LT(Distance(Scaled(Sum(wider[1], wider[2]), 0.5), Scaled(Sum(drawn[1], drawn[2]), 0.5)),
              SAME * scale);
  }
}

INSTANTIATE_TEST_SUITE_P(Units, RoofAroundTolerances, testing::Values("mm", "m"));

// The dialog foresees where the window will lie: what it lets through stays inside the roof.
TEST(NearlyFlatFace, WindowIsRefusedWhereItWouldLeaveTheFace) {
  const WindowModule module;
  const double low = 2999.999999;  // a millionth lower, along +y: the window runs from its point to -y
  dxf::Document drawing =
      DrawingWithFaces({{{0, 0, 3000}, {10000, 0, 3000}, {10000, 8000, low}, {0, 8000, low}}});
  WindowOrder order = OrderAt(5000, 500);
  order.settings = {{"heightReference", "0"}};
  WindowInserter inserter(module, drawing, Millimetres());
  EXPECT_THAT(RefusalOf([&] { inserter.Insert(order); }), testing::HasSubstr("would leave the roof face"));
  order.at->y = 7900;
  EXPECT_THAT(inserter.Insert(order).misfits, IsEmpty());
}

// Level now, the roof would take windows that run from their points to +y.
TEST(NearlyFlatFace, WindowStaysWhereItLiesWhenItsRoofIsMadeLevel) {
  const WindowModule module;
  const double low = 2999.9999;
  const std::vector<Vec3> level = {{0, 0, 3000}, {10000, 0, 3000}, {10000, 8000, 3000}, {0, 8000, 3000}};
  dxf::Document drawing =
      DrawingWithFaces({{{0, 0, 3000}, {10000, 0, 3000}, {10000, 8000, low}, {0, 8000, low}}, level});
  WindowOrder order = OrderAt(5000, 4000);
  order.settings = {{"heightReference", "0"}, {"length", "2"}};
  order.roofName = fmt::format("{:X}", drawing.Entities().front().handle);
  WindowInserter(module, drawing, Millimetres()).Insert(order);
  drawing.RemoveEntity(drawing.Entities().front());
  drawing = Reloaded(drawing);
  WindowEditor editor(module, drawing, Millimetres(), {.numbers = {{1, 1}}}, false);
  const Outline edited = editor.Edit(Wider()).front().placed.outline;
  EXPECT_NEAR(edited[0].y, 4000, 1e-6);
  EXPECT_NEAR(edited[1].y, 2000, 1e-6);
}

}  // namespace
}  // namespace teskarlt
