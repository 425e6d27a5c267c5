// InsertedWindow.cpp - runs dialog and module over a drawing of their own, and changes what they made.
#include "tests/teskarlt/drawing/InsertedWindow.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <fmt/format.h>

#include "arx/BvMakeWindow/BvMakeWindow.h"
#include "arx/exports/DefaultParams.h"
#include "dialog/Dialog.h"
#include "geometry/Matrix4.h"
#include "teskarlt/Error.h"
#include "teskarlt/dxf/NewDrawing.h"
#include "teskarlt/modules/ModuleSession.h"
#include "tests/support/RecordingHost.h"
#include "window/RecordFields.h"

namespace teskarlt {

namespace {

using brevanta::FieldKind;
using brevanta::RecordField;
using brevanta::RecordPoint;
using brevanta::WindowParams;
using geometry::Vec3;
using node_list::NodeList;

constexpr int CODE_DESCRIPTION_POINT = 1011;
constexpr int CODE_MARKER = -3;
constexpr int CODE_LAYER = 8;

bool IsGeometry(int code) {
  return code >= 10 && code <= 13;
}

Vec3 ToVec3(const node_list::Point& p) {
  return {p[0], p[1], p[2]};
}

bool IsSameValue(const WindowParams& a, const WindowParams& b, const RecordField& field, double tolerance) {
  switch (field.kind) {
    case FieldKind::Length:
    case FieldKind::Real:
      return std::abs(brevanta::RealIn(a, field) - brevanta::RealIn(b, field)) <= tolerance;
    case FieldKind::Integer:
      return brevanta::IntegerIn(a, field) == brevanta::IntegerIn(b, field);
    case FieldKind::Text:
      return brevanta::TextIn(a, field) == brevanta::TextIn(b, field);
    case FieldKind::Points:
      return std::ranges::equal(brevanta::PointsIn(a, field), brevanta::PointsIn(b, field),
                                [&](const RecordPoint& p, const RecordPoint& q) {
                                  return std::hypot(p.x - q.x, p.y - q.y, p.z - q.z) <= tolerance;
                                });
  }
  return false;
}

std::string ValueText(const WindowParams& record, const RecordField& field) {
  switch (field.kind) {
    case FieldKind::Length:
    case FieldKind::Real:
      return fmt::format("{}", brevanta::RealIn(record, field));
    case FieldKind::Integer:
      return fmt::format("{}", brevanta::IntegerIn(record, field));
    case FieldKind::Text:
      return fmt::format("\"{}\"", brevanta::TextIn(record, field));
    case FieldKind::Points:
      break;
  }
  std::string points;
  for (const RecordPoint& p : brevanta::PointsIn(record, field))
    points += fmt::format("({}, {}, {})", p.x, p.y, p.z);
  return points;
}

bool IsNear(const node_list::Point& a, const node_list::Point& b, double tolerance) {
  return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]) <= tolerance;
}

dxf::Document EmptyDrawing() {
  dxf::NewDrawingOptions options;
  options.units = dxf::UNITS_MILLIMETRES;
  return dxf::Document::FromText("test.dxf", dxf::NewDrawing(options));
}

// The dialog with the request's answers, then the module with what it confirmed.
InsertedWindow RunModule(const WindowRequest& request, std::int32_t isEdit) {
  InsertedWindow window{};
  dxf::Document drawing = EmptyDrawing();
  ModuleSession session(drawing, request);
  brevanta::WindowParams record{};
  brevanta::SetDefaultWindowParams(&record)->unitFactor = UNITS_PER_METRE;
  brevanta::Dialog(session.Services(), &record, 0, isEdit);
  if (!session.Outcome().confirmed) {
    ADD_FAILURE() << "the dialog refuses the window: " << session.Outcome().reports.at(0).text;
    return window;
  }
  window.record = *session.Outcome().confirmed;
  recording_host::Reset();
  brevanta::CbvMakeWindow maker;
  maker.hostTable = recording_host::Table();
  EXPECT_EQ(maker.Make(&record, UNITS_PER_METRE), brevanta::MAKE_DONE);
  window.entities = recording_host::Entities();
  return window;
}

