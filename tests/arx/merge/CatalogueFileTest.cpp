// CatalogueFileTest.cpp - lines read from and written to a catalogue file.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Files.h"
#include "arx/merge/CatalogueFile.h"

namespace brevanta {
namespace {

using testing::ElementsAre;

std::vector<std::string> ReadLines(std::string_view bytes) {
  const TestFolder folder;
  WriteBytes(folder / "file", bytes);
  CatalogueReader file((folder / "file").c_str());
  EXPECT_TRUE(file.IsOpen());
  std::vector<std::string> lines;
  while (file.NextLine()) {
    EXPECT_EQ(file.Line(), file.Text());
    lines.emplace_back(file.Line());
  }
  EXPECT_FALSE(file.Failed());
  EXPECT_FALSE(file.NextLine());
  return lines;
}

TEST(CatalogueReader, LinesComeWithoutTheirNewline) {
  EXPECT_THAT(ReadLines("a\n\nb c\n"), ElementsAre("a", "", "b c"));
}

TEST(CatalogueReader, LastLineNeedsNoNewline) {
  EXPECT_THAT(ReadLines("a\nb"), ElementsAre("a", "b"));
}

TEST(CatalogueReader, EmptyFileHasNoLines) {
  EXPECT_THAT(ReadLines(""), ElementsAre());
}

TEST(CatalogueReader, LineOf300CharactersIsReadAs254And46) {
  const std::string line = std::string(254, 'a') + std::string(46, 'b');
  EXPECT_THAT(ReadLines(line + "\nc\n"), ElementsAre(std::string(254, 'a'), std::string(46, 'b'), "c"));
}

TEST(CatalogueReader, LineOf253CharactersIsOneRead) {
  EXPECT_THAT(ReadLines(std::string(253, 'a') + "\nc\n"), ElementsAre(std::string(253, 'a'), "c"));
}

TEST(CatalogueReader, LineOf254CharactersLeavesItsNewlineForAnEmptyLine) {
  EXPECT_THAT(ReadLines(std::string(254, 'a') + "\nc\n"), ElementsAre(std::string(254, 'a'), "", "c"));
}

TEST(CatalogueReader, LineOf254CharactersAtTheEndIsOneLine) {
  EXPECT_THAT(ReadLines(std::string(254, 'a')), ElementsAre(std::string(254, 'a')));
}

TEST(CatalogueReader, ZeroByteEndsTheLine) {
  using namespace std::string_literals;
  EXPECT_THAT(ReadLines("a\0b\n\0\nc\n"s), ElementsAre("a", "", "c"));
}

TEST(CatalogueReader, LinesAcrossTheEndsOfBlocksAreWhole) {
  std::string bytes;
  std::vector<std::string> lines;
  for (int i = 0; bytes.size() < 400000; ++i) {
    lines.emplace_back(static_cast<std::size_t>(i % 200), static_cast<char>('a' + i % 26));
    bytes += lines.back() + "\n";
  }
  EXPECT_EQ(ReadLines(bytes), lines);
}

TEST(CatalogueReader, MissingFileIsNotOpen) {
  const TestFolder folder;
  CatalogueReader file((folder / "missing").c_str());
  EXPECT_FALSE(file.IsOpen());
}

TEST(CatalogueReader, FolderIsNotOpened) {
  const TestFolder folder;
  CatalogueReader file(folder.Path().c_str());
  EXPECT_FALSE(file.IsOpen());
}

TEST(WriteLibraryLine, WritesTheLineAndOneNewline) {
  const TestFolder folder;
  CatalogueWriter file((folder / "file").c_str());
  WriteLibraryLine("a; b", file);
  WriteLibraryLine("", file);
  EXPECT_TRUE(file.Close());
  EXPECT_EQ(ReadText(folder / "file"), "a; b\n\n");
}

TEST(CatalogueWriter, TextLongerThanABlockIsWrittenWhole) {
  const TestFolder folder;
  const std::string line(300000, 'x');
  CatalogueWriter file((folder / "file").c_str());
  WriteLibraryLine("a", file);
  WriteLibraryLine(line, file);
  EXPECT_TRUE(file.Close());
  EXPECT_EQ(ReadText(folder / "file"), "a\n" + line + "\n");
}

TEST(CatalogueWriter, FileThatCannotBeCreatedIsNotOpen) {
  const TestFolder folder;
  CatalogueWriter file((folder / "missing/file").c_str());
  EXPECT_FALSE(file.IsOpen());
}

TEST(CataloguePath, FoldersAreCompletedAndFilesStay) {
  EXPECT_STREQ(CataloguePath("data/").GetString(), "data/BREVANTA.LIB");
  EXPECT_STREQ(CataloguePath("data\\").GetString(), "data\\BREVANTA.LIB");
  EXPECT_STREQ(CataloguePath("data").GetString(), "data");
  EXPECT_STREQ(CataloguePath("").GetString(), "");
}

TEST(IsSectionHeader, LineThatBeginsWithTheUpperCaseWord) {
  EXPECT_TRUE(IsSectionHeader("VYROBCE"));
  EXPECT_TRUE(IsSectionHeader("VYROBCE Svetlik"));
  EXPECT_FALSE(IsSectionHeader("vyrobce Svetlik"));
  EXPECT_FALSE(IsSectionHeader(" VYROBCE Svetlik"));
  EXPECT_FALSE(IsSectionHeader("VYROBC"));
  EXPECT_FALSE(IsSectionHeader(""));
}

}  // namespace
}  // namespace brevanta
