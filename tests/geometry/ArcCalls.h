// ArcCalls.h - the calls of the arcs with all of their outputs gathered.
#pragma once

#include "geometry/Arcs.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {

// What an output holds that is not written.
constexpr Vec3 UNTOUCHED{7, 8, 9};

struct Arc {
  Vec3 centre = UNTOUCHED;
  double radius = 70;
  double angle[3] = {71, 72, 73};
  int counterClockwise = 74;
  int result = 0;

  Arc(const Vec3& p0, const Vec3& p1, const Vec3& p2) {
    result = ArcThroughPoints(p0, p1, p2, centre, radius, angle[0], angle[1], angle[2], counterClockwise);
  }
};

inline Vec3 PointAt(const Vec3& start, const Vec3& end, const Vec3& centre, double fraction,
                    int counterClockwise) {
  Vec3 out = UNTOUCHED;
  ArcPointAt(start, end, centre, fraction, counterClockwise, out);
  return out;
}

struct LineHits {
  Vec3 centre = UNTOUCHED;
  int counterClockwise = 70;
  Vec3 hit[2] = {UNTOUCHED, UNTOUCHED};
  double t[2] = {71, 72};
  double fraction[2] = {73, 74};
  int count = 0;

  LineHits(const Vec3& p0, const Vec3& p1, const Vec3& start, const Vec3& end, const Vec3& mid) {
    count = LineArcIntersect(p0, p1, start, end, mid, centre, counterClockwise, hit[0], hit[1], t[0], t[1],
                             fraction[0], fraction[1]);
  }
};

struct ArcHits {
  Vec3 centre[2] = {UNTOUCHED, UNTOUCHED};
  int counterClockwise[2] = {70, 71};
  Vec3 hit[2] = {UNTOUCHED, UNTOUCHED};
  double fractionA[2] = {72, 73};
  double fractionB[2] = {74, 75};
  int count = 0;

  ArcHits(const Vec3 (&a)[3], const Vec3 (&b)[3]) {
    count = ArcArcIntersect(a[0], a[2], a[1], b[0], b[2], b[1], centre[0], counterClockwise[0], centre[1],
                            counterClockwise[1], hit[0], hit[1], fractionA[0], fractionA[1], fractionB[0],
                            fractionB[1]);
  }
};

}  // namespace geometry
