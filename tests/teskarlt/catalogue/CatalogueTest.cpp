// CatalogueTest.cpp - window catalogues as the host reads them and chooses from them.
#include <gtest/gtest.h>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/catalogue/Catalogue.h"

namespace teskarlt {
namespace {

// A catalogue file in the folder of the tests that goes with the test.
class CatalogueTest : public testing::Test {
 protected:
  ~CatalogueTest() override { platform::CurrentFileOperations().remove(path); }

  Catalogue Read(const std::string& text) {
    platform::WriteWholeFile(path, text);
    return ReadCatalogue(path);
  }

  std::string Refusal(const Catalogue& catalogue, const char* name) {
    try {
      ChooseItem(catalogue, name);
    } catch (const Error& error) {
      return error.what();
    }
    return {};
  }

  std::string path = "catalogue_test.LIB";
};

TEST_F(CatalogueTest, LinesBeforeTheFirstSectionAreNoItems) {
  const Catalogue catalogue = Read("A0; 1\nVYROBCE Alfa\nA1; 2\n");
  ASSERT_EQ(catalogue.items.size(), 1U);
  EXPECT_EQ(catalogue.items[0].key, "A1");
  EXPECT_EQ(catalogue.items[0].line, "A1; 2");
}

TEST_F(CatalogueTest, KeyLosesItsLeadingBlanksOnly) {
  EXPECT_EQ(Read("VYROBCE Alfa\n  A 1 ; 2\n").items[0].key, "A 1 ");
}

TEST_F(CatalogueTest, SectionThatStandsTwiceIsOneSection) {
  const Catalogue catalogue = Read("VYROBCE A\nx; 1\nVYROBCE B\nVYROBCE A\ny; 1\n");
  EXPECT_EQ(catalogue.sections, (std::vector<std::string_view>{"VYROBCE A", "VYROBCE B"}));
  EXPECT_EQ(catalogue.items[1].section, 0U);
}

TEST_F(CatalogueTest, WindowsLineEndsAreSeenAndTakenOff) {
  const Catalogue catalogue = Read("VYROBCE A\r\nx; 1\r\n");
  EXPECT_TRUE(catalogue.hasWindowsLineEnds);
  EXPECT_EQ(catalogue.sections[0], "VYROBCE A");
  EXPECT_EQ(catalogue.items[0].line, "x; 1");
}

TEST_F(CatalogueTest, LongLineComesInPiecesOf254Characters) {
  const Catalogue catalogue = Read("VYROBCE A\n" + std::string(300, 'x') + "\n");
  ASSERT_EQ(catalogue.items.size(), 2U);
  EXPECT_EQ(catalogue.items[0].line.size(), 254U);
  EXPECT_EQ(catalogue.items[1].line.size(), 46U);
  EXPECT_EQ(catalogue.cutLines, 1U);
}

TEST_F(CatalogueTest, CarriageReturnAtACutIsTakenOffToo) {
  const Catalogue catalogue = Read("VYROBCE A\n" + std::string(253, 'x') + "\ryy\n");
  ASSERT_EQ(catalogue.items.size(), 2U);
  EXPECT_EQ(catalogue.items[0].line, std::string(253, 'x'));
  EXPECT_EQ(catalogue.items[1].line, "yy");
}

TEST_F(CatalogueTest, LastLineNeedsNoLineEnd) {
  EXPECT_EQ(Read("VYROBCE A\nx; 1").items.size(), 1U);
}

TEST_F(CatalogueTest, FileThatIsNoCatalogueIsAnError) {
  EXPECT_THROW(Read(""), Error);
  EXPECT_THROW(Read("x; 1\n"), Error);
  EXPECT_THROW(Read(std::string("VYROBCE A\nx\0y\n", 14)), Error);
}

TEST_F(CatalogueTest, BytesThatWouldHideWindowsAreRefused) {
  using namespace std::string_literals;
  const auto refusal = [&](const std::string& text) -> std::string {
    try {
      Read(text);
      return {};
    } catch (const Error& error) {
      return error.what();
    }
  };
  EXPECT_EQ(refusal("VYROBCE A\nx\0; 1\n"s), path + ": this is no catalogue; it holds NUL bytes");
  EXPECT_EQ(refusal("VYROBCE A\nx; 1\n\x1Ay; 2\n"),
            path + ": this is no catalogue; it holds the control character 1A in line 3");
  EXPECT_EQ(refusal("VYROBCE A\nx; 1\n\x1A"), "");  // where some systems end a text
  EXPECT_NE(refusal("\xEF\xBB\xBFVYROBCE A\nx; 1\n").find("begins with a byte order mark"),
            std::string::npos);
}

TEST(MakerOf, IsTheHeaderWithoutItsKeyword) {
  EXPECT_EQ(MakerOf("VYROBCE Alfa Beta "), "Alfa Beta");
  EXPECT_EQ(MakerOf("VYROBCE: Alfa"), "Alfa");
  EXPECT_EQ(MakerOf("VYROBCE"), "VYROBCE");
}

TEST(CatalogueText, BytesThatAreNoUtf8AreCzechOnes) {
  EXPECT_EQ(CatalogueText("B\xC4\x9B"), "B\xC4\x9B");
  EXPECT_EQ(CatalogueText("B\xEC"), "B\xC4\x9B");
}

TEST(ItemField, CountsFromTheKeyAndLosesItsBlanks) {
  EXPECT_EQ(ItemField("A1; 78 ;98", 0), "A1");
  EXPECT_EQ(ItemField("A1; 78 ;98", 1), "78");
  EXPECT_EQ(ItemField("A1; 78 ;98", 2), "98");
  EXPECT_EQ(ItemField("A1; 78 ;98", 3), "");
}

TEST_F(CatalogueTest, ItemIsNamedByMakerAndKeyByHeaderOrByKeyAlone) {
  const Catalogue catalogue = Read("VYROBCE Alfa\nA1; 1\nA2; 1\n");
  for (const char* name : {"Alfa/A2", "alfa/a2", "VYROBCE Alfa/A2", "A2", "a2"})
    EXPECT_EQ(&ChooseItem(catalogue, name), &catalogue.items[1]) << name;
}

TEST_F(CatalogueTest, ExactNameGoesBeforeOneInAnotherCase) {
  const Catalogue catalogue = Read("VYROBCE Alfa\na1; 1\nA1; 2\n");
  EXPECT_EQ(&ChooseItem(catalogue, "A1"), &catalogue.items[1]);
}

TEST_F(CatalogueTest, FirstOfItemsThatStandTwiceInASectionCounts) {
  const Catalogue catalogue = Read("VYROBCE Alfa\nA1; 1\nA1; 2\n");
  EXPECT_EQ(&ChooseItem(catalogue, "A1"), &catalogue.items[0]);
}

TEST_F(CatalogueTest, AmbiguousNameListsWhatItCouldMean) {
  const Catalogue catalogue = Read("VYROBCE Alfa\nA1; 1\nVYROBCE Beta\nA1; 2\n");
  EXPECT_EQ(Refusal(catalogue, "A1"),
            "--window A1: catalogue_test.LIB holds 2 of that name: \"Alfa/A1\", \"Beta/A1\"");
}

TEST_F(CatalogueTest, UnknownNameListsTheNearest) {
  const Catalogue catalogue = Read("VYROBCE Alfa\nLong94; 1\nShort55; 1\n");
  EXPECT_EQ(Refusal(catalogue, "Long95"),
            "--window Long95: catalogue_test.LIB has no such window; near it are \"Alfa/Long94\", "
            "\"Alfa/Short55\"");
}

}  // namespace
}  // namespace teskarlt
