// TableColumns.cpp - columns found by their heads, and cells read as sizes, codes and texts.
#include "teskarlt/catalogue/TableColumns.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/catalogue/CatalogueSearch.h"
#include "teskarlt/catalogue/ItemRules.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

// A number with a unit behind it or none: "780", "78,5 cm".
struct Measure {
  std::string number;
  std::optional<Scale> unit;
};

Measure MeasureIn(const std::string& cell) {
  const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  std::size_t end = cell.size();
  while (end > 0 && isLetter(cell[end - 1]))
    --end;
  const std::optional<Scale> unit = ScaleOfUnit(std::string_view(cell).substr(end));
  return {std::string(dxf::Trimmed(std::string_view(cell).substr(0, unit ? end : cell.size()))), unit};
}

// "78,5" as "78.5"; a text with a point, or several commas, as it is.
std::string WithPoint(std::string number) {
  if (number.find('.') == std::string::npos && std::count(number.begin(), number.end(), ',') == 1)
    std::replace(number.begin(), number.end(), ',', '.');
  return number;
}

std::string Scaled(double number, Scale scale) {
  constexpr double finest = 1e6;  // parts of a centimetre; metres times 100 are not whole to the last bit
  return fmt::format("{}", std::round(number * scale.times / scale.by * finest) / finest);
}

// In one line, and without the semicolons that separate the fields of a catalogue.
std::string Description(std::string text) {
  for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", end))
    text.erase(end, 1);
  for (char& c : text)
    c = c == ';' ? ',' : c == '\n' || c == '\r' || c == '\t' ? ' ' : c;
  return text;
}

// For the names of scales that units have; else the factor.
std::string NameOf(Scale scale) {
  for (const char* unit : {"mm", "cm", "m"}) {
    if (ScaleOfUnit(unit) == scale) return fmt::format("in {}", unit);
  }
  return scale.by == 1.0 ? fmt::format("times {}", scale.times) : fmt::format("divided by {}", scale.by);
}

}  // namespace

TableColumns::TableColumns(const CsvRow& head, const ImportForm& form, const std::string& file)
    : head_(head), form_(form), file_(file) {
  for (std::size_t column = 0; column < COLUMN_COUNT; ++column)
    columns_.at(column) = Find(column);
  if (Has(FIELD_KEY)) return;
  throw Error(fmt::format("no column is the key; say with --map which columns are which, as in "
                          "key=Art.Nr,width=B_mm/10; there are {}",
                          Columns()),
              {file_, ErrorPlace::Unit::Line, head_.line});
}

std::optional<TableColumns::Column> TableColumns::Find(std::size_t column) const {
  const std::string& said = form_.columns.at(column);
  if (said.empty()) {
    const auto cell = form_.HasMap() ? std::nullopt : CellNamed(std::string(ColumnName(column)));
    return cell ? std::optional(WithUnit(*cell, std::nullopt)) : std::nullopt;
  }
  if (const auto cell = CellNamed(said)) return WithUnit(*cell, std::nullopt);
  const std::optional<Factor> factor = FactorIn(said);
  const auto cell = factor ? CellNamed(factor->column) : std::nullopt;
  if (!cell) {
    throw Error(
        fmt::format("there is no column \"{}\"; there are {}", factor ? factor->column : said, Columns()),
        {file_, ErrorPlace::Unit::Line, head_.line, said});
  }
  if (column == MAKER_COLUMN || !FIELD_FORMS.at(column).IsSize()) {
    throw Error(fmt::format("--map {}={}: a factor goes with sizes only", ColumnName(column), said),
                {.value = said});
  }
  return WithUnit(*cell, factor);
}

std::optional<std::size_t> TableColumns::CellNamed(const std::string& name) const {
  std::optional<std::size_t> found;
  for (std::size_t cell = 0; cell < head_.cells.size(); ++cell) {
    if (!dxf::SameName(head_.cells[cell], name)) continue;
    if (found) {
      throw Error(fmt::format("the column \"{}\" stands there twice", name),
                  {file_, ErrorPlace::Unit::Line, head_.line, name});
    }
    found = cell;
  }
  return found;
}

std::string TableColumns::Columns() const {
  std::string columns;
  for (const std::string& name : head_.cells)
    columns += fmt::format("{}\"{}\"", columns.empty() ? "" : ", ", name);
  return columns;
}

// The user's factor goes first, then what the user says of all sizes, then what the head says.
TableColumns::Column TableColumns::WithUnit(std::size_t cell, const std::optional<Factor>& factor) const {
  const std::string& name = head_.cells[cell];
  if (factor) return {cell, name, factor->scale};
  return {cell, name, form_.scale ? *form_.scale : ScaleInHead(name).value_or(Scale{})};
}

CatalogueWindow TableColumns::WindowOf(const CsvRow& row) const {
  if (row.cells.size() > head_.cells.size()) {
    throw Error(fmt::format("the row has {} cells, and the head of the table {}", row.cells.size(),
                            head_.cells.size()));
  }
  const auto cellOf = [&](std::size_t column) -> std::string {
    const std::optional<Column>& place = columns_.at(column);
    return place && place->cell < row.cells.size() ? row.cells[place->cell] : "";
  };
  CatalogueWindow window;
  window.maker = Has(MAKER_COLUMN) ? cellOf(MAKER_COLUMN) : form_.maker;
  for (std::size_t field = 0; field < FIELD_COUNT; ++field) {
    const std::string cell = cellOf(field);
    window.texts.at(field) = FIELD_FORMS.at(field).IsSize() ? SizeText(field, cell) : cell;
  }
  window.texts[FIELD_DESCRIPTION] = Description(window.texts[FIELD_DESCRIPTION]);
  if (Has(FIELD_OPENING_CODE)) window.texts[FIELD_OPENING_CODE] = CodeFor(window.texts[FIELD_OPENING_CODE]);
  return window;
}

std::string TableColumns::SizeText(std::size_t field, const std::string& cell) const {
  if (cell.empty()) return {};
  const Measure measure = MeasureIn(cell);
  const std::string number = WithPoint(measure.number);
  const std::optional<double> size = SizeIn(number);
  if (!size) throw Error(fmt::format("{}: \"{}\" is not a number", FIELD_FORMS.at(field).name, cell));
  const Scale scale = measure.unit.value_or(columns_.at(field)->scale);
  return scale == Scale{} ? number : Scaled(*size, scale);
}

std::string TableColumns::CodeFor(const std::string& word) const {
  const std::string plain = PlainLetters(word);
  const auto known = std::find_if(form_.codes.begin(), form_.codes.end(),
                                  [&](const auto& code) { return PlainLetters(code.first) == plain; });
  return known == form_.codes.end() ? word : known->second;
}

std::vector<std::string> TableColumns::SizesForPeople() const {
  std::vector<std::string> sizes;
  for (std::size_t field = 0; field < FIELD_COUNT; ++field) {
    const std::optional<Column>& column = columns_.at(field);
    if (!column || !FIELD_FORMS.at(field).IsSize()) continue;
    sizes.push_back(
        fmt::format("{}: column \"{}\" {}", FIELD_FORMS.at(field).name, column->name, NameOf(column->scale)));
  }
  return sizes;
}

}  // namespace teskarlt
