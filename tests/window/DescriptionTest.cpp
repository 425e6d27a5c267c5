// DescriptionTest.cpp - a window's description as the module writes it, read back as the program reads it.
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "arx/BvMakeWindow/DescriptionOutput.h"
#include "inc/ValueList.h"
#include "teskarlt/drawing/DescriptionReader.h"
#include "teskarlt/dxf/NewDrawing.h"
#include "tests/support/NodeList.h"
#include "tests/support/RoundRecord.h"
#include "window/Description.h"

namespace brevanta {
namespace {

using node_list::NodeList;
using TagTexts = std::vector<std::pair<int, std::string>>;  // a code with its value as a drawing holds it

constexpr std::int32_t UNIT_FACTOR = 1000;

// The tags behind the description's application name.
TagTexts WrittenDescription(WindowParams record) {
  CbvMakeWindow maker;
  maker.params = &record;
  maker.unitFactor = UNIT_FACTOR;
  ListBuilder list(0, "LINE");
  AppendDescription(maker, list);
  const NodeList nodes = node_list::Copy(list.Head());
  FreeValueList(list.Head());
  TagTexts tags;
  for (const node_list::Node& node : NodeList(nodes.end() - DESCRIPTION.size(), nodes.end())) {
    if (const auto* text = std::get_if<std::string>(&node.value)) tags.emplace_back(node.code, *text);
    if (const auto* real = std::get_if<double>(&node.value))
      tags.emplace_back(node.code, fmt::format("{}", *real));
    if (const auto* whole = std::get_if<std::int64_t>(&node.value))
      tags.emplace_back(node.code, fmt::format("{}", *whole));
    if (const auto* point = std::get_if<node_list::Point>(&node.value)) {
      for (int k = 0; k < 3; ++k)
        tags.emplace_back(node.code + 10 * k, fmt::format("{}", (*point)[static_cast<std::size_t>(k)]));
    }
  }
  return tags;
}

struct Reading {
  teskarlt::DrawnWindow window;
  bool isComplete = false;
};

Reading Read(const TagTexts& tags) {
  const auto drawing = teskarlt::dxf::Document::FromText("test.dxf", teskarlt::dxf::NewDrawing({}));
  Reading reading;
  teskarlt::DescriptionReader reader(drawing, {UNIT_FACTOR, 1.0}, reading.window);
  for (const auto& [code, text] : tags) {
    teskarlt::dxf::Tag tag;
    tag.code = code;
    tag.value = text;
    reader.Read(tag);
  }
  reading.isComplete = reader.IsComplete();
  return reading;
}

// Another value in every field that is described.
class RandomRecord {
 public:
  WindowParams Next() {
    WindowParams record{};
    record.markerValue = 1;  // 0 damages the list
    for (const DescriptionItem& item : DESCRIPTION)
      if (item.Field() != nullptr) Fill(*item.Field(), record);
    return record;
  }

 private:
  double Number() { return std::uniform_real_distribution<>(-50.0, 50.0)(engine_); }

  void Fill(const RecordField& field, WindowParams& record) {
    switch (field.kind) {
      case FieldKind::Length:
      case FieldKind::Real:
        RealIn(record, field) = Number();
        break;
      case FieldKind::Integer:  // of which 16 bits are kept
        IntegerIn(record, field) = std::uniform_int_distribution<>(-32768, 32767)(engine_);
        break;
      case FieldKind::Text:
        std::memcpy(FieldPlace(record, field), fmt::format("{:.7f}", Number()).c_str(), 8);
        break;
      case FieldKind::Points:
        for (RecordPoint& p : PointsIn(record, field))
          p = {Number(), Number(), Number()};
        break;
    }
  }

  std::mt19937 engine_{20261121};
};

// The field as it was written, lengths but for the rounding of the unit's factor.
void ExpectSame(const RecordField& field, const WindowParams& record, const teskarlt::DrawnWindow& window) {
  switch (field.kind) {
    case FieldKind::Length:
      EXPECT_DOUBLE_EQ(RealIn(window.params, field), RealIn(record, field)) << field.name;
      break;
    case FieldKind::Text:
      EXPECT_EQ(window.*teskarlt::TextMember(field), TextIn(record, field)) << field.name;
      break;
    default:
      EXPECT_EQ(std::memcmp(FieldPlace(window.params, field), FieldPlace(record, field), field.size), 0)
          << field.name;
  }
}

TEST(Description, ReadBackGivesTheRecordAgain) {
  RandomRecord random;
  for (int round = 0; round < 200; ++round) {
    const WindowParams record = random.Next();
    const Reading reading = Read(WrittenDescription(record));
    ASSERT_TRUE(reading.isComplete) << "round " << round;
    for (const DescriptionItem& item : DESCRIPTION)
      if (item.Field() != nullptr) ExpectSame(*item.Field(), record, reading.window);
  }
}

TEST(Description, LengthsStandInDrawingUnitsAndAnglesAsTheyAre) {
  WindowParams record = round_record::OnSlope();
  record.length = 1.5;
  record.pitch = 30;
  const TagTexts tags = WrittenDescription(record);
  EXPECT_EQ(tags[1], std::pair(int{ITEM_REAL}, std::string("1500")));
  EXPECT_NE(std::find(tags.begin(), tags.end(), std::pair(int{ITEM_REAL}, std::string("30"))), tags.end());
}

TEST(Description, IsIncompleteWithoutAnyOneOfItsItems) {
  const TagTexts tags = WrittenDescription(round_record::OnSlope());
  for (std::size_t i = 0; i < tags.size(); ++i) {
    const bool isCoordinate = tags[i].first > ITEM_POINT && tags[i].first < ITEM_REAL;  // y and z are 0 then
    TagTexts fewer = tags;
    fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(i));
    EXPECT_EQ(Read(fewer).isComplete, isCoordinate) << i;
  }
}

TEST(Description, IsIncompleteWithANumberThatIsNone) {
  TagTexts tags = WrittenDescription(round_record::OnSlope());
  tags[1].second = "long";
  EXPECT_FALSE(Read(tags).isComplete);
}

TEST(Description, ItemsOfEachCodeKeepTheirOrderWhereverTheyStand) {
  WindowParams record = round_record::OnSlope();
  round_record::SetText("first", record.text1);
  round_record::SetText("second", record.text2);
  TagTexts tags = WrittenDescription(record);
  std::stable_partition(tags.begin(), tags.end(), [](const auto& tag) { return tag.first == ITEM_TEXT; });
  const Reading reading = Read(tags);
  EXPECT_TRUE(reading.isComplete);
  EXPECT_EQ(reading.window.text1, "first");
  EXPECT_EQ(reading.window.text2, "second");
  EXPECT_EQ(reading.window.params.width, 100);
}

TEST(Description, WhatComesOnTopOfItsItemsIsNoPartOfIt) {
  WindowParams record = round_record::OnSlope();
  record.roofPlanePoints[2] = {1, 2, 3};
  TagTexts tags = WrittenDescription(record);
  for (const int code : {1000, 1011, 1021, 1031, 1040, 1041, 1042, 1070, 1071})
    tags.emplace_back(code, "99");
  const Reading reading = Read(tags);
  EXPECT_TRUE(reading.isComplete);
  EXPECT_EQ(reading.window.params.roofPlanePoints[2].y, 2);
  EXPECT_EQ(reading.window.params.pitch, record.pitch);
}

}  // namespace
}  // namespace brevanta
