// XsortFixture.h - a test with its own table file, which starts and ends without a table.
#pragma once

#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/CountingHeap.h"
#include "xsort.h"

namespace xsort {

class XsortTest : public testing::Test {
 protected:
  void SetUp() override {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    path_ = std::string(info->test_suite_name()) + "." + info->name() + ".tbl";
    for (char& c : path_) {
      if (c == '/') c = '_';
    }
    counting_heap::Reset();
  }

  void TearDown() override {
    XsortUnload();
    EXPECT_EQ(counting_heap::Allocations(), counting_heap::Releases());
    std::filesystem::remove_all(path_);
  }

  [[nodiscard]] const std::string& Path() const { return path_; }

  void Write(const std::string& text) const { std::ofstream(path_, std::ios::binary) << text; }

  [[nodiscard]] int Load() const { return XsortLoad(path_.c_str()); }

  [[nodiscard]] int LoadText(const std::string& text) const {
    Write(text);
    return Load();
  }

  // The key, found through a buffer of exactly the size that is asked for.
  static std::string Key(const std::string& text) {
    const std::unique_ptr<char[]> buffer(new char[text.size() + 1]);
    EXPECT_EQ(XsortKey(text.c_str(), buffer.get()), 0);
    return buffer.get();
  }

  static int Sign(int order) { return order < 0 ? -1 : order > 0 ? 1 : 0; }

  static int Compare(const std::string& a, const std::string& b) {
    return Sign(XsortCompare(a.c_str(), b.c_str()));
  }

  // n different tokens of two letters, separated by blanks.
  static std::string Tokens(int n) {
    std::string text;
    for (int i = 0; i < n; ++i) {
      text += static_cast<char>('a' + i / 26);
      text += static_cast<char>('A' + i % 26);
      text += ' ';
    }
    return text;
  }

 private:
  std::string path_;
};

}  // namespace xsort
