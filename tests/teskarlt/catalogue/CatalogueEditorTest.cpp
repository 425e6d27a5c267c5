// CatalogueEditorTest.cpp - windows that come into a catalogue, change in it and leave it, and nothing else
// does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/catalogue/CatalogueChanges.h"
#include "teskarlt/catalogue/CatalogueEditor.h"

namespace teskarlt {
namespace {

using testing::HasSubstr;

constexpr const char* TWO_MAKERS =
    "# of the owner\n\nVYROBCE Alfa\n  A1;78;  98 ; 8; ; BI; Small; more\nA2; 94\n\nVYROBCE Beta\nB1; 1\n";

class CatalogueEditorTest : public testing::Test {
 protected:
  ~CatalogueEditorTest() override { platform::CurrentFileOperations().remove(path); }

  const Catalogue& Read(const std::string& text) {
    platform::WriteWholeFile(path, text);
    catalogue = ReadCatalogue(path);
    return catalogue;
  }
  std::string Added(const std::string& text, const CatalogueWindow& window,
                    const std::string& encoding = "") {
    Read(text);
    return WithWindow(catalogue, window, EncodingForChanges(catalogue, encoding));
  }
  // With another text in one field of the named window.
  std::string Changed(const std::string& text, const char* name, std::size_t field, const char* value) {
    const CatalogueItem& item = ChooseItem(Read(text), name);
    ItemTexts texts = TextsOf(item.line);
    texts.at(field) = value;
    return WithChanged(catalogue, item, texts, EncodingForChanges(catalogue, ""));
  }
  std::string Removed(const std::string& text, const std::vector<std::string>& names) {
    return Without(catalogue, ItemsNamed(Read(text), names));
  }
  template <typename Action>
  std::string Refusal(const Action& action) {
    try {
      action();
    } catch (const Error& error) {
      return error.what();
    }
    return {};
  }

