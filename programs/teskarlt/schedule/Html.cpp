// Html.cpp - a sheet as a page for browsers and printers.
#include "teskarlt/schedule/Html.h"

#include <fmt/format.h>

#include "teskarlt/schedule/Markup.h"

namespace teskarlt::schedule {

namespace {

constexpr const char* STYLE =
    R"(body { font: 13px/1.4 "Segoe UI", "Helvetica Neue", Arial, sans-serif; color: #1c1c1c; margin: 24px; }
h1 { font-size: 20px; font-weight: 600; margin: 0 0 12px; }
table { border-collapse: collapse; }
th, td { padding: 4px 8px; border-bottom: 1px solid #c8c8c8; text-align: left; vertical-align: top; }
th { border-bottom: 2px solid #1c1c1c; vertical-align: bottom; font-weight: 600; }
.n { text-align: right; font-variant-numeric: tabular-nums; }
td.n { white-space: nowrap; }
tfoot td { border-top: 2px solid #1c1c1c; border-bottom: 0; font-weight: 600; }
@page { size: landscape; margin: 10mm; }
@media print {
  body { font-size: 7pt; margin: 0; }
  h1 { font-size: 11pt; }
  th, td { padding: 1pt 2pt; }
  th, th.n { writing-mode: vertical-rl; transform: rotate(180deg); text-align: left; vertical-align: top; }
  th.n { vertical-align: bottom; }
  table { width: 100%; }
  thead { display: table-header-group; }
  tfoot { display: table-row-group; }
  tr { break-inside: avoid; }
}
)";

void PutRow(const std::vector<Cell>& cells, const Sheet& sheet, std::string& table) {
  table += "<tr>";
  for (std::size_t i = 0; i < cells.size(); ++i) {
    table += fmt::format("<td{}>{}</td>", sheet.headings[i].isNumber ? R"( class="n")" : "",
                         EscapedMarkup(Shown(cells[i], sheet.language->decimalMark)));
  }
  table += "</tr>\n";
}

}  // namespace

std::string HtmlTable(const Sheet& sheet) {
  std::string table = "<table>\n<thead>\n<tr>";
  for (const Heading& heading : sheet.headings) {
    table += fmt::format("<th scope=\"col\"{}>{}</th>", heading.isNumber ? R"( class="n")" : "",
                         EscapedMarkup(heading.text));
  }
  table += "</tr>\n</thead>\n<tbody>\n";
  for (const std::vector<Cell>& row : sheet.rows)
    PutRow(row, sheet, table);
  table += "</tbody>\n";
  if (!sheet.totals.empty()) {
    table += "<tfoot>\n";
    PutRow(sheet.totals, sheet, table);
    table += "</tfoot>\n";
  }
  return table + "</table>\n";
}

std::string Html(const Sheet& sheet) {
  const std::string title = EscapedMarkup(sheet.title);
  return fmt::format(
      "<!DOCTYPE html>\n<html lang=\"{}\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<title>{}</title>\n<style>\n{}</style>\n</head>\n<body>\n<h1>{}</h1>\n{}</body>\n</html>\n",
      sheet.language->name, title, STYLE, title, HtmlTable(sheet));
}

}  // namespace teskarlt::schedule
