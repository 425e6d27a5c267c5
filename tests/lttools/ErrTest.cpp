// ErrTest.cpp - error reports: text, exit status, and the jump that catches them.
#include <csetjmp>
#include <cstdlib>
#include <limits>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lttools/Err.h"

namespace lttools {
namespace {

using testing::ExitedWithCode;
using testing::StrEq;

// Tells in a child process that the code after a report ran.
constexpr int CARRIED_ON = 42;

// Err without the compiler's check of the format, which the tests pass on.
using Reporter = void (*)(std::int32_t, const char*, ...);
constexpr Reporter REPORT = Err;

// The site's idiom.
template <class... Values>
void ReportFrom(const char* file, std::int32_t line, std::int32_t kind, const char* format,
                Values... values) {
  ErrFile = file;
  ErrLine = line;
  REPORT(kind, format, values...);
}

TEST(ErrDeathTest, FatalReportEndsTheProcessWithStatusOne) {
  EXPECT_EXIT(ReportFrom("SUPP", 40, ERR_FATAL, "Low memory"), ExitedWithCode(1),
              StrEq("\n\nFATAL ERROR on line 40 of 'SUPP'\n  'Low memory'\n\nABORTING EXECUTION\n"));
}

TEST(ErrDeathTest, FatalReportRunsExitHandlers) {
  EXPECT_EXIT(
      {
        std::atexit([] { std::fputs("handler\n", stderr); });
        ReportFrom("SUPP", 40, ERR_FATAL, "Low memory");
      },
      ExitedWithCode(1), testing::EndsWith("ABORTING EXECUTION\nhandler\n"));
}

TEST(ErrDeathTest, NormalReportIsPrintedAndReturns) {
  EXPECT_EXIT(
      {
        ReportFrom("resrel", 75, ERR_NORMAL, "Resource releasing will fail under MSVC++ v1.10.");
        std::exit(CARRIED_ON);
      },
      ExitedWithCode(CARRIED_ON),
      StrEq("\n\nNORMAL on line 75 of 'resrel'\n  'Resource releasing will fail under MSVC++ v1.10.'\n\n"));
}

TEST(ErrDeathTest, BugReportIsPrintedAndReturns) {
  EXPECT_EXIT(
      {
        ReportFrom("here", 3, ERR_BUG, "odd");
        std::exit(CARRIED_ON);
      },
      ExitedWithCode(CARRIED_ON), StrEq("\n\nBUG on line 3 of 'here'\n  'odd'\n\n"));
}

TEST(ErrDeathTest, UnknownKindIsNamedByItsValueAndReturns) {
  EXPECT_EXIT(
      {
        ReportFrom("here", 3, 5, "odd");
        std::exit(CARRIED_ON);
      },
      ExitedWithCode(CARRIED_ON), StrEq("\n\nERROR OF BAD TYPE (5) on line 3 of 'here'\n  'odd'\n\n"));
}

TEST(ErrDeathTest, MessageIsFormattedFromTheValues) {
  EXPECT_EXIT(
      {
        ReportFrom("here", 3, ERR_BUG, "%s %d %u", "text", -7, 7U);
        std::exit(CARRIED_ON);
      },
      ExitedWithCode(CARRIED_ON), testing::HasSubstr("  'text -7 7'\n"));
}

TEST(ErrDeathTest, FirstReportWithoutASiteNamesNoFileAndLineZero) {
  EXPECT_EXIT(
      {
        Err(ERR_BUG, "odd");
        std::exit(CARRIED_ON);
      },
      ExitedWithCode(CARRIED_ON), StrEq("\n\nBUG on line 0 of '(null)'\n  'odd'\n\n"));
}

TEST(ErrDeathTest, SiteStaysForTheNextReport) {
  EXPECT_EXIT(
      {
        ReportFrom("first", 11, ERR_BUG, "one");
        Err(ERR_BUG, "two");
        std::exit(CARRIED_ON);
      },
      ExitedWithCode(CARRIED_ON), testing::EndsWith("BUG on line 11 of 'first'\n  'two'\n\n"));
}

TEST(ErrDeathTest, NullFormatIsReportedAsABugBeforeTheReportItself) {
  const char* noFormat = nullptr;
  EXPECT_EXIT(ReportFrom("here", 3, ERR_FATAL, noFormat), ExitedWithCode(1),
              StrEq("\n\nBUG on line 3 of 'here'\n  'Bad pointer in arguments to Err()'\n\n"
                    "\n\nFATAL ERROR on line 3 of 'here'\n  ''\n\nABORTING EXECUTION\n"));
}

TEST(ErrDeathTest, LongMessageIsCutTo127Characters) {
  const std::string longText(200, 'x');
  EXPECT_EXIT(
      {
        ReportFrom("here", 3, ERR_BUG, "%s", longText.c_str());
        std::exit(CARRIED_ON);
      },
      ExitedWithCode(CARRIED_ON), testing::EndsWith("  '" + std::string(127, 'x') + "'\n\n"));
}

TEST(ErrDeathTest, LongKindNameIsCutTo27Characters) {
  EXPECT_EXIT(
      {
        ReportFrom("here", 3, std::numeric_limits<std::int32_t>::min(), "odd");
        std::exit(CARRIED_ON);
      },
      ExitedWithCode(CARRIED_ON), StrEq("\n\nERROR OF BAD TYPE (-2147483 on line 3 of 'here'\n  'odd'\n\n"));
}

TEST(ErrDeathTest, NormalReportIsNeverCaught) {
  EXPECT_EXIT(
      {
        ErrJumpArmed = 1;
        ReportFrom("here", 3, ERR_NORMAL, "odd");
        std::exit(CARRIED_ON);
      },
      ExitedWithCode(CARRIED_ON), testing::HasSubstr("NORMAL on line 3"));
}

// What the jump of a report of this kind brings to the catcher; 0 when nothing jumped.
int CaughtKind(std::int32_t kind, const char* format) {
  const int caught = setjmp(ErrJump);
  if (caught == 0) {
    ErrJumpArmed = 1;
    ReportFrom("site", 9, kind, format);
  }
  ErrJumpArmed = 0;
  return caught;
}

TEST(ErrJump, KindsBelowNormalLandAtTheCatcher) {
  EXPECT_EQ(CaughtKind(ERR_FATAL, "Low memory"), 1);
  EXPECT_EQ(CaughtKind(ERR_BUG, "odd"), 2);
  EXPECT_EQ(CaughtKind(5, "odd"), 5);
  EXPECT_EQ(CaughtKind(9, "odd"), 9);
  EXPECT_EQ(CaughtKind(-3, "odd"), -3);
}

TEST(ErrJump, KindZeroArrivesAsOne) {
  // A long jump cannot bring 0.
  EXPECT_EQ(CaughtKind(0, "odd"), 1);
}

TEST(ErrJump, NullFormatLandsWithTheBugFirst) {
  EXPECT_EQ(CaughtKind(ERR_FATAL, nullptr), ERR_BUG);
  EXPECT_STREQ(ErrMessage, "Bad pointer in arguments to Err()");
}

TEST(ErrJump, CaughtReportLeavesItsState) {
  CaughtKind(ERR_FATAL, "Low memory");
  EXPECT_EQ(ErrKind, ERR_FATAL);
  EXPECT_STREQ(ErrKindName, "FATAL ERROR");
  EXPECT_STREQ(ErrMessage, "Low memory");
  EXPECT_STREQ(ErrFile, "site");
  EXPECT_EQ(ErrLine, 9);
}

TEST(ErrDeathTest, CaughtReportPrintsNothing) {
  EXPECT_EXIT(
      {
        CaughtKind(ERR_FATAL, "Low memory");
        std::exit(CARRIED_ON);
      },
      ExitedWithCode(CARRIED_ON), StrEq(""));
}

}  // namespace
}  // namespace lttools
