// CatalogueExport.cpp - the windows of a catalogue row by row.
#include "teskarlt/catalogue/CatalogueExport.h"

#include "teskarlt/catalogue/Csv.h"
#include "teskarlt/catalogue/ImportForm.h"

namespace teskarlt {

std::string TableOf(const Catalogue& catalogue, char delimiter) {
  std::vector<std::string> head = {std::string(ColumnName(MAKER_COLUMN))};
  for (const FieldForm& form : FIELD_FORMS)
    head.emplace_back(form.name);
  std::string table = CsvLine(head, delimiter);
  for (const CatalogueItem& item : catalogue.items) {
    if (item.key.starts_with(COMMENT_MARK)) continue;
    std::vector<std::string> row = {CatalogueText(MakerOf(catalogue.sections[item.section]))};
    const ItemTexts texts = TextsOf(item.line);
    row.insert(row.end(), texts.begin(), texts.end());
    table += CsvLine(row, delimiter);
  }
  return table;
}

}  // namespace teskarlt
