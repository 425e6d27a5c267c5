// UnreadEntitiesTest.cpp - what users are told of entities that are not read.
#include <limits>

#include <gtest/gtest.h>

#include "teskarlt/drawing/UnreadEntities.h"

namespace teskarlt {
namespace {

TEST(UnreadEntities, TextNamesKindsWithTheirCountsAndRemedies) {
  EXPECT_EQ(TextOf({{"3DSOLID", 1}}),
            "1 3DSOLID is not read: explode them into faces, or give the plane by --roof");
  EXPECT_EQ(
      TextOf({{"3DSOLID", 2}, {"BODY", 1}, {"REGION", 3}, {std::string(UNREAD_ATTACHED), 1}}),
      "2 3DSOLID, 1 BODY and 3 REGION are not read: explode them into faces, or give the plane by --roof; "
      "1 INSERT of an attached drawing is not read: bind the other drawing into this one, or give the plane "
      "by --roof");
  EXPECT_EQ(TextOf({}), "");
}

TEST(UnreadEntities, ShapesInFormsOfTheirOwnAreUnreadable) {
  for (const char* type : {"3DSOLID", "region", "NURBSURFACE", "ACAD_PROXY_ENTITY", "HOUSE_ENTITY"})
    EXPECT_TRUE(IsUnreadable(type)) << type;
  for (const char* type : {"3DFACE", "TEXT", "INSERT"})
    EXPECT_FALSE(IsUnreadable(type)) << type;
}

TEST(UnreadEntities, CountsEndAtTheHighest) {
  constexpr std::size_t MOST = std::numeric_limits<std::size_t>::max();
  UnreadEntities unread = {{"BODY", 3}};
  AddUnread({{"BODY", 2}, {"REGION", MOST / 2}}, 5, unread);
  EXPECT_EQ(unread.at("BODY"), 13U);
  EXPECT_EQ(unread.at("REGION"), MOST);
}

}  // namespace
}  // namespace teskarlt
