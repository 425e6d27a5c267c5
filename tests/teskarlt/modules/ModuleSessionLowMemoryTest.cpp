// ModuleSessionLowMemoryTest.cpp - every allocation on the way of an entity into the drawing fails in turn.
#include <new>

#include <gtest/gtest.h>

#include "teskarlt/modules/KeptException.h"
#include "teskarlt/modules/ModuleSession.h"
#include "tests/arx/merge/FailingNew.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

// A point on layer 0, as a list that the module hands over.
struct PointList {
  PointList() {
    static char type[] = "POINT";
    static char subclass[] = "AcDbEntity";
    static char layer[] = "0";
    static char point[] = "AcDbPoint";
    char* texts[] = {type, subclass, layer, point};
    const std::int16_t codes[] = {0, 100, 8, 100, 10};
    for (int i = 0; i < 5; ++i) {
      nodes[i] = {i < 4 ? &nodes[i + 1] : nullptr, codes[i], {}};
      if (i < 4) nodes[i].value.text = texts[i];
    }
  }
  brevanta::ValueNode nodes[5];
};

TEST(ModuleSession, LackOfMemoryIsKeptAndIsNoRefusalOfTheEntity) {
  for (int allocation = 1;; ++allocation) {
    dxf::Document drawing = Drawing("", "");
    const WindowRequest request;
    ModuleSession session(drawing, request);
    const PointList list;
    FailNew(allocation);
    const std::int32_t answer = session.MakeEntity(list.nodes);
    FailNew(0);
    EXPECT_EQ(session.Outcome().failure, "");
    if (answer > 0) {
      EXPECT_GT(allocation, 1);
      EXPECT_NO_THROW(RethrowKeptException());
      return;
    }
    EXPECT_THROW(RethrowKeptException(), std::bad_alloc);
  }
}

}  // namespace
}  // namespace teskarlt
