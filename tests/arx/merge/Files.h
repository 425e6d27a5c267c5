// Files.h - a folder of their own for the files of one test.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// An empty folder, removed with everything in it at the end.
class TestFolder {
 public:
  TestFolder();
  ~TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  // The folder's path, without a separator behind it.
  std::string Path() const { return path_.string(); }

  // The path of a file in it.
  std::string operator/(std::string_view name) const { return (path_ / name).string(); }

  // The number of files in it.
  int FileCount() const;

 private:
  std::filesystem::path path_;
};

// Writes the bytes as they stand.
void WriteBytes(const std::string& path, std::string_view bytes);

std::string ReadBytes(const std::string& path);

// As ReadBytes, with the system's line ends as newlines.
std::string ReadText(const std::string& path);

bool FileExists(const std::string& path);
