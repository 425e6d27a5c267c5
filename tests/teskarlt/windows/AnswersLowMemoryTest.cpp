// AnswersLowMemoryTest.cpp - every allocation on the way from an order to the dialog's answers fails in turn.
#include <new>

#include <gtest/gtest.h>

#include "teskarlt/windows/Answers.h"
#include "tests/arx/merge/FailingNew.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

TEST(Answers, LackOfMemoryIsNeverTakenForARefusal) {
  const dxf::Document drawing = Drawing("", "");
  WindowOrder order;
  order.settings = {{"text1", "a text that no small buffer takes"}, {"width", "0.78"}};
  CatalogueShelf shelf;
  for (int allocation = 1;; ++allocation) {
    FailNew(allocation);
    try {
      AnswersOf(order, drawing, shelf);
      FailNew(0);
      EXPECT_GT(allocation, 1);
      return;
    } catch (const std::bad_alloc&) {
      FailNew(0);  // any other exception fails the test
    }
  }
}

}  // namespace
}  // namespace teskarlt
