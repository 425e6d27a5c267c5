// roof_report.cpp - what the kernel tells about a small house: a roof, its valley, an arched window, a list
// of rooms.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "geometry/Arcs.h"
#include "geometry/Intersections.h"
#include "geometry/Matrix4.h"
#include "geometry/PlanDirection.h"
#include "geometry/RoofPlane.h"
#include "geometry/Trigonometry.h"
#include "geometry/Vec3.h"
#include "lttools/Err.h"
#include "xsort.h"

using geometry::Vec3;

namespace {

// Rounded to what is printed, so that no zero has a sign.
double Shown(double value) {
  const double thousandths =
      static_cast<double>(static_cast<long long>(value * 1000 + (value < 0 ? -0.5 : 0.5)));
  return thousandths == 0 ? 0 : thousandths / 1000;
}

void Print(const char* what, const Vec3& v) {
  std::printf("%s (%.3f, %.3f, %.3f)\n", what, Shown(v.x), Shown(v.y), Shown(v.z));
}

// A roof that rises from the eaves at height 3 along y; where is the point above the plan position (4, 2)?
bool ReportRoof() {
  if (geometry::FitRoofPlane({0, 0, 3}, {10, 0, 3}, {10, 5, 8}, 1) != 1) return false;
  const Vec3& n = geometry::roofPlane.localNormal;
  std::printf("pitch %.1f degrees\n", geometry::RadToDeg(geometry::ArcTangent2(-n.y, n.z)));
  Vec3 point{4, 2, 0};
  geometry::WorldToRoof(point, point);
  if (geometry::HitRoofPlane(point, {0, 0, 1}, point) == geometry::HIT_NONE) return false;
  Print("local point", point);
  geometry::RoofToWorld(point, point);
  Print("point of the roof", point);
  return true;
}

// The valley between that roof and one that rises along x.
bool ReportValley() {
  Vec3 point{};
  Vec3 direction{};
  const int found =
      geometry::IntersectTwoPlanes({0, 0, 3}, {0, -1, 1}, {0, 0, 3}, {-1, 0, 1}, point, direction);
  if (found != 1 || geometry::VecNormalize(direction, direction) != 0) return false;
  Print("valley through", point);
  Print("valley along", direction);
  return true;
}

// An arched window head from (0, 2) over (0.5, 2.25) to (1,
// 2): its circle, and where a bar at x = 0.75 meets it.
bool ReportArch() {
  Vec3 centre{};
  Vec3 hit[2] = {};
  double t[2] = {};
  double fraction[2] = {};
  int counterClockwise = 0;
  const int hits =
      geometry::LineArcIntersect({0.75, 0, 0}, {0.75, 1, 0}, {0, 2, 0}, {1, 2, 0}, {0.5, 2.25, 0}, centre,
                                 counterClockwise, hit[0], hit[1], t[0], t[1], fraction[0], fraction[1]);
  if (hits != geometry::ARC_TWO_HITS) return false;
  Print("centre of the arch", centre);
  Print("bar meets the arch at", hit[1]);
  std::printf("which is %.3f of its length\n", fraction[1]);
  return true;
}

bool ReportRooms(const char* table) {
  if (xsort::XsortLoad(table) != 0) return false;
  std::vector<std::string> rooms = {"chodba", "hala", "cela", "dilna", "izba"};
  std::sort(rooms.begin(), rooms.end(), [](const std::string& a, const std::string& b) {
    return xsort::CompareTexts(a.c_str(), b.c_str()) < 0;
  });
  for (const std::string& room : rooms)
    std::printf("%s\n", room.c_str());
  return xsort::XsortUnload() == 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: roof_report TABLE\n");
    return 2;
  }
  if (ReportRoof() && ReportValley() && ReportArch() && ReportRooms(argv[1])) return 0;
  lttools::ErrFile = "roof_report";
  lttools::ErrLine = __LINE__;
  lttools::Err(lttools::ERR_FATAL, "no report");
}
