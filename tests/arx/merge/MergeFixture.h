// MergeFixture.h - a target and a source catalogue in a folder of their own.
#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "Files.h"
#include "arx/merge/MergeLibraryFiles.h"
#include "inc/LibraryMerge.h"

namespace brevanta {

class MergeTest : public testing::Test {
 protected:
  std::string Target() const { return folder / CATALOGUE_FILE; }
  std::string Backup() const { return folder / "BREVANTA.OLD"; }
  std::string Source() const { return folder / "update.LIB"; }

  void Write(std::string_view target, std::string_view source) const {
    WriteBytes(Target(), target);
    WriteBytes(Source(), source);
  }

  std::int32_t Merge() const {
    return mergeLibraryFiles(nullptr, Source().c_str(), Target().c_str(), CATALOGUE_FOLDER_KIND);
  }

  // The target after a merge of these two, with newlines as line ends.
  std::string Merged(std::string_view target, std::string_view source) const {
    Write(target, source);
    EXPECT_EQ(Merge(), MERGE_DONE);
    EXPECT_FALSE(FileExists(Backup()));
    EXPECT_EQ(ReadBytes(Source()), source);
    return ReadText(Target());
  }

  TestFolder folder;
};

}  // namespace brevanta
