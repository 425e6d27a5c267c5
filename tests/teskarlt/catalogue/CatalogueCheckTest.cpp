// CatalogueCheckTest.cpp - a sound catalogue, damaged in one way each, and what is told of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/FileOperations.h"
#include "teskarlt/catalogue/CatalogueCheck.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CatalogueCheckTest : public testing::Test {
 protected:
  ~CatalogueCheckTest() override { platform::CurrentFileOperations().remove(path); }

  // Each finding as "LINE kind: message", a warning with a question mark before the kind.
  std::vector<std::string> Told(const std::string& text) const {
    platform::WriteWholeFile(path, text);
    const Catalogue catalogue = ReadCatalogue(path);
    const std::vector<CatalogueFinding> findings = CheckCatalogue(catalogue);
    std::vector<std::string> told;
    told.reserve(findings.size());
    for (const CatalogueFinding& finding : findings) {
      told.push_back(std::to_string(finding.line) + (finding.isError ? " " : " ?") +
                     std::string(KindName(finding.kind)) + ": " + finding.message);
    }
    return told;
  }

  std::string path = "catalogue_check_test.LIB";
};

TEST_F(CatalogueCheckTest, SoundCatalogueHasNoFindings) {
  EXPECT_THAT(Told("# key; width\n\nVYROBCE A\nx; 78; 98; 8; 10; BO; text\n\nVYROBCE B\nx; 78; ; ; ; -\n"),
              IsEmpty());
  EXPECT_THAT(Told("VYROBCE A\r\nx; 78\r\n\x1A"), IsEmpty());
  EXPECT_THAT(Told("VYROBCE B\xECla\n\x9E; 78\n"), IsEmpty());
}

TEST_F(CatalogueCheckTest, FindingsOfWindowsHaveTheirLines) {
  EXPECT_THAT(
      Told("VYROBCE A\nx; 78\ny; -5\nz; abc; 98; ; ; QQ\n"),
      ElementsAre("3 size: width must be greater than 0 cm, not -5", "4 size: width: \"abc\" is not a number",
                  "4 opening-code: the opening code \"QQ\" is not understood from \"QQ\" on; teskarlt "
                  "catalogue --help tells the letters"));
}

TEST_F(CatalogueCheckTest, KeyThatStandsTwiceInASectionIsTold) {
  EXPECT_THAT(Told("VYROBCE A\nx; 78\nVYROBCE B\nx; 78\nx; 94\n"),
              ElementsAre("5 duplicate: B has a window x in line 4 already; this one is never chosen"));
}

TEST_F(CatalogueCheckTest, SectionsOfOneMakerAreTold) {
  EXPECT_THAT(Told("VYROBCE A\nVYROBCE B\nVYROBCE A\nVYROBCE: B\nVYROBCE\n"),
              ElementsAre("3 ?section: the section of \"A\" begins in line 1 already; a merge gathers its "
                          "windows there",
                          "4 ?section: \"B\" has a section in line 2 already, under another heading; a merge "
                          "takes them for two makers",
                          "5 ?section: the heading names no maker"));
}

TEST_F(CatalogueCheckTest, LinesThatAreNoWindowsOrLookSoAreTold) {
  EXPECT_THAT(Told("x; 78\nVYROBCE A\n# y; width cm\n# y; width cm\n"),
              ElementsAre("1 ?outside: the line stands before the first section, where it is no window",
                          "3 ?comment: a line behind a heading is a window, also this one; comments are safe "
                          "before the first section",
                          "4 ?comment: a line behind a heading is a window, also this one; comments are safe "
                          "before the first section"));
}

TEST_F(CatalogueCheckTest, LinesInTwoEncodingsAreTold) {
  EXPECT_THAT(Told("VYROBCE Běla\n\x9E; 78\n"),
              ElementsAre("1 encoding: the line is in UTF-8 and others are not, so that its letters are read "
                          "as others"));
  EXPECT_THAT(Told("VYROBCE A\nx\x81; 78\n"),
              ElementsAre("2 encoding: the byte 81 is no character of code page 1250"));
}

TEST_F(CatalogueCheckTest, LineEndsThatDifferAreToldOnce) {
  EXPECT_THAT(Told("VYROBCE A\nx; 78\r\ny; 78\r\nz; 78"),
              ElementsAre("2 ?line-ends: the line ends with CR LF, unlike those before it; a merge may take "
                          "such lines for others"));
  EXPECT_THAT(Told("VYROBCE A\r\nx; 78\n"),
              ElementsAre("2 ?line-ends: the line ends with LF alone, unlike those before it; a merge may "
                          "take such lines for others"));
}

TEST_F(CatalogueCheckTest, LinesThatAreTooLongOrHaveTooMuchAreTold) {
  EXPECT_EQ(
      Told("VYROBCE A\nx; 78; ; ; ; ; " + std::string(150, 'y') + ";" + std::string(110, 'z') + "\n")[0],
      "2 line-length: the line has 276 bytes; what is behind the 254th is read as another line");
  EXPECT_THAT(Told("VYROBCE A\nx; 78; ; ; ; ; text; 7\n"),
              ElementsAre("2 ?fields: the line has 8 fields; those behind the 7th are not read"));
}

}  // namespace
}  // namespace teskarlt
