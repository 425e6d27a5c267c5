// ArcPropertiesTest.cpp - laws of the arcs over random input.
#include <cmath>
#include <complex>

#include <gtest/gtest.h>

#include "geometry/Arcs.h"
#include "geometry/Trigonometry.h"
#include "tests/geometry/ArcCalls.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {
namespace {

// An arc by its centre, radius, start and sweep, which is negative when it runs clockwise.
struct RandomArc {
  Vec3 centre;
  double radius;
  double sweep;
  Vec3 p[3];

  RandomArc(Random& random, double reach) : centre(random.Point(reach)) {
    centre.z = 0;
    radius = random.Uniform(0.5, 20);
    const double from = random.Uniform(-3, 3);
    sweep = random.Uniform(0.3, 6.0) * (random.Whole(0, 1) > 0 ? 1 : -1);
    for (int i = 0; i < 3; ++i) {
      const double angle = from + sweep * i / 2;
      p[i] = {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle), 0};
    }
  }
};

// The determinant formula of the circumcentre, in extended precision, about the first point.
Long3 Circumcentre(const Vec3& p0, const Vec3& p1, const Vec3& p2) {
  const Long3 b = Long(p1) - Long(p0);
  const Long3 c = Long(p2) - Long(p0);
  const long double d = 2 * (b.x * c.y - b.y * c.x);
  const long double bb = b.x * b.x + b.y * b.y;
  const long double cc = c.x * c.x + c.y * c.y;
  return Long3{(c.y * bb - b.y * cc) / d, (b.x * cc - c.x * bb) / d, 0} + Long3{p0.x, p0.y, 0};
}

// Rounding of den, relative to it, is that of the product of two sides over the turn between them; the centre
// moves by this share of the radius, and the midpoints round by the coordinates' size.
double CentreBound(const RandomArc& arc, double reach) {
  const double turn = std::abs(std::sin(arc.sweep / 4));
  return 32 * U * (arc.radius + reach) / turn / turn;
}

class ArcProperties : public testing::TestWithParam<double> {};

TEST_P(ArcProperties, CentreAgreesWithTheDeterminantFormula) {
  Random random(71);
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const Arc fitted(arc.p[0], arc.p[1], arc.p[2]);
    ASSERT_EQ(fitted.result, ARC_FOUND);
    EXPECT_LE(Difference(fitted.centre, Circumcentre(arc.p[0], arc.p[1], arc.p[2])),
              CentreBound(arc, GetParam()));
    EXPECT_NEAR(fitted.radius, arc.radius, CentreBound(arc, GetParam()));
    EXPECT_EQ(fitted.counterClockwise, arc.sweep > 0 ? 1 : 0);
  }
}

TEST_P(ArcProperties, ReversedArcHasTheSameCircleTheOtherWay) {
  Random random(72);
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const Arc there(arc.p[0], arc.p[1], arc.p[2]);
    const Arc back(arc.p[2], arc.p[1], arc.p[0]);
    EXPECT_THAT(back.centre, IsNear(there.centre, 2 * CentreBound(arc, GetParam())));
    EXPECT_EQ(back.counterClockwise, 1 - there.counterClockwise);
  }
}

// Angles round by u and the point by u of the coordinates, seen under the radius; a fraction divides by the
// sweep and carries at most a turn of it.
double FractionBound(const RandomArc& arc, double reach) {
  return 32 * U * (1 + reach / arc.radius) * 7 / std::abs(arc.sweep);
}

TEST_P(ArcProperties, PointAndFractionAreInverse) {
  Random random(73);
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const int counterClockwise = arc.sweep > 0 ? 1 : 0;
    const double fraction = random.Uniform(0.01, 0.99);
    const Vec3 point = PointAt(arc.p[0], arc.p[2], arc.centre, fraction, counterClockwise);
    EXPECT_NEAR(ArcFractionAt(arc.p[0], arc.p[2], arc.centre, counterClockwise, point), fraction,
                FractionBound(arc, GetParam()));
    const double distance = std::hypot(point.x - arc.centre.x, point.y - arc.centre.y);
    EXPECT_NEAR(distance, arc.radius, 8 * U * (GetParam() + arc.radius));
  }
}

