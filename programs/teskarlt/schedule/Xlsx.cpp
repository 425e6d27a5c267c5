// Xlsx.cpp - the parts of a workbook.
#include "teskarlt/schedule/Xlsx.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include <fmt/format.h>

#include "teskarlt/schedule/Markup.h"
#include "teskarlt/schedule/ZipArchive.h"

namespace teskarlt::schedule {

namespace {

constexpr const char* XML = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";

constexpr const char* CONTENT_TYPES =
    R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
    R"(<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>)"
    R"(<Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>)"
    R"(<Override PartName="/xl/styles.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml"/>)"
    R"(<Override PartName="/xl/worksheets/sheet1.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>)"
    R"(</Types>)";

constexpr const char* RELATIONS =
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
    R"(<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument" Target="xl/workbook.xml"/>)"
    R"(</Relationships>)";

constexpr const char* WORKBOOK_RELATIONS =
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
    R"(<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet" Target="worksheets/sheet1.xml"/>)"
    R"(<Relationship Id="rId2" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/styles" Target="styles.xml"/>)"
    R"(</Relationships>)";

constexpr const char* STYLES_BEFORE_CELLS =
    R"(<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)"
    R"(<numFmts count="2"><numFmt numFmtId="164" formatCode="0.0"/><numFmt numFmtId="165" formatCode="0.000"/></numFmts>)"
    R"(<fonts count="2"><font><sz val="11"/><name val="Calibri"/></font>)"
    R"(<font><b/><sz val="11"/><name val="Calibri"/></font></fonts>)"
    R"(<fills count="2"><fill><patternFill patternType="none"/></fill><fill><patternFill patternType="gray125"/></fill></fills>)"
    R"(<borders count="2"><border><left/><right/><top/><bottom/><diagonal/></border>)"
    R"(<border><left/><right/><top/><bottom style="medium"/><diagonal/></border></borders>)"
    R"(<cellStyleXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/></cellStyleXfs>)";

constexpr const char* STYLES_BEHIND_CELLS =
    R"(</cellXfs><cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles></styleSheet>)";

// The formats of texts, and of numbers with 0 to 3 digits behind the point: two of the program's own, two of
// those above.
constexpr std::array NUMBER_FORMATS = {0, 1, 164, 2, 165};
constexpr std::size_t MOST_DIGITS = 3;

// Where the formats of cells begin: each font has all NUMBER_FORMATS, and the headings have one more.
constexpr std::size_t PLAIN = 0;
constexpr std::size_t BOLD = NUMBER_FORMATS.size();
constexpr std::size_t HEAD = 2 * NUMBER_FORMATS.size();

// Widths of columns in characters.
constexpr std::size_t LEAST_WIDTH = 8;
constexpr std::size_t MOST_WIDTH = 40;
constexpr std::size_t MARGIN = 2;

// A part that is the same in every workbook.
std::string FixedXml(const char* content) {
  return fmt::format("{}{}", XML, content);
}

std::string StylesXml() {
  const auto cellFormat = [](int numberFormat, int font, int border, const char* alignment) {
    return fmt::format(
        R"(<xf numFmtId="{}" fontId="{}" fillId="0" borderId="{}" xfId="0" applyNumberFormat="1" applyFont="1")"
        R"( applyBorder="1" applyAlignment="1"><alignment {}/></xf>)",
        numberFormat, font, border, alignment);
  };
  std::string xml = fmt::format(R"({}{}<cellXfs count="{}">)", XML, STYLES_BEFORE_CELLS, HEAD + 1);
  for (const int font : {0, 1}) {
    for (const int numberFormat : NUMBER_FORMATS) {
      xml += cellFormat(numberFormat, font, 0,
                        numberFormat == 0 ? R"(vertical="top" wrapText="1")" : R"(vertical="top")");
    }
  }
  return xml + cellFormat(0, 1, 1, R"(vertical="bottom" wrapText="1")") + STYLES_BEHIND_CELLS;
}

// "A", "Z", "AA" for 0, 25, 26.
std::string ColumnLetters(std::size_t column) {
  constexpr std::size_t LETTERS = 26;
  std::string letters(1, static_cast<char>('A' + column % LETTERS));
  return column < LETTERS ? letters : ColumnLetters(column / LETTERS - 1) + letters;
}

// Of a cell; `row` counts from 1.
std::string Reference(std::size_t column, std::size_t row) {
  return ColumnLetters(column) + std::to_string(row);
}

std::size_t FormatOf(const Cell& cell, std::size_t font) {
  if (cell.kind != CellKind::Number) return font;
  const std::size_t point = cell.text.find('.');
  const std::size_t digits = point == std::string::npos ? 0 : cell.text.size() - point - 1;
  return font + 1 + std::min(digits, MOST_DIGITS);
}

