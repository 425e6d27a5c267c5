// AnswersTest.cpp - orders in the words of the dialog.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "inc/DialogServices.h"
#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/windows/Answers.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::HasSubstr;

class AnswersTest : public testing::Test {
 protected:
  DialogAnswers Answers(const FieldSetting& setting) {
    WindowOrder order;
    order.settings = {setting};
    return AnswersOf(order, drawing, shelf);
  }

  dxf::Document drawing = House();
  CatalogueShelf shelf;
};

TEST_F(AnswersTest, TextGoesIntoTheCodePageOfTheDrawing) {
  EXPECT_EQ(Answers({"text1", "\xC5\x99"})["text1"], "\xF8");  // r with caron in ANSI_1250
}

TEST_F(AnswersTest, TextBeyondTheCodePageIsRefused) {
  EXPECT_THAT(RefusalOf([&] { Answers({"text1", "\xE2\x98\x83"}); }), HasSubstr("--set text1: house.dxf: "));
}

TEST_F(AnswersTest, TextThatExtendedDataCannotHoldIsRefused) {
  EXPECT_EQ(RefusalOf([&] {
              Answers({"text1", std::string(256, 'x')});
            }),
            "--set text1: the text takes 256 bytes in this drawing, and 255 is the most that it can hold");
}

TEST_F(AnswersTest, UnknownFieldIsRefused) {
  EXPECT_EQ(RefusalOf([&] {
              Answers({"depth", "1"});
            }),
            "--set depth=1: there is no such field; teskarlt insert --fields lists them");
}

TEST_F(AnswersTest, CatalogueThatIsMissingIsAskedForAgain) {
  for (int attempt = 0; attempt < 2; ++attempt)
    EXPECT_THAT(RefusalOf([&] { shelf.Get("missing.LIB"); }), HasSubstr("missing.LIB: cannot be opened: "));
}

TEST_F(AnswersTest, WindowOfACatalogueIsAnsweredWithItsMaker) {
  platform::WriteWholeFile("answers_test.LIB", "VYROBCE \xF8 Alfa\nA1; 78; 118\n");
  WindowOrder order;
  order.catalogue = "answers_test.LIB";
  order.window = "A1";
  const DialogAnswers answers = AnswersOf(order, drawing, shelf);
  EXPECT_EQ(answers.at(brevanta::ANSWER_CATALOGUE_ITEM), "A1; 78; 118");
  EXPECT_EQ(answers.at(brevanta::ANSWER_CATALOGUE_MAKER), "\xF8 Alfa");
  platform::CurrentFileOperations().remove("answers_test.LIB");
}

TEST_F(AnswersTest, WindowThatTheDrawingCannotHoldIsRefused) {
  platform::WriteWholeFile("answers_test.LIB", "VYROBCE Alfa\nA1; \xE2\x98\x83\n");
  WindowOrder order;
  order.catalogue = "answers_test.LIB";
  order.window = "A1";
  EXPECT_THAT(RefusalOf([&] { AnswersOf(order, drawing, shelf); }), HasSubstr("--window A1: house.dxf: "));
  platform::CurrentFileOperations().remove("answers_test.LIB");
}

}  // namespace
}  // namespace teskarlt
