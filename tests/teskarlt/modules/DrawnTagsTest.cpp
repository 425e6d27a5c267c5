// DrawnTagsTest.cpp - entities of the module in the unit of their drawing.
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "teskarlt/modules/DrawnTags.h"
#include "window/Description.h"
#include "window/Parts.h"

namespace teskarlt {
namespace {

constexpr WorkingUnit INCHES{1000, 25.4};

std::vector<dxf::TypedTag> Drawn(std::vector<dxf::TypedTag> tags) {
  TakeToDrawn(INCHES, tags);
  return tags;
}

// A description whose reals are 254 and whose other items are 0.
std::vector<dxf::TypedTag> Description() {
  std::vector<dxf::TypedTag> tags = {{1001, std::string_view(brevanta::DESCRIPTION_APPLICATION)}};
  for (const brevanta::DescriptionItem& item : brevanta::DESCRIPTION) {
    const bool isReal = item.code >= brevanta::ITEM_REAL && item.code <= brevanta::ITEM_SCALE;
    isReal ? tags.push_back({item.code, 254.0}) : tags.push_back({item.code, std::int64_t{0}});
  }
  return tags;
}

TEST(TakeToDrawn, PointsOfTheEntityAreTakenOutAndOtherRealsStay) {
  const std::vector<dxf::TypedTag> expected = {{10, dxf::Point{1, 2, -4}}, {40, 25.4}, {62, std::int64_t{4}}};
  EXPECT_EQ(Drawn({{10, dxf::Point{25.4, 50.8, -101.6}}, {40, 25.4}, {62, std::int64_t{4}}}), expected);
}

TEST(TakeToDrawn, LengthsOfTheDescriptionAreTakenOutAndAnglesStay) {
  const std::vector<dxf::TypedTag> tags = Drawn(Description());
  for (std::size_t i = 0; i < brevanta::DESCRIPTION.size(); ++i) {
    const brevanta::RecordField* const field = brevanta::DESCRIPTION[i].Field();
    const auto* const real = std::get_if<double>(&tags[i + 1].value);
    if (real == nullptr) continue;
    EXPECT_EQ(*real, field->kind == brevanta::FieldKind::Length ? 254.0 / 25.4 : 254.0) << field->name;
  }
}

TEST(TakeToDrawn, PointsOfTheDescriptionAreTakenOut) {
  const std::vector<dxf::TypedTag> expected = {{1011, dxf::Point{10, 0, 0}}};
  EXPECT_EQ(Drawn({{1011, dxf::Point{254, 0, 0}}}), expected);
}

TEST(TakeToDrawn, DrawingsOwnUnitLeavesEveryNumber) {
  std::vector<dxf::TypedTag> tags = {{10, dxf::Point{0.1, -0.0, 1e300}}};
  const std::vector<dxf::TypedTag> before = tags;
  TakeToDrawn({1000, 1.0}, tags);
  EXPECT_EQ(tags, before);
}

}  // namespace
}  // namespace teskarlt