TEST_P(ArcProperties, MiddlePointHasHalfTheFraction) {
  Random random(74);
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    EXPECT_NEAR(ArcFractionAt(arc.p[0], arc.p[2], arc.centre, arc.sweep > 0 ? 1 : 0, arc.p[1]), 0.5,
                FractionBound(arc, GetParam()));
  }
}

// The second derivation turns with complex quotients instead of differences of angles.
TEST_P(ArcProperties, FractionIsTheQuotientOfTheTurns) {
  Random random(75);
  using Complex = std::complex<long double>;
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const Vec3 q{arc.centre.x + random.Uniform(-30, 30), arc.centre.y + random.Uniform(-30, 30), 0};
    const auto arm = [&](const Vec3& p) { return Complex(p.x - arc.centre.x, p.y - arc.centre.y); };
    const auto turn = [&](const Vec3& p) {
      const Complex quotient = arc.sweep > 0 ? arm(p) / arm(arc.p[0]) : arm(arc.p[0]) / arm(p);
      const long double angle = std::arg(quotient);
      return static_cast<double>(angle < 0 ? angle + 2 * 3.14159265358979323846L : angle);
    };
    if (turn(q) < 1e-6 || turn(q) > TWO_PI - 1e-6) continue;
    EXPECT_NEAR(ArcFractionAt(arc.p[0], arc.p[2], arc.centre, arc.sweep > 0 ? 1 : 0, q),
                turn(q) / turn(arc.p[2]), FractionBound(arc, 0));
  }
}

TEST_P(ArcProperties, LineHitsLieOnBothCurves) {
  Random random(76);
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const Vec3 p0{arc.centre.x + random.Uniform(-40, 40), arc.centre.y + random.Uniform(-40, 40), 1};
    const Vec3 p1{arc.centre.x + random.Uniform(-40, 40), arc.centre.y + random.Uniform(-40, 40), 5};
    const LineHits hits(p0, p1, arc.p[0], arc.p[2], arc.p[1]);
    if (hits.count != ARC_TWO_HITS) continue;
    EXPECT_LT(hits.t[0], hits.t[1]);
    // The quadratic's terms are squares of the reach of 120 over the radius; the hit rounds by its place.
    const double bound =
        64 * U * (120.0 * 120.0 / arc.radius * (1 + 40 / std::hypot(p1.x - p0.x, p1.y - p0.y)) + GetParam()) +
        2 * CentreBound(arc, GetParam());
    for (int k = 0; k < 2; ++k) {
      EXPECT_EQ(hits.fraction[k],
                ArcFractionAt(arc.p[0], arc.p[2], hits.centre, arc.sweep > 0 ? 1 : 0, hits.hit[k]));
    }
    for (const Vec3& hit : hits.hit) {
      const Long3 d = Long(p1) - Long(p0);
      const Long3 w = Long(hit) - Long(p0);
      EXPECT_NEAR(static_cast<double>(Length(Cross(d, w)) / Length(d)), 0, bound);
      const Long3 arm = Long(hit) - Long(hits.centre);
      EXPECT_NEAR(static_cast<double>(std::hypot(arm.x, arm.y)), arc.radius, bound);
    }
  }
}

// |hit - centre|^2 - r^2 is -disc / 4a, and |disc| is below 0.0001 r, so the hit is off by 0.0001 / 8a at
// most.
TEST_P(ArcProperties, TangentHitIsOffTheCircleByNoMoreThanItsTest) {
  Random random(79);
  int tangents = 0;
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const double direction = random.Uniform(-3, 3);
    const double length = random.Uniform(0.1, 10);
    const double gap = random.Uniform(-1e-4, 1e-4);
    const double c = std::cos(direction);
    const double s = std::sin(direction);
    const Vec3 p0{arc.centre.x + (arc.radius + gap) * c, arc.centre.y + (arc.radius + gap) * s, 0};
    const LineHits hits(p0, {p0.x - s * length, p0.y + c * length, 0}, arc.p[0], arc.p[2], arc.p[1]);
    if (hits.count != ARC_ONE_HIT) continue;
    ++tangents;
    const double distance = std::hypot(hits.hit[0].x - arc.centre.x, hits.hit[0].y - arc.centre.y);
    EXPECT_NEAR(distance, arc.radius,
                1.01 * KernelTolerance / (8 * length * length) + 2 * CentreBound(arc, GetParam()));
  }
  EXPECT_GT(tangents, 100);
}

