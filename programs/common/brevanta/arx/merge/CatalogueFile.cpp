// CatalogueFile.cpp - blocks of a catalogue file taken apart into lines, and lines gathered into blocks.
#include "arx/merge/CatalogueFile.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "inc/LibraryMerge.h"
#include "lttools/SUPP.h"
#include "platform/StdioOperations.h"

namespace brevanta {

CString CataloguePath(std::string_view path) {
  std::string completed(path);
  if (path.ends_with('\\') || path.ends_with('/')) completed += CATALOGUE_FILE;
  return CString(std::string_view(completed));
}

bool IsSectionHeader(std::string_view line) {
  return lttools::MatchPatternList(line, SECTION_PATTERN) == lttools::PATTERN_MATCHES;
}

// The block stays uninitialised: every byte is read into before it is given out.
CatalogueReader::CatalogueReader(const char* path) : stream_(Stdio().open(path, "r")) {}

void CatalogueReader::Close() {
  if (stream_ != nullptr) Stdio().close(stream_);
  stream_ = nullptr;
}

void CatalogueReader::FillBlock() {
  std::memmove(block_, block_ + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  const std::ptrdiff_t count = Stdio().read(block_ + end_, BLOCK_SIZE - end_, stream_);
  failed_ = count == READ_FAILED;
  atEnd_ = failed_ || static_cast<std::size_t>(count) < BLOCK_SIZE - end_;
  if (!failed_) end_ += static_cast<std::size_t>(count);
}

bool CatalogueReader::NextLine() {
  if (end_ - begin_ < LINE_READ_LIMIT && !atEnd_) FillBlock();
  const std::size_t limit = std::min(end_ - begin_, LINE_READ_LIMIT);
  if (limit == 0 || failed_) return false;
  const char* start = block_ + begin_;
  const auto* newline = static_cast<const char*>(std::memchr(start, '\n', limit));
  length_ = newline == nullptr ? limit : static_cast<std::size_t>(newline - start);
  begin_ += newline == nullptr ? length_ : length_ + 1;
  std::memcpy(line_, start, length_);
  line_[length_] = '\0';
  length_ = std::strlen(line_);
  return true;
}

CatalogueWriter::CatalogueWriter(const char* path) : stream_(Stdio().open(path, "w")) {}

void CatalogueWriter::Flush() {
  if (used_ > 0 && !failed_) failed_ = !Stdio().write(block_, used_, stream_);
  used_ = 0;
}

void CatalogueWriter::Write(std::string_view text) {
  while (!text.empty()) {
    if (used_ == BLOCK_SIZE) Flush();
    const std::size_t fitting = std::min(text.size(), BLOCK_SIZE - used_);
    std::memcpy(block_ + used_, text.data(), fitting);
    used_ += fitting;
    text.remove_prefix(fitting);
  }
}

bool CatalogueWriter::Close() {
  if (stream_ == nullptr) return !failed_;
  Flush();
  if (!Stdio().close(stream_)) failed_ = true;
  stream_ = nullptr;
  return !failed_;
}

void WriteLibraryLine(std::string_view line, CatalogueWriter& stream) {
  stream.Write(line);
  stream.Write("\n");
}

}  // namespace brevanta
