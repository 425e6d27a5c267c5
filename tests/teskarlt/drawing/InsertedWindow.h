// InsertedWindow.h - roof windows as dialog and module make them, and what other programs do to them
// afterwards.
#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "geometry/Vec3.h"
#include "inc/WindowParams.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/drawing/WindowShape.h"
#include "teskarlt/dxf/Document.h"
#include "tests/support/NodeList.h"

namespace teskarlt {

// The drawings are in millimetres.
constexpr std::int32_t UNITS_PER_METRE = 1000;
constexpr WorkingUnit MILLIMETRES{UNITS_PER_METRE, 1.0};

// A map of space, as CAD programs apply it: where the unit vectors go, then the shift. Drawing units.
struct Motion {
  geometry::Vec3 x{1, 0, 0};
  geometry::Vec3 y{0, 1, 0};
  geometry::Vec3 z{0, 0, 1};
  geometry::Vec3 shift{0, 0, 0};

  geometry::Vec3 operator()(const geometry::Vec3& p) const;
  // First this one, then the other.
  Motion Then(const Motion& other) const;
};

Motion Move(double x, double y, double z);
Motion Turn(double degrees);  // about the z axis
Motion Tilt(double degrees);  // about the x axis
Motion Mirror();              // x becomes -x
Motion Scale(double x, double y, double z);

// The roof face that takes a window, and the window's point in the plan.
struct Place {
  std::vector<geometry::Vec3> face;
  geometry::Vec3 point;

  Place Changed(const Motion& motion) const;
};

// z = 0.75 y over 10 m x 8 m, so that 2 m up the slope are 1.6 m along y and 1.2 m along z; the point is (5,
// 2, 1.5) m.
Place OnSlope();
// The same plan at another pitch, in degrees.
Place OnSlopeOf(double pitch);

// The user's answers: fields of the record and texts for them.
using Answers = std::map<std::string, std::string, std::less<>>;
using Entities = std::vector<node_list::NodeList>;

struct InsertedWindow {
  brevanta::WindowParams record;  // as the dialog confirmed it
  Entities entities;              // as the module handed them over
};

// A window of 1 m x 2 m unless the answers say otherwise, number 1. A refusal fails the running test.
InsertedWindow Insert(const Answers& answers = {}, const Place& place = OnSlope());

// The window that `edit` makes of a record that was read back, and changed by the answers.
InsertedWindow InsertAgain(const brevanta::WindowParams& record, const Answers& answers = {});

// Some programs move the points of the description along with the entity.
enum class Description { Left, MovedAlong };

Entities Changed(Entities entities, const Motion& motion, Description description = Description::Left);
// Only one of the entities.
Entities PartChanged(Entities entities, std::size_t part, const Motion& motion);
// Without `count` entities from `first` on.
Entities Without(Entities entities, std::size_t first, std::size_t count = 1);

// A drawing that holds the entities and nothing else.
dxf::Document DrawingOf(const Entities& entities);

// The only window among the entities, as its readers give it.
WindowReading ReadBack(const Entities& entities);
WindowShape ShapeFrom(const Entities& entities);
// Why ShapeOf refuses it; empty when it does not.
std::string RefusedShape(const Entities& entities);

// Whether both records have the same values in the fields of those names; numbers may differ by the
// tolerance.
testing::AssertionResult SameFields(const brevanta::WindowParams& expected,
                                    const brevanta::WindowParams& actual,
                                    const std::vector<std::string_view>& names, double tolerance);

// Whether every entity of the one lies where one of the other lies, whichever way round its points run.
testing::AssertionResult SamePlace(const Entities& expected, const Entities& actual, double tolerance);

}  // namespace teskarlt
