// DocumentTest.cpp - a drawing as a whole: header, loading and saving.
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "teskarlt/dxf/Document.h"
#include "teskarlt/dxf/tags/Units.h"
#include "teskarlt/dxf/tags/Version.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

std::string WithHeader(std::string_view variables) {
  return Tags("0|SECTION|2|HEADER|" + std::string(variables) + "0|ENDSEC") + OnlyEntities("0|LINE|8|0");
}

TEST(Document, Utf8InADrawingOfACodePageIsReadAndWrittenAsUtf8) {
  const std::string text = OfVersion("AC1015",
                                     "  0|TEXT|  1|\xC5\x99"
                                     "ez");
  Document drawing = Parsed(text);
  EXPECT_EQ(drawing.Serialize(), text);
  EXPECT_EQ(drawing.Text({1,
                          "\xC5\x99"
                          "ez"}),
            "\xC5\x99"
            "ez");
  const std::string layer = drawing.Encode("Krytina \xC5\x99");
  EXPECT_EQ(layer, "Krytina \xC5\x99");
  const TypedTag groups[] = {{0, "POINT"}, {8, std::string_view(layer)}, {10, Point{}}};
  drawing.AddEntity(groups);
  EXPECT_THAT(drawing.Serialize(), testing::HasSubstr("  8\nKrytina \xC5\x99\n"));
}

TEST(Document, OneTextThatIsNoUtf8MakesACodePageDrawing) {
  const Document drawing = Parsed(OfVersion("AC1015",
                                            "  0|TEXT|  1|\xC5\x99|  0|TEXT|  1|\xF8"
                                            "ez"));
  EXPECT_EQ(drawing.Text({1,
                          "\xF8"
                          "ez"}),
            "\xC5\x99"
            "ez");
}

TEST(Document, BytesBehindTheEndDoNotDecideOnUtf8) {
  const Document drawing = Parsed(OfVersion("AC1015", "  0|TEXT|  1|\xC5\x99") + "\xFF\xFE");
  EXPECT_EQ(drawing.Text({1, "\xC5\x99"}), "\xC5\x99");
}

// A file of the test folder that is gone after the test.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& text) { platform::WriteWholeFile(path_, text); }
  ~TemporaryFile() { std::remove(path_.c_str()); }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const std::string& Path() const { return path_; }
  std::string Text() const { return std::string(platform::ReadWholeFile(path_).View()); }

 private:
  std::string path_ = "document_test.dxf";
};

TEST(Document, VersionIsThatOfTheHeader) {
  EXPECT_EQ(Parsed(WithHeader("9|$ACADVER|1|AC1015|")).Version(), 1015);
  EXPECT_EQ(Parsed(WithHeader("9|$ACADVER|1|AC1032|")).Version(), 1032);
}

TEST(Document, MissingOrOlderVersionMeansR12) {
  EXPECT_EQ(Parsed(OnlyEntities("0|LINE|8|0")).Version(), 1009);
  EXPECT_EQ(Parsed(WithHeader("9|$ACADVER|1|AC1006|")).Version(), 1009);
  EXPECT_EQ(Parsed(WithHeader("9|$ACADVER|1|AC2.10|")).Version(), 1009);
}

TEST(Document, CodePageIsThatOfTheHeader) {
  const Document drawing = Parsed(WithHeader("9|$DWGCODEPAGE|3|dos850|"));
  EXPECT_EQ(drawing.CodePageName(), "dos850");
  EXPECT_EQ(drawing.Text({1, "\x81"}), "ü");
}

TEST(Document, MissingCodePageIsWestern) {
  const Document drawing = Parsed(OnlyEntities("0|LINE|8|0"));
  EXPECT_EQ(drawing.CodePageName(), "ANSI_1252");
  EXPECT_EQ(drawing.Text({1, "\xFC"}), "ü");
}

TEST(Document, TextsFromR2007OnAreUtf8) {
  const Document drawing = Parsed(WithHeader("9|$ACADVER|1|AC1021|9|$DWGCODEPAGE|3|ANSI_1250|"));
  EXPECT_EQ(drawing.Text({1, "ř"}), "ř");
  EXPECT_EQ(drawing.Encode("ř天"), "ř天");
}

TEST(Document, UnitsAreThoseOfTheHeader) {
  EXPECT_EQ(Parsed(WithHeader("9|$INSUNITS|70|     6|")).Units(), 6);
  EXPECT_EQ(Parsed(OnlyEntities("0|LINE|8|0")).Units(), 0);
}

