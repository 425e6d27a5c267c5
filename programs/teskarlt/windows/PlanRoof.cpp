// PlanRoof.cpp - the plane of a roof that is only drawn in plan.
#include "teskarlt/windows/PlanRoof.h"

#include <cmath>

#include <fmt/format.h>

#include "geometry/Matrix4.h"
#include "geometry/Trigonometry.h"
#include "teskarlt/Error.h"

namespace teskarlt {

namespace {

// One of the edges with its height, and the height's name.
struct Edge {
  const char* name;
  PlanPoint from;
  PlanPoint to;
  double height;  // metres
};

Edge EdgeOf(const PlanRoof& roof) {
  if (roof.eaves.empty() == roof.ridge.empty()) {
    throw Error(roof.eaves.empty()
                    ? "--pitch, --eaves-height, --ridge-height and --rises-to need --eaves X,Y X,Y or --ridge"
                    : "--eaves and --ridge both give the roof; leave one out");
  }
  const bool isEaves = !roof.eaves.empty();
  const char* name = isEaves ? "eaves" : "ridge";
  const std::optional<double>& height = isEaves ? roof.eavesHeight : roof.ridgeHeight;
  if (!height || !roof.pitch) {
    throw Error(
        fmt::format("--{} alone is no plane; say the pitch in degrees with --pitch and the height of "
                    "the {} in metres with --{}-height",
                    name, name, name));
  }
  const std::vector<PlanPoint>& ends = isEaves ? roof.eaves : roof.ridge;
  return {name, ends[0], ends[1], *height};
}

// Positive where the point lies to the left of the edge.
double SideOf(const Edge& edge, const PlanPoint& p) {
  return (edge.to.x - edge.from.x) * (p.y - edge.from.y) - (edge.to.y - edge.from.y) * (p.x - edge.from.x);
}

// Whether the roof rises to the left of the edge. A roof lies to the left of its edge, and falls from a
// ridge.
bool RisesToLeft(const PlanRoof& roof, const Edge& edge) {
  if (!roof.risesTo) return !roof.eaves.empty();
  const double side = SideOf(edge, *roof.risesTo);
  if (side == 0.0) {
    throw Error(fmt::format("--rises-to {}: the point lies on the line of the {}; give one on the side to "
                            "which the roof rises",
                            roof.risesTo->text, edge.name),
                {.value = roof.risesTo->text});
  }
  return side > 0.0;
}

}  // namespace

std::vector<geometry::Vec3> PlaneOf(const PlanRoof& roof, double perMetre) {
  const Edge edge = EdgeOf(roof);
  const double dx = edge.to.x - edge.from.x;
  const double dy = edge.to.y - edge.from.y;
  const double length = std::hypot(dx, dy);
  if (!(length > 0.0))
    throw Error(fmt::format("--{} {} {}: the ends are one point", edge.name, edge.from.text, edge.to.text));
  const double side = RisesToLeft(roof, edge) ? 1.0 : -1.0;
  const double z = edge.height * perMetre;
  const double rise = length * geometry::Tangent(geometry::DegToRad(*roof.pitch));
  return {{edge.from.x, edge.from.y, z},
          {edge.to.x, edge.to.y, z},
          {edge.from.x - side * dy, edge.from.y + side * dx, z + rise}};
}

}  // namespace teskarlt
