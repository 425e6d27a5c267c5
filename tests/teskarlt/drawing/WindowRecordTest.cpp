// WindowRecordTest.cpp - the record of windows that stand where they were inserted, and of those that were
// changed since.
#include <cstring>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "tests/teskarlt/drawing/InsertedWindow.h"
#include "window/Choices.h"

namespace teskarlt {
namespace {

using brevanta::RecordPoint;
using brevanta::WindowParams;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr double SAME = 1e-6;      // metres, or millimetres of the drawing
constexpr double TOLERANCE = 1.0;  // millimetres, as of roofs in drawings of millimetres

// One of each kind that is drawn or placed in a way of its own.
const Answers KINDS[] = {
    {},
    {{"widthAnchor", "1"}, {"openingCode", "EIR"}},
    {{"widthAnchor", "2"}, {"openingCode", "E"}, {"bodyAsFaces", "0"}},
    {{"roofBuildUp", "2"}, {"slopeOffset", "0.25"}, {"skirtHeight", "0.05"}},
    {{"drawOpeningSymbol", "0"}, {"heightReference", "3"}},
    {{"roofBuildUp", "0"}, {"heightReference", "2"}, {"layerThickness", "0.2"}},
    {{"roofBuildUp", "0"}, {"heightReference", "3"}},
    {{"drawOpeningSymbol", "0"}, {"bodyAsFaces", "0"}, {"heightReference", "0"}},
    {{"bodyAsFaces", "0"}, {"skirtHeight", "0.04"}},
    {{"drawOpeningSymbol", "0"}, {"roofBuildUp", "2"}, {"widthAnchor", "2"}},
};

void ExpectPoint(const RecordPoint& actual, double x, double y, double z) {
  EXPECT_NEAR(actual.x, x, SAME);
  EXPECT_NEAR(actual.y, y, SAME);
  EXPECT_NEAR(actual.z, z, SAME);
}

void ExpectPoint(const RecordPoint& actual, const RecordPoint& expected) {
  ExpectPoint(actual, expected.x, expected.y, expected.z);
}

// What description and geometry tell together.
testing::AssertionResult SameWindow(const WindowParams& expected, const WindowParams& actual) {
  return SameFields(expected, actual, {"width",           "length",
                                       "frameWidth",      "frameDepth",
                                       "skirtHeight",     "layerThickness",
                                       "lowerEdgeHeight", "slopeOffset",
                                       "pitch",           "heightReference",
                                       "widthAnchor",     "roofBuildUp",
                                       "bodyAsFaces",     "drawOpeningSymbol",
                                       "unitFactor",      "markerValue",
                                       "openingCode",     "storedPoint",
                                       "roofPlanePoints", "secondPlanePoints"},
                    SAME);
}

// --- Windows that nobody changed ---

TEST(ReadWindow, UnchangedWindowIsReadAsItWasInserted) {
  for (const Answers& answers : KINDS) {
    const InsertedWindow window = Insert(answers);
    const WindowReading reading = ReadBack(window.entities);
    EXPECT_THAT(reading.obstacle, IsEmpty());
    EXPECT_THAT(reading.notes, IsEmpty());
    EXPECT_FALSE(reading.isMirrored);
    EXPECT_TRUE(SameWindow(window.record, reading.params));
  }
}

TEST(ReadWindow, FieldsOutsideOfTheDescriptionComeFromTheGeometryOrAreDefaults) {
  const WindowReading reading = ReadBack(Insert().entities);
  EXPECT_THAT(reading.recovered, ElementsAre("bodyAsFaces", "skirtHeight", "upperEdgeHeight"));
  EXPECT_THAT(reading.defaults, ElementsAre("slopeOffset", "placeByHeight", "pickOffset"));
}

TEST(ReadWindow, NothingTellsTheSkirtOfAnOpening) {
  const WindowReading reading = ReadBack(Insert({{"drawOpeningSymbol", "0"}, {"bodyAsFaces", "0"}}).entities);
  EXPECT_EQ(reading.params.skirtHeight, 0);
  EXPECT_THAT(reading.defaults, Contains("skirtHeight"));
}

TEST(FallDirection, OfWindowIsThatOfItsRoof) {
  brevanta::WindowParams params = ReadBack(Insert().entities).params;  // on a roof that rises along y
  EXPECT_NEAR(*FallDirection(params), 270.0, 1e-9);
  params.pitch = 0.0;
  EXPECT_FALSE(FallDirection(params).has_value());
}

TEST(ReadWindow, UpperEdgeFollowsFromTheLowerOne) {
  const WindowParams record = ReadBack(Insert().entities).params;
  EXPECT_NEAR(record.lowerEdgeHeight, 1.5, SAME);
  EXPECT_NEAR(record.upperEdgeHeight, 1.5 + 2 * 0.6, SAME);  // 2 m long, sine 0.6
}

TEST(ReadWindow, TextsComeBackAsTheDrawingHasThem) {
  const Answers answers = {{"text1", "Podkrov\xED"}, {"text2", "se\xE8 50 %"}, {"text3", "No. 7"}};
  const WindowParams record = ReadBack(Insert(answers).entities).params;
  EXPECT_STREQ(record.text1, "Podkrov\xED");
  EXPECT_STREQ(record.text2, "se\xE8 50 %");
  EXPECT_STREQ(record.text3, "No. 7");
}

TEST(ReadWindow, TextThatIsLongerThanItsFieldKeepsTheWindowFromEdits) {
  Entities window = Insert({{"text1", "short"}}).entities;
  for (node_list::NodeList& entity : window) {
    for (node_list::Node& node : entity)
      if (node.value == node_list::Value("short")) node = node_list::Text(1000, std::string(250, 'x'));
  }
  const WindowReading reading = ReadBack(window);
  EXPECT_EQ(
      reading.longText,
      "its text1 takes 250 bytes in this drawing, and an edit can keep 199; erase it and insert it anew");
  EXPECT_THAT(reading.notes, testing::ElementsAre(reading.longText));
  EXPECT_EQ(reading.obstacle, "");
}

TEST(ReadWindow, FlatWindowIsReadAsItWasInserted) {
  const InsertedWindow window = Insert({{"heightReference", "0"}}, OnSlopeOf(0));
  const WindowReading reading = ReadBack(window.entities);
  EXPECT_THAT(reading.notes, IsEmpty());
  EXPECT_TRUE(SameWindow(window.record, reading.params));
}

// --- Moved and turned ---

TEST(ReadWindow, MovedWindowIsReadWhereItStands) {
  const WindowReading reading = ReadBack(Changed(Insert().entities, Move(1000, 2000, 300)));
  ExpectPoint(reading.params.storedPoint, 6000, 4000, 1800);
  EXPECT_NEAR(reading.params.lowerEdgeHeight, 1.8, SAME);
  // sqrt(1 + 4 + 0.09)
  EXPECT_THAT(reading.notes, ElementsAre("it stands 2.256 m from the place in its description"));
  EXPECT_THAT(reading.recovered, Contains("storedPoint"));
  EXPECT_THAT(reading.recovered, Contains("lowerEdgeHeight"));
}

TEST(ReadWindow, DescriptionThatWasMovedAlongAgrees) {
  const Entities moved = Changed(Insert().entities, Move(1000, 2000, 300), Description::MovedAlong);
  const WindowReading reading = ReadBack(moved);
  ExpectPoint(reading.params.storedPoint, 6000, 4000, 1800);
  EXPECT_THAT(reading.notes, IsEmpty());
}

TEST(ReadWindow, WindowThatLeftItsRoofTakesItsPlaneAlong) {
  const WindowReading reading = ReadBack(Changed(Insert().entities, Move(0, 0, 700)));
  EXPECT_THAT(reading.recovered, Contains("roofPlanePoints"));
  EXPECT_THAT(reading.recovered, Contains("secondPlanePoints"));
  for (const RecordPoint& p : reading.params.roofPlanePoints)
    EXPECT_NEAR(p.z, 0.75 * p.y + 700, SAME);
  EXPECT_TRUE(IsUnderside(reading.params, SAME));
}

TEST(ReadWindow, WindowThatWasMovedWithinItsRoofKeepsThePlane) {
  const WindowReading reading = ReadBack(Changed(Insert().entities, Move(0, 400, 300)));
  EXPECT_THAT(reading.recovered, Not(Contains("roofPlanePoints")));
  ExpectPoint(reading.params.roofPlanePoints[0], Insert().record.roofPlanePoints[0]);
}

TEST(ReadWindow, TurnedWindowHasItsAngle) {
  const WindowReading reading = ReadBack(Changed(Insert().entities, Turn(75)));
  EXPECT_NEAR(reading.params.rotation, 75 * 3.141592653589793 / 180, SAME);
  EXPECT_THAT(reading.recovered, Contains("rotation"));
}

TEST(ReadWindow, AngleIsNotNegative) {
  EXPECT_NEAR(ReadBack(Changed(Insert().entities, Turn(-90))).params.rotation, 1.5 * 3.141592653589793, SAME);
}

// --- Slope offset ---

TEST(ReadWindow, WindowThatWasMovedUpItsSlopeHasALargerOffset) {
  const InsertedWindow window = Insert({{"roofBuildUp", "2"}, {"slopeOffset", "0.25"}});
  const WindowReading reading = ReadBack(Changed(window.entities, Move(0, 400, 300)));
  EXPECT_NEAR(reading.params.slopeOffset, 0.25 + 0.5, SAME);
  ExpectPoint(reading.params.storedPoint, window.record.storedPoint);
  EXPECT_THAT(reading.notes, IsEmpty());
}

TEST(ReadWindow, WindowThatWasMovedAsideHasTheDefaultOffset) {
  const InsertedWindow window = Insert({{"roofBuildUp", "2"}, {"slopeOffset", "0.25"}});
  const WindowReading reading = ReadBack(Changed(window.entities, Move(1000, 0, 0)));
  EXPECT_EQ(reading.params.slopeOffset, brevanta::DEFAULT_SLOPE_OFFSET);
  EXPECT_THAT(reading.defaults, Contains("slopeOffset"));
  // The lower edge lies 0.25 m up the slope from the point, and 0.1 m from where the anchor is now.
  ExpectPoint(reading.params.storedPoint, 6000, 2000 + 150 * 0.8, 1500 + 150 * 0.6);
}

// --- Mirrored ---

TEST(ReadWindow, MirroredWindowEndsWhereItStarted) {
  for (const auto& [before, after] : {std::pair{"1", 2}, {"2", 1}, {"0", 0}}) {
    const InsertedWindow window = Insert({{"widthAnchor", before}});
    const WindowReading reading = ReadBack(Changed(window.entities, Mirror()));
    EXPECT_TRUE(reading.isMirrored);
    EXPECT_THAT(reading.notes, Contains("it was mirrored"));
    EXPECT_EQ(reading.params.widthAnchor, after);
    ExpectPoint(reading.params.storedPoint, -5000, 2000, 1500);
  }
}

TEST(ReadWindow, MirroredWindowHasItsHingesOnTheOtherSide) {
  const std::pair<const char*, const char*> codes[] = {
      {"E", "ER"},   {"ER", "EL"},  {"EIL", "EIR"}, {"EOR", "EOL"}, {"ELI", "ERI"},   {"ERO", "ELO"},
      {"EO", "EOR"}, {"BE", "BER"}, {"EB", "ERB"},  {"D", "D"},     {"BICO", "BICO"},
  };
  for (const auto& [code, mirrored] : codes) {
    const WindowReading reading = ReadBack(Changed(Insert({{"openingCode", code}}).entities, Mirror()));
    EXPECT_STREQ(reading.params.openingCode, mirrored);
  }
}

TEST(ReadWindow, MirroredCodeThatBecomesTooLongIsAnObstacle) {
  const InsertedWindow window = Insert({{"openingCode", "BICIDBICIE"}, {"widthAnchor", "1"}});
  EXPECT_THAT(ReadBack(window.entities).obstacle, IsEmpty());
  const WindowReading reading = ReadBack(Changed(window.entities, Mirror()));
  EXPECT_THAT(reading.obstacle, HasSubstr("no opening code is long enough"));
  EXPECT_EQ(reading.params.widthAnchor, brevanta::ANCHOR_START);  // what was mirrored already is taken back
  EXPECT_THAT(reading.recovered, IsEmpty());
}

TEST(ReadWindow, WindowMirroredAlongItsSlopeIsTurnedAndMirrored) {
  const WindowReading reading = ReadBack(Changed(Insert().entities, Scale(1, -1, 1)));
  EXPECT_TRUE(reading.isMirrored);
  EXPECT_NEAR(reading.params.rotation, 3.141592653589793, SAME);
}

// --- Scaled, steeper, leaning ---

TEST(ReadWindow, ScaledWindowHasTheSizesThatAreDrawn) {
  const WindowReading reading = ReadBack(Changed(Insert({{"skirtHeight", "0.05"}}).entities, Scale(2, 2, 2)));
  EXPECT_EQ(reading.params.width, 2);
  EXPECT_EQ(reading.params.length, 4);
  EXPECT_EQ(reading.params.frameWidth, 0.2);
  EXPECT_EQ(reading.params.frameDepth, 0.16);
  EXPECT_EQ(reading.params.skirtHeight, 0.1);
  EXPECT_THAT(reading.notes, Contains("it is 2 m wide in the drawing and 1 m by its description"));
  EXPECT_THAT(reading.notes, Contains("it is 4 m long in the drawing and 2 m by its description"));
  EXPECT_THAT(reading.notes, Contains("it is 0.16 m deep in the drawing and 0.08 m by its description"));
  EXPECT_THAT(reading.notes, Contains("it is 0.2 m framed in the drawing and 0.1 m by its description"));
}

TEST(ReadWindow, LayerOfAScaledOpeningIsAsDeepAsDrawn) {
  const Answers opening = {{"drawOpeningSymbol", "0"}, {"heightReference", "0"}, {"layerThickness", "0.2"}};
  const WindowReading reading = ReadBack(Changed(Insert(opening).entities, Scale(2, 2, 2)));
  EXPECT_NEAR(reading.params.layerThickness, 0.4, SAME);
  EXPECT_THAT(reading.notes,
              Contains("it is 0.4 m deep in its roof in the drawing and 0.2 m by its description"));
}

TEST(ReadWindow, UndersideOfAScaledRoofIsThatOfAThickerLayer) {
  const InsertedWindow window = Insert({{"roofBuildUp", "0"}, {"layerThickness", "0.2"}});
  const WindowReading reading = ReadBack(Changed(window.entities, Scale(2, 2, 2), Description::MovedAlong));
  EXPECT_NEAR(reading.params.layerThickness, 0.4, SAME);
  EXPECT_THAT(reading.obstacle, IsEmpty());
}

TEST(ReadWindow, PitchIsTheOneThatIsDrawn) {
  for (const Description description : {Description::Left, Description::MovedAlong}) {
    const WindowReading reading = ReadBack(Changed(Insert().entities, Scale(1, 1, 1.3), description));
    EXPECT_NEAR(reading.params.pitch, 44.27477570094075, SAME);  // atan(0.975)
    EXPECT_THAT(reading.notes,
                Contains("its pitch is 44.27 degrees in the drawing and 36.87 by its description"));
    EXPECT_THAT(reading.notes, Contains("its body is not square to its roof"));
  }
}

// --- A second plane of the user's own ---

// Not parallel to the roof: z = 0.5 y - 200.
const Answers OWN_SECOND_PLANE = {{"roofBuildUp", "0"},
                                  {"layerThickness", "0.2"},
                                  {"secondPlanePoints", "0,0,-200;10000,0,-200;0,8000,3800"}};

TEST(ReadWindow, WindowWithASecondPlaneOfItsOwnIsReadWhereItWasInserted) {
  const InsertedWindow window = Insert(OWN_SECOND_PLANE);
  const WindowReading reading = ReadBack(window.entities);
  EXPECT_THAT(reading.obstacle, IsEmpty());
  EXPECT_THAT(reading.notes, IsEmpty());
  EXPECT_TRUE(SameWindow(window.record, reading.params));
}

TEST(ReadWindow, WindowWithASecondPlaneOfItsOwnCannotBeReadOnceItWasMoved) {
  const InsertedWindow window = Insert(OWN_SECOND_PLANE);
  EXPECT_EQ(ReadBack(Changed(window.entities, Move(1000, 0, 0))).obstacle,
            "it was moved, and its second plane is not the roof's underside");
}

TEST(ReadWindow, SecondPlaneThatWasMovedAlongIsNoObstacle) {
  const Entities window = Insert(OWN_SECOND_PLANE).entities;
  EXPECT_THAT(ReadBack(Changed(window, Move(1000, 0, 0), Description::MovedAlong)).obstacle, IsEmpty());
}

TEST(IsUnderside, IsTheRoofLoweredByTheLayerAlongItsNormal) {
  const WindowParams record = Insert({{"roofBuildUp", "0"}, {"layerThickness", "0.2"}}).record;
  EXPECT_TRUE(IsUnderside(record, TOLERANCE));
  EXPECT_FALSE(HasOwnSecondPlane(record, TOLERANCE));
  EXPECT_FALSE(IsUnderside(Insert(OWN_SECOND_PLANE).record, TOLERANCE));
  EXPECT_TRUE(HasOwnSecondPlane(Insert(OWN_SECOND_PLANE).record, TOLERANCE));
}

TEST(IsUnderside, RoofPointsMayRunEitherWayRound) {
  WindowParams record = Insert({{"roofBuildUp", "0"}, {"layerThickness", "0.2"}}).record;
  std::swap(record.roofPlanePoints[1], record.roofPlanePoints[2]);
  EXPECT_FALSE(IsUnderside(record, TOLERANCE));  // point by point
  std::swap(record.secondPlanePoints[1], record.secondPlanePoints[2]);
  EXPECT_TRUE(IsUnderside(record, TOLERANCE));
}

TEST(IsUnderside, PointsOnOneLineHaveNone) {
  WindowParams record = Insert().record;
  for (RecordPoint& p : record.roofPlanePoints)
    p = {0, 0, 0};
  EXPECT_FALSE(IsUnderside(record, TOLERANCE));
}

TEST(UsesSecondPlane, OnlyWithALayerAndTheBuildUpForIt) {
  EXPECT_TRUE(UsesSecondPlane(Insert({{"roofBuildUp", "0"}}).record));
  EXPECT_FALSE(UsesSecondPlane(Insert({{"roofBuildUp", "0"}, {"layerThickness", "0"}}).record));
  EXPECT_FALSE(UsesSecondPlane(Insert({{"roofBuildUp", "1"}}).record));
}

// --- Obstacles ---

TEST(ReadWindow, DamagedDescriptionIsAnObstacle) {
  Entities window = Insert().entities;
  for (node_list::NodeList& entity : window)
    entity.pop_back();  // the second text
  EXPECT_EQ(ReadBack(window).obstacle, "its description is damaged");
}

TEST(ReadWindow, MissingPartsAreAnObstacle) {
  EXPECT_EQ(ReadBack(Without(Insert().entities, 0, 5)).obstacle,
            "it has 12 faces and 16 lines, and should have 0, 17 or 21 faces and 16 lines");
}

TEST(ReadWindow, WithAnObstacleTheRecordIsWhatTheDescriptionSays) {
  const InsertedWindow window = Insert({{"widthAnchor", "1"}, {"openingCode", "E"}});
  // Twice as large, mirrored and upright.
  const WindowReading reading =
      ReadBack(Changed(window.entities, Scale(-2, 2, 2).Then(Tilt(53.13010235415598))));
  EXPECT_THAT(reading.obstacle, HasSubstr("upright"));
  EXPECT_NEAR(reading.params.width, 1, SAME);
  EXPECT_EQ(reading.params.widthAnchor, brevanta::ANCHOR_START);
  EXPECT_STREQ(reading.params.openingCode, "E");
  EXPECT_FALSE(reading.isMirrored);
  EXPECT_THAT(reading.notes, IsEmpty());
  EXPECT_THAT(reading.recovered, IsEmpty());
}

TEST(ReadEditableWindow, RefusesAnObstacleInWords) {
  const dxf::Document drawing = DrawingOf(Without(Insert().entities, 0));
  try {
    ReadEditableWindow(drawing, FindWindows(drawing, MILLIMETRES).at(0));
    FAIL();
  } catch (const Error& error) {
    EXPECT_THAT(error.what(), HasSubstr("window 1 cannot be changed: it has 16 faces and 16 lines"));
  }
}

TEST(ReadEditableWindow, GivesTheReadingWithoutAnObstacle) {
  const dxf::Document drawing = DrawingOf(Insert().entities);
  EXPECT_EQ(ReadEditableWindow(drawing, FindWindows(drawing, MILLIMETRES).at(0)).params.width, 1);
}

// --- The reading is the window again ---

TEST(ReadWindow, WindowInsertedAgainStandsWhereTheChangedOneStood) {
  const Motion motions[] = {Move(3000, -2000, 500), Turn(75), Mirror(), Scale(1, -1, 1),
                            Turn(115).Then(Move(1e6, 2e6, 0))};
  for (const Answers& answers : KINDS) {
    for (const Motion& motion : motions) {
      for (const Description description : {Description::Left, Description::MovedAlong}) {
        const Entities changed = Changed(Insert(answers).entities, motion, description);
        const WindowReading reading = ReadBack(changed);
        ASSERT_THAT(reading.obstacle, IsEmpty());
        EXPECT_TRUE(SamePlace(changed, InsertAgain(reading.params).entities, 0.01));
      }
    }
  }
}

}  // namespace
}  // namespace teskarlt