TEST(Document, MalformedUnitsAreToldWithTheirLine) {
  const Document drawing = Parsed(WithHeader("9|$INSUNITS|70|metres|"));
  EXPECT_EQ(ErrorOf([&] { return drawing.Units(); }),
            "roof.dxf:8: \"metres\" is not a whole number (group 70)");
}

// The linetype that a drawing in these units gets; its dashes are lengths.
std::string DashedIn(int headerUnits, int assumedUnits) {
  Document drawing = Parsed(WithHeader("9|$INSUNITS|70|" + std::to_string(headerUnits) + "|"));
  drawing.AssumeUnits(assumedUnits);
  drawing.RequireLinetype("DASHED");
  const std::string text = drawing.Serialize();
  return text.substr(text.find("DASHED"));
}

TEST(Document, AssumedUnitsGoBeforeThoseOfTheHeader) {
  const std::string metres = DashedIn(UNITS_METRES, UNITS_METRES);
  EXPECT_EQ(DashedIn(UNITS_MILLIMETRES, UNITS_METRES), metres);
  EXPECT_NE(DashedIn(UNITS_MILLIMETRES, UNITS_MILLIMETRES), metres);
}

TEST(Document, SettledEditsAreReadLikeThoseOfTheFile) {
  Document drawing = Parsed(OnlyEntities("0|LINE|8|0"));
  const TypedTag point[] = {{0, "POINT"}, {8, "0"}, {10, Point{}}};
  drawing.AddEntity(point);
  drawing.RemoveEntity(drawing.Entities()[0]);
  const std::string text = drawing.Serialize();
  drawing.Settle();
  ASSERT_EQ(drawing.Entities().size(), 1U);
  EXPECT_EQ(drawing.Entities()[0].type, "POINT");
  EXPECT_EQ(drawing.Serialize(), text);
  EXPECT_TRUE(drawing.IsChanged());
}

TEST(Document, SettledDrawingIsStillThatOfItsFile) {
  const TemporaryFile file(OnlyEntities("0|LINE|8|0"));
  Document drawing = Document::Load(file.Path());
  drawing.Settle();
  EXPECT_FALSE(drawing.IsChanged());
  drawing.AssumeUnits(UNITS_METRES);
  platform::WriteWholeFile(file.Path(), OnlyEntities("0|LINE|8|0|0|LINE|8|0"));
  EXPECT_THAT(ErrorOf([&] { drawing.Save(file.Path()); }),
              testing::HasSubstr("was changed by another program"));
}

TEST(Document, UnknownCodePageIsNotedOnceItMatters) {
  const Document drawing = Parsed(WithHeader("9|$DWGCODEPAGE|3|UNDEFINED|"));
  EXPECT_EQ(drawing.TextNote(), "");
  EXPECT_EQ(drawing.Text({1, "\xFC"}), "ü");
  EXPECT_EQ(drawing.TextNote(),
            "the code page \"UNDEFINED\" is not known; texts beyond ASCII are taken to be in ANSI_1252");
}

TEST(Document, AnotherDrawingCanTakeItsPlace) {
  Document drawing = Parsed(OfVersion("AC1015"));
  drawing = Parsed(OfVersion("AC1032"));
  EXPECT_EQ(drawing.Version(), VERSION_R2018);
}

TEST(Document, HeaderVariablesByName) {
  const Document drawing = Parsed(WithHeader("9|$EXTMIN|10|1.5|20|2.5|9|$HANDSEED|5|FF|"));
  EXPECT_EQ(drawing.HeaderVariable("$EXTMIN")->value, "1.5");
  EXPECT_EQ(drawing.HeaderVariable("$HANDSEED")->value, "FF");
  EXPECT_FALSE(drawing.HeaderVariable("$NOTHING").has_value());
}

TEST(Document, ReaderWalksTheTagsOfAnEntity) {
  const Document drawing = Parsed(OnlyEntities("0|LINE|8|A|0|POINT|8|B|10|1.5"));
  TagReader reader = drawing.Reader(drawing.Entities()[1]);
  Tag tag;
  ASSERT_TRUE(reader.Next(tag));
  EXPECT_EQ(tag.value, "POINT");
  ASSERT_TRUE(reader.Next(tag) && reader.Next(tag));
  EXPECT_EQ(reader.Real(tag), 1.5);
  EXPECT_FALSE(reader.Next(tag));
}

TEST(Document, PlaceOfATagIsItsLine) {
  const Document drawing = Parsed(OnlyEntities("0|LINE|8|A"));
  const char* const begin = drawing.Entities()[0].text.data();
  EXPECT_EQ(drawing.Source().PlacesOf({&begin, 1}), std::vector<std::size_t>{5});
}

