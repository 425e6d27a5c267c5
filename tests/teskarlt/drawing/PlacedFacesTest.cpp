// PlacedFacesTest.cpp - faces of blocks where they are inserted, their names and layers, and what is not
// read.
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/PlacedFaces.h"
#include "teskarlt/dxf/Document.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

// A block with a base point; all parts are Groups.
std::string Block(const std::string& name, const std::string& entities,
                  const std::string& head = "10 0|20 0|") {
  return "0 BLOCK|8 0|2 " + name + "|" + head + entities + "0 ENDBLK|";
}

// The triangle (1, 0, 0), (2, 0, 0), (1, 3, 4).
std::string Triangle(const std::string& handle, const std::string& layer = "ROOF") {
  return "0 3DFACE|5 " + handle + "|8 " + layer + "|10 1|20 0|30 0|11 2|21 0|31 0|12 1|22 3|32 4|";
}

std::string Insert(const std::string& handle, const std::string& block, const std::string& more = "") {
  return "0 INSERT|5 " + handle + "|8 HOUSE|2 " + block + "|10 10|20 20|30 5|" + more;
}

struct Found {
  std::vector<PlacedFace> faces;
  UnreadEntities unread;
};

Found Read(const std::string& blocks, const std::string& entities) {
  const auto section = [](const char* name, const std::string& content) {
    return fmt::format("0\nSECTION\n2\n{}\n{}0\nENDSEC\n", name, Groups(content));
  };
  const dxf::Document drawing = dxf::Document::FromText(
      "test.dxf", section("HEADER", "9 $ACADVER|1 AC1015|") + section("BLOCKS", blocks) +
                      section("ENTITIES", entities) + "0\nEOF\n");
  Found found;
  found.unread = ReadPlacedFaces(drawing, [&](PlacedFace face) { found.faces.push_back(std::move(face)); });
  return found;
}

std::vector<std::string> NamesOf(const Found& found) {
  std::vector<std::string> names;
  for (const PlacedFace& placed : found.faces)
    names.push_back(placed.name);
  return names;
}

void ExpectPoint(const geometry::Vec3& p, double x, double y, double z) {
  EXPECT_NEAR(p.x, x, 1e-12);
  EXPECT_NEAR(p.y, y, 1e-12);
  EXPECT_NEAR(p.z, z, 1e-12);
}

// The second corner, (2, 0, 0) in the block.
geometry::Vec3 SecondCorner(const std::string& insert, const std::string& head = "10 0|20 0|") {
  return Read(Block("B", Triangle("2F"), head), Insert("1A", "B", insert)).faces.at(0).face.corners.at(1);
}

TEST(PlacedFaces, BlockIsScaledTurnedAndMoved) {
  ExpectPoint(SecondCorner(""), 12, 20, 5);
  ExpectPoint(SecondCorner("41 3|42 3|43 3|50 90|"), 10, 26, 5);
  ExpectPoint(SecondCorner("41 -1|"), 8, 20, 5);
}

TEST(PlacedFaces, BasePointComesToLieAtTheInsertion) {
  ExpectPoint(SecondCorner("41 2|42 2|43 2|", "10 2|20 1|30 1|"), 10, 18, 3);
}

TEST(PlacedFaces, ExtrusionTiltsTheBlockWithItsInsertion) {
  // The direction (0, -0.6, 0.8) has its y axis along (0, 0.8, 0.6): (12, 20, 5) of its axes.
  ExpectPoint(SecondCorner("210 0|220 -0.6|230 0.8|"), 12, 20 * 0.8 - 5 * 0.6, 20 * 0.6 + 5 * 0.8);
}

TEST(PlacedFaces, CopiesInRowsAndColumnsAreNumbered) {
  const Found found = Read(Block("B", Triangle("2F")), Insert("1A", "B", "70 2|71 2|44 100|45 1000|"));
  EXPECT_THAT(NamesOf(found), ElementsAre("1A-1.2F", "1A-2.2F", "1A-3.2F", "1A-4.2F"));
  ExpectPoint(found.faces[3].face.corners[1], 112, 1020, 5);
}

TEST(PlacedFaces, BlocksInBlocksAreRead) {
  const Found found =
      Read(Block("OUTER", Insert("3B", "INNER", "41 2|42 2|43 2|")) + Block("INNER", Triangle("2F")),
           Insert("1A", "outer", "50 90|"));
  EXPECT_THAT(NamesOf(found), ElementsAre("1A.3B.2F"));
  ExpectPoint(found.faces[0].face.corners[1], 10 - 20, 20 + 14, 10);  // (14, 20, 5) turned by 90 degrees
}

TEST(PlacedFaces, EntitiesWithoutHandlesAreNumbered) {
  const std::string face = "0 3DFACE|8 ROOF|10 1|20 0|30 0|11 2|21 0|31 0|12 1|22 3|32 4|";
  const Found found = Read(Block("B", "0 POINT|8 0|" + face), face + "0 INSERT|8 0|2 B|");
  EXPECT_THAT(NamesOf(found), ElementsAre("N1", "N2.N2"));
}

