// WindowChoiceTest.cpp - the windows of a drawing that a command works on.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/windows/WindowChoice.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;

// Windows with these numbers, of the type "K" and its number.
std::vector<DrawnWindow> WindowsWith(const std::vector<int>& numbers) {
  std::vector<DrawnWindow> windows;
  windows.reserve(numbers.size());
  for (const int number : numbers) {
    DrawnWindow& window = windows.emplace_back();
    window.number = number;
    window.text1 = "Maker";
    window.text2 = "K" + std::to_string(number);
  }
  return windows;
}

std::vector<int> Chosen(const std::vector<int>& numbers, const WindowSelection& selection) {
  const dxf::Document drawing = House();
  const std::vector<DrawnWindow> windows = WindowsWith(numbers);
  std::vector<int> chosen;
  for (const DrawnWindow* const window : ChooseWindows(drawing, windows, selection))
    chosen.push_back(window->number);
  return chosen;
}

TEST(NumberRange, NumberAndRangeAreRead) {
  EXPECT_EQ(ParseNumberRange("4")->last, 4);
  EXPECT_EQ(ParseNumberRange("4-9")->first, 4);
  EXPECT_EQ(ParseNumberRange("4-9")->last, 9);
}

TEST(NumberRange, AnythingElseIsNone) {
  for (const char* text : {"", "a", "4-", "-", "4-9-12", "9-4", "4,5", "4 ", "99999999999"})
    EXPECT_FALSE(ParseNumberRange(text).has_value()) << text;
}

TEST(ChooseWindows, WindowsComeByTheirNumbersAndOnce) {
  EXPECT_THAT(Chosen({5, 1, 3, 2}, {.numbers = {{3, 3}, {1, 3}}}), ElementsAre(1, 2, 3));
}

TEST(ChooseWindows, RangeMayHaveGaps) {
  EXPECT_THAT(Chosen({1, 4, 9}, {.numbers = {{2, 9}}}), ElementsAre(4, 9));
}

TEST(ChooseWindows, TypeIsTheSecondTextInAnyCaseWithOrWithoutTheMaker) {
  EXPECT_THAT(Chosen({1, 2}, {.type = "k2"}), ElementsAre(2));
  EXPECT_THAT(Chosen({1, 2}, {.type = "Maker/K1"}), ElementsAre(1));
}

TEST(ChooseWindows, NumbersAndTypeMustBothBeTrue) {
  EXPECT_EQ(RefusalOf([] {
              Chosen({1, 2}, {.numbers = {{1, 1}}, .type = "K2"});
            }),
            "none of the named windows of house.dxf is of type K2; teskarlt list shows them");
}

TEST(ChooseWindows, NumbersThatNameNoWindowAreRefused) {
  EXPECT_EQ(RefusalOf([] {
              Chosen({1, 2}, {.numbers = {{1, 1}, {7, 7}}});
            }),
            "house.dxf has no window 7; teskarlt list shows its windows");
  EXPECT_EQ(RefusalOf([] {
              Chosen({1, 2}, {.numbers = {{4, 9}}});
            }),
            "house.dxf has no window from 4 to 9; teskarlt list shows its windows");
}

TEST(ChooseWindows, NumberOfTwoWindowsIsRefusedOnlyWhenSelected) {
  EXPECT_THAT(Chosen({1, 2, 2}, {.numbers = {{1, 1}}}), ElementsAre(1));
  EXPECT_THAT(RefusalOf([] {
                Chosen({1, 2, 2}, {.type = "K2"});
              }),
              testing::HasSubstr("house.dxf has 2 windows with the number 2"));
}

TEST(ChooseWindows, DrawingWithoutWindowsIsRefused) {
  EXPECT_EQ(RefusalOf([] { Chosen({}, {.type = "K2"}); }), "house.dxf holds no roof window");
}

}  // namespace
}  // namespace teskarlt
