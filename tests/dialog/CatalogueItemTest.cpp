// CatalogueItemTest.cpp - a window out of a catalogue's item line.
#include <gtest/gtest.h>

#include "dialog/CatalogueItem.h"
#include "dialog/Refusal.h"

namespace brevanta {
namespace {

TEST(TakeCatalogueItem, EveryFieldGoesToItsPlaceInMetres) {
  WindowParams record{};
  TakeCatalogueItem("A1; 78; 98; 6.5; 10; BI; Small window", record);
  EXPECT_STREQ(record.text2, "A1");
  EXPECT_EQ(record.width, 0.78);
  EXPECT_EQ(record.length, 0.98);
  EXPECT_EQ(record.frameWidth, 0.065);
  EXPECT_EQ(record.frameDepth, 0.1);
  EXPECT_STREQ(record.openingCode, "BI");
  EXPECT_STREQ(record.text3, "Small window");
}

TEST(TakeCatalogueItem, MissingAndEmptyFieldsLeaveTheRecord) {
  WindowParams record{};
  record.width = 1;
  record.length = 2;
  record.frameWidth = 3;
  TakeCatalogueItem("A1; ; 98", record);
  EXPECT_EQ(record.width, 1);
  EXPECT_EQ(record.length, 0.98);
  EXPECT_EQ(record.frameWidth, 3);
}

TEST(TakeCatalogueItem, DashForAnOpeningCodeIsFixedGlazing) {
  WindowParams record{};
  record.openingCode[0] = 'D';
  TakeCatalogueItem("A1; 78; 98; 8; 10; ; default", record);
  EXPECT_STREQ(record.openingCode, "D");
  TakeCatalogueItem("A1; 78; 98; 8; 10; -; fixed", record);
  EXPECT_STREQ(record.openingCode, "");
}

TEST(TakeCatalogueItem, SizeThatIsNoNumberIsRefused) {
  WindowParams record{};
  EXPECT_THROW(TakeCatalogueItem("A1; wide", record), Refusal);
  EXPECT_THROW(TakeCatalogueItem("A1; 78; inf", record), Refusal);
}

TEST(TakeCatalogueItem, TextThatDoesNotFitIsRefused) {
  WindowParams record{};
  EXPECT_THROW(TakeCatalogueItem("A1; 78; 98; 8; 10; DDDDDDDDDDD", record), Refusal);
}

TEST(TakeCatalogueItem, FieldsBehindTheDescriptionDoNotMatter) {
  WindowParams record{};
  TakeCatalogueItem("A1; 78; 98; 8; 10; D; text; more; and more", record);
  EXPECT_STREQ(record.text3, "text");
}

}  // namespace
}  // namespace brevanta