void ChangeEntity(NodeList& entity, const Motion& motion, Description description) {
  for (node_list::Node& node : entity) {
    const bool isMoved = IsGeometry(node.code) ||
                         (node.code == CODE_DESCRIPTION_POINT && description == Description::MovedAlong);
    if (!isMoved) continue;
    auto& point = std::get<node_list::Point>(node.value);
    const Vec3 moved = motion(ToVec3(point));
    point = {moved.x, moved.y, moved.z};
  }
}

dxf::TypedTag ToTag(const node_list::Node& node) {
  dxf::TypedTag tag{node.code, std::int64_t{0}};
  if (const auto* text = std::get_if<std::string>(&node.value)) {
    tag.value = node.code == CODE_LAYER && text->empty() ? std::string_view("0") : std::string_view(*text);
  } else if (const auto* point = std::get_if<node_list::Point>(&node.value)) {
    tag.value = dxf::Point{(*point)[0], (*point)[1], (*point)[2]};
  } else if (const auto* real = std::get_if<double>(&node.value)) {
    tag.value = *real;
  } else if (const auto* integer = std::get_if<std::int64_t>(&node.value)) {
    tag.value = *integer;
  }
  return tag;
}

DrawnWindow OnlyWindow(const dxf::Document& drawing) {
  const std::vector<DrawnWindow> windows = FindWindows(drawing, MILLIMETRES);
  EXPECT_EQ(windows.size(), 1U);
  return windows.empty() ? DrawnWindow{} : windows[0];
}

bool LiesLike(const NodeList& a, const NodeList& b, double tolerance) {
  if (node_list::TextOf(a, 0) != node_list::TextOf(b, 0)) return false;
  const std::vector<node_list::Point> pointsA = node_list::PointsOf(a);
  const std::vector<node_list::Point> pointsB = node_list::PointsOf(b);
  return std::is_permutation(pointsA.begin(), pointsA.end(), pointsB.begin(), pointsB.end(),
                             [&](const auto& p, const auto& q) { return IsNear(p, q, tolerance); });
}

}  // namespace

Vec3 Motion::operator()(const Vec3& p) const {
  return {x.x * p.x + y.x * p.y + z.x * p.z + shift.x, x.y * p.x + y.y * p.y + z.y * p.z + shift.y,
          x.z * p.x + y.z * p.y + z.z * p.z + shift.z};
}

Motion Motion::Then(const Motion& other) const {
  const Motion linear{other.x, other.y, other.z, {0, 0, 0}};
  return {linear(x), linear(y), linear(z), other(shift)};
}

Motion Move(double x, double y, double z) {
  Motion motion;
  motion.shift = {x, y, z};
  return motion;
}

Motion Turn(double degrees) {
  const double angle = geometry::DegToRad(degrees);
  Motion motion;
  motion.x = {std::cos(angle), std::sin(angle), 0};
  motion.y = {-std::sin(angle), std::cos(angle), 0};
  return motion;
}

Motion Tilt(double degrees) {
  const double angle = geometry::DegToRad(degrees);
  Motion motion;
  motion.y = {0, std::cos(angle), std::sin(angle)};
  motion.z = {0, -std::sin(angle), std::cos(angle)};
  return motion;
}

Motion Mirror() {
  return Scale(-1, 1, 1);
}

Motion Scale(double x, double y, double z) {
  return {{x, 0, 0}, {0, y, 0}, {0, 0, z}, {0, 0, 0}};
}

Place Place::Changed(const Motion& motion) const {
  Place changed{{}, motion(point)};
  for (const Vec3& corner : face)
    changed.face.push_back(motion(corner));
  return changed;
}

Place OnSlope() {
  return {{{0, 0, 0}, {10000, 0, 0}, {10000, 8000, 6000}, {0, 8000, 6000}}, {5000, 2000, 1500}};
}

