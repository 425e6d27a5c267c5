// EntityOutputTest.cpp - the value lists of faces and lines and what becomes of them.
#include <cstring>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "arx/BvMakeWindow/DescriptionOutput.h"
#include "arx/BvMakeWindow/FaceOutput.h"
#include "arx/BvMakeWindow/LineOutput.h"
#include "inc/ValueList.h"
#include "tests/arx/BvMakeWindow/FullRecord.h"
#include "tests/support/CountingHeap.h"
#include "tests/support/ProgramFolder.h"
#include "tests/support/RecordingHost.h"

namespace brevanta {
namespace {

using node_list::Coordinates;
using node_list::Integer;
using node_list::NodeList;
using node_list::Text;

const GcGePoint3d C1{0, 0, 1};
const GcGePoint3d C2{0, 200, 2};
const GcGePoint3d C3{100, 200, 3};
const GcGePoint3d C4{100, 0, 4};

NodeList Joined(NodeList head, const NodeList& tail) {
  head.insert(head.end(), tail.begin(), tail.end());
  return head;
}

class EntityOutput : public testing::Test {
 protected:
  void SetUp() override {
    recording_host::Reset();
    maker.params = &record;
    maker.unitFactor = 1000;
    maker.hostTable = recording_host::Table();
    counting_heap::Reset();
    blocksBefore_ = counting_heap::LiveBlocks();
  }
  void TearDown() override { EXPECT_EQ(counting_heap::LiveBlocks(), blocksBefore_) << "blocks left behind"; }

  NodeList Face(const EdgeFlags& edges = {1, 1, 1, 1}, std::int32_t colour = NO_COLOUR) {
    WriteFace(maker, C1, C2, C3, C4, edges, colour);
    return recording_host::Entities().back();
  }
  NodeList Line(const char* layer = "ROOF", std::int32_t colour = NO_COLOUR) {
    WriteLine(maker, C1, C2, layer, colour);
    return recording_host::Entities().back();
  }
  std::int64_t HiddenEdges(const EdgeFlags& edges) { return node_list::IntegerOf(Face(edges), 70); }

  WindowParams record = FullRecord();
  CbvMakeWindow maker;