TEST(PlacedFaces, LayerZeroOfABlockIsThatOfItsInsertion) {
  const Found found = Read(Block("B", Triangle("2E", "0") + Triangle("2F", "ROOF")), Insert("1A", "B"));
  EXPECT_EQ(found.faces.at(0).layer, "HOUSE");
  EXPECT_EQ(found.faces.at(1).layer, "ROOF");
}

TEST(PlacedFaces, WindowsInBlocksAreNoFaces) {
  const std::string mark = "1001 TK_LT_ELEM|1000 TKBRVA|1071 1|";
  EXPECT_THAT(Read(Block("B", Triangle("2F") + mark), Insert("1A", "B")).faces, IsEmpty());
}

TEST(PlacedFaces, BlockThatContainsItselfIsToldAndTheRestIsRead) {
  const Found direct = Read(Block("B", Triangle("2F") + Insert("3B", "B")), Insert("1A", "B"));
  EXPECT_THAT(NamesOf(direct), ElementsAre("1A.2F"));
  EXPECT_THAT(direct.unread, ElementsAre(Pair(std::string(UNREAD_ENDLESS), 1U)));
  const Found around =
      Read(Block("A", Insert("3B", "B")) + Block("B", Insert("3C", "A") + Triangle("2F")), Insert("1A", "A"));
  EXPECT_THAT(NamesOf(around), ElementsAre("1A.3B.2F"));
  EXPECT_EQ(around.unread.at(std::string(UNREAD_ENDLESS)), 1U);
}

TEST(PlacedFaces, InsertionsThatCannotBeReadAreCounted) {
  const std::string blocks = Block("X", "", "70 4|1 other.dxf|10 0|20 0|") + Block("B", Triangle("2F"));
  const Found found = Read(blocks, Insert("1", "X") + Insert("2", "GONE") + Insert("3", "B", "43 0|"));
  EXPECT_THAT(found.faces, IsEmpty());
  EXPECT_THAT(found.unread,
              ElementsAre(Pair(std::string(UNREAD_MISSING), 1U), Pair(std::string(UNREAD_ATTACHED), 1U),
                          Pair(std::string(UNREAD_FLATTENED), 1U)));
}

TEST(PlacedFaces, SolidsAreCountedInBlocksToo) {
  const Found found =
      Read(Block("B", "0 3DSOLID|5 2F|8 0|0 REGION|5 30|8 0|"),
           Insert("1A", "B", "70 3|44 9|") + "0 3DSOLID|5 1B|8 0|0 HATCH|8 0|30 5|0 HATCH|8 0|");
  EXPECT_THAT(found.unread,
              ElementsAre(Pair("3DSOLID", 4U), Pair(std::string(UNREAD_HATCH), 1U), Pair("REGION", 3U)));
}

TEST(PlacedFaces, BlocksThatWouldGrowWithoutEndAreLeftOut) {
  // Each block inserts the next one twice: 2 to the power of 40 faces, or nothing at all.
  const auto nest = [](const std::string& innermost) {
    std::string blocks = Block("B40", innermost);
    for (int i = 0; i < 40; ++i) {
      const std::string next = fmt::format("B{}", i + 1);
      blocks += Block(fmt::format("B{}", i), Insert("1", next) + Insert("2", next));
    }
    return blocks;
  };
  const Found found = Read(nest(Triangle("2F")), Insert("1A", "B0") + Triangle("2F"));
  EXPECT_THAT(NamesOf(found), ElementsAre("2F"));
  EXPECT_EQ(found.unread.at(std::string(UNREAD_TOO_MANY)), 1U);
  EXPECT_THAT(Read(nest("0 POINT|8 0|"), Insert("1A", "B0")).faces, IsEmpty());
}

TEST(PlacedFaces, BlocksNestedTooDeepAreTold) {
  std::string blocks;
  for (int i = 0; i < 100; ++i)
    blocks += Block(fmt::format("B{}", i), Triangle("2F") + Insert("1", fmt::format("B{}", i + 1)));
  const Found found = Read(blocks + Block("B100", Triangle("2F")), Insert("1A", "B0"));
  EXPECT_THAT(found.faces, SizeIs(64));
  EXPECT_EQ(found.unread.at(std::string(UNREAD_DEEP)), 1U);
}

TEST(PlacedFaces, EveryCopyInLongRowsIsThere) {
  const Found found = Read(Block("B", Triangle("2F")), Insert("1A", "B", "70 1200|71 2|44 5|45 7|"));
  ASSERT_THAT(found.faces, SizeIs(2400));
  EXPECT_EQ(found.faces.back().name, "1A-2400.2F");
  ExpectPoint(found.faces.back().face.corners[0], 10 + 1199 * 5 + 1, 20 + 7, 5);
  EXPECT_THAT(found.unread, IsEmpty());
}

TEST(PlacedFaces, MoreCopiesThanThereIsRoomForAreTold) {
  const Found found = Read(Block("B", Triangle("2F")), Insert("1A", "B", "70 30000|71 30000|44 5|45 7|"));
  EXPECT_THAT(found.faces, IsEmpty());
  EXPECT_THAT(found.unread, ElementsAre(Pair(std::string(UNREAD_TOO_MANY), 1U)));
}

}  // namespace
}  // namespace teskarlt
