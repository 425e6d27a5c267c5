// WindowReadingPropertiesTest.cpp - laws of reading windows back, over random windows, roofs and motions.
#include <cmath>
#include <random>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/teskarlt/drawing/InsertedWindow.h"
#include "window/Choices.h"

namespace teskarlt {
namespace {

using brevanta::RecordPoint;
using brevanta::WindowParams;
using geometry::Vec3;
using testing::IsEmpty;

constexpr unsigned SEED = 20260621;
constexpr int ROUNDS = 60;
constexpr double SAME = 1e-5;        // metres and degrees
constexpr double SAME_PLACE = 0.01;  // millimetres; sizes that are read are whole micrometres

class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}
  double Between(double low, double high) { return std::uniform_real_distribution(low, high)(engine_); }
  int Upto(int last) { return std::uniform_int_distribution(0, last)(engine_); }

 private:
  std::mt19937 engine_;
};

Answers RandomAnswers(Random& random) {
  constexpr const char* CODES[] = {"", "B", "BI", "C", "D", "E", "EOR", "EIL", "BCO", "ELD"};
  Answers answers = {
      {"width", fmt::format("{}", random.Between(0.5, 2))},
      {"length", fmt::format("{}", random.Between(0.6, 3))},
      {"frameWidth", fmt::format("{}", random.Between(0.02, 0.2))},
      {"frameDepth", fmt::format("{}", random.Between(0.01, 0.2))},
      {"skirtHeight", fmt::format("{}", random.Upto(1) * random.Between(0.05, 0.3))},
      {"heightReference", fmt::format("{}", random.Upto(3))},
      {"widthAnchor", fmt::format("{}", random.Upto(2))},
      {"roofBuildUp", fmt::format("{}", random.Upto(2))},
      {"slopeOffset", fmt::format("{}", random.Between(0, 0.5))},
      {"layerThickness", fmt::format("{}", random.Between(0.05, 0.4))},
      {"bodyAsFaces", fmt::format("{}", random.Upto(1))},
      {"drawOpeningSymbol", fmt::format("{}", random.Upto(1))},
      {"openingCode", CODES[random.Upto(std::size(CODES) - 1)]},
      {"markerValue", fmt::format("{}", 1 + random.Upto(100000))},
  };
  return answers;
}

// What keeps the roof's pitch.
Motion RandomMotion(Random& random) {
  return Turn(random.Between(-180, 180))
      .Then(Move(random.Between(-1e6, 1e6), random.Between(-1e6, 1e6), random.Between(-1e4, 1e4)));
}

// From below the eaves the roof may look any way.
Place RandomPlace(Random& random) {
  return OnSlopeOf(random.Between(5, 80)).Changed(RandomMotion(random));
}

Vec3 ToVec3(const RecordPoint& p) {
  return {p.x, p.y, p.z};
}

void ExpectNear(const Vec3& actual, const Vec3& expected) {
  EXPECT_NEAR(actual.x, expected.x, SAME_PLACE);
  EXPECT_NEAR(actual.y, expected.y, SAME_PLACE);
  EXPECT_NEAR(actual.z, expected.z, SAME_PLACE);
}

// What no motion changes.
testing::AssertionResult SameSizes(const WindowParams& expected, const WindowParams& actual) {
  std::vector<std::string_view> names = {"width",          "length", "frameWidth",  "frameDepth",
                                         "layerThickness", "pitch",  "bodyAsFaces", "markerValue"};
  const bool isSkirtDrawn = expected.bodyAsFaces == 1 || expected.drawOpeningSymbol != 0;
  if (isSkirtDrawn) names.emplace_back("skirtHeight");
  return SameFields(expected, actual, names, SAME);
}

double AngleBetween(double a, double b) {
  return std::abs(std::remainder(a - b, 2 * 3.141592653589793));
}

TEST(WindowReading, UnmovedWindowGivesItsRecord) {
  Random random(SEED);
  for (int round = 0; round < ROUNDS; ++round) {
    SCOPED_TRACE(round);
    const InsertedWindow window = Insert(RandomAnswers(random), RandomPlace(random));
    const WindowReading reading = ReadBack(window.entities);
    ASSERT_THAT(reading.obstacle, IsEmpty());
    EXPECT_THAT(reading.notes, IsEmpty());
    EXPECT_TRUE(SameSizes(window.record, reading.params));
    ExpectNear(ToVec3(reading.params.storedPoint), ToVec3(window.record.storedPoint));
    EXPECT_EQ(reading.params.widthAnchor, window.record.widthAnchor);
    EXPECT_STREQ(reading.params.openingCode, window.record.openingCode);
    if (window.record.roofBuildUp == brevanta::BUILD_UP_SLOPE_OFFSET) {
      EXPECT_NEAR(reading.params.slopeOffset, window.record.slopeOffset, SAME);
    }
  }
}