TEST(Document, UntouchedDrawingKeepsEveryByte) {
  const std::string text = Tags("999|c|  0|SECTION|2|HEADER| 9|$X|40|1.50000|0|ENDSEC", "\r\n") +
                           OnlyEntities("0|LINE|  8|A ") + "\x1A\n\n";
  EXPECT_EQ(Parsed(text).Serialize(), text);
}

TEST(DocumentFile, LoadsAndSaves) {
  const std::string text = OnlyEntities("0|LINE|8|A|0|POINT|8|B");
  const TemporaryFile file(text);
  Document drawing = Document::Load(file.Path());
  EXPECT_EQ(drawing.FileName(), file.Path());
  drawing.Save(file.Path());
  EXPECT_EQ(file.Text(), text);
  drawing.RemoveEntity(drawing.Entities()[0]);
  drawing.Save(file.Path());
  EXPECT_EQ(file.Text(), OnlyEntities("0|POINT|8|B"));
}

TEST(DocumentFile, MissingFileIsNamed) {
  EXPECT_THAT(ErrorOf([] { Document::Load("no such file.dxf"); }),
              testing::StartsWith("no such file.dxf: cannot be opened: "));
}

TEST(DocumentFile, FileThatSomebodyChangedIsNotOverwritten) {
  const TemporaryFile file(OnlyEntities("0|LINE|8|A"));
  const Document drawing = Document::Load(file.Path());
  const std::string changed = OnlyEntities("0|LINE|8|A|0|POINT|8|B");
  platform::WriteWholeFile(file.Path(), changed);
  EXPECT_EQ(ErrorOf([&] { drawing.Save(file.Path()); }),
            "document_test.dxf: was changed by another program meanwhile; nothing is written");
  EXPECT_EQ(file.Text(), changed);
}

TEST(DocumentFile, FileThatAnotherWasPutInThePlaceOfIsNotOverwritten) {
  const TemporaryFile file(OnlyEntities("0|LINE|8|A"));
  const Document drawing = Document::Load(file.Path());
  const std::string other = OnlyEntities("0|LINE|8|B");
  platform::WriteWholeFile("document_test_other.dxf", other);
  std::filesystem::last_write_time("document_test_other.dxf", std::filesystem::last_write_time(file.Path()));
  std::filesystem::rename("document_test_other.dxf", file.Path());
  EXPECT_EQ(ErrorOf([&] { drawing.Save(file.Path()); }),
            "document_test.dxf: was changed by another program meanwhile; nothing is written");
  EXPECT_EQ(file.Text(), other);
}

TEST(DocumentFile, FileThatSomebodyChangesDuringTheWriteIsNotOverwritten) {
  static const std::string changed = OnlyEntities("0|LINE|8|A|0|POINT|8|B");
  const TemporaryFile file(OnlyEntities("0|LINE|8|A"));
  const Document drawing = Document::Load(file.Path());
  static platform::FileOperations operations;
  operations = platform::SystemFileOperations();
  operations.createNew = [](const std::string& path, platform::FileHandle& handle) {
    std::ofstream("document_test.dxf", std::ios::binary) << changed;
    return platform::SystemFileOperations().createNew(path, handle);
  };
  platform::SetFileOperations(&operations);
  const std::string message = ErrorOf([&] { drawing.Save(file.Path()); });
  platform::SetFileOperations(nullptr);
  EXPECT_EQ(message, "document_test.dxf: was changed by another program meanwhile; nothing is written");
  EXPECT_EQ(file.Text(), changed);
}

TEST(DocumentFile, FailedWriteIsAHostErrorAndLeavesTheFile) {
  const std::string text = OnlyEntities("0|LINE|8|A");
  const TemporaryFile file(text);
  Document drawing = Document::Load(file.Path());
  drawing.RemoveEntity(drawing.Entities()[0]);
  static platform::FileOperations failing;
  failing = platform::SystemFileOperations();
  failing.flushToDisk = [](platform::FileHandle) { return 5; };
  platform::SetFileOperations(&failing);
  const std::string message = ErrorOf([&] { drawing.Save(file.Path()); });
  platform::SetFileOperations(nullptr);
  EXPECT_THAT(message, testing::StartsWith("document_test.dxf: cannot be flushed to disk: "));
  EXPECT_EQ(file.Text(), text);
}

}  // namespace
}  // namespace teskarlt::dxf
