// FindCatalogueItemLowMemoryTest.cpp - each allocation of a search fails: it finds nothing and leaks nothing.
#include <string>

#include <gtest/gtest.h>

#include "FailingNew.h"
#include "Files.h"
#include "arx/merge/FindCatalogueItem.h"

namespace brevanta {
namespace {

TEST(FindItemLowMemory, NothingIsFoundWhicheverAllocationFails) {
  const TestFolder folder;
  WriteBytes(folder / "BREVANTA.LIB", "VYROBCE+ Alfa\na1; 78\n");
  const std::string path = folder.Path() + "/";  // completed, which takes memory
  int number = 1;
  for (;; ++number) {
    const int before = LiveNewBlocks();
    FailNew(number);
    const std::int32_t position = FindCatalogueItem("VYROBCE", path.c_str(), "Alfa", "a1");
    const bool came = FailNew(0) == 0;
    EXPECT_EQ(LiveNewBlocks(), before);
    ASSERT_EQ(position, came ? -1 : 0);
    if (!came) break;
  }
  EXPECT_GT(number, 1);
}

}  // namespace
}  // namespace brevanta
