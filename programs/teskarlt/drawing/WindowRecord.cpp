// WindowRecord.cpp - the record with which a window that stands in a drawing can be inserted again.
#include "teskarlt/drawing/WindowRecord.h"

#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "geometry/Intersections.h"
#include "teskarlt/Error.h"
#include "teskarlt/drawing/WindowParts.h"
#include "teskarlt/dxf/TagValue.h"

namespace teskarlt {

namespace {

using brevanta::WindowParams;
using geometry::Vec3;

constexpr std::size_t TOP_EDGE_OF_OUTLINE = 1;  // which of those lines the frame's upper edge is
constexpr std::size_t TOP_EDGE_OF_OPENING = 4;
constexpr double SAME_LENGTH = 0.001;  // metres

[[noreturn]] void Fail(const DrawnWindow& window, const std::string& what) {
  throw Error(fmt::format("window {} cannot be changed: {}", window.number, what));
}

// The points 10 to 13 of an entity, those that are missing at the origin.
std::vector<Vec3> PointsOf(const dxf::Document& drawing, const dxf::Entity& entity) {
  std::vector<Vec3> points(4);
  dxf::TagReader reader = drawing.Reader(entity);
  for (dxf::Tag tag; reader.Next(tag) && tag.code < dxf::CODE_XDATA_TEXT;) {
    if (tag.code < 10 || tag.code > 39 || tag.code % 10 > 3) continue;
    Vec3& point = points[static_cast<std::size_t>(tag.code % 10)];
    (tag.code < 20 ? point.x : tag.code < 30 ? point.y : point.z) = reader.Real(tag);
  }
  return points;
}

double Distance(const Vec3& a, const Vec3& b) {
  Vec3 d{};
  geometry::VecSub(b, a, d);
  return geometry::VecLength(d);
}

// The ends of the frame's upper edge, drawing coordinates.
std::vector<Vec3> TopEdge(const dxf::Document& drawing, const DrawnWindow& window) {
  std::vector<const dxf::Entity*> lines;
  for (const dxf::Entity* entity : window.entities) {
    if (dxf::SameName(entity->type, "LINE")) lines.push_back(entity);
  }
  const bool hasSymbol = window.params.drawOpeningSymbol != 0;
  const std::size_t expected = hasSymbol ? LINES_OF_OUTLINE : LINES_OF_OPENING;
  if (lines.size() < expected) Fail(window, "some of its lines are missing");
  const std::size_t first = lines.size() - expected;
  return PointsOf(drawing, *lines[first + (hasSymbol ? TOP_EDGE_OF_OUTLINE : TOP_EDGE_OF_OPENING)]);
}

// Metres from the window's place to the line of its upper edge.
double ReachOf(const DrawnWindow& window, const std::vector<Vec3>& topEdge) {
  const brevanta::RecordPoint& place = window.params.storedPoint;
  double distance = 0.0;
  geometry::PointLineDistance(topEdge[0], topEdge[1], {place.x, place.y, place.z}, distance);
  return distance / window.params.unitFactor;
}

void TakeBody(const dxf::Document& drawing, const DrawnWindow& window, WindowParams& params) {
  const std::size_t faces = window.faces;
  if (faces != 0 && faces != FACES_WITHOUT_SKIRT && faces != FACES_WITH_SKIRT)
    Fail(window, fmt::format("it has {} faces, and a window has 17 or, with a skirt, 21", faces));
  params.bodyAsFaces = faces == 0 ? 0 : 1;
  params.skirtHeight = 0.0;
  if (faces != FACES_WITH_SKIRT) return;
  for (const dxf::Entity* entity : window.entities) {
    if (!dxf::SameName(entity->type, "3DFACE")) continue;
    const std::vector<Vec3> corners = PointsOf(drawing, *entity);  // of the skirt: from foot to top
    params.skirtHeight = Distance(corners[0], corners[3]) / params.unitFactor;
    return;
  }
}

// Another program may have stretched or mirrored the window since; then its description does not fit any
// more.
void CheckSize(const DrawnWindow& window, const std::vector<Vec3>& topEdge, double reach,
               WindowParams& params) {
  const double width = Distance(topEdge[0], topEdge[1]) / params.unitFactor;
  if (std::abs(width - params.width) > SAME_LENGTH) {
    Fail(window, fmt::format("it is {:.3f} m wide in the drawing and {:.3f} m by its description", width,
                             params.width));
  }
  if (params.roofBuildUp == brevanta::BUILD_UP_SLOPE_OFFSET) {
    params.slopeOffset = reach - params.length;
  } else if (params.roofBuildUp == brevanta::BUILD_UP_PLAIN &&
             std::abs(reach - params.length) > SAME_LENGTH) {
    Fail(window, fmt::format("it is {:.3f} m long in the drawing and {:.3f} m by its description", reach,
                             params.length));
  }
}

template <std::size_t SIZE>
void StoreText(const dxf::Document& drawing, const std::string& utf8, char (&field)[SIZE]) {
  const std::string bytes = drawing.ToCodePage(utf8).substr(0, SIZE - 1);
  std::memcpy(field, bytes.c_str(), bytes.size() + 1);
}

}  // namespace

WindowParams RecordOf(const dxf::Document& drawing, const DrawnWindow& window) {
  if (!window.isComplete) Fail(window, "its description is damaged");
  WindowParams params = window.params;
  StoreText(drawing, window.text1, params.text1);
  StoreText(drawing, window.text2, params.text2);
  StoreText(drawing, window.text3, params.text3);
  StoreText(drawing, window.openingCode, params.openingCode);
  params.rotation = 0.0;
  TakeBody(drawing, window, params);
  const std::vector<Vec3> topEdge = TopEdge(drawing, window);
  CheckSize(window, topEdge, ReachOf(window, topEdge), params);
  return params;
}

bool IsUnderside(const WindowParams& params, double tolerance) {
  const auto point = [](const brevanta::RecordPoint& p) { return Vec3{p.x, p.y, p.z}; };
  const auto& roof = params.roofPlanePoints;
  Vec3 along{};
  Vec3 across{};
  Vec3 normal{};
  geometry::VecSub(point(roof[1]), point(roof[0]), along);
  geometry::VecSub(point(roof[2]), point(roof[0]), across);
  geometry::VecCross(along, across, normal);
  if (geometry::VecNormalize(normal, normal) != 0) return false;
  geometry::VecScale(normal, (normal.z < 0 ? 1.0 : -1.0) * params.layerThickness * params.unitFactor, normal);
  for (int i = 0; i < 3; ++i) {
    Vec3 lowered{};
    geometry::VecAdd(point(roof[i]), normal, lowered);
    if (Distance(lowered, point(params.secondPlanePoints[i])) > tolerance) return false;
  }
  return true;
}

}  // namespace teskarlt