 private:
  std::size_t blocksBefore_ = 0;
};

TEST_F(EntityOutput, FaceHasFortyGroups) {
  const NodeList head = {Text(0, "3DFACE"),
                         Text(100, "AcDbEntity"),
                         Text(8, ""),
                         Text(100, "AcDbFace"),
                         Coordinates(10, 0, 0, 1),
                         Coordinates(11, 0, 200, 2),
                         Coordinates(12, 100, 200, 3),
                         Coordinates(13, 100, 0, 4),
                         Integer(70, 0)};
  const NodeList face = Face();
  EXPECT_EQ(face.size(), 40U);
  EXPECT_TRUE(node_list::Same(Joined(head, FullExtendedData()), face, 0));
}

TEST_F(EntityOutput, ColourStandsBehindTheLayer) {
  const NodeList face = Face({1, 1, 1, 1}, 4);
  EXPECT_EQ(face.size(), 41U);
  EXPECT_EQ(face[3].code, 62);
  EXPECT_EQ(node_list::IntegerOf(face, 62), 4);
  EXPECT_EQ(face[4].code, 100);
}

TEST_F(EntityOutput, ColourZeroIsAColour) {
  EXPECT_EQ(node_list::IntegerOf(Face({1, 1, 1, 1}, 0), 62), 0);
}

TEST_F(EntityOutput, AnyNegativeColourIsNone) {
  EXPECT_FALSE(node_list::Has(Face({1, 1, 1, 1}, -2), 62));
}

TEST_F(EntityOutput, EdgesThatAreNotVisibleAreBits) {
  EXPECT_EQ(HiddenEdges({1, 1, 1, 1}), 0);
  EXPECT_EQ(HiddenEdges({0, 1, 1, 1}), 1);
  EXPECT_EQ(HiddenEdges({1, 0, 1, 1}), 2);
  EXPECT_EQ(HiddenEdges({1, 1, 0, 1}), 4);
  EXPECT_EQ(HiddenEdges({1, 1, 1, 0}), 8);
  EXPECT_EQ(HiddenEdges({1, 0, 1, 0}), 10);
  EXPECT_EQ(HiddenEdges({0, 0, 0, 0}), 15);
}

TEST_F(EntityOutput, OnlyOneMeansVisible) {
  EXPECT_EQ(HiddenEdges({2, 2, 2, 2}), 15);
}

TEST_F(EntityOutput, CornersAreMovedIntoTheDrawing) {
  // A quarter turn about z and a shift by (1000, 0, 50).
  maker.roofTransform = {{{0, -1, 0, 1000}, {1, 0, 0, 0}, {0, 0, 1, 50}, {0, 0, 0, 1}}};
  const auto corners = node_list::PointsOf(Face());
  EXPECT_THAT(corners[0], testing::ElementsAre(1000, 0, 51));
  EXPECT_THAT(corners[1], testing::ElementsAre(800, 0, 52));
  EXPECT_THAT(corners[2], testing::ElementsAre(800, 100, 53));
  EXPECT_THAT(corners[3], testing::ElementsAre(1000, 100, 54));
  const auto ends = node_list::PointsOf(Line());
  EXPECT_THAT(ends[0], testing::ElementsAre(1000, 0, 51));
  EXPECT_THAT(ends[1], testing::ElementsAre(800, 0, 52));
}

TEST_F(EntityOutput, PointsOfTheExtendedDataStayAsTheyAre) {
  maker.roofTransform = {{{0, -1, 0, 1000}, {1, 0, 0, 0}, {0, 0, 1, 50}, {0, 0, 0, 1}}};
  const NodeList face = Face();
  EXPECT_TRUE(node_list::Same(FullExtendedData(), NodeList(face.begin() + 9, face.end()), 0));
}

TEST_F(EntityOutput, FacesTakeTheirLayerFromString60) {
  maker.resourceModule = AfxLoadLibrary((ProgramFolder() + "../bin/Brevanta_d.tkr").c_str());
  ASSERT_NE(maker.resourceModule, nullptr);
  EXPECT_EQ(node_list::TextOf(Face(), 8), "ROOF_WINDOW_BODY");
}

TEST_F(EntityOutput, LineHasThirtySevenGroups) {
  const NodeList head = {Text(0, "LINE"),       Text(100, "AcDbEntity"),  Text(8, "ROOF"),
                         Text(100, "AcDbLine"), Coordinates(10, 0, 0, 1), Coordinates(11, 0, 200, 2)};
  const NodeList line = Line();
  EXPECT_EQ(line.size(), 37U);
  EXPECT_TRUE(node_list::Same(Joined(head, FullExtendedData()), line, 0));
}

TEST_F(EntityOutput, LinetypeAndColourStandBehindTheLayer) {
  std::strcpy(maker.currentLinetype, "DASHED");
  const NodeList line = Line("ROOF", 3);
  EXPECT_EQ(line.size(), 39U);
  EXPECT_EQ(node_list::ToString(line[2]), "8 \"ROOF\"");
  EXPECT_EQ(node_list::ToString(line[3]), "6 \"DASHED\"");
  EXPECT_EQ(node_list::ToString(line[4]), "62 integer 3");
  EXPECT_EQ(node_list::ToString(line[5]), "100 \"AcDbLine\"");
}

TEST_F(EntityOutput, LineWithoutLinetypeHasNoGroup6) {
  EXPECT_FALSE(node_list::Has(Line(), 6));
}

TEST_F(EntityOutput, LineOfNoLengthIsWrittenAsItIs) {
  WriteLine(maker, C3, C3, "ROOF", NO_COLOUR);
  const auto ends = node_list::PointsOf(recording_host::Entities().back());
  EXPECT_EQ(ends[0], ends[1]);
}

TEST_F(EntityOutput, IntegersKeepTheirLowSixteenBits) {
  record.heightReference = 0x12345;
  record.drawOpeningSymbol = 0x18000;
  const NodeList face = Face();
  EXPECT_EQ(node_list::ToString(face[9 + 12]), "1070 integer -32768");
  EXPECT_EQ(node_list::ToString(face[9 + 15]), "1070 integer 9029");  // 0x2345
}

TEST_F(EntityOutput, TextThatFillsItsFieldIsCutAtTheFieldsEnd) {
  std::memset(record.text1, 'a', sizeof record.text1);
  std::memset(record.text2, 'b', sizeof record.text2);
  std::memset(record.text3, 'c', sizeof record.text3);
  std::memcpy(record.openingCode, "EEEEEEEEEEE", 11);
  const NodeList face = Face();
  EXPECT_EQ(node_list::ToString(face[9 + 9]), "1000 \"" + std::string(200, 'a') + "\"");
  EXPECT_EQ(node_list::ToString(face[9 + 10]), "1000 \"" + std::string(200, 'c') + "\"");
  EXPECT_EQ(node_list::ToString(face[9 + 11]), "1000 \"EEEEEEEEEEE\"");
  EXPECT_EQ(node_list::ToString(face[9 + 30]), "1000 \"" + std::string(200, 'b') + "\"");
}

TEST_F(EntityOutput, HostIsAskedOnceAnEntityWithZero) {
  Face();
  Line();
  EXPECT_THAT(recording_host::Calls(), testing::ElementsAre("3DFACE", "LINE"));
  EXPECT_TRUE(recording_host::OnlyZeroReserved());
}

TEST_F(EntityOutput, ListIsReleasedWhateverTheHostAnswers) {
  recording_host::AnswerMakeEntity(-5001);
  Face();
  Line();
}

TEST_F(EntityOutput, ListIsReleasedWithoutAHost) {
  maker.hostTable = nullptr;
  WriteFace(maker, C1, C2, C3, C4, {1, 1, 1, 1}, NO_COLOUR);
  WriteLine(maker, C1, C2, "ROOF", NO_COLOUR);
  EXPECT_EQ(counting_heap::Allocations(), counting_heap::Releases());
  EXPECT_EQ(counting_heap::Allocations(), 40 + 11 + 37 + 11);  // nodes and texts of both
}

// The two halves of a pointer as it lies in memory.
struct Halves {
  std::uint32_t low;
  std::uint32_t high;
};

Halves HalvesOf(const char* text) {
  Halves halves{};
  static_assert(sizeof halves == sizeof text);
  std::memcpy(&halves, &text, sizeof halves);
  return halves;
}

const ValueNode* NodeAt(const ValueNode* node, int index) {
  while (index-- > 0)
    node = node->next;
  return node;
}

// Gives the list's damaged text its address back, so that it can be released. `index` is that of the text.
void ExpectDamagedText(ValueNode* list, int index) {
  auto* damaged = const_cast<ValueNode*>(NodeAt(list, index));
  char* text = counting_heap::LiveText("TKBRVA");
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(damaged->typeCode, 1000);
  EXPECT_EQ(HalvesOf(damaged->value.text).low, 0U);
  EXPECT_EQ(HalvesOf(damaged->value.text).high, HalvesOf(text).high);
  EXPECT_EQ(damaged->next->typeCode, 1001);  // 1071 is left out
  EXPECT_STREQ(damaged->next->value.text, "TK_LT_DESC");
  damaged->value.text = text;
}

TEST_F(EntityOutput, FaceWithMarkerZeroHasNo1071AndADamagedText) {
  record.markerValue = 0;
  ValueNode* list = BuildFaceList(maker, {C1, C2, C3, C4}, {1, 1, 1, 1}, NO_COLOUR);
  ExpectDamagedText(list, 9 + 2);
  EXPECT_EQ(node_list::Copy(list).size(), 39U);
  FreeValueList(list);
}

TEST_F(EntityOutput, LineWithMarkerZeroHasNo1071AndADamagedText) {
  record.markerValue = 0;
  ValueNode* list = BuildLineList(maker, C1, C2, "ROOF", NO_COLOUR);
  ExpectDamagedText(list, 6 + 2);
  EXPECT_EQ(node_list::Copy(list).size(), 36U);
  FreeValueList(list);
}

TEST_F(EntityOutput, NegativeMarkerIsAMarker) {
  record.markerValue = -1;
  EXPECT_EQ(node_list::IntegerOf(Face(), 1071), -1);
}

}  // namespace
}  // namespace brevanta
