// SvgTest.cpp - the text of vector pictures.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/preview/Svg.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::preview {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string Drawn(const Parts& parts, const char* view = "plan") {
  PictureOptions options;
  options.view = FindView(view);
  options.width = 264;  // with margins of 32, ten units are 20 pixels each
  return Svg(SceneOf(parts), options).text;
}

TEST(Svg, LineIsAPathOfItsLayer) {
  const std::string svg = Drawn({.tables = "0 LAYER|2 A|70 0|62 1|", .entities = Line("A", 0, 0, 10, 5)});
  EXPECT_THAT(svg,
              HasSubstr("<g id=\"layer-0\" inkscape:groupmode=\"layer\" inkscape:label=\"A\" fill=\"none\" "
                        "stroke=\"#ff0000\" stroke-width=\"0.8\">\n<path d=\"M32,132L232,32\"/>\n</g>"));
}

TEST(Svg, NeighbouringLinesAreOnePath) {
  EXPECT_THAT(Drawn({.entities = Line("A", 0, 0, 10, 0) + Line("A", 10, 0, 10, 10)}),
              HasSubstr("<path d=\"M32,232L232,232L232,32\"/>"));
}

TEST(Svg, OwnColourStandsAtTheLine) {
  EXPECT_THAT(Drawn({.entities = Line("A", 0, 0, 10, 5, "|62 5")}), HasSubstr("<path stroke=\"#0000ff\" d="));
}

TEST(Svg, LinetypeIsADashArray) {
  EXPECT_THAT(
      Drawn({.tables = "0 LTYPE|2 T|70 0|49 0.5|49 -0.25|", .entities = Line("A", 0, 0, 10, 5, "|6 T")}),
      HasSubstr("stroke-dasharray=\"10,5\""));
}

TEST(Svg, TooFineLinetypeIsDrawnSoThatItCanBeToldApart) {
  EXPECT_THAT(
      Drawn({.tables = "0 LTYPE|2 T|70 0|49 0.01|49 -0.01|", .entities = Line("A", 0, 0, 10, 5, "|6 T")}),
      HasSubstr("stroke-dasharray=\"3,3\""));
}

TEST(Svg, EdgeUnderARoofIsHiddenAndAPlanLineIsNot) {
  const std::string svg = Drawn({.entities = Rectangle("ROOF", 0, 0, 10, 10, 5) +
                                             Rectangle("FLOOR", 2, 2, 8, 8, 0) + Line("PLAN", 3, 5, 7, 5)});
  EXPECT_THAT(
      svg,
      HasSubstr("inkscape:label=\"FLOOR\" fill=\"none\" stroke=\"#222222\" stroke-width=\"0.8\">\n</g>"));
  EXPECT_THAT(svg, HasSubstr("<path d=\"M92,132L172,132\"/>"));
}

TEST(Svg, EdgeThatTouchesASurfaceFromBehindIsHidden) {
  // A wall whose upper edge lies on the underside of a roof, seen from above.
  const std::string wall = "0 3DFACE|8 WALL|10 2|20 5|30 0|11 8|21 5|31 0|12 8|22 5|32 3|13 2|23 5|33 3|";
  EXPECT_THAT(
      Drawn({.entities = Rectangle("ROOF", 0, 0, 10, 10, 3) + wall}),
      HasSubstr("inkscape:label=\"WALL\" fill=\"none\" stroke=\"#222222\" stroke-width=\"0.8\">\n</g>"));
}

TEST(Svg, SharedEdgeIsDrawnOnce) {
  const std::string svg =
      Drawn({.entities = Rectangle("A", 0, 0, 5, 10, 0) + Rectangle("A", 5, 0, 10, 10, 0)});
  EXPECT_THAT(svg, HasSubstr("d=\"M32,232L132,232L132,32L32,32L32,232M132,232L232,232L232,32L132,32\""));
}

TEST(Svg, SurfaceIsPaintedFromTheFarthest) {
  const std::string svg =
      Drawn({.entities = Rectangle("HIGH", 2, 2, 8, 8, 5) + Rectangle("LOW", 0, 0, 10, 10, 0)});
  EXPECT_LT(svg.find("<path class=\"layer-1\""), svg.find("<path class=\"layer-0\""));
}

TEST(Svg, ScaleBarIsARoundLengthInMetres) {
  const std::string svg = Drawn({.entities = Line("A", 0, 0, 10, 5)});
  EXPECT_THAT(svg, HasSubstr("<text x=\"218\" y=\"181\">10 m</text>"));
}

TEST(Svg, TitleNamesDrawingAndView) {
  const std::string svg = Drawn({.entities = Line("A", 0, 0, 10, 5)}, "south");
  EXPECT_THAT(svg, HasSubstr("<title>test - South elevation</title>"));
  EXPECT_THAT(svg, HasSubstr("font-weight=\"bold\">test</text>"));
}

TEST(Svg, NamesAreEscaped) {
  EXPECT_THAT(Drawn({.entities = Line("A<\"&", 0, 0, 10, 5)}),
              HasSubstr("inkscape:label=\"A&lt;&quot;&amp;\""));
}

TEST(Svg, WindowHasItsNumberInPlan) {
  const Parts parts = {.entities = Rectangle("B", 0, 0, 10, 10, 0, "|1001 TK_LT_ELEM|1000 TKBRVA|1071 7")};
  EXPECT_THAT(Drawn(parts), HasSubstr("<text x=\"132\" y=\"135.5\">7</text>"));
  EXPECT_THAT(Drawn(parts), HasSubstr("Plan, 1 roof window<"));
  EXPECT_THAT(Drawn(parts, "south"), Not(HasSubstr("window-numbers")));
}

}  // namespace
}  // namespace teskarlt::preview
