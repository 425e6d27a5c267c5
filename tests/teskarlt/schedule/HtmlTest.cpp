// HtmlTest.cpp - a sheet as a page for browsers and printers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/schedule/Html.h"
#include "tests/teskarlt/schedule/Schedules.h"

namespace teskarlt::schedule {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(Html, TableHasHeadingsRowsAndSums) {
  Sheet sheet = SheetWith({"W01"});
  sheet.language = &CZECH;
  sheet.headings.push_back({"Výška m", true});
  sheet.rows[0].push_back({"3.200", CellKind::Number});
  sheet.totals = {{"Celkem"}, {}};
  const std::string page = Html(sheet);
  EXPECT_THAT(page, HasSubstr("<html lang=\"cs\">"));
  EXPECT_THAT(
      page,
      HasSubstr("<thead>\n<tr><th scope=\"col\">Name</th><th scope=\"col\" class=\"n\">Výška m</th></tr>"));
  EXPECT_THAT(page, HasSubstr("<tbody>\n<tr><td>W01</td><td class=\"n\">3,200</td></tr>\n</tbody>"));
  EXPECT_THAT(page, HasSubstr("<tfoot>\n<tr><td>Celkem</td><td class=\"n\"></td></tr>\n</tfoot>"));
}

TEST(Html, TextsAreEscaped) {
  Sheet sheet = SheetWith({"<b>\"&\uFFFF"});
  sheet.title = "a<b";
  const std::string page = Html(sheet);
  EXPECT_THAT(page, HasSubstr("<td>&lt;b&gt;&quot;&amp;\uFFFD</td>"));
  EXPECT_THAT(page, HasSubstr("<title>a&lt;b</title>"));
  EXPECT_THAT(page, HasSubstr("<h1>a&lt;b</h1>"));
}

TEST(Html, PageNeedsNoOtherFile) {
  const std::string page = Html(SheetWith({"W01"}));
  for (const char* const reference : {"src=", "href=", "url(", "@import", "<tfoot>"})
    EXPECT_THAT(page, Not(HasSubstr(reference)));
}

}  // namespace
}  // namespace teskarlt::schedule
