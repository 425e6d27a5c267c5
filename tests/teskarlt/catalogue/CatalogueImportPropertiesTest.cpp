// CatalogueImportPropertiesTest.cpp - a catalogue that is exported and imported again is the same catalogue.
#include <random>

#include <gtest/gtest.h>

#include "platform/FileOperations.h"
#include "teskarlt/catalogue/CatalogueExport.h"
#include "teskarlt/catalogue/CatalogueImport.h"

namespace teskarlt {
namespace {

constexpr int CATALOGUES = 60;

// Catalogues of a few makers whose windows have every kind of field that one may have.
class AnyCatalogue {
 public:
  explicit AnyCatalogue(unsigned seed) : random_(seed) {}

  std::string Text() {
    std::string text = "# of the owner; \"quoted\"\n";
    const int makers = Upto(3) + 1;
    for (int maker = 0; maker < makers; ++maker) {
      text += "\nVYROBCE " + AnyText() + std::to_string(maker) + "\n";
      const int items = Upto(6);
      for (int item = 0; item < items; ++item)
        text += AnyItem(item);
    }
    return text;
  }

 private:
  int Upto(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }

  std::string AnyOf(const std::vector<std::string>& choices) {
    return choices[static_cast<std::size_t>(Upto(static_cast<int>(choices.size()) - 1))];
  }

  std::string AnyText() { return AnyOf({"Běla", "a, b", R"(5" "x")", "'", "=1+1", "ž\"", "Łódź"}); }

  std::string AnyItem(int number) {
    return AnyText() + std::to_string(number) + "; " + AnyOf({"", "78", "78.5", "+94", "1e2"}) + ";" +
           AnyOf({"", "98", " 118.25 "}) + "; " + AnyOf({"", "8"}) + "; " + AnyOf({"", "10"}) + "; " +
           AnyOf({"", "-", "D", "EOR"}) + "; " + AnyOf({"", AnyText()}) + "\n";
  }

  std::mt19937 random_;
};

// Maker and fields of each window.
std::vector<std::pair<std::string, ItemTexts>> WindowsOf(const Catalogue& catalogue) {
  std::vector<std::pair<std::string, ItemTexts>> windows;
  windows.reserve(catalogue.items.size());
  for (const CatalogueItem& item : catalogue.items)
    windows.emplace_back(CatalogueText(MakerOf(catalogue.sections[item.section])), TextsOf(item.line));
  return windows;
}

TEST(CatalogueImportProperties, ImportOfAnExportGivesTheSameWindows) {
  const std::string path = "catalogue_import_properties_test.LIB";
  for (unsigned seed = 0; seed < CATALOGUES; ++seed) {
    platform::WriteWholeFile(path, AnyCatalogue(seed).Text());
    const Catalogue catalogue = ReadCatalogue(path);
    if (catalogue.items.empty()) continue;
    const std::string table = TableOf(catalogue, ";,\t"[seed % 3]);
    const ImportOrder order{.file = "t.csv", .rows = ReadCsv(table, DelimiterIn(table), "t.csv"), .form = {}};
    const ImportReport report = ImportTable(order, NewCatalogue("new.LIB"), CatalogueEncoding::Utf8);
    EXPECT_TRUE(report.leftOut.empty()) << table;
    platform::WriteWholeFile(path, report.bytes);
    EXPECT_EQ(WindowsOf(ReadCatalogue(path)), WindowsOf(catalogue)) << table;
  }
  platform::CurrentFileOperations().remove(path);
}

}  // namespace
}  // namespace teskarlt
