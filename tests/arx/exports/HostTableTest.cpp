// HostTableTest.cpp - the guards in front of the host's functions.
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "arx/exports/HostTable.h"

namespace brevanta {
namespace {

// What was called last, with its arguments.
std::string called;  // NOLINT(cert-err58-cpp)

bool GiveDataFolder(std::int32_t kind, char* buffer, std::int32_t size) {
  called = "folder " + std::to_string(kind) + " " + std::to_string(size);
  std::strcpy(buffer, "C:\\Data\\");
  return kind == 4;
}
std::int32_t GiveEntity(ValueNode* list, std::int32_t reserved) {
  called = std::string("entity ") + (list == nullptr ? "null " : "list ") + std::to_string(reserved);
  return 5100;
}
void GiveBegin() {
  called = "begin";
}
void GiveEnd(std::int32_t keep) {
  called = "end " + std::to_string(keep);
}
std::int32_t GiveAccess(std::int32_t kind, std::int32_t operation) {
  called = "access " + std::to_string(kind) + " " + std::to_string(operation);
  return 2;
}

class HostTable : public testing::Test {
 protected:
  void SetUp() override {
    called.clear();
    table.entries[1] = reinterpret_cast<HostFunction>(GiveDataFolder);
    table.entries[15] = reinterpret_cast<HostFunction>(GiveEntity);
    table.entries[17] = reinterpret_cast<HostFunction>(GiveBegin);
    table.entries[19] = reinterpret_cast<HostFunction>(GiveEnd);
    table.entries[44] = reinterpret_cast<HostFunction>(GiveAccess);
  }
  static void ExpectFallbacks(const HostFunctionTable* where) {
    char buffer[16] = "untouched";
    ValueNode node{};
    EXPECT_FALSE(GetDataFolder(where, 4, buffer, sizeof buffer));
    EXPECT_STREQ(buffer, "untouched");
    EXPECT_EQ(MakeEntityFromList(where, &node), -1);
    EXPECT_FALSE(BeginEntityBatch(where));
    EXPECT_FALSE(EndEntityBatch(where, 1));
    EXPECT_EQ(DataFolderAccess(where, 4, 9), -1);
    EXPECT_EQ(called, "");
  }

  HostFunctionTable table{};
};

TEST_F(HostTable, EntityGoesToEntry15WithZero) {
  ValueNode node{};
  EXPECT_EQ(MakeEntityFromList(&table, &node), 5100);
  EXPECT_EQ(called, "entity list 0");
}

TEST_F(HostTable, BatchStartsWithEntry17) {
  EXPECT_TRUE(BeginEntityBatch(&table));
  EXPECT_EQ(called, "begin");
}

TEST_F(HostTable, BatchEndsWithEntry19) {
  EXPECT_TRUE(EndEntityBatch(&table, 1));
  EXPECT_EQ(called, "end 1");
}

TEST_F(HostTable, DataFolderComesFromEntry1) {
  char buffer[1024];
  EXPECT_TRUE(GetDataFolder(&table, 4, buffer, sizeof buffer));
  EXPECT_EQ(called, "folder 4 1024");
  EXPECT_STREQ(buffer, "C:\\Data\\");
  EXPECT_FALSE(GetDataFolder(&table, 3, buffer, sizeof buffer));
}

TEST_F(HostTable, AccessGoesToEntry44) {
  EXPECT_EQ(DataFolderAccess(&table, 4, 9), 2);
  EXPECT_EQ(called, "access 4 9");
}

TEST_F(HostTable, NullTableGivesTheFallbacks) {
  ExpectFallbacks(nullptr);
}

TEST_F(HostTable, NullEntriesGiveTheFallbacks) {
  const HostFunctionTable empty{};
  ExpectFallbacks(&empty);
}

TEST_F(HostTable, OneNullEntryLeavesTheOthers) {
  table.entries[17] = nullptr;
  ValueNode node{};
  EXPECT_FALSE(BeginEntityBatch(&table));
  EXPECT_EQ(MakeEntityFromList(&table, &node), 5100);
}

TEST_F(HostTable, ThereIsNoneWithoutAHostModule) {
  EXPECT_EQ(GetHostFunctionTable(), nullptr);
}

}  // namespace
}  // namespace brevanta
