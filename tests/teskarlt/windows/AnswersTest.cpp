// AnswersTest.cpp - orders in the words of the dialog.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

}  // namespace
}  // namespace teskarlt
