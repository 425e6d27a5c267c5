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

TEST_F(AnswersTest, TextIsAnsweredAsTheDrawingHasIt) {
  EXPECT_EQ(Answers({"text1", "ř ☃"})["text1"], "\xF8 \\U+2603");  // ANSI_1250 has no snowman
}

TEST_F(AnswersTest, TextThatIsNoUtf8IsRefused) {
  EXPECT_THAT(RefusalOf([&] {
                Answers({"text1", "\xFF"});
              }),
              HasSubstr("--set text1: the text is not UTF-8"));
}

TEST_F(AnswersTest, FixedGlazingIsTheEmptyCode) {
  EXPECT_EQ(Answers({"openingCode", "-"})["openingCode"], "");
  EXPECT_EQ(Answers({"text1", "-"})["text1"], "-");
}

TEST_F(AnswersTest, LengthInFeetAndInchesIsAnsweredInMetres) {
  EXPECT_EQ(Answers({"width", "10\""})["width"], "0.254");
  EXPECT_EQ(Answers({"width", "10"})["width"], "10");
  EXPECT_EQ(Answers({"text1", "10\""})["text1"], "10\"");
}

TEST_F(AnswersTest, PlainNumberOfALengthCountsFeetWhereTheSettingSaysSo) {
  const auto feet = LengthStyle::FeetAndInches;
  WindowOrder order;
  order.settings = {{"width", "2.5", feet}, {"length", "1'-6\"", feet}, {"rotation", "1.5", feet}};
  DialogAnswers answers = AnswersOf(order, drawing, shelf);
  EXPECT_EQ(answers["width"], "0.762");
  EXPECT_EQ(answers["length"], "0.4572");
  EXPECT_EQ(answers["rotation"], "1.5");
}

TEST_F(AnswersTest, MalformedFeetAreRefusedWithTheFormsThatThereAre) {
  EXPECT_EQ(RefusalOf([&] {
              Answers({"width", "3'x"});
            }),
            "--set width=3'x: this is no length in feet and inches; they are written 5'-4 1/2\", 64.5\" or "
            "5.375'");
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

TEST_F(AnswersTest, CatalogueOfAnotherLanguageIsAnsweredAsTheDrawingHasIt) {
  platform::WriteWholeFile("answers_test.LIB", "VYROBCE Alfa\nA1; \xE2\x98\x83\n");
  WindowOrder order;
  order.catalogue = "answers_test.LIB";
  order.window = "A1";
  EXPECT_EQ(AnswersOf(order, drawing, shelf).at(brevanta::ANSWER_CATALOGUE_ITEM), "A1; \\U+2603");
  platform::CurrentFileOperations().remove("answers_test.LIB");
}

}  // namespace
}  // namespace teskarlt
