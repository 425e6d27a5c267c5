// ImportForm.cpp - the words of the options that say what a table holds.
#include "teskarlt/catalogue/ImportForm.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/catalogue/CatalogueFinding.h"
#include "teskarlt/catalogue/ItemRules.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

std::vector<std::string> PartsOf(const std::string& text) {
  std::vector<std::string> parts;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(',', begin), text.size());
    parts.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return parts;
}

std::size_t ColumnNamed(std::string_view name, const std::string& text) {
  std::string names;
  for (std::size_t column = 0; column < COLUMN_COUNT; ++column) {
    if (dxf::SameName(ColumnName(column), name)) return column;
    names += (names.empty() ? "" : ", ") + std::string(ColumnName(column));
  }
  throw Error(fmt::format("--map {}: there is no field {}; there are {}", text, name, names),
              {.value = std::string(name)});
}

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c & 0x80) != 0;
}

}  // namespace

bool ImportForm::HasMap() const {
  return std::any_of(columns.begin(), columns.end(),
                     [](const std::string& column) { return !column.empty(); });
}

std::string_view ColumnName(std::size_t column) {
  return column == MAKER_COLUMN ? "maker" : FIELD_FORMS.at(column).name;
}

void TakeMap(ImportForm& form, const std::string& text) {
  std::string* column = nullptr;
  for (const std::string& part : PartsOf(text)) {
    const std::size_t sign = part.find('=');
    if (sign == std::string::npos && column == nullptr)
      throw Error(fmt::format("--map {}: it is said as key=Art.Nr,width=B_mm/10", text), {.value = text});
    if (sign == std::string::npos) {
      *column += "," + part;  // of the name of a column
      continue;
    }
    column = &form.columns.at(ColumnNamed(part.substr(0, sign), text));
    *column = part.substr(sign + 1);
    if (column->empty())
      throw Error(fmt::format("--map {}: behind {} a column is named", text, part), {.value = part});
  }
}

void TakeCodes(ImportForm& form, const std::string& text) {
  for (const std::string& part : PartsOf(text)) {
    const std::size_t sign = part.rfind('=');
    if (sign == std::string::npos)
      throw Error(fmt::format("--codes {}: it is said as Schwing=D,Fest=-", text), {.value = part});
    const std::string code = part.substr(sign + 1);
    for (const CatalogueFinding& finding : FindingsOf(ItemTexts{"key", "", "", "", "", code}))
      throw Error(fmt::format("--codes {}: {}", part, finding.message), {.value = code});
    form.codes.emplace_back(part.substr(0, sign), code);
  }
}

std::optional<Scale> ScaleOfUnit(std::string_view unit) {
  if (dxf::SameName(unit, "mm")) return Scale{1.0, 10.0};
  if (dxf::SameName(unit, "cm")) return Scale{};
  if (dxf::SameName(unit, "m")) return Scale{100.0, 1.0};
  return std::nullopt;
}

std::optional<Scale> ScaleInHead(std::string_view head) {
  std::size_t end = head.size();
  while (end > 0 && !IsLetter(head[end - 1]))
    --end;
  std::size_t begin = end;
  while (begin > 0 && IsLetter(head[begin - 1]))
    --begin;
  if (begin == 0) return std::nullopt;  // a column that is called "m" alone
  return ScaleOfUnit(head.substr(begin, end - begin));
}

std::optional<Factor> FactorIn(const std::string& text) {
  const std::size_t sign = text.find_last_of("/*");
  if (sign == std::string::npos) return std::nullopt;
  const std::optional<double> number = SizeIn(text.substr(sign + 1));
  if (!number || *number <= 0.0) return std::nullopt;
  return Factor{text.substr(0, sign), text[sign] == '/' ? Scale{1.0, *number} : Scale{*number, 1.0}};
}

}  // namespace teskarlt
