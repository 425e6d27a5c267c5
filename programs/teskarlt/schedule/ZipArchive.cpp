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
class Numbers {
 public:
  explicit Numbers(std::string& to) : to_(to) {}

  Numbers& Put16(std::size_t value) { return Put(value, 2); }
  Numbers& Put32(std::size_t value) { return Put(value, 4); }

 private:
  Numbers& Put(std::size_t value, int count) {
    for (int i = 0; i < count; ++i)
      to_ += static_cast<char>(value >> (8U * static_cast<unsigned>(i)) & 0xFFU);
    return *this;
  }

  std::string& to_;
};

std::uint32_t Checksum(std::string_view content) {
  return static_cast<std::uint32_t>(
      crc32(0, reinterpret_cast<const Bytef*>(content.data()), static_cast<uInt>(content.size())));
}

// What both headers of a file tell of it.
void PutDescription(std::string_view name, std::string_view content, Numbers& numbers) {
  numbers.Put16(VERSION_NEEDED).Put16(0).Put16(0);  // no flags, stored
  numbers.Put16(0).Put16(FIRST_DAY);                // midnight
  numbers.Put32(Checksum(content)).Put32(content.size()).Put32(content.size());
  numbers.Put16(name.size()).Put16(0);  // no extra field
}

}  // namespace

void ZipArchive::Add(std::string_view name, std::string_view content) {
  Numbers entry(directory_);
  entry.Put32(CENTRAL_HEADER).Put16(VERSION_NEEDED);
  PutDescription(name, content, entry);
  entry.Put16(0).Put16(0).Put16(0).Put32(0).Put32(files_.size());  // no comment, first disk, no attributes
  directory_ += name;

  Numbers header(files_);
  header.Put32(LOCAL_HEADER);
  PutDescription(name, content, header);
  files_ += name;
  files_ += content;
  ++count_;
}

std::string ZipArchive::Bytes() const {
  std::string bytes = files_ + directory_;
  Numbers end(bytes);
  end.Put32(CENTRAL_END).Put16(0).Put16(0).Put16(count_).Put16(count_);
  end.Put32(directory_.size()).Put32(files_.size()).Put16(0);  // no comment
  return bytes;
}

}  // namespace teskarlt::schedule
