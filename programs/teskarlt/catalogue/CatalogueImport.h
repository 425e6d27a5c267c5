// CatalogueImport.h - windows of a maker's table taken into a catalogue.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "teskarlt/catalogue/CatalogueEditor.h"
#include "teskarlt/catalogue/Csv.h"
#include "teskarlt/catalogue/ImportForm.h"

namespace teskarlt {

// A row that no window comes of.
struct LeftOutRow {
  std::size_t line = 0;  // of the table, from 1
  std::string reason;    // one sentence
};

struct ImportReport {
  std::size_t rows = 0;  // without the head
  std::size_t added = 0;
  std::size_t replaced = 0;
  std::vector<LeftOutRow> leftOut;
  std::vector<std::string> sizes;  // how sizes were read, for people: "width: column B_mm in mm"
  std::string bytes;               // of the catalogue with the windows
};

// What the table is and what becomes of it.
struct ImportOrder {
  std::string file;          // for messages
  std::vector<CsvRow> rows;  // the head first
  ImportForm form;           // of the columns
  bool replacesWindows =
      false;  // windows that are there already take the row's fields; else the row is left out
};

// Throws Error where the table has no rows or lacks a column that the form names.
ImportReport ImportTable(const ImportOrder& order, const Catalogue& catalogue, CatalogueEncoding encoding);

}  // namespace teskarlt
