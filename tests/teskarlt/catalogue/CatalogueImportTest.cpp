// CatalogueImportTest.cpp - tables of makers that become windows of a catalogue.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/catalogue/CatalogueImport.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class CatalogueImportTest : public testing::Test {
 protected:
  CatalogueImportTest() { order.file = "maker.csv"; }
  ~CatalogueImportTest() override { platform::CurrentFileOperations().remove(path); }

  ImportReport Import(const std::string& table, const std::string& into = "VYROBCE A\n",
                      CatalogueEncoding encoding = CatalogueEncoding::Utf8) {
    platform::WriteWholeFile(path, into);
    catalogue = ReadCatalogue(path);
    order.rows = ReadCsv(table, ';', "maker.csv");
    order.form.maker = "A";
    return ImportTable(order, catalogue, encoding);
  }
  // What the windows add to a catalogue.
  std::string Lines(const std::string& table) {
    return Import(table).bytes.substr(std::string("VYROBCE A\n").size());
  }
  // Each row that is left out as "LINE: REASON".
  static std::vector<std::string> LeftOut(const ImportReport& report) {
    std::vector<std::string> told;
    told.reserve(report.leftOut.size());
    for (const LeftOutRow& row : report.leftOut)
      told.push_back(std::to_string(row.line) + ": " + row.reason);
    return told;
  }
  template <typename Action>
  static std::string Refusal(const Action& action) {
    try {
      action();
    } catch (const Error& error) {
      return error.what();
    }
    return {};
  }

  std::string path = "catalogue_import_test.LIB";
  ImportOrder order;
  Catalogue catalogue;
};

TEST_F(CatalogueImportTest, ColumnsCalledAsFieldsNeedNoMap) {
  EXPECT_EQ(Lines("Length;key;WIDTH;other\n98;x;78;?\n"), "x; 78; 98\n");
}

TEST_F(CatalogueImportTest, MapNamesColumnsAndFactors) {
  TakeMap(order.form, "key=Art.Nr,width=B_mm/10,length=Inches*2.54");
  TakeMap(order.form, "description=Text");
  const ImportReport report = Import("Art.Nr;B_mm;Inches;Text;width\nx;785;40;a;1\n");
  EXPECT_EQ(report.bytes, "VYROBCE A\nx; 78.5; 101.6; ; ; ; a\n");
  EXPECT_EQ((std::vector{report.rows, report.added, report.replaced}), (std::vector<std::size_t>{1, 1, 0}));
  EXPECT_THAT(report.sizes,
              ElementsAre("width: column \"B_mm\" in mm", "length: column \"Inches\" times 2.54"));
}

TEST_F(CatalogueImportTest, ColumnMayHaveCommasAndStrokesInItsName) {
  TakeMap(order.form, "key=Nr, neu,width=B/2");
  EXPECT_EQ(Lines("Nr, neu;B/2\nx;78\n"), "x; 78\n");
}

TEST_F(CatalogueImportTest, UnitsComeFromCellHeadOrUser) {
  TakeMap(order.form, "key=K,width=Breite [mm],length=L_m,frameWidth=R,frameDepth=m");
  EXPECT_EQ(Lines("K;Breite [mm];L_m;R;m\nx;780;1.18;80 mm;8\ny;94 cm;1,1;8;10\n"),
            "x; 78; 118; 8; 8\ny; 94; 110; 8; 10\n");
  order.form.scale = ScaleOfUnit("mm");
  EXPECT_EQ(Lines("K;Breite [mm];L_m;R;m\nx;780;1180;80;8 cm\n"), "x; 78; 118; 8; 8\n");
}

TEST_F(CatalogueImportTest, DecimalCommaIsAPoint) {
  EXPECT_EQ(Lines("key;width\nx;78,5\n"), "x; 78.5\n");
  EXPECT_THAT(LeftOut(Import("key;width\nx;1.078,5\ny;1,078,5\n")),
              ElementsAre("2: width: \"1.078,5\" is not a number", "3: width: \"1,078,5\" is not a number"));
}

TEST_F(CatalogueImportTest, WordsOfTheTableBecomeOpeningCodes) {
  TakeCodes(order.form, "Schwing=D,Klapp=BO,Fest=-,=EI");
  EXPECT_EQ(Lines("key;openingCode\na;schwing\nb;Klapp\nc;FEST\nd;\ne;CI\n"),
            "a; ; ; ; ; D\nb; ; ; ; ; BO\nc; ; ; ; ; -\nd; ; ; ; ; EI\ne; ; ; ; ; CI\n");
  EXPECT_THAT(LeftOut(Import("key;openingCode\na;Dreh\n")),
              ElementsAre(HasSubstr("2: the opening code \"Dreh\" is not understood")));
}

TEST_F(CatalogueImportTest, RowsThatAreNoWindowAreLeftOutWithTheReason) {
  EXPECT_THAT(
      LeftOut(Import("key;width\nx;-5\n;78\ny;abc\nz;78;more\nx;y\nok;78\nok;79\n")),
      ElementsAre("2: width must be greater than 0 cm, not -5", "3: the window has no key",
                  "4: width: \"abc\" is not a number", "5: the row has 3 cells, and the head of the table 2",
                  "6: width: \"y\" is not a number", "8: A has a window ok in line 7 already"));
}