std::string CellXml(const Cell& cell, const std::string& reference, std::size_t format) {
  if (cell.text.empty()) return fmt::format(R"(<c r="{}" s="{}"/>)", reference, format);
  if (cell.kind == CellKind::Number)
    return fmt::format(R"(<c r="{}" s="{}"><v>{}</v></c>)", reference, format, cell.text);
  return fmt::format(R"(<c r="{}" s="{}" t="inlineStr"><is><t xml:space="preserve">{}</t></is></c>)",
                     reference, format, EscapedMarkup(cell.text));
}

std::string RowXml(const std::vector<Cell>& cells, std::size_t row, std::size_t font) {
  std::string xml = fmt::format(R"(<row r="{}">)", row);
  for (std::size_t i = 0; i < cells.size(); ++i)
    xml += CellXml(cells[i], Reference(i, row), FormatOf(cells[i], font));
  return xml + "</row>";
}

std::size_t Characters(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](unsigned char c) { return (c & 0xC0U) != 0x80U; }));
}

// The longest word of a heading, which may take several lines.
std::size_t LongestWord(std::string_view heading) {
  std::size_t longest = 0;
  while (!heading.empty()) {
    const std::size_t end = std::min(heading.find(' '), heading.size());
    longest = std::max(longest, Characters(heading.substr(0, end)));
    heading.remove_prefix(std::min(end + 1, heading.size()));
  }
  return longest;
}

std::string ColumnsXml(const Sheet& sheet) {
  std::string xml = "<cols>";
  for (std::size_t i = 0; i < sheet.headings.size(); ++i) {
    std::size_t width = std::max(LEAST_WIDTH, LongestWord(sheet.headings[i].text) + MARGIN);
    for (const std::vector<Cell>& row : sheet.rows)
      width = std::max(width, Characters(row[i].text) + MARGIN);
    xml += fmt::format(R"(<col min="{0}" max="{0}" width="{1}" customWidth="1"/>)", i + 1,
                       std::min(width, MOST_WIDTH));
  }
  return xml + "</cols>";
}

std::string RowsXml(const Sheet& sheet) {
  std::vector<Cell> headings;
  headings.reserve(sheet.headings.size());
  for (const Heading& heading : sheet.headings)
    headings.push_back({heading.text});
  std::string xml = "<sheetData>" + RowXml(headings, 1, HEAD);
  std::size_t number = 1;
  for (const std::vector<Cell>& row : sheet.rows)
    xml += RowXml(row, ++number, PLAIN);
  if (!sheet.totals.empty()) xml += RowXml(sheet.totals, ++number, BOLD);
  return xml + "</sheetData>";
}

std::string SheetXml(const Sheet& sheet) {
  return fmt::format(
      R"({}<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)"
      R"(<sheetPr><pageSetUpPr fitToPage="1"/></sheetPr><sheetViews><sheetView workbookViewId="0">)"
      R"(<pane ySplit="1" topLeftCell="A2" activePane="bottomLeft" state="frozen"/></sheetView></sheetViews>)"
      R"({}{})"
      R"(<pageMargins left="0.4" right="0.4" top="0.4" bottom="0.4" header="0.2" footer="0.2"/>)"
      R"(<pageSetup paperSize="9" orientation="landscape" fitToHeight="0"/></worksheet>)",
      XML, ColumnsXml(sheet), RowsXml(sheet));
}

// What programs take for the name of a sheet: up to 31 characters without some marks.
std::string WorkbookXml(const Sheet& sheet) {
  const std::string name = EscapedMarkup((*sheet.language)["schedule"]);
  return fmt::format(
      "{}"
      R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
      R"(<sheets><sheet name="{}" sheetId="1" r:id="rId1"/></sheets><definedNames>)"
      R"(<definedName name="_xlnm.Print_Titles" localSheetId="0">'{}'!$1:$1</definedName>)"
      R"(</definedNames></workbook>)",
      XML, name, name);
}

}  // namespace

std::string Xlsx(const Sheet& sheet) {
  ZipArchive archive;
  archive.Add("[Content_Types].xml", FixedXml(CONTENT_TYPES));
  archive.Add("_rels/.rels", FixedXml(RELATIONS));
  archive.Add("xl/workbook.xml", WorkbookXml(sheet));
  archive.Add("xl/_rels/workbook.xml.rels", FixedXml(WORKBOOK_RELATIONS));
  archive.Add("xl/styles.xml", StylesXml());
  archive.Add("xl/worksheets/sheet1.xml", SheetXml(sheet));
  return archive.Bytes();
}

}  // namespace teskarlt::schedule
