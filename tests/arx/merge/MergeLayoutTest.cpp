// MergeLayoutTest.cpp - what stands where in a merged catalogue.
#include <filesystem>
#include <string>

#include "MergeFixture.h"

namespace brevanta {
namespace {

using MergeLayout = MergeTest;

TEST_F(MergeLayout, NewItemsFollowTheTargetsOwnInFrontOfTheSectionsEmptyLines) {
  EXPECT_EQ(Merged("VYROBCE A\na1; 78\n\na2; 94\n\nVYROBCE B\nb1; 55\n", "VYROBCE A\na3; 66\n"),
            "VYROBCE A\na1; 78\na2; 94\na3; 66\n\n\nVYROBCE B\nb1; 55\n");
}

TEST_F(MergeLayout, EqualCataloguesOnlyMoveEmptyLinesBehindTheItems) {
  const std::string catalogue = "VYROBCE A\n\na1; 78\na2; 94\n";
  EXPECT_EQ(Merged(catalogue, catalogue), "VYROBCE A\na1; 78\na2; 94\n\n");
}

TEST_F(MergeLayout, TargetsItemWinsWhateverItsOtherFields) {
  EXPECT_EQ(Merged("VYROBCE A\na1; 78; 98\n", "VYROBCE A\na1; 94; 140\n"), "VYROBCE A\na1; 78; 98\n");
}

TEST_F(MergeLayout, SameKeyInAnotherSectionIsAnotherItem) {
  EXPECT_EQ(Merged("VYROBCE A\nk; 78\nVYROBCE B\nb; 1\n", "VYROBCE B\nk; 94\n"),
            "VYROBCE A\nk; 78\nVYROBCE B\nb; 1\nk; 94\n");
}

TEST_F(MergeLayout, NewSectionFollowsTheLastLineHeaderFirst) {
  EXPECT_EQ(Merged("VYROBCE A\na1; 78\n\n", "VYROBCE C\nc1; 94\nc2; 66\n"),
            "VYROBCE A\na1; 78\n\nVYROBCE C\nc1; 94\nc2; 66\n");
}

TEST_F(MergeLayout, NewSectionsKeepTheOrderOfTheSource) {
  EXPECT_EQ(Merged("", "VYROBCE C\nc1; 1\nVYROBCE B\nb1; 2\n"), "VYROBCE C\nc1; 1\nVYROBCE B\nb1; 2\n");
}

TEST_F(MergeLayout, NewSectionInterruptedByAnotherGetsTwoHeaders) {
  EXPECT_EQ(Merged("", "VYROBCE C\nc1; 1\nVYROBCE B\nb1; 2\nVYROBCE C\nc2; 3\n"),
            "VYROBCE C\nc1; 1\nVYROBCE B\nb1; 2\nVYROBCE C\nc2; 3\n");
}

TEST_F(MergeLayout, NewSectionWithoutItemsLeavesNoTrace) {
  EXPECT_EQ(Merged("VYROBCE A\na1; 78\n", "VYROBCE C\n\n"), "VYROBCE A\na1; 78\n");
}

TEST_F(MergeLayout, PreambleSurvivesUnchanged) {
  EXPECT_EQ(Merged("# in use; since May\n\n  x\nVYROBCE A\na1; 78\n", "# update\nVYROBCE A\na2; 94\n"),
            "# in use; since May\n\n  x\nVYROBCE A\na1; 78\na2; 94\n");
}

TEST_F(MergeLayout, TargetWithoutHeadersIsAllPreamble) {
  EXPECT_EQ(Merged("a1; 78\n\nb", "VYROBCE A\na1; 94\n"), "a1; 78\n\nb\nVYROBCE A\na1; 94\n");
}

TEST_F(MergeLayout, SourceWithoutHeadersAddsNothing) {
  EXPECT_EQ(Merged("VYROBCE A\na1; 78\n", "a2; 94\na3; 66\n"), "VYROBCE A\na1; 78\n");
}

TEST_F(MergeLayout, RepeatedHeaderKeepsOnlyItselfAndTheFirstOneGetsAllItems) {
  EXPECT_EQ(Merged("VYROBCE A\na1; 1\nVYROBCE B\nb1; 2\nVYROBCE A\na2; 3\n\n", "VYROBCE A\na3; 4\n"),
            "VYROBCE A\na1; 1\na2; 3\na3; 4\nVYROBCE B\nb1; 2\nVYROBCE A\n\n");
}

TEST_F(MergeLayout, RepeatedItemsOfTheTargetAreAllKept) {
  EXPECT_EQ(Merged("VYROBCE A\na1; 1\na1; 2\na1; 1\n", "VYROBCE A\na1; 3\n"),
            "VYROBCE A\na1; 1\na1; 2\na1; 1\n");
}

TEST_F(MergeLayout, FirstOfTheSourcesRepeatedItemsWins) {
  EXPECT_EQ(Merged("VYROBCE A\n", "VYROBCE A\na1; 1\na1; 2\nVYROBCE B\na1; 3\nVYROBCE A\na1; 4\n"),
            "VYROBCE A\na1; 1\nVYROBCE B\na1; 3\n");
}

TEST_F(MergeLayout, KeyIsTheFirstFieldWithoutLeadingBlanks) {
  EXPECT_EQ(Merged("VYROBCE A\n  GGL 04; 78; 98\n", "VYROBCE A\nGGL 04; 1\nGGL 04 ; 2\n\tGGL 04; 3\n"),
            "VYROBCE A\n  GGL 04; 78; 98\nGGL 04 ; 2\n\tGGL 04; 3\n");
}

TEST_F(MergeLayout, KeyMayBeEmpty) {
  EXPECT_EQ(Merged("VYROBCE A\n;78\n", "VYROBCE A\n; 94\n   \nx\n"), "VYROBCE A\n;78\nx\n");
}

TEST_F(MergeLayout, KeysAndHeadersDifferByCase) {
  EXPECT_EQ(Merged("VYROBCE A\na1; 1\n", "VYROBCE A\nA1; 2\nVYROBCE a\na1; 3\n"),
            "VYROBCE A\na1; 1\nA1; 2\nVYROBCE a\na1; 3\n");
}

TEST_F(MergeLayout, HeadersDifferByBlanks) {
  EXPECT_EQ(Merged("VYROBCE A\na1; 1\n", "VYROBCE A \na1; 2\n"), "VYROBCE A\na1; 1\nVYROBCE A \na1; 2\n");
}

TEST_F(MergeLayout, HeaderIsWhatBeginsWithTheUpperCaseWord) {
  EXPECT_EQ(Merged("VYROBCE\nvyrobce A; 1\n VYROBCE A; 2\n", "VYROBCEX\nx; 3\n"),
            "VYROBCE\nvyrobce A; 1\n VYROBCE A; 2\nVYROBCEX\nx; 3\n");
}

TEST_F(MergeLayout, LastLineGetsANewline) {
  EXPECT_EQ(Merged("VYROBCE A\na1; 78", "VYROBCE A\na2; 94"), "VYROBCE A\na1; 78\na2; 94\n");
  EXPECT_EQ(Merged("VYROBCE A", "VYROBCE B"), "VYROBCE A\n");
}

TEST_F(MergeLayout, BytesBeyondAsciiStayAsTheyAre) {
  EXPECT_EQ(Merged("VYROBCE \xC8\xE1p\na1; \xF8\n", "VYROBCE \xC8\xE1p\na2; \xFF\xFE\n"),
            "VYROBCE \xC8\xE1p\na1; \xF8\na2; \xFF\xFE\n");
}

TEST_F(MergeLayout, LongItemLineIsCutIntoLinesOf254Characters) {
  const std::string line = "k; " + std::string(297, 'x');
  EXPECT_EQ(Merged("VYROBCE A\n" + line + "\n", ""),
            "VYROBCE A\n" + line.substr(0, 254) + "\n" + line.substr(254) + "\n");
}

TEST_F(MergeLayout, LineOf254CharactersIsFollowedByAnEmptyOne) {
  const std::string line(254, 'p');
  EXPECT_EQ(Merged(line + "\nVYROBCE A\n", ""), line + "\n\nVYROBCE A\n");
}

TEST_F(MergeLayout, RestOfALongLineMayBeAHeader) {
  const std::string line = std::string(254, 'p') + "VYROBCE A";
  EXPECT_EQ(Merged(line + "\na1; 1\n", "VYROBCE A\na2; 2\n"),
            std::string(254, 'p') + "\nVYROBCE A\na1; 1\na2; 2\n");
}

TEST_F(MergeLayout, LineEndsOnDiskAreThoseOfTheSystem) {
  WriteBytes(folder / "one", "");
  std::FILE* file = std::fopen((folder / "one").c_str(), "w");
  std::fputs("\n", file);
  std::fclose(file);
  const std::string newline = ReadBytes(folder / "one");
  Merged("VYROBCE A\n", "VYROBCE A\na1; 1\n");
  EXPECT_EQ(ReadBytes(Target()), "VYROBCE A" + newline + "a1; 1" + newline);
}

TEST_F(MergeLayout, CarriageReturnBelongsToTheLineWhereTheSystemWritesNone) {
  const bool systemKnowsIt = std::filesystem::path::preferred_separator == '\\';
  EXPECT_EQ(Merged("VYROBCE A\r\na1; 1\r\na9\r\n", "VYROBCE A\na1; 2\n"),
            systemKnowsIt ? "VYROBCE A\na1; 1\na9\n" : "VYROBCE A\r\na1; 1\r\na9\r\nVYROBCE A\na1; 2\n");
  EXPECT_EQ(Merged("VYROBCE A\na9\n", "VYROBCE A\na9\r\n"),
            systemKnowsIt ? "VYROBCE A\na9\n" : "VYROBCE A\na9\na9\r\n");
}

TEST_F(MergeLayout, EmptyCataloguesStayEmpty) {
  EXPECT_EQ(Merged("", ""), "");
  EXPECT_EQ(Merged("\n\n", ""), "\n\n");
}

}  // namespace
}  // namespace brevanta