Place OnSlopeOf(double pitch) {
  const double rise = std::tan(geometry::DegToRad(pitch));
  return {{{0, 0, 0}, {10000, 0, 0}, {10000, 8000, 8000 * rise}, {0, 8000, 8000 * rise}},
          {5000, 2000, 2000 * rise}};
}

InsertedWindow Insert(const Answers& answers, const Place& place) {
  WindowRequest request;
  request.unit = MILLIMETRES;
  request.answers = answers;
  request.answers.insert({{"width", "1"}, {"length", "2"}});
  request.point = {place.point.x, place.point.y};
  request.roof = place.face;
  return RunModule(request, 0);
}

InsertedWindow InsertAgain(const brevanta::WindowParams& record, const Answers& answers) {
  WindowRequest request;
  request.unit = MILLIMETRES;
  request.answers = answers;
  request.edited = record;
  request.point = {record.storedPoint.x, record.storedPoint.y};
  for (const brevanta::RecordPoint& p : record.roofPlanePoints)
    request.roof.push_back({p.x, p.y, p.z});
  return RunModule(request, 1);
}

Entities Changed(Entities entities, const Motion& motion, Description description) {
  for (NodeList& entity : entities)
    ChangeEntity(entity, motion, description);
  return entities;
}

Entities PartChanged(Entities entities, std::size_t part, const Motion& motion) {
  ChangeEntity(entities.at(part), motion, Description::Left);
  return entities;
}

Entities Without(Entities entities, std::size_t first, std::size_t count) {
  const auto begin = entities.begin() + static_cast<std::ptrdiff_t>(first);
  entities.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
  return entities;
}

dxf::Document DrawingOf(const Entities& entities) {
  dxf::Document drawing = EmptyDrawing();
  for (const NodeList& entity : entities) {
    std::vector<dxf::TypedTag> tags;
    for (const node_list::Node& node : entity)
      if (node.code != CODE_MARKER) tags.push_back(ToTag(node));
    drawing.AddEntity(tags);
  }
  return dxf::Document::FromText("test.dxf", drawing.Serialize());
}

WindowReading ReadBack(const Entities& entities) {
  const dxf::Document drawing = DrawingOf(entities);
  return ReadWindow(drawing, OnlyWindow(drawing));
}

WindowShape ShapeFrom(const Entities& entities) {
  const dxf::Document drawing = DrawingOf(entities);
  return ShapeOf(drawing, OnlyWindow(drawing));
}

std::string RefusedShape(const Entities& entities) {
  try {
    ShapeFrom(entities);
    return {};
  } catch (const Error& error) {
    return error.what();
  }
}

testing::AssertionResult SameFields(const WindowParams& expected, const WindowParams& actual,
                                    const std::vector<std::string_view>& names, double tolerance) {
  testing::AssertionResult different = testing::AssertionFailure();
  bool isSame = true;
  for (std::string_view name : names) {
    const RecordField* field = brevanta::FindRecordField(name);
    if (field == nullptr) return testing::AssertionFailure() << "no field is called " << name;
    if (IsSameValue(expected, actual, *field, tolerance)) continue;
    different << name << " is not " << ValueText(expected, *field) << " but " << ValueText(actual, *field)
              << ". ";
    isSame = false;
  }
  return isSame ? testing::AssertionSuccess() : different;
}

testing::AssertionResult SamePlace(const Entities& expected, const Entities& actual, double tolerance) {
  if (expected.size() != actual.size())
    return testing::AssertionFailure() << expected.size() << " entities expected, got " << actual.size();
  Entities left = actual;
  for (const NodeList& entity : expected) {
    const auto found = std::find_if(
        left.begin(), left.end(), [&](const NodeList& other) { return LiesLike(entity, other, tolerance); });
    if (found == left.end()) {
      testing::AssertionResult failure = testing::AssertionFailure() << "nothing lies where this one does:";
      for (const node_list::Node& node : entity)
        if (node.code < CODE_DESCRIPTION_POINT && node.code != CODE_MARKER) failure << ' ' << ToString(node);
      return failure;
    }
    left.erase(found);
  }
  return testing::AssertionSuccess();
}

}  // namespace teskarlt
