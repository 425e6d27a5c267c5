// ModuleSessionTest.cpp - what the host answers to the dialog and gathers from the module.
#include <cmath>
#include <new>

#include <gtest/gtest.h>

#include "teskarlt/modules/KeptException.h"
#include "teskarlt/modules/ModuleSession.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

using brevanta::DialogServices;
using brevanta::ValueNode;

// A line from the origin to (x, 0, 0) on layer 0, and how often it goes into a drawing.
struct LineList {
  explicit LineList(double x) {
    static char type[] = "LINE";
    static char subclass[] = "AcDbEntity";
    static char layer[] = "0";
    static char line[] = "AcDbLine";
    char* texts[] = {type, subclass, layer, line};
    const std::int16_t codes[] = {0, 100, 8, 100, 10, 11};
    for (int i = 0; i < 6; ++i) {
      nodes[i] = {i < 5 ? &nodes[i + 1] : nullptr, codes[i], {}};
      if (i < 4) nodes[i].value.text = texts[i];
    }
    nodes[5].value.point[0] = x;
  }
  ValueNode nodes[6];
};

class ModuleSessionTest : public testing::Test {
 protected:
  dxf::Document drawing = Drawing("", "");
  WindowRequest request;
};

TEST_F(ModuleSessionTest, SessionIsCurrentWhileItLives) {
  EXPECT_EQ(ModuleSession::Current(), nullptr);
  {
    const ModuleSession session(drawing, request);
    EXPECT_EQ(ModuleSession::Current(), &session);
  }
  EXPECT_EQ(ModuleSession::Current(), nullptr);
}

TEST_F(ModuleSessionTest, AnswersAreCutToTheBufferButTheirLengthIsToldWhole) {
  request.answers["text1"] = "abcdef";
  ModuleSession session(drawing, request);
  DialogServices& services = *session.Services();
  char buffer[4] = "xyz";
  EXPECT_EQ(services.answer(services.context, "text1", buffer, 4), 6);
  EXPECT_STREQ(buffer, "abc");
  EXPECT_EQ(services.answer(services.context, "text2", buffer, 4), -1);
}

TEST_F(ModuleSessionTest, NumberBehindTheHighestIsGiven) {
  const WindowNumbers numbers{1, 2, 5};
  request.numbersInUse = &numbers;
  ModuleSession session(drawing, request);
  DialogServices& services = *session.Services();
  EXPECT_EQ(services.freeNumber(services.context), 6);
  EXPECT_EQ(services.numberInUse(services.context, 5), 1);
  EXPECT_EQ(services.numberInUse(services.context, 4), 0);
}

TEST_F(ModuleSessionTest, RoofWithoutFacesHasNoBounds) {
  request.roof = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
  ModuleSession session(drawing, request);
  DialogServices& services = *session.Services();
  double corners[6] = {};
  std::int32_t isBoundary = 1;
  EXPECT_EQ(services.roofPlane(services.context, corners, 2, &isBoundary), 3);
  EXPECT_EQ(corners[5], 6);
  EXPECT_EQ(isBoundary, 0);
  EXPECT_EQ(services.findRoofFaces(services.context, {0, 0}, {9, 9}), 0);
}

TEST_F(ModuleSessionTest, FacesThatAreFoundAreGivenOneByOne) {
  request.facesNear = [](const PlanBox& area) {
    return std::vector<FaceCorners>{{{area.lowX, area.lowY, 0}, {area.highX, area.highY, 0}}};
  };
  ModuleSession session(drawing, request);
  DialogServices& services = *session.Services();
  EXPECT_EQ(services.findRoofFaces(services.context, {1, 2}, {3, 4}), 1);
  double corners[6] = {};
  EXPECT_EQ(services.roofFace(services.context, 0, corners, 2), 2);
  EXPECT_EQ(corners[1], 2);
  EXPECT_EQ(corners[3], 3);
  EXPECT_EQ(services.roofFace(services.context, 1, corners, 2), 0);
}

TEST_F(ModuleSessionTest, EntitiesOfAKeptBatchCount) {
  ModuleSession session(drawing, request);
  LineList line(5);
  session.BeginBatch();
  EXPECT_EQ(session.MakeEntity(line.nodes), 5100);
  EXPECT_EQ(session.MakeEntity(line.nodes), 5100);
  session.EndBatch(true);
  EXPECT_EQ(session.Outcome().lines, 2U);
  EXPECT_EQ(session.Outcome().faces, 0U);
  EXPECT_NE(drawing.Serialize().find("LINE"), std::string::npos);
}

TEST_F(ModuleSessionTest, EntitiesOfADroppedBatchLeaveTheDrawing) {
  const std::string before = drawing.Serialize();
  ModuleSession session(drawing, request);
  LineList line(5);
  session.BeginBatch();
  session.MakeEntity(line.nodes);
  session.EndBatch(false);
  EXPECT_EQ(session.Outcome().lines, 0U);
  EXPECT_EQ(drawing.Serialize(), before);
}

TEST_F(ModuleSessionTest, EntityWithANumberThatIsNotFiniteIsRefused) {
  ModuleSession session(drawing, request);
  LineList line(INFINITY);
  session.BeginBatch();
  EXPECT_LT(session.MakeEntity(line.nodes), 0);
  EXPECT_NE(session.Outcome().failure, "");
}

TEST_F(ModuleSessionTest, LackOfMemoryInTheDialogIsKeptForTheHost) {
  ModuleSession session(drawing, request);
  DialogServices& services = *session.Services();
  services.report(services.context, brevanta::REPORT_OUT_OF_MEMORY, "");
  EXPECT_TRUE(session.Outcome().reports.empty());
  EXPECT_THROW(RethrowKeptException(), std::bad_alloc);
}

}  // namespace
}  // namespace teskarlt
