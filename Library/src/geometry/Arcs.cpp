// Arcs.cpp - circular arcs in the plan and their intersections with lines and with each other.
#include "geometry/Arcs.h"

#include <algorithm>
#include <cmath>

#include "geometry/Trigonometry.h"

namespace geometry {

namespace {

// An arc as its three points give it.
struct FittedArc {
  Vec3 centre;
  double radius;
  double angle[3];  // of the three points in the order of travel
  int counterClockwise;
};

double PlanLength(const Vec3& v) {
  return std::sqrt(v.x * v.x + v.y * v.y);
}

double PlanAngle(const Vec3& from, const Vec3& to) {
  return ArcTangent2(to.y - from.y, to.x - from.x);
}

double PlanDistance(const Vec3& a, const Vec3& b) {
  return PlanLength({a.x - b.x, a.y - b.y, 0.0});
}

// How far p1 lies from the chord of p0 and p2, in chord lengths.
double Bulge(const Vec3& p0, const Vec3& p1, const Vec3& p2, double chord) {
  const double area = (p0.x - p1.x) * (p0.y - p2.y) + (p1.y - p0.y) * (p0.x - p2.x);
  return std::abs(area) / chord / chord;
}

int Fit(const Vec3& p0, const Vec3& p1, const Vec3& p2, FittedArc& arc) {
  const double chord = PlanDistance(p0, p2);
  if (chord < KernelTolerance) return ARC_NONE;
  if (Bulge(p0, p1, p2, chord) < KernelTolerance) return ARC_NONE;

  // The bisectors of p0 p1 and of p1 p2 meet in the centre.
  Vec3 m1{};
  Vec3 m2{};
  VecMid(p0, p1, m1);
  VecMid(p1, p2, m2);
  const double den = (p2.y - p1.y) * (p0.x - p1.x) - (p1.y - p0.y) * (p1.x - p2.x);
  if (den == 0.0) return ARC_NONE;
  const double s = ((p2.y - p1.y) * (m2.y - m1.y) - (m2.x - m1.x) * (p1.x - p2.x)) / den;
  arc.centre = {m1.x + s * (p1.y - p0.y), m1.y + s * (p0.x - p1.x), 0.0};
  arc.radius = PlanDistance(p0, arc.centre);
  arc.angle[0] = PlanAngle(arc.centre, p0);
  arc.angle[1] = PlanAngle(arc.centre, p1);
  arc.angle[2] = PlanAngle(arc.centre, p2);
  const double turn = (p1.x - p0.x) * (p0.y - p2.y) + (p1.y - p0.y) * (p2.x - p0.x);
  arc.counterClockwise = turn < 0.0 ? 1 : 0;
  return ARC_FOUND;
}

// The angle within the turn that follows the start.
double Forward(double angle, int counterClockwise) {
  const double swept = counterClockwise == 0 ? -angle : angle;
  return swept < 0.0 ? swept + TWO_PI : swept;
}

void PointOnLine(const Vec3& p0, const Vec3& p1, double t, Vec3& out) {
  Vec3 along{};
  VecSub(p1, p0, along);
  VecScale(along, t, along);
  VecAdd(p0, along, out);
}

// Where the circles of both arcs cross the line through their centres' common chord.
struct CommonChord {
  Vec3 foot;      // on the line of the centres
  Vec3 u;         // unit vector from B's centre towards A's
  double a;       // from B's centre to the foot, along u
  double radius;  // of B
};

CommonChord ChordOf(const FittedArc& arcA, const FittedArc& arcB, double distance) {
  CommonChord chord{};
  chord.radius = arcB.radius;
  chord.a = (arcB.radius * arcB.radius + distance * distance - arcA.radius * arcA.radius) / 2.0 / distance;
  VecSub(arcA.centre, arcB.centre, chord.u);
  VecScale(chord.u, 1.0 / distance, chord.u);
  Vec3 toFoot{};
  VecScale(chord.u, chord.a, toFoot);
  VecAdd(arcB.centre, toFoot, chord.foot);
  return chord;
}

}  // namespace

int ArcThroughPoints(const Vec3& p0, const Vec3& p1, const Vec3& p2, Vec3& outCentre, double& outRadius,
                     double& outAngle0, double& outAngle1, double& outAngle2, int& outCounterClockwise) {
  FittedArc arc{};
  if (Fit(p0, p1, p2, arc) != ARC_FOUND) return ARC_NONE;
  outCentre = arc.centre;
  outRadius = arc.radius;
  outAngle0 = arc.angle[0];
  outAngle1 = arc.angle[1];
  outAngle2 = arc.angle[2];
  outCounterClockwise = arc.counterClockwise;
  return ARC_FOUND;
}

double ArcFractionAt(const Vec3& start, const Vec3& end, const Vec3& centre, int counterClockwise,
                     const Vec3& q) {
  Vec3 a{};
  Vec3 b{};
  Vec3 d{};
  VecSub(start, centre, a);
  VecSub(end, centre, b);
  VecSub(q, centre, d);
  // The start is tested with each of its partners, so twice; harmless.
  if (PlanLength(a) < KernelTolerance || PlanLength(b) < KernelTolerance) return 0.0;
  if (PlanLength(a) < KernelTolerance || PlanLength(d) < KernelTolerance) return 0.0;
  const double ta = ArcTangent2(a.y, a.x);
  const double tb = ArcTangent2(b.y, b.x) - ta;
  const double td = ArcTangent2(d.y, d.x) - ta;
  if (std::abs(tb) < KernelTolerance) return 0.0;
  return Forward(td, counterClockwise) / Forward(tb, counterClockwise);
}

void ArcPointAt(const Vec3& start, const Vec3& end, const Vec3& centre, double fraction, int counterClockwise,
                Vec3& out) {
  const Vec3 middle = centre;
  const double radius = PlanDistance(start, middle);
  const bool degenerate = radius < KernelTolerance || PlanDistance(end, middle) < KernelTolerance;
  double ta = PlanAngle(middle, start);
  double tb = PlanAngle(middle, end);
  out = middle;
  if (degenerate) return;
  if (counterClockwise == 0) {
    std::swap(ta, tb);
    fraction = 1.0 - fraction;
  }
  if (ta > tb) tb += TWO_PI;
  const double t = ta + (tb - ta) * fraction;
  out.x = middle.x + Cosine(t) * radius;
  out.y = middle.y + Sine(t) * radius;
}

int LineArcIntersect(const Vec3& p0, const Vec3& p1, const Vec3& arcStart, const Vec3& arcEnd,
                     const Vec3& arcMid, Vec3& outCentre, int& outCounterClockwise, Vec3& outHit1,
                     Vec3& outHit2, double& outT1, double& outT2, double& outFraction1,
                     double& outFraction2) {
  const Vec3 from = p0;
  const Vec3 to = p1;
  const Vec3 start = arcStart;
  const Vec3 end = arcEnd;
  FittedArc arc{};
  if (Fit(start, arcMid, end, arc) != ARC_FOUND) return ARC_NO_HIT;
  outCentre = arc.centre;
  outCounterClockwise = arc.counterClockwise;
  if (PlanDistance(from, to) < KernelTolerance) return ARC_NO_HIT;

  // |w + t d| = radius, squared: a t^2 + b t + c = 0.
  const Vec3 w = {from.x - arc.centre.x, from.y - arc.centre.y, 0.0};
  const Vec3 d = {to.x - from.x, to.y - from.y, 0.0};
  const double a = VecDot(d, d);
  const double b = 2.0 * VecDot(w, d);
  const double c = VecDot(w, w) - arc.radius * arc.radius;
  const double disc = b * b - 4.0 * a * c;
  const auto report = [&](double t, double& outT, Vec3& outHit, double& outFraction) {
    outT = t;
    PointOnLine(from, to, t, outHit);
    outFraction = ArcFractionAt(start, end, arc.centre, arc.counterClockwise, outHit);
  };
  if (std::abs(disc / arc.radius) < KernelTolerance) {
    report(-b / (2.0 * a), outT1, outHit1, outFraction1);
    return ARC_ONE_HIT;
  }
  if (disc < 0.0) return ARC_NO_HIT;
  report((-b - std::sqrt(disc)) / (2.0 * a), outT1, outHit1, outFraction1);
  report((-b + std::sqrt(disc)) / (2.0 * a), outT2, outHit2, outFraction2);
  return ARC_TWO_HITS;
}

int ArcArcIntersect(const Vec3& startA, const Vec3& endA, const Vec3& midA, const Vec3& startB,
                    const Vec3& endB, const Vec3& midB, Vec3& outCentreA, int& outCounterClockwiseA,
                    Vec3& outCentreB, int& outCounterClockwiseB, Vec3& outHit1, Vec3& outHit2,
                    double& outFractionA1, double& outFractionA2, double& outFractionB1,
                    double& outFractionB2) {
  const Vec3 endsA[2] = {startA, endA};
  const Vec3 endsB[2] = {startB, endB};
  FittedArc arcA{};
  FittedArc arcB{};
  const int foundA = Fit(startA, midA, endA, arcA);
  const int foundB = Fit(startB, midB, endB, arcB);
  if (foundA != ARC_FOUND) return ARC_NO_HIT;
  outCentreA = arcA.centre;
  outCounterClockwiseA = arcA.counterClockwise;
  if (foundB != ARC_FOUND) return ARC_NO_HIT;
  outCentreB = arcB.centre;
  outCounterClockwiseB = arcB.counterClockwise;

  const double distance = PlanDistance(arcA.centre, arcB.centre);
  const double big = std::max(arcA.radius, arcB.radius);
  const double small = std::min(arcA.radius, arcB.radius);
  if (distance > arcA.radius + arcB.radius + KernelTolerance) return ARC_NO_HIT;
  if (big - KernelTolerance > distance + small) return ARC_NO_HIT;
  if (distance < KernelTolerance && std::abs(arcA.radius - arcB.radius) < KernelTolerance)
    return ARC_SAME_CIRCLE;

  const CommonChord chord = ChordOf(arcA, arcB, distance);
  const auto report = [&](const Vec3& hit, Vec3& outHit, double& outA, double& outB) {
    outHit = hit;
    outA = ArcFractionAt(endsA[0], endsA[1], arcA.centre, arcA.counterClockwise, hit);
    outB = ArcFractionAt(endsB[0], endsB[1], arcB.centre, arcB.counterClockwise, hit);
  };
  if (std::abs(std::abs(chord.radius) - std::abs(chord.a)) < KernelTolerance) {
    report(chord.foot, outHit1, outFractionA1, outFractionB1);
    return ARC_ONE_HIT;
  }
  Vec3 across{};
  VecPerpXY(chord.u, 1, across);
  VecScale(across, std::sqrt(chord.radius * chord.radius - chord.a * chord.a), across);
  Vec3 hit{};
  VecAdd(chord.foot, across, hit);
  report(hit, outHit1, outFractionA1, outFractionB1);
  VecSub(chord.foot, across, hit);
  report(hit, outHit2, outFractionA2, outFractionB2);
  return ARC_TWO_HITS;
}

}  // namespace geometry
