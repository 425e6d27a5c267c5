// Files.cpp - files for tests.
#include "Files.h"

#include <chrono>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

std::string Read(const std::string& path, std::ios::openmode mode) {
  std::ifstream file(path, mode);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

TestFolder::TestFolder() {
  static int number = 0;
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  path_ = fs::temp_directory_path() / ("brevanta" + std::to_string(now) + "_" + std::to_string(++number));
  fs::create_directories(path_);
}

TestFolder::~TestFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

int TestFolder::FileCount() const {
  return static_cast<int>(std::distance(fs::directory_iterator(path_), fs::directory_iterator()));
}

void WriteBytes(const std::string& path, std::string_view bytes) {
  std::error_code missing;
  fs::remove(path, missing);  // some file systems flush a file that is emptied and written again
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string ReadBytes(const std::string& path) {
  return Read(path, std::ios::binary);
}

std::string ReadText(const std::string& path) {
  return Read(path, {});
}

bool FileExists(const std::string& path) {
  return fs::exists(path);
}
