// PlotTest.cpp - the picture of a plan to scale on paper.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/plot/Plot.h"
#include "tests/teskarlt/plot/Notes.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::plot {
namespace {

using preview::Line;
using preview::Rectangle;
using preview::Scene;
using preview::SceneOf;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

const Paper A4{"A4", 297, 210};

// Of a drawing in metres.
struct Drawn {
  preview::Parts parts;
  PlanNotes notes = {};
  schedule::Sheet schedule = {};
  PlotOptions options{.paper = A4};

  Plot Make() const {
    const Scene scene = SceneOf(parts);
    return PlotOf({&scene, &notes, &schedule}, options);
  }
};

// The message of its refusal; empty when there is none.
std::string RefusalOf(const Drawn& drawn) {
  try {
    drawn.Make();
  } catch (const Error& error) {
    return error.what();
  }
  return {};
}

TEST(Plot, PaperIsMillimetres) {
  EXPECT_THAT(Drawn{.parts = {.entities = Line("A", 0, 0, 10, 5)}}.Make().text,
              HasSubstr(R"(width="297mm" height="210mm" viewBox="0 0 297 210")"));
}

TEST(Plot, LineHasItsLengthByTheScale) {
  Drawn drawn{.parts = {.entities = Line("A", 0, 0, 10, 0) + Line("A", 0, 0, 0, 5)}};
  drawn.options.scale = 100;  // 10 x 5 m are 100 x 50 mm in the middle of x 20 to 287, y 10 to 167
  EXPECT_THAT(drawn.Make().text, HasSubstr("M103.5,113.5L203.5,113.5M103.5,113.5L103.5,63.5"));
}

TEST(Plot, ScaleIsTheLargestThatFitsUnlessSaid) {
  const Drawn drawn{.parts = {.entities = Line("A", 0, 0, 10, 5)}};
  EXPECT_EQ(drawn.Make().scale, 50);  // 200 x 100 mm; at 1:25 it would be 400 mm wide
}

TEST(Plot, RefusalNamesScaleAndPaperThatWouldDo) {
  Drawn drawn{.parts = {.entities = Line("A", 0, 0, 10, 5)}};
  drawn.options.scale = 20;
  EXPECT_EQ(
      RefusalOf(drawn),
      "test.dxf: at 1:20 the plan takes 500 x 250 mm, and A4 has room for 255 x 145 mm; 1:50 fits on it; "
      "1:20 fits on A2");
}

TEST(Plot, DashesAreMillimetres) {
  Drawn drawn{
      .parts = {.tables = "0 LTYPE|2 T|70 0|49 0.5|49 -0.25|", .entities = Line("A", 0, 0, 10, 5, "|6 T")}};
  drawn.options.scale = 100;
  EXPECT_THAT(drawn.Make().text, HasSubstr("stroke-dasharray=\"5,2.5\""));
}

TEST(Plot, TooFineDashesCanBeToldApart) {
  const Drawn drawn{
      .parts = {.tables = "0 LTYPE|2 T|70 0|49 0.01|49 -0.01|", .entities = Line("A", 0, 0, 10, 5, "|6 T")}};
  EXPECT_THAT(drawn.Make().text, HasSubstr("stroke-dasharray=\"0.75,0.75\""));
}

TEST(Plot, TitleBlockHasWhatIsSaid) {
  Drawn drawn{.parts = {.entities = Line("A", 0, 0, 10, 5)}};
  drawn.options.project = "House & barn";
  drawn.options.title = "Attic";
  drawn.options.date = "2026-05-04";
  EXPECT_THAT(drawn.Make().text,
              AllOf(HasSubstr(">House &amp; barn<"), HasSubstr(">Attic<"), HasSubstr(">2026-05-04<"),
                    HasSubstr(">test.dxf (m)<"), HasSubstr(">1:50<"), HasSubstr(">A4<")));
}

TEST(Plot, TitleThatIsTooLongIsCutOff) {
  Drawn drawn{.parts = {.entities = Line("A", 0, 0, 10, 5)}};
  drawn.options.title = std::string(300, 'x');
  EXPECT_THAT(drawn.Make().text,
              AllOf(HasSubstr("x…</text>"), Not(HasSubstr(drawn.options.title + "</text>"))));
}

TEST(Plot, ScaleBarIsARoundLength) {
  Drawn drawn{.parts = {.entities = Line("A", 0, 0, 10, 5)}};
  EXPECT_THAT(drawn.Make().text, HasSubstr(">2 m</text>"));
  drawn.options.lengths = LengthStyle::FeetAndInches;
  EXPECT_THAT(drawn.Make().text, HasSubstr(">5 ft</text>"));
}

TEST(Plot, WindowLiesOverTheLinesOfWalls) {
  const std::string window = Rectangle("B", 2, 2, 3, 3, 0, "|1001 TK_LT_ELEM|1000 TKBRVA|1071 1");
  Drawn drawn{.parts = {.entities = window + Line("WALL", 0, 2.5, 10, 2.5)}};
  drawn.notes = {{}, {WindowAt(2, 2, "W01", 1)}};
  drawn.notes.windows[0].roof.reset();
  const std::string text = drawn.Make().text;
  const std::size_t wall = text.find("inkscape:label=\"WALL\"");
  ASSERT_NE(wall, std::string::npos);
  EXPECT_LT(wall, text.find("<g id=\"windows\""));
  EXPECT_THAT(text, HasSubstr(">W01</text>"));
}

TEST(Plot, TextOfTheDrawingKeepsItsRoom) {
  // A text over the whole of the plan leaves no room for the window's tag within it.
  const std::string window = Rectangle("B", 4, 2, 5, 3, 0, "|1001 TK_LT_ELEM|1000 TKBRVA|1071 1");
  Drawn drawn{.parts = {.entities = window + Line("WALL", 0, 0, 10, 5)}};
  drawn.notes = {{}, {WindowAt(4, 2, "W01", 1)}};
  drawn.notes.windows[0].roof.reset();
  EXPECT_EQ(drawn.Make().labelsWithoutRoom, 0);
  drawn.parts.entities += "0 TEXT|8 A|10 -40|20 -40|40 80|1 XXXX|";
  EXPECT_EQ(drawn.Make().labelsWithoutRoom, 1);
}

TEST(Plot, ScheduleStandsBesideThePlan) {
  Drawn drawn{.parts = {.entities = Line("A", 0, 0, 5, 5)}};
  drawn.schedule = {"Windows",
                    &schedule::ENGLISH,
                    {{"Mark"}, {"Width mm", true}},
                    {{{"W01"}, {"780", schedule::CellKind::Number}}},
                    {}};
  const Plot plot = drawn.Make();
  EXPECT_TRUE(plot.hasSchedule);
  EXPECT_THAT(plot.text,
              AllOf(HasSubstr(">Windows<"), HasSubstr(">W01<"), HasSubstr(">780<"), HasSubstr(">Width<")));
}

TEST(Plot, ScheduleWithoutRoomIsLeftOut) {
  Drawn drawn{.parts = {.entities = Line("A", 0, 0, 12, 7)}};
  drawn.schedule = {
      "Windows", &schedule::ENGLISH, {{"Mark"}}, std::vector<std::vector<schedule::Cell>>(40, {{"W01"}}), {}};
  const Plot plot = drawn.Make();
  EXPECT_FALSE(plot.hasSchedule);
  EXPECT_THAT(plot.text, Not(HasSubstr("id=\"schedule\"")));
}

}  // namespace
}  // namespace teskarlt::plot
