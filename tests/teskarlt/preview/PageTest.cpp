// PageTest.cpp - a model in its page.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/preview/Page.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::preview {
namespace {

using testing::HasSubstr;
using testing::Not;

class PageTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!HasPage()) GTEST_SKIP() << "built without the page";
  }
};

Scene Diagonal(const std::string& name) {
  Scene scene = SceneOf({.entities = Line("A", 0, 0, 1, 1)});
  scene.name = name;
  return scene;
}

TEST_F(PageTest, TitleIsTheNameOfTheDrawing) {
  EXPECT_THAT(Page(Diagonal("a<b"), {}, std::nullopt), HasSubstr("<title>a&lt;b</title>"));
}

TEST_F(PageTest, ModelAndWindowAreWithinIt) {
  // "glTF" and version 2 in base 64.
  EXPECT_THAT(Page(Diagonal("a"), {}, 7), HasSubstr(R"(id="model" data-window="7">Z2xURgIAAA)"));
  EXPECT_THAT(Page(Diagonal("a"), {}, std::nullopt), HasSubstr("data-window=\"\">Z2xURgIAAA"));
}

TEST_F(PageTest, ScheduleIsWithinItWithTheNumbersOfItsRows) {
  const std::string page = Page(Diagonal("a"), {"<table>T</table>", "csv", {3, 1}}, std::nullopt);
  EXPECT_THAT(page, HasSubstr("data-windows=\"3 1\"><table>T</table>"));
  EXPECT_THAT(page, HasSubstr("id=\"csv\">Y3N2<"));  // in base 64
}

TEST_F(PageTest, NothingIsFetched) {
  const std::string page = Page(Diagonal("a"), {}, std::nullopt);
  EXPECT_THAT(page, Not(HasSubstr(" src=")));
  EXPECT_THAT(page, Not(HasSubstr("@import")));
  EXPECT_THAT(page, Not(HasSubstr("url(http")));
}

TEST_F(PageTest, NoMarkIsLeft) {
  EXPECT_THAT(Page(Diagonal("a"), {}, std::nullopt), Not(HasSubstr("PAGE_")));
}

}  // namespace
}  // namespace teskarlt::preview
