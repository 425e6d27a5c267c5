// WindowOptionsTest.cpp - from the options of a command line to the order that they stand for.
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/commands/WindowOptions.h"

namespace teskarlt {
namespace {

std::string Refusal(const WindowOptions& options) {
  try {
    OrderOf(options);
  } catch (const Error& error) {
    return error.what();
  }
  return {};
}

TEST(OrderOf, OptionsThatAreNotGivenOrderNothing) {
  const WindowOrder order = OrderOf({});
  EXPECT_FALSE(order.at);
  EXPECT_TRUE(order.roof.empty());
  EXPECT_TRUE(order.settings.empty());
  EXPECT_FALSE(order.isStrict);
}

TEST(OrderOf, SettingEndsItsFieldAtTheFirstEqualsSign) {
  WindowOptions options;
  options.settings = {"text1=a=b", "text2="};
  const WindowOrder order = OrderOf(options);
  ASSERT_EQ(order.settings.size(), 2U);
  EXPECT_EQ(order.settings[0].field, "text1");
  EXPECT_EQ(order.settings[0].value, "a=b");
  EXPECT_EQ(order.settings[1].value, "");
}

TEST(OrderOf, PointsBecomeNumbers) {
  WindowOptions options;
  options.at = "1,2";
  options.roof = {"0,0,0", "1,0,0", "0,1,0.5"};
  const WindowOrder order = OrderOf(options);
  ASSERT_TRUE(order.at);
  EXPECT_EQ(order.at->y, 2);
  ASSERT_EQ(order.roof.size(), 3U);
  EXPECT_EQ(order.roof[2].z, 0.5);
}

TEST(OrderOf, MalformedTextsAreRefusedWithTheirOption) {
  WindowOptions setting;
  setting.settings = {"width"};
  EXPECT_EQ(Refusal(setting), "--set width: a setting is FIELD=VALUE, as in --set width=0.94");
  WindowOptions point;
  point.at = "1";
  EXPECT_EQ(Refusal(point), "--at 1: a point is two finite numbers, X,Y, in drawing units");
}

}  // namespace
}  // namespace teskarlt
