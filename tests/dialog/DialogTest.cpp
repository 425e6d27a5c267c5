// DialogTest.cpp - what the dialog confirms, refuses, numbers and erases.
#include <new>

#include <gtest/gtest.h>

#include "dialog/Dialog.h"
#include "tests/dialog/FakeServices.h"

namespace brevanta {
namespace {

class DialogTest : public testing::Test {
 protected:
  DialogTest() {
    host.faces = {SimpleRoof(35)};
    host.point = {4000, 2000};
  }

  FakeServices host;
};

TEST_F(DialogTest, PointOnARoofFaceIsAllThatANewWindowNeeds) {
  EXPECT_EQ(host.RunDialog(), 1);
  ASSERT_TRUE(host.confirmed);
  EXPECT_EQ(host.refusal, "");
  EXPECT_EQ(host.record.markerValue, 1);
}

TEST_F(DialogTest, AnswersGoIntoTheRecord) {
  host.answers = {{"width", "1.14"},     {"text2", "Flat"},    {"widthAnchor", "2"},
                  {"openingCode", "BI"}, {"rotation2", "0.5"}, {"storedPoint", "1,2,3"}};
  EXPECT_EQ(host.RunDialog(), 1);
  EXPECT_EQ(host.record.width, 1.14);
  EXPECT_STREQ(host.record.text2, "Flat");
  EXPECT_EQ(host.record.widthAnchor, 2);
  EXPECT_STREQ(host.record.openingCode, "BI");
  EXPECT_EQ(host.record.rotation2, 0.5);
  EXPECT_EQ(host.record.storedPoint.z, 3);
}

TEST_F(DialogTest, NewWindowGetsTheNumberThatIsFree) {
  host.numbers = {1, 2, 4};
  EXPECT_EQ(host.RunDialog(), 1);
  EXPECT_EQ(host.record.markerValue, 3);
}

TEST_F(DialogTest, NumberOfAnotherWindowIsRefused) {
  host.numbers = {7};
  host.answers["markerValue"] = "7";
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(host.refusal, "markerValue 7 is the number of another window");
}

TEST_F(DialogTest, EditedWindowKeepsItsNumberAndItsOldEntitiesGo) {
  ASSERT_EQ(host.RunDialog(), 1);
  host.edited = host.record;
  host.edited->markerValue = 12;
  host.numbers = {12};
  host.answers["width"] = "1.2";
  EXPECT_EQ(host.RunDialog(1), 1);
  EXPECT_EQ(host.record.markerValue, 12);
  EXPECT_EQ(host.record.width, 1.2);
  EXPECT_EQ(host.erased, 1);
}

// The window's direction in the drawing is stored, the offset runs in the roof's own frame.
TEST_F(DialogTest, StoredRotationIsNotTheDirectionOfTheOffset) {
  ASSERT_EQ(host.RunDialog(), 1);
  host.edited = host.record;
  host.edited->rotation = 1.5;
  EXPECT_EQ(host.RunDialog(1), 1);
  EXPECT_EQ(host.record.rotation, 0.0);
  host.answers["rotation"] = "0.5";
  EXPECT_EQ(host.RunDialog(1), 1);
  EXPECT_EQ(host.record.rotation, 0.5);
}

TEST_F(DialogTest, RefusedEditErasesNothing) {
  ASSERT_EQ(host.RunDialog(), 1);
  host.edited = host.record;
  host.answers["width"] = "0";
  EXPECT_EQ(host.RunDialog(1), 0);
  EXPECT_EQ(host.erased, 0);
}

TEST_F(DialogTest, EditingANumberIsRefused) {
  ASSERT_EQ(host.RunDialog(), 1);
  host.edited = host.record;
  host.answers["markerValue"] = "5";
  EXPECT_EQ(host.RunDialog(1), 0);
  EXPECT_EQ(host.refusal, "markerValue cannot be changed; the window keeps its number 1");
}

TEST_F(DialogTest, WithoutAWindowToEditNothingIsConfirmed) {
  EXPECT_EQ(host.RunDialog(1), 0);
  EXPECT_EQ(host.refusal, "there is no such window to edit");
}

TEST_F(DialogTest, ServicesOfAnotherVersionAreNotUsed) {
  host.services.version = DIALOG_SERVICES_VERSION + 1;
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(host.refusal, "");
}

TEST_F(DialogTest, LackOfMemoryIsNoRefusal) {
  static std::int32_t gravity;
  gravity = REPORT_NOTE;
  host.services.answer = [](void*, const char*, char*, std::int32_t) -> std::int32_t {
    throw std::bad_alloc();
  };
  host.services.report = [](void*, std::int32_t told, const char*) { gravity = told; };
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(gravity, REPORT_OUT_OF_MEMORY);
}

TEST(Dialog, WithoutServicesNothingIsConfirmed) {
  WindowParams record{};
  EXPECT_EQ(Dialog(nullptr, &record, 0, 0), 0);
}

TEST(EraseWindow, WithoutAHostProgramNothingIsErased) {
  EXPECT_EQ(EraseWindow(), 0);
}

}  // namespace
}  // namespace brevanta