TEST(WindowReading, MovedWindowGivesItsMovedRecord) {
  Random random(SEED + 1);
  for (int round = 0; round < ROUNDS; ++round) {
    SCOPED_TRACE(round);
    Answers answers = RandomAnswers(random);
    answers["roofBuildUp"] =
        std::to_string(random.Upto(1));  // with an offset, the place is no function of the motion
    const InsertedWindow window = Insert(answers, RandomPlace(random));
    const Motion motion = RandomMotion(random);
    const WindowReading reading = ReadBack(Changed(window.entities, motion));
    ASSERT_THAT(reading.obstacle, IsEmpty());
    EXPECT_TRUE(SameSizes(window.record, reading.params));
    const Vec3 place = motion(ToVec3(window.record.storedPoint));
    ExpectNear(ToVec3(reading.params.storedPoint), place);
    EXPECT_NEAR(reading.params.lowerEdgeHeight, place.z / UNITS_PER_METRE, SAME);
    EXPECT_LT(AngleBetween(reading.params.rotation,
                           ReadBack(window.entities).params.rotation + std::atan2(motion.x.y, motion.x.x)),
              SAME);
  }
}

TEST(WindowReading, MirroringTwiceGivesTheRecord) {
  Random random(SEED + 2);
  for (int round = 0; round < ROUNDS; ++round) {
    SCOPED_TRACE(round);
    const InsertedWindow window = Insert(RandomAnswers(random), RandomPlace(random));
    const Entities mirrored = Changed(window.entities, Mirror());
    const WindowReading once = ReadBack(mirrored);
    ASSERT_THAT(once.obstacle, IsEmpty());
    EXPECT_TRUE(once.isMirrored);
    EXPECT_TRUE(SameSizes(window.record, once.params));
    const WindowReading twice = ReadBack(Changed(mirrored, Mirror()));
    EXPECT_FALSE(twice.isMirrored);
    ExpectNear(ToVec3(twice.params.storedPoint), ToVec3(window.record.storedPoint));
    EXPECT_EQ(twice.params.widthAnchor, window.record.widthAnchor);
  }
}

// The law that editing rests on.
TEST(WindowReading, WindowInsertedAgainStandsWhereItStood) {
  Random random(SEED + 3);
  for (int round = 0; round < ROUNDS; ++round) {
    SCOPED_TRACE(round);
    const InsertedWindow window = Insert(RandomAnswers(random), RandomPlace(random));
    const Motion motion = random.Upto(1) == 0 ? RandomMotion(random) : Mirror().Then(RandomMotion(random));
    const Description description = random.Upto(1) == 0 ? Description::Left : Description::MovedAlong;
    const Entities changed = Changed(window.entities, motion, description);
    const WindowReading reading = ReadBack(changed);
    ASSERT_THAT(reading.obstacle, IsEmpty());
    EXPECT_TRUE(SamePlace(changed, InsertAgain(reading.params).entities, SAME_PLACE));
  }
}

// A roof that falls towards +y by that tangent; below 1e-4 the module lays windows onto it from their point
// along -y, or along +y where it rises.
Place FallingBy(double tangent) {
  const double low = -8000 * tangent;
  return {{{0, 0, 0}, {10000, 0, 0}, {10000, 8000, low}, {0, 8000, low}}, {5000, 4000, low / 2}};
}

TEST(WindowReading, NearlyFlatWindowInsertedAgainStandsWhereItStood) {
  const Motion motions[] = {Motion{}, Move(3000, -2000, 500), Mirror(), Turn(180), Mirror().Then(Turn(180))};
  for (const double tangent : {1e-10, 1e-7, 9e-5, 1.1e-4, -1e-10, -1e-7, -9e-5}) {
    const Entities window =
        Insert({{"heightReference", "0"}, {"openingCode", "E"}}, FallingBy(tangent)).entities;
    for (const Motion& motion : motions) {
      for (const Description description : {Description::Left, Description::MovedAlong}) {
        SCOPED_TRACE(
            fmt::format("{} {} {} {}", tangent, motion.x.x, motion.y.y, static_cast<int>(description)));
        const Entities changed = Changed(window, motion, description);
        const WindowReading reading = ReadBack(changed);
        ASSERT_THAT(reading.obstacle, IsEmpty());
        EXPECT_TRUE(SamePlace(changed, InsertAgain(reading.params).entities, SAME_PLACE));
      }
    }
  }
}

}  // namespace
}  // namespace teskarlt
