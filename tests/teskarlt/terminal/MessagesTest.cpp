// MessagesTest.cpp - texts of drawings in messages.
#include <gtest/gtest.h>

#include "teskarlt/terminal/Messages.h"

namespace teskarlt {
namespace {

TEST(Messages, LineBreaksBecomeBlanks) {
  EXPECT_EQ(OneLine("a\nb\r\nc\td"), "a b  c d");
  EXPECT_EQ(OneLine("a\u2028b\u0085c\u2029"), "a b c ");
}

TEST(Messages, LettersStayAsTheyAre) {
  EXPECT_EQ(OneLine("Dachfl\u00E4che \u2265 5\u00A0m"), "Dachfl\u00E4che \u2265 5\u00A0m");
}

TEST(Messages, TerminalIsNotCommanded) {
  EXPECT_EQ(OneLine("\x1B[31mred"), " [31mred");
}

}  // namespace
}  // namespace teskarlt
