// JsonTest.cpp - how answers for programs are printed.
#include <gtest/gtest.h>

#include "teskarlt/terminal/Json.h"

namespace teskarlt {
namespace {

TEST(Json, ObjectIsPrintedInLines) {
  const Json json =
      Json::Object({{"name", "R1"}, {"area", 1.5}, {"none", nullptr}, {"is", true}, {"count", -7}});
  EXPECT_EQ(
      json.Text(),
      "{\n  \"name\": \"R1\",\n  \"area\": 1.5,\n  \"none\": null,\n  \"is\": true,\n  \"count\": -7\n}");
}

TEST(Json, ListInAnObjectIsPrintedALevelDeeper) {
  Json json;
  json["list"].Add(1.0);
  json["list"].Add(Json::List());
  json["object"] = Json::Object();
  EXPECT_EQ(json.Text(), "{\n  \"list\": [\n    1.0,\n    []\n  ],\n  \"object\": {}\n}");
}

TEST(Json, TextIsEscapedAndBadBytesAreReplaced) {
  EXPECT_EQ(Json("a\"\n\xff").Text(), "\"a\\\"\\n\xEF\xBF\xBD\"");
}

TEST(Json, ItemsAreMadeWhenTheyArePrinted) {
  std::size_t made = 0;
  const Json list = Json::ListOf(3, [&](std::size_t i) {
    ++made;
    return Json(i);
  });
  EXPECT_EQ(made, 0U);
  EXPECT_EQ(list.Text(), "[\n  0,\n  1,\n  2\n]");
  EXPECT_EQ(made, 3U);
}

TEST(Json, LongTextComesInPieces) {
  std::size_t longest = 0;
  const Json list = Json::ListOf(100'000, [](std::size_t i) { return Json(i); });
  list.Print([&](std::string_view piece) { longest = std::max(longest, piece.size()); });
  EXPECT_LT(longest, 100'000U);
}

}  // namespace
}  // namespace teskarlt
