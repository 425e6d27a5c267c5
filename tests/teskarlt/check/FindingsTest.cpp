// FindingsTest.cpp - order, lines and numbers of findings.
#include <string_view>

#include <gtest/gtest.h>

#include "teskarlt/check/Findings.h"
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

TEST(Findings, ComeInTheOrderOfTheirLines) {
  const dxf::SourceText source = SourceOf("a\nb\nc\n");
  const std::string_view text = source.Text();
  Findings findings;
  findings.Error(Kind::RealValue, &text[4], "third line");
  findings.Warning(Kind::TextBytes, text.data(), "first line", 0x2F);
  const Verdict verdict = findings.Finish(source);
  ASSERT_EQ(verdict.findings.size(), 2U);
  EXPECT_EQ(verdict.findings[0].place, 1U);
  EXPECT_EQ(verdict.findings[0].handle, 0x2FU);
  EXPECT_EQ(verdict.findings[1].place, 3U);
  EXPECT_EQ(verdict.findings[1].message, "third line");
}

TEST(Findings, AreCountedBySeverity) {
  const dxf::SourceText source = SourceOf("a\n");
  const std::string_view text = source.Text();
  Findings findings;
  for (int i = 0; i < 3; ++i)
    findings.Error(Kind::RealValue, text.data(), "");
  findings.Warning(Kind::TextBytes, text.data(), "");
  const Verdict verdict = findings.Finish(source);
  EXPECT_EQ(verdict.errors, 3U);
  EXPECT_EQ(verdict.warnings, 1U);
}

TEST(Findings, OfOneKindAreCountedButNotKeptWithoutEnd) {
  const dxf::SourceText source = SourceOf("a\n");
  const std::string_view text = source.Text();
  Findings findings;
  for (std::size_t i = 0; i < MOST_OF_A_KIND + 5; ++i)
    findings.Error(Kind::RealValue, text.data(), "");
  findings.Error(Kind::HandleTwice, text.data(), "");
  const Verdict verdict = findings.Finish(source);
  EXPECT_EQ(verdict.findings.size(), MOST_OF_A_KIND + 1);
  EXPECT_EQ(verdict.errors, MOST_OF_A_KIND + 6);
  EXPECT_EQ(verdict.unlisted[static_cast<std::size_t>(Kind::RealValue)], 5U);
  EXPECT_EQ(verdict.unlisted[static_cast<std::size_t>(Kind::HandleTwice)], 0U);
}

TEST(Findings, MergedOnesKeepTheOrderOfLines) {
  Verdict verdict;
  verdict.findings = {{7, Severity::Error, Kind::RealValue, 0, "late"}};
  verdict.errors = 1;
  Verdict later;
  later.findings = {{3, Severity::Warning, Kind::TextBytes, 0, "early"}};
  later.warnings = 1;
  Merge(later, verdict);
  EXPECT_EQ(verdict.findings[0].message, "early");
  EXPECT_EQ(verdict.findings[1].message, "late");
  EXPECT_EQ(verdict.errors, 1U);
  EXPECT_EQ(verdict.warnings, 1U);
}

TEST(KindName, FirstAndLastKindHaveTheirOwn) {
  EXPECT_EQ(KindName(Kind::GroupCode), "group-code");
  EXPECT_EQ(KindName(Kind::LayerUndefined), "layer-undefined");
  EXPECT_EQ(KindName(Kind::MarkerMissing), "marker-missing");
  EXPECT_EQ(KindName(Kind::WindowForeignData), "window-foreign-data");
}

}  // namespace
}  // namespace teskarlt::check
