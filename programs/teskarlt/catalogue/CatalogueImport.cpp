// CatalogueImport.cpp - row by row: a window, or the reason why there is none.
#include "teskarlt/catalogue/CatalogueImport.h"

#include <map>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/catalogue/ItemRules.h"
#include "teskarlt/catalogue/TableColumns.h"

namespace teskarlt {

namespace {

class TableImport {
 public:
  TableImport(const ImportOrder& order, const Catalogue& catalogue, CatalogueEncoding encoding)
      : order_(order),
        catalogue_(catalogue),
        columns_(order.rows.front(), order.form, order.file),
        editor_(catalogue, encoding) {
    for (const CatalogueItem& item : catalogue.items) {
      const std::string maker = CatalogueText(MakerOf(catalogue.sections[item.section]));
      known_.try_emplace({maker, CatalogueText(item.key)}, &item);
    }
  }

  ImportReport Run() {
    ImportReport report;
    report.rows = order_.rows.size() - 1;
    report.sizes = columns_.SizesForPeople();
    for (std::size_t i = 1; i < order_.rows.size(); ++i) {
      try {
        ++(Take(order_.rows[i]) ? report.replaced : report.added);
      } catch (const Error& error) {
        report.leftOut.push_back({order_.rows[i].line, error.Message()});
      }
    }
    report.bytes = editor_.Bytes();
    return report;
  }

 private:
  using Name = std::pair<std::string, std::string>;  // maker and key

  // True when the window took the place of another. Throws Error for a row that is left out.
  bool Take(const CsvRow& row) {
    CatalogueWindow window = columns_.WindowOf(row);
    if (window.maker.empty()) throw Error("the row names no maker");
    if (const auto section = SectionOf(catalogue_, window.maker))
      window.maker = CatalogueText(MakerOf(catalogue_.sections[*section]));
    const Name name{window.maker, window.texts[FIELD_KEY]};
    const auto taken = lines_.find(name);
    if (taken != lines_.end()) {
      throw Error(
          fmt::format("{} has a window {} in line {} already", name.first, name.second, taken->second));
    }
    const bool isReplaced = Put(window, name);
    lines_.emplace(name, row.line);
    return isReplaced;
  }

  bool Put(CatalogueWindow& window, const Name& name) {
    const auto known = known_.find(name);
    if (known == known_.end()) {
      CheckWritable(window);
      editor_.Add(window);
      return false;
    }
    if (!order_.replacesWindows) {
      throw Error(fmt::format("{} has a window {} in the catalogue already; --replace takes the table's",
                              name.first, name.second));
    }
    const CatalogueItem& item = *known->second;
    const ItemTexts old = TextsOf(item.line);
    for (std::size_t field = 0; field < FIELD_COUNT; ++field) {
      if (!columns_.Has(field)) window.texts.at(field) = old.at(field);
    }
    CheckWritable(window);
    editor_.Change(item, window.texts);
    return true;
  }

  const ImportOrder& order_;
  const Catalogue& catalogue_;
  TableColumns columns_;
  CatalogueEditor editor_;
  std::map<Name, const CatalogueItem*> known_;  // the first of each name
  std::map<Name, std::size_t> lines_;           // of the table, of the windows taken
};

}  // namespace

ImportReport ImportTable(const ImportOrder& order, const Catalogue& catalogue, CatalogueEncoding encoding) {
  if (order.rows.empty()) throw Error("the table is empty", {.file = order.file});
  if (order.rows.size() == 1) throw Error("the table has a head and no rows", {.file = order.file});
  return TableImport(order, catalogue, encoding).Run();
}

}  // namespace teskarlt
