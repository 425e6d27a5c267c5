// WindowMarksTest.cpp - names of windows from patterns, each of which only one window bears.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/WindowMarks.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::HasSubstr;

const MarkedWindow SEVENTH{.number = 7, .roof = "R2", .type = "OL 78x118"};

std::string MarkBy(const char* pattern, const MarkedWindow& window = SEVENTH) {
  return MarkPattern(pattern).MarkOf(window, 12);
}

TEST(MarkPattern, WordsStandForWhatTheWindowHas) {
  EXPECT_EQ(MarkBy("skylight"), "skylight");
  EXPECT_EQ(MarkBy("W{number}"), "W7");
  EXPECT_EQ(MarkBy("W{number:02}"), "W07");
  EXPECT_EQ(MarkBy("{roof}/{run:3}"), "R2/012");
  EXPECT_EQ(MarkBy("{type}-{run}x"), "OL 78x118-12x");
  EXPECT_EQ(MarkBy(USUAL_MARK, {.number = 1234}), "W1234");
}

TEST(MarkPattern, PatternThatSaysNothingIsRefused) {
  const char* const form = "; a mark is a text with {number}, {roof}, {type} or {run} in it, as W{number:02}";
  EXPECT_EQ(RefusalOf([] { MarkPattern(""); }), std::string("--mark : this is no name") + form);
  EXPECT_EQ(RefusalOf([] { MarkPattern("W{name}"); }),
            std::string("--mark W{name}: {name} stands for nothing") + form);
  EXPECT_THAT(RefusalOf([] { MarkPattern("W{number"); }), HasSubstr("a brace stands alone"));
  EXPECT_THAT(RefusalOf([] { MarkPattern("W}"); }), HasSubstr("a brace stands alone"));
  for (const char* text : {"W\n1", " ", "W1 ", " W1"})
    EXPECT_THAT(RefusalOf([&] { MarkPattern{text}; }), HasSubstr("this is no name")) << text;
  for (const char* text : {"{number:}", "{number:0}", "{number:10}", "{number:x}", "{roof:2}"}) {
    EXPECT_THAT(RefusalOf([&] { MarkPattern{text}; }), HasSubstr("is no number of digits from 1 to 9"))
        << text;
  }
}

TEST(MarkPattern, WindowWithoutWhatIsNamedIsRefused) {
  EXPECT_EQ(RefusalOf([] { MarkBy("{roof}", {.number = 3}); }),
            "--mark: window 3 has no roof to be named by");
  EXPECT_EQ(RefusalOf([] { MarkBy("{type}", {.number = 3}); }),
            "--mark: window 3 has no type to be named by");
}

TEST(WindowMarks, MarkOfAnotherWindowIsRefused) {
  WindowMarks marks;
  marks.Take("A", 3);
  EXPECT_EQ(RefusalOf([&] { marks.Fill(MarkPattern("A"), SEVENTH); }),
            "--mark: window 3 bears the mark A already; {run} in it counts");
  marks.Release("A", 4);
  EXPECT_THROW(marks.Fill(MarkPattern("A"), SEVENTH), Error);
  marks.Release("A", 3);
  EXPECT_EQ(marks.Fill(MarkPattern("A"), SEVENTH), "A");
}

TEST(WindowMarks, RunCountsTheMarksThatAreAlikeBesides) {
  WindowMarks marks;
  const MarkPattern pattern("{type}-{run}");
  const auto give = [&](const char* type) {
    std::string mark = marks.Fill(pattern, {.number = 1, .type = type});
    marks.Take(mark, 1);
    return mark;
  };
  marks.Take("A-2", 9);
  EXPECT_EQ(give("A"), "A-1");
  EXPECT_EQ(give("A"), "A-3");
  EXPECT_EQ(give("B"), "B-1");
  marks.Release("A-1", 1);
  EXPECT_EQ(give("A"), "A-1");
}

TEST(WindowMarks, WindowsWithoutAMarkTakeNone) {
  WindowMarks marks;
  marks.Take("", 1);
  marks.Take("", 2);
  EXPECT_EQ(marks.Fill(MarkPattern("{run}"), SEVENTH), "1");
}

}  // namespace
}  // namespace teskarlt