TEST_F(CatalogueImportTest, MakersAreSectionsWhateverTheirCase) {
  EXPECT_EQ(Import("maker;key\na;x\nBeta;y\nBeta;z\n").bytes, "VYROBCE A\nx; \n\nVYROBCE Beta\ny; \nz; \n");
  EXPECT_THAT(LeftOut(Import("maker;key\n;x\n")), ElementsAre("2: the row names no maker"));
}

TEST_F(CatalogueImportTest, WindowsThatAreThereStayUnlessReplaced) {
  const char* old = "VYROBCE A\nx; 78; 98; 8 ; ; BO; old\n";
  const char* table = "key;width\nx;94\ny;55\n";
  EXPECT_THAT(LeftOut(Import(table, old)),
              ElementsAre("2: A has a window x in the catalogue already; --replace takes the table's"));
  order.replacesWindows = true;
  const ImportReport report = Import(table, old);
  EXPECT_EQ(report.bytes, "VYROBCE A\nx; 94; 98; 8 ; ; BO; old\ny; 55\n");
  EXPECT_EQ((std::vector{report.added, report.replaced}), (std::vector<std::size_t>{1, 1}));
}

TEST_F(CatalogueImportTest, DescriptionComesInOneLineWithoutSemicolons) {
  EXPECT_EQ(Lines("key;description\nx;\"a; b\r\nc\nd\"\n"), "x; ; ; ; ; ; a, b c d\n");
  EXPECT_THAT(LeftOut(Import("key\n\"x;y\"\n")),
              ElementsAre(HasSubstr("2: the key \"x;y\" holds a semicolon")));
}

TEST_F(CatalogueImportTest, TextThatTheCatalogueCannotHoldIsLeftOutByName) {
  const ImportReport report = Import("key;width\nSmør;78\nž;78\n", "VYROBCE A\n", CatalogueEncoding::Czech);
  EXPECT_THAT(LeftOut(report), ElementsAre(HasSubstr("2: A/Smør: ")));
  EXPECT_EQ(report.bytes, "VYROBCE A\n\x9E; 78\n");
}

TEST_F(CatalogueImportTest, ColumnsThatAreNotThereAreRefused) {
  EXPECT_THAT(Refusal([&] { Import("Nr;B\nx;78\n"); }),
              HasSubstr("maker.csv:1: no column is the key; say with --map"));
  TakeMap(order.form, "key=Art");
  EXPECT_EQ(Refusal([&] { Import("Nr;B\nx;78\n"); }),
            "maker.csv:1: there is no column \"Art\"; there are \"Nr\", \"B\"");
  TakeMap(order.form, "key=Nr");
  EXPECT_EQ(Refusal([&] { Import("Nr;NR\nx;78\n"); }), "maker.csv:1: the column \"Nr\" stands there twice");
  TakeMap(order.form, "key=Nr/10");
  EXPECT_EQ(Refusal([&] { Import("Nr;B\nx;78\n"); }), "--map key=Nr/10: a factor goes with sizes only");
  EXPECT_THAT(Refusal([&] { Import(""); }), HasSubstr("the table is empty"));
  EXPECT_THAT(Refusal([&] { Import("Nr;B\n"); }), HasSubstr("no rows"));
}

TEST(ImportForm, OptionsThatCannotBeMeantAreRefused) {
  ImportForm form;
  const auto refusal = [&](void (*take)(ImportForm&, const std::string&), const char* text) -> std::string {
    try {
      take(form, text);
    } catch (const Error& error) {
      return error.what();
    }
    return {};
  };
  EXPECT_EQ(refusal(TakeMap, "widht=B"),
            "--map widht=B: there is no field widht; there are key, width, length, frameWidth, frameDepth, "
            "openingCode, description, maker");
  EXPECT_EQ(refusal(TakeMap, "B"), "--map B: it is said as key=Art.Nr,width=B_mm/10");
  EXPECT_EQ(refusal(TakeMap, "key="), "--map key=: behind key= a column is named");
  EXPECT_THAT(refusal(TakeCodes, "Schwing=P"), HasSubstr("--codes Schwing=P: the opening code \"P\""));
  EXPECT_THAT(refusal(TakeCodes, "Schwing"), HasSubstr("it is said as"));
}

TEST(FactorIn, IsANumberBehindAStrokeOrAStar) {
  EXPECT_EQ(FactorIn("B_mm/10")->scale, (Scale{1, 10}));
  EXPECT_EQ(FactorIn("A/B*2.54")->column, "A/B");
  for (const char* text : {"B", "A/B", "B/0", "B/-1"})
    EXPECT_FALSE(FactorIn(text)) << text;
}

TEST(ScaleInHead, IsTheUnitAtItsEnd) {
  for (const char* head : {"B_mm", "Width [mm]", "b (MM)", "Breite mm"})
    EXPECT_EQ(ScaleInHead(head), (Scale{1, 10})) << head;
  EXPECT_EQ(ScaleInHead("L in m"), (Scale{100, 1}));
  for (const char* head : {"m", "Gramm", "Breite", ""})
    EXPECT_FALSE(ScaleInHead(head)) << head;
}

}  // namespace
}  // namespace teskarlt
