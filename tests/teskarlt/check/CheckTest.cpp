// CheckTest.cpp - sound drawings, sections that a version needs, and files that are none.
#include <algorithm>
#include <random>

#include "teskarlt/dxf/NewDrawing.h"
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

TEST(CheckDrawing, SoundDrawingGivesNoFinding) {
  EXPECT_THAT(Found(Sound(Line("100"))), IsEmpty());
  EXPECT_THAT(Found(Sound(Line("100"), "", "AC1032")), IsEmpty());
  EXPECT_THAT(Found(SoundOld(OldLine())), IsEmpty());
}

TEST(CheckDrawing, DrawingOfEntitiesAloneGivesNoFinding) {
  EXPECT_THAT(Found(dxf::OnlyEntities("0|LINE|8|0|10|0|20|0|11|1|21|1")), IsEmpty());
}

TEST(CheckDrawing, NewDrawingGivesNoFinding) {
  for (const int version : {dxf::VERSION_R12, dxf::VERSION_R2000, dxf::VERSION_R2018}) {
    dxf::NewDrawingOptions options;
    options.version = version;
    options.layers = {"ROOF_WINDOW"};
    options.applications = {"TK_LT_ELEM"};
    EXPECT_THAT(Found(dxf::NewDrawing(options)), IsEmpty());
  }
}

TEST(CheckDrawing, LinesAreRightWithCarriageReturnsAndComments) {
  const std::string text =
      Tags("999|made by hand|0|SECTION|2|ENTITIES|0|LINE|8|0|999|a comment|10|x|20|0|0|ENDSEC|0|EOF", "\r\n");
  const Verdict verdict = Checked(text);
  ASSERT_EQ(verdict.findings.size(), 1U);
  EXPECT_EQ(verdict.findings[0].place, 14U);
  EXPECT_EQ(verdict.findings[0].message, "\"x\" is not a finite number (group 10)");
}

TEST(CheckDrawing, SectionThatTheVersionNeedsIsMissed) {
  const std::string text = Tags("0|SECTION|2|HEADER|9|$ACADVER|1|AC1015|0|ENDSEC|0|SECTION|2|TABLES|" +
                                Tables() + "0|ENDSEC|0|SECTION|2|ENTITIES|0|ENDSEC|0|EOF");
  const Verdict verdict = Checked(text);
  std::vector<std::string> messages;
  for (const Finding& finding : verdict.findings)
    messages.push_back(finding.message);
  EXPECT_THAT(messages, testing::Contains("the section BLOCKS is missing; this is the last one"));
  EXPECT_THAT(messages, testing::Contains("the section OBJECTS is missing; this is the last one"));
}

// Damage of the kinds that happen to files: bytes that change, lines that are lost, ends that are lost.
std::string RandomlyDamaged(std::string text, std::mt19937& random) {
  const auto place = [&] { return std::uniform_int_distribution<std::size_t>(0, text.size() - 1)(random); };
  switch (random() % 4) {
    case 0:
      text[place()] = static_cast<char>(random());
      break;
    case 1: {
      const std::size_t begin = text.rfind('\n', place()) + 1;  // 0 behind npos
      text.erase(begin, text.find('\n', begin) + 1 - begin);
      break;
    }
    case 2:
      text.resize(place() + 1);
      break;
    default:
      text.insert(place(), 1, static_cast<char>("0\n A{"[random() % 5]));
      break;
  }
  return text;
}

TEST(CheckDrawing, WhateverTheHostRefusesHasAnErrorOnALineOfTheFile) {
  const std::string sound =
      Sound(Line("100", "1001|FOREIGN|1002|{|1000|x|1011|1|1021|2|1031|3|1002|}|") + Line("101"));
  std::mt19937 random(20);
  for (int i = 0; i < 3000; ++i) {
    const std::string text = RandomlyDamaged(sound, random);
    const bool isRefused = !dxf::ErrorOf([&] { dxf::Parsed(text); }).empty();
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
    try {
      const Verdict verdict = Checked(text);
      ASSERT_TRUE(!isRefused || verdict.errors > 0) << text;
      for (const Finding& finding : verdict.findings)
        ASSERT_TRUE(finding.place >= 1 && finding.place <= lines) << finding.message;
    } catch (const Error&) {
      ASSERT_TRUE(isRefused) << text;
    }
  }
}

TEST(CheckDrawing, FileThatIsNoDrawingIsRefused) {
  EXPECT_THROW(Checked("%PDF-1.4\n"), Error);
  EXPECT_THROW(Checked(""), Error);
}

}  // namespace
}  // namespace teskarlt::check
