// MergeLowMemoryTest.cpp - each allocation of a merge fails: nothing is touched and nothing is leaked.
#include <string>

#include "FailingNew.h"
#include "MergeFixture.h"

namespace brevanta {
namespace {

using MergeLowMemory = MergeTest;

TEST_F(MergeLowMemory, NothingIsTouchedWhicheverAllocationFails) {
  const std::string target = "# in use\nVYROBCE A\na1; 1\na2; 2\nVYROBCE B\nb1; 3\n";
  const std::string source = "VYROBCE A\na2; 9\na3; 4\nVYROBCE C\nc1; 5\n";
  Write(target, source);
  const std::string sourcePath = Source();
  const std::string targetPath = Target();
  int number = 1;
  for (;; ++number) {
    const int before = LiveNewBlocks();
    FailNew(number);
    const std::int32_t result =
        mergeLibraryFiles(nullptr, sourcePath.c_str(), targetPath.c_str(), CATALOGUE_FOLDER_KIND);
    const bool came = FailNew(0) == 0;
    EXPECT_EQ(LiveNewBlocks(), before);
    if (!came) {
      EXPECT_EQ(result, MERGE_DONE);
      break;
    }
    ASSERT_EQ(result, MERGE_NOT_POSSIBLE);
    ASSERT_EQ(ReadBytes(targetPath), target);
    ASSERT_EQ(folder.FileCount(), 2);
  }
  EXPECT_GT(number, 20);
  EXPECT_EQ(ReadText(targetPath),
            "# in use\nVYROBCE A\na1; 1\na2; 2\na3; 4\nVYROBCE B\nb1; 3\nVYROBCE C\nc1; 5\n");
}

}  // namespace
}  // namespace brevanta