TEST_P(ArcProperties, ReversedLineExchangesTheHits) {
  Random random(77);
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const Vec3 p0{arc.centre.x + random.Uniform(-40, 40), arc.centre.y + random.Uniform(-40, 40), 1};
    const Vec3 p1{arc.centre.x + random.Uniform(-40, 40), arc.centre.y + random.Uniform(-40, 40), 5};
    const LineHits hits(p0, p1, arc.p[0], arc.p[2], arc.p[1]);
    const LineHits back(p1, p0, arc.p[0], arc.p[2], arc.p[1]);
    ASSERT_EQ(hits.count, back.count);
    // Not tangent, so sqrt(disc) is above 0.007 and the terms of disc, below 1e9, round by u of them.
    if (hits.count != ARC_TWO_HITS) continue;
    EXPECT_NEAR(back.t[0], 1 - hits.t[1], 1e-3 * (1 + std::abs(hits.t[1])));
  }
}

TEST_P(ArcProperties, ArcHitsLieOnBothCirclesAndSwapWithTheArcs) {
  Random random(78);
  int crossings = 0;
  for (int i = 0; i < 5000; ++i) {
    const RandomArc a(random, GetParam());
    RandomArc b(random, 0);
    const Vec3 shift{a.centre.x + random.Uniform(-20, 20), a.centre.y + random.Uniform(-20, 20), 0};
    for (Vec3& p : b.p)
      VecAdd(p, shift, p);
    const ArcHits hits(a.p, b.p);
    const ArcHits swapped(b.p, a.p);
    ASSERT_EQ(hits.count, swapped.count);
    const double distance =
        std::hypot(hits.centre[0].x - hits.centre[1].x, hits.centre[0].y - hits.centre[1].y);
    if (hits.count != ARC_TWO_HITS || distance < 0.1) continue;
    ++crossings;
    const double round = 2 * CentreBound(a, GetParam()) + 2 * CentreBound(b, GetParam());
    const double size = a.radius + b.radius + distance;
    // The foot's place is a difference of squares over the distance; both radii see it.
    const double bound = (64 * U * size + round) * size / distance * size / std::min(a.radius, b.radius);
    for (const Vec3& hit : hits.hit) {
      EXPECT_NEAR(std::hypot(hit.x - hits.centre[0].x, hit.y - hits.centre[0].y), a.radius, bound);
      EXPECT_NEAR(std::hypot(hit.x - hits.centre[1].x, hit.y - hits.centre[1].y), b.radius, bound);
    }
    for (int k = 0; k < 2; ++k) {
      EXPECT_EQ(hits.fractionA[k],
                ArcFractionAt(a.p[0], a.p[2], hits.centre[0], a.sweep > 0 ? 1 : 0, hits.hit[k]));
      EXPECT_EQ(hits.fractionB[k],
                ArcFractionAt(b.p[0], b.p[2], hits.centre[1], b.sweep > 0 ? 1 : 0, hits.hit[k]));
    }
    // Across the line of the centres the half chord is a root: near touching it loses half of the digits.
    const double across = std::sqrt(bound * size) + bound;
    EXPECT_THAT(swapped.hit[1], IsNear(hits.hit[0], across));
    EXPECT_THAT(swapped.hit[0], IsNear(hits.hit[1], across));
  }
  EXPECT_GT(crossings, 1000);
}

INSTANTIATE_TEST_SUITE_P(Reach, ArcProperties, testing::Values(0.0, 1000.0, 5e8));

}  // namespace
}  // namespace geometry
