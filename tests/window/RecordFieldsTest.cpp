// RecordFieldsTest.cpp - the table of the record's fields.
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "window/RecordFields.h"

namespace brevanta {
namespace {

TEST(RecordFields, CoverTheRecordInOrderButForItsPadding) {
  std::size_t end = 0;
  for (const RecordField& field : RECORD_FIELDS) {
    if (end == offsetof(WindowParams, padding60)) end += sizeof(WindowParams::padding60);
    if (end == offsetof(WindowParams, padding727)) end += sizeof(WindowParams::padding727);
    EXPECT_EQ(field.offset, end) << field.name;
    end = field.offset + field.size;
  }
  EXPECT_EQ(end, sizeof(WindowParams));
}

TEST(RecordFields, AreFoundByName) {
  ASSERT_NE(FindRecordField("pitch"), nullptr);
  EXPECT_EQ(FindRecordField("pitch")->offset, offsetof(WindowParams, pitch));
  EXPECT_EQ(FindRecordField("Pitch"), nullptr);
}

TEST(RecordFields, AreAllListedWithTheUpperEdgeBehindTheLowerOne) {
  std::vector<std::string_view> listed;
  std::transform(LISTED_FIELDS.begin(), LISTED_FIELDS.end(), std::back_inserter(listed),
                 [](const RecordField* field) { return field->name; });
  const auto lower = std::find(listed.begin(), listed.end(), "lowerEdgeHeight");
  ASSERT_NE(lower, listed.end());
  EXPECT_EQ(*(lower + 1), "upperEdgeHeight");
  listed.erase(lower + 1);
  std::vector<std::string_view> inRecord;
  for (const RecordField& field : RECORD_FIELDS)
    if (field.name != "upperEdgeHeight") inRecord.push_back(field.name);
  EXPECT_EQ(listed, inRecord);
}

TEST(RecordFields, ReadAndWriteTheirOwnPlace) {
  WindowParams record{};
  RealIn(record, *FindRecordField("length")) = 1.5;
  IntegerIn(record, *FindRecordField("widthAnchor")) = 2;
  PointsIn(record, *FindRecordField("roofPlanePoints"))[1] = {1, 2, 3};
  EXPECT_EQ(record.length, 1.5);
  EXPECT_EQ(record.widthAnchor, 2);
  EXPECT_EQ(record.roofPlanePoints[1].y, 2);
  EXPECT_EQ(PointsIn(record, *FindRecordField("storedPoint")).size(), 1U);
}

TEST(RecordFields, TextEndsAtItsTerminatorOrWithTheField) {
  WindowParams record{};
  const RecordField& field = *FindRecordField("openingCode");
  EXPECT_EQ(TextIn(record, field), "");
  std::memset(record.openingCode, 'D', sizeof record.openingCode);
  EXPECT_EQ(TextIn(record, field), "DDDDDDDDDDD");  // 11 bytes, without a terminator
  record.openingCode[3] = '\0';
  EXPECT_EQ(TextIn(record, field), "DDD");
}

}  // namespace
}  // namespace brevanta
