// DataFolderTest.cpp - who may work in the data folder, and how long.
#include <filesystem>

#include <gtest/gtest.h>

#include "inc/LibraryMerge.h"
#include "platform/FolderLock.h"
#include "teskarlt/modules/DataFolder.h"

namespace teskarlt {
namespace {

// A data folder in the folder of the tests that goes with the test.
class DataFolderAccess : public testing::Test {
 protected:
  DataFolderAccess() {
    std::filesystem::create_directory("data_folder_test");
    static char variable[] = "TESKAR_DATA=data_folder_test";
    putenv(variable);
  }
  ~DataFolderAccess() override {
    std::error_code ignored;
    std::filesystem::remove_all("data_folder_test", ignored);
  }

  static std::int32_t Access(std::int32_t operation) {
    return AccessDataFolder(brevanta::CATALOGUE_FOLDER_KIND, operation);
  }
  // What another process would find.
  static bool IsFree() {
    platform::FolderLock other;
    return other.Take(DataFolder()) == platform::LockResult::Taken;
  }
};

TEST_F(DataFolderAccess, RequestKeepsOthersOutUntilTheRelease) {
  EXPECT_TRUE(IsFree());
  EXPECT_EQ(Access(brevanta::FOLDER_REQUEST), brevanta::FOLDER_GRANTED);
  EXPECT_FALSE(IsFree());
  Access(brevanta::FOLDER_RELEASE);
  EXPECT_TRUE(IsFree());
}

TEST_F(DataFolderAccess, ModulesReleaseLeavesTheClaimOfTheHostAroundIt) {
  Access(brevanta::FOLDER_REQUEST);
  EXPECT_EQ(Access(brevanta::FOLDER_REQUEST), brevanta::FOLDER_GRANTED);
  Access(brevanta::FOLDER_RELEASE);
  EXPECT_FALSE(IsFree());
  Access(brevanta::FOLDER_RELEASE);
  EXPECT_TRUE(IsFree());
}

TEST_F(DataFolderAccess, FolderHeldByAnotherIsRefused) {
  platform::FolderLock other;
  other.Take(DataFolder());
  EXPECT_EQ(Access(brevanta::FOLDER_REQUEST), FOLDER_REFUSED);
  Access(brevanta::FOLDER_RELEASE);  // releases nothing
  EXPECT_FALSE(IsFree());
}

TEST_F(DataFolderAccess, MissingFolderIsUnusableAndGivingItBackHoldsNothing) {
  std::filesystem::remove("data_folder_test");
  EXPECT_EQ(Access(brevanta::FOLDER_REQUEST), brevanta::FOLDER_UNUSABLE);
  EXPECT_EQ(Access(brevanta::FOLDER_GIVE_BACK), brevanta::FOLDER_GRANTED);
}

TEST_F(DataFolderAccess, OtherKindsAndOperationsAreRefused) {
  EXPECT_EQ(AccessDataFolder(3, brevanta::FOLDER_REQUEST), FOLDER_REFUSED);
  EXPECT_EQ(Access(5), FOLDER_REFUSED);
  EXPECT_TRUE(IsFree());
}

}  // namespace
}  // namespace teskarlt
