// TableColumns.h - a maker's table read by an ImportForm: rows as windows.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "teskarlt/catalogue/Csv.h"
#include "teskarlt/catalogue/ImportForm.h"

namespace teskarlt {

class TableColumns {
 public:
  // Finds the columns in the head. Throws Error, naming `file` and the columns that there are, where one is
  // missing or stands twice.
  TableColumns(const CsvRow& head, const ImportForm& form, const std::string& file);

  // Whether the table says the field, or the maker.
  bool Has(std::size_t column) const { return columns_.at(column).has_value(); }

  // The window of a row; what the table does not say is empty. Throws Error, without a place, for a row that
  // has more cells than the head and for a size that is no number.
  CatalogueWindow WindowOf(const CsvRow& row) const;

  // "width: column "B_mm" in mm", for each size.
  std::vector<std::string> SizesForPeople() const;

 private:
  struct Column {
    std::size_t cell;  // index in a row
    std::string name;
    Scale scale;
  };

  std::optional<Column> Find(std::size_t column) const;
  std::optional<std::size_t> CellNamed(const std::string& name) const;
  std::string Columns() const;
  Column WithUnit(std::size_t cell, const std::optional<Factor>& factor) const;
  std::string SizeText(std::size_t field, const std::string& cell) const;
  std::string CodeFor(const std::string& word) const;

  const CsvRow& head_;
  const ImportForm& form_;
  const std::string& file_;
  std::array<std::optional<Column>, COLUMN_COUNT> columns_;
};

}  // namespace teskarlt
