// WindowChangesTest.cpp - what differs between two states of a window.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/windows/WindowChanges.h"

namespace teskarlt {
namespace {

using brevanta::WindowParams;
using testing::ElementsAre;

// On a roof at 45 degrees, in millimetres.
WindowParams OnRoof() {
  WindowParams params{};
  params.unitFactor = 1000;
  params.width = 0.94;
  params.roofPlanePoints[1] = {8000, 0, 0};
  params.roofPlanePoints[2] = {0, 6000, 6000};
  return params;
}

std::vector<std::string_view> NamesOf(const WindowParams& before, const WindowParams& after) {
  std::vector<std::string_view> names;
  for (const brevanta::RecordField* const field : ChangedFields(before, after))
    names.push_back(field->name);
  return names;
}

TEST(WindowChanges, RoundingIsNoChange) {
  WindowParams after = OnRoof();
  after.width += 1e-9;
  after.storedPoint.x += 1e-7;  // millimetres
  EXPECT_THAT(NamesOf(OnRoof(), after), ElementsAre());
}

TEST(WindowChanges, FieldsAreNamedInTheOrderOfLists) {
  WindowParams after = OnRoof();
  after.text2[0] = 'x';
  after.width = 1.14;
  EXPECT_THAT(NamesOf(OnRoof(), after), ElementsAre("width", "text2"));
}

TEST(WindowChanges, OtherPointsOfThePlaneAreNoChange) {
  WindowParams after = OnRoof();
  after.roofPlanePoints[0] = {8000, 6000, 6000};
  EXPECT_THAT(NamesOf(OnRoof(), after), ElementsAre());
  after.roofPlanePoints[0].z += 1;
  EXPECT_THAT(NamesOf(OnRoof(), after), ElementsAre("roofPlanePoints"));
}

TEST(WindowChanges, OffsetCountsWhereItIsUsed) {
  WindowParams before = OnRoof();
  before.roofBuildUp = 1;
  WindowParams after = before;
  after.slopeOffset = 0.3;
  EXPECT_THAT(NamesOf(before, after), ElementsAre());
  before.roofBuildUp = after.roofBuildUp = 2;
  EXPECT_THAT(NamesOf(before, after), ElementsAre("slopeOffset"));
}

TEST(WindowChanges, DirectionOfThePickIsNoChange) {
  WindowParams after = OnRoof();
  after.rotation = 1;
  EXPECT_THAT(NamesOf(OnRoof(), after), ElementsAre());
  EXPECT_FALSE(DiffersFromDescription(OnRoof(), after));
}

TEST(WindowChanges, DescriptionDiffersByWhatItHolds) {
  WindowParams after = OnRoof();
  after.bodyAsFaces = 1;  // which no description holds
  EXPECT_FALSE(DiffersFromDescription(OnRoof(), after));
  after.pitch = 46;
  EXPECT_TRUE(DiffersFromDescription(OnRoof(), after));
}

}  // namespace
}  // namespace teskarlt