  std::string path = "catalogue_editor_test.LIB";
  Catalogue catalogue;
};

TEST_F(CatalogueEditorTest, WindowComesBehindTheLastOneOfItsMaker) {
  EXPECT_EQ(Added(TWO_MAKERS, {"Alfa", {"A3", "78", "118", "", "", "-"}}),
            "# of the owner\n\nVYROBCE Alfa\n  A1;78;  98 ; 8; ; BI; Small; more\nA2; 94\n"
            "A3; 78; 118; ; ; -\n\nVYROBCE Beta\nB1; 1\n");
}

TEST_F(CatalogueEditorTest, SectionThatStandsTwiceGetsTheWindowAtItsSecondPlace) {
  EXPECT_EQ(Added("VYROBCE A\nx; 1\nVYROBCE B\nVYROBCE A\ny; 1\n", {"A", {"z", "78"}}),
            "VYROBCE A\nx; 1\nVYROBCE B\nVYROBCE A\ny; 1\nz; 78\n");
  EXPECT_EQ(Added("VYROBCE A\nVYROBCE B\n", {"a", {"z", "78"}}), "VYROBCE A\nz; 78\nVYROBCE B\n");
}

TEST_F(CatalogueEditorTest, NewMakerGetsASectionAtTheEnd) {
  EXPECT_EQ(Added("VYROBCE A\nx; 1\n", {"Běla", {"z"}}), "VYROBCE A\nx; 1\n\nVYROBCE Běla\nz; \n");
}

TEST_F(CatalogueEditorTest, LineEndsAreThoseOfTheCatalogue) {
  EXPECT_EQ(Added("VYROBCE A\r\nx; 1\r\n", {"A", {"z", "78"}}), "VYROBCE A\r\nx; 1\r\nz; 78\r\n");
  EXPECT_EQ(Changed("VYROBCE A\r\nx; 78\r\n", "x", FIELD_WIDTH, "94"), "VYROBCE A\r\nx; 94\r\n");
  EXPECT_EQ(Removed("VYROBCE A\r\nx; 78\r\n", {"x"}), "VYROBCE A\r\n");
}

TEST_F(CatalogueEditorTest, LastLineNeedsNoLineEnd) {
  EXPECT_EQ(Added("VYROBCE A\nx; 1", {"A", {"z", "78"}}), "VYROBCE A\nx; 1\nz; 78\n");
  EXPECT_EQ(Added("VYROBCE A\nx; 1", {"B", {"z", "78"}}), "VYROBCE A\nx; 1\nVYROBCE B\nz; 78\n");
  EXPECT_EQ(Removed("VYROBCE A\nx; 1", {"x"}), "VYROBCE A\n");
}

TEST_F(CatalogueEditorTest, WindowComesBeforeTheCharacterThatEndsAText) {
  EXPECT_EQ(Added("VYROBCE A\nx; 1\n\x1A", {"A", {"z", "78"}}), "VYROBCE A\nx; 1\nz; 78\n\x1A");
}

TEST_F(CatalogueEditorTest, OnlyTheChangedFieldGetsOtherBytes) {
  EXPECT_EQ(Changed(TWO_MAKERS, "A1", FIELD_FRAME_WIDTH, "9"),
            "# of the owner\n\nVYROBCE Alfa\n  A1;78;  98 ; 9; ; BI; Small; more\nA2; 94\n\nVYROBCE "
            "Beta\nB1; 1\n");
  EXPECT_EQ(Changed("VYROBCE A\nx; 78\n", "x", FIELD_OPENING_CODE, "-"), "VYROBCE A\nx; 78; ; ; ; -\n");
  EXPECT_EQ(Changed("VYROBCE A\n  x; 78\n", "x", FIELD_KEY, "y"), "VYROBCE A\ny; 78\n");
}

TEST_F(CatalogueEditorTest, RemovedKeyGoesWithAllItsLines) {
  EXPECT_EQ(Removed("VYROBCE A\nx; 1\ny; 2\nx; 3\nVYROBCE B\nx; 4\n", {"A/x"}),
            "VYROBCE A\ny; 2\nVYROBCE B\nx; 4\n");
  EXPECT_EQ(Removed("VYROBCE A\nx; 1\ny; 2\n", {"y", "x", "x"}), "VYROBCE A\n");
}

TEST_F(CatalogueEditorTest, TextsComeInTheEncodingOfTheCatalogue) {
  EXPECT_EQ(Added("VYROBCE B\xECla\n", {"Běla", {"ž", "78"}}), "VYROBCE B\xECla\n\x9E; 78\n");
  EXPECT_EQ(Added("VYROBCE Běla\n", {"Běla", {"ž", "78"}}), "VYROBCE Běla\nž; 78\n");
  EXPECT_EQ(Added("VYROBCE A\n", {"A", {"ž", "78"}}), "VYROBCE A\nž; 78\n");
  EXPECT_EQ(Added("VYROBCE A\n", {"A", {"ž", "78"}}, "cp1250"), "VYROBCE A\n\x9E; 78\n");
}

TEST_F(CatalogueEditorTest, TextThatTheEncodingLacksIsRefusedByName) {
  const std::string refusal = Refusal([&] { Added("VYROBCE B\xECla\n", {"Běla", {"Smør", "78"}}); });
  EXPECT_THAT(refusal, HasSubstr("catalogue_editor_test.LIB: Běla/Smør: "));
  EXPECT_THAT(refusal, HasSubstr("ø"));
}

TEST_F(CatalogueEditorTest, EncodingOfACatalogueCannotBeSaidOtherwise) {
  EXPECT_THAT(Refusal([&] {
                Added("VYROBCE Běla\n", {"Běla", {"x"}}, "cp1250");
              }),
              HasSubstr("the catalogue is in UTF-8, not in code page 1250"));
  EXPECT_THAT(Refusal([&] {
                Added("VYROBCE A\n", {"A", {"x"}}, "cp1252");
              }),
              HasSubstr("catalogues are in UTF-8 or code page 1250, not in code page 1252"));
}

TEST_F(CatalogueEditorTest, BytesThatWouldBeReadInAnotherEncodingAreRefused) {
  // C3 A4 is "Ă¤" in code page 1250 and "ä" in UTF-8.
  EXPECT_THAT(Refusal([&] {
                Added("VYROBCE A\n", {"A", {"Ă¤", "78"}}, "cp1250");
              }),
              HasSubstr("would not be known as code page 1250"));
}

TEST_F(CatalogueEditorTest, KeyThatIsThereIsRefusedWithItsLine) {
  EXPECT_EQ(Refusal([&] {
              Added(TWO_MAKERS, {"Alfa", {"A2", "78"}});
            }),
            path + ":5: Alfa has a window A2 already; teskarlt catalogue edit changes it");
  EXPECT_THAT(Refusal([&] { Changed("VYROBCE A\nx; 78\ny; 78\n", "x", FIELD_KEY, "y"); }),
              HasSubstr(":3: A has a window y already"));
}

TEST_F(CatalogueEditorTest, WindowThatCannotBeIsRefused) {
  const auto refusal = [&](const ItemTexts& texts) {
    return Refusal([&] { Added("VYROBCE A\n", {"A", texts}); });
  };
  EXPECT_EQ(refusal({"x", "-5"}), "window A/x: width must be greater than 0 cm, not -5");
  EXPECT_EQ(refusal({"x;y", "78"}),
            "window A/x;y: the key \"x;y\" holds a semicolon, which separates the fields of a catalogue");
  EXPECT_EQ(refusal({"x\xE9"}), "window A/x\xE9: the key is not in UTF-8");
  EXPECT_EQ(refusal({"x", "", "", "", "", "", "a\nb"}),
            "window A/x: the description holds the control character 0A");
}

TEST_F(CatalogueEditorTest, MakerWhoseNameWouldNotComeBackIsRefused) {
  for (const char* maker : {"", ": Alfa", " Alfa", "Alfa "}) {
    EXPECT_THAT(Refusal([&] {
                  Added("VYROBCE A\n", {maker, {"x"}});
                }),
                HasSubstr("cannot be the name of a maker"));
  }
  EXPECT_THAT(Refusal([&] { Added("VYROBCE A\n", {"B\nC", {"x"}}); }), HasSubstr("control character"));
}

// A line and its line end have 254 bytes together in one read of the module.
TEST_F(CatalogueEditorTest, LineHasAtMost253Bytes) {
  const std::string maker(253 - std::string("VYROBCE ").size(), 'm');
  EXPECT_EQ(Refusal([&] { Added("VYROBCE A\n", {maker, {"x"}}); }), "");
  EXPECT_THAT(Refusal([&] {
                Added("VYROBCE A\n", {maker + "m", {"x"}});
              }),
              HasSubstr("its line would have 254 bytes; a line of a catalogue has at most 253"));
  EXPECT_THAT(Refusal([&] {
                Changed("VYROBCE A\nx; 78\n" + std::string(190, 'y') + "; 78\n",
                        std::string(190, 'y').c_str(), FIELD_DESCRIPTION, std::string(100, 'z').c_str());
              }),
              HasSubstr("a line of a catalogue has at most 253"));
}

TEST_F(CatalogueEditorTest, WindowOfALineThatIsReadInPiecesIsNotChanged) {
  EXPECT_THAT(Refusal([&] { Removed("VYROBCE A\nx; " + std::string(300, '1') + "\n", {"x"}); }),
              HasSubstr(":2: the line is longer than 254 bytes"));
}

TEST_F(CatalogueEditorTest, NewCatalogueTakesMakersOnce) {
  const Catalogue empty = NewCatalogue("new.LIB");
  CatalogueEditor editor(empty, CatalogueEncoding::Utf8);
  for (const char* maker : {"Alfa", "Běla", "Alfa"})
    editor.AddMaker(maker);
  EXPECT_EQ(editor.Bytes(),
            "# key; width cm; length cm; frame width cm; frame depth cm; opening code; description\n"
            "\nVYROBCE Alfa\n\nVYROBCE Běla\n");
}

}  // namespace
}  // namespace teskarlt
