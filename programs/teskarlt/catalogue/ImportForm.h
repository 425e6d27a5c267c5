// ImportForm.h - which columns of a maker's table are which fields of a catalogue, as the user says it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "teskarlt/catalogue/ItemFields.h"

namespace teskarlt {

// A size in a table times `times` is one in centimetres, and divided by `by`: two numbers, so that 785 mm
// become 78.5 cm to the last bit.
struct Scale {
  double times = 1.0;
  double by = 1.0;

  bool operator==(const Scale&) const = default;
};

// Behind the fields of an item.
constexpr std::size_t MAKER_COLUMN = FIELD_COUNT;
constexpr std::size_t COLUMN_COUNT = FIELD_COUNT + 1;

struct ImportForm {
  // For each field, and the maker, what stands behind "field=": the column, perhaps with a factor. All empty:
  // columns are called as the fields are.
  std::array<std::string, COLUMN_COUNT> columns;
  std::vector<std::pair<std::string, std::string>> codes;  // a word of the table, and its opening code
  std::string maker;                                       // of all rows, where no column has it
  std::optional<Scale> scale;  // of sizes without a factor; else the head of their column tells, else cm

  bool HasMap() const;
};

// The name of a field, or "maker".
std::string_view ColumnName(std::size_t column);

// Each takes what an option says; texts of several are separated by commas. Throws Error.
void TakeMap(ImportForm& form, const std::string& text);    // "key=Art.Nr,width=B_mm/10"
void TakeCodes(ImportForm& form, const std::string& text);  // "Schwing=D,Fest=-"

// "mm", "cm" and "m"; nothing for another word.
std::optional<Scale> ScaleOfUnit(std::string_view unit);

// The scale of the unit that a head of a column names, as in "B_mm" or "Width [cm]"; nothing without one.
std::optional<Scale> ScaleInHead(std::string_view head);

struct Factor {
  std::string column;
  Scale scale;
};

// "B_mm/10" or "B*2.54" taken apart; nothing for a text without a factor at its end.
std::optional<Factor> FactorIn(const std::string& text);

}  // namespace teskarlt
