// ZipArchive.cpp - several files in one.
#include "teskarlt/schedule/ZipArchive.h"

#include <cstddef>
#include <cstdint>

#include <zlib.h>

namespace teskarlt::schedule {

namespace {

constexpr std::uint32_t LOCAL_HEADER = 0x04034B50;
constexpr std::uint32_t CENTRAL_HEADER = 0x02014B50;
constexpr std::uint32_t CENTRAL_END = 0x06054B50;
constexpr std::uint16_t VERSION_NEEDED = 20;          // 2.0
constexpr std::uint16_t FIRST_DAY = (1U << 5U) | 1U;  // month 1, day 1 of 1980

// Appends numbers with the lowest byte first.
class Bytes {
 public:
  explicit Bytes(std::string& to) : to_(to) {}

  Bytes& Put16(std::size_t value) { return Put(value, 2); }
  Bytes& Put32(std::size_t value) { return Put(value, 4); }

 private:
  Bytes& Put(std::size_t value, int count) {
    for (int i = 0; i < count; ++i)
      to_ += static_cast<char>(value >> (8U * static_cast<unsigned>(i)) & 0xFFU);
    return *this;
  }

  std::string& to_;
};

std::uint32_t Checksum(const std::string& content) {
  return static_cast<std::uint32_t>(
      crc32(0, reinterpret_cast<const Bytef*>(content.data()), static_cast<uInt>(content.size())));
}

// What both headers of a file tell of it.
void PutDescription(const ArchivedFile& file, Bytes& bytes) {
  bytes.Put16(VERSION_NEEDED).Put16(0).Put16(0);  // no flags, stored
  bytes.Put16(0).Put16(FIRST_DAY);                // midnight
  bytes.Put32(Checksum(file.content)).Put32(file.content.size()).Put32(file.content.size());
  bytes.Put16(file.name.size()).Put16(0);  // no extra field
}

void PutCentralHeader(const ArchivedFile& file, std::size_t offset, std::string& directory) {
  Bytes bytes(directory);
  bytes.Put32(CENTRAL_HEADER).Put16(VERSION_NEEDED);
  PutDescription(file, bytes);
  bytes.Put16(0).Put16(0).Put16(0).Put32(0).Put32(offset);  // no comment, first disk, no attributes
  directory += file.name;
}

}  // namespace

std::string ZipArchive(const std::vector<ArchivedFile>& files) {
  std::string archive;
  std::string directory;
  for (const ArchivedFile& file : files) {
    PutCentralHeader(file, archive.size(), directory);
    Bytes bytes(archive);
    bytes.Put32(LOCAL_HEADER);
    PutDescription(file, bytes);
    archive += file.name + file.content;
  }
  const std::size_t begin = archive.size();
  archive += directory;
  Bytes(archive).Put32(CENTRAL_END).Put16(0).Put16(0).Put16(files.size()).Put16(files.size());
  Bytes(archive).Put32(directory.size()).Put32(begin).Put16(0);
  return archive;
}

}  // namespace teskarlt::schedule
