// ClosedLayersTest.cpp - windows on layers that cannot be changed or seen.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/windows/ClosedLayers.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// A house with a window, in which the layer of the window's body has this value ("70" flags, "62" colour).
dxf::Document HouseWithLayerValue(const std::string& code, int number) {
  std::string text = HouseWithWindow().Serialize();
  const std::size_t layer = text.find("ROOF_WINDOW_BODY");
  const std::size_t value = text.find('\n', text.find(" " + code + "\n", layer)) + 1;
  text.replace(value, text.find('\n', value) - value, std::to_string(number));
  return dxf::Document::FromText("house.dxf", text);
}

dxf::Document HouseWithLayerFlags(int flags) {
  return HouseWithLayerValue("70", flags);
}

std::string Refusal(const dxf::Document& drawing) {
  const std::vector<DrawnWindow> windows = FindWindows(drawing, Millimetres().working);
  return RefusalOf([&] { RefuseClosedLayers(drawing, windows.at(0)); });
}

TEST(ClosedLayers, WindowOnOpenLayersMayBeChanged) {
  EXPECT_EQ(Refusal(HouseWithWindow()), "");
}

TEST(ClosedLayers, WindowOnALockedOrFrozenLayerMayNot) {
  EXPECT_THAT(Refusal(HouseWithLayerFlags(4)), HasSubstr("which is locked; unlock it in the CAD program"));
  EXPECT_THAT(Refusal(HouseWithLayerFlags(1)), HasSubstr("which is frozen; thaw it in the CAD program"));
}

TEST(ClosedLayers, EachClosedLayerIsWarnedOf) {
  const dxf::Document drawing = HouseWithLayerFlags(4);
  EXPECT_THAT(
      ClosedLayerWarnings(drawing, {"ROOF", "ROOF_WINDOW_BODY"}),
      ElementsAre("the layer \"ROOF_WINDOW_BODY\" is locked; it must be unlocked before the window can be "
                  "changed"));
}

TEST(ClosedLayers, EachInvisibleLayerIsWarnedOf) {
  EXPECT_THAT(
      ClosedLayerWarnings(HouseWithLayerFlags(1), {"ROOF_WINDOW_BODY"}),
      ElementsAre("the layer \"ROOF_WINDOW_BODY\" is frozen; what was drawn on it is not to be seen"));
  EXPECT_THAT(
      ClosedLayerWarnings(HouseWithLayerValue("62", -7), {"ROOF_WINDOW_BODY"}),
      ElementsAre("the layer \"ROOF_WINDOW_BODY\" is switched off; what was drawn on it is not to be seen"));
}

}  // namespace
}  // namespace teskarlt
