// CatalogueFile.h - reading and writing the lines of a catalogue file.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string_view>

#include "platform/CString.h"

namespace brevanta {

// At most this many characters come in one read of a line, the newline counted: the first 254 of a longer
// line are a line of their own and the rest follows as further lines. When exactly 254 come before the
// newline, that stays for the next read, which gives an empty line.
constexpr std::size_t LINE_READ_LIMIT = 254;

// The catalogue that a path names: with the catalogue's file name appended when it ends in a backslash or a
// slash, else as it stands.
CString CataloguePath(std::string_view path);

// True for a line that heads a section.
bool IsSectionHeader(std::string_view line);

// Reads a catalogue in text mode, line by line. Closes it at the end of its life.
class CatalogueReader {
 public:
  explicit CatalogueReader(const char* path);
  ~CatalogueReader() { Close(); }
  CatalogueReader(const CatalogueReader&) = delete;
  CatalogueReader& operator=(const CatalogueReader&) = delete;

  bool IsOpen() const { return stream_ != nullptr; }
  void Close();

  // Goes to the next line; false at the end of the file and when reading fails.
  bool NextLine();

  // The current line without its newline, cut at a zero byte, terminated. Valid until the next line.
  const char* Text() const { return line_; }
  std::string_view Line() const { return {line_, length_}; }

  // True when the file ended early because it could not be read.
  bool Failed() const { return failed_; }

 private:
  void FillBlock();

  static constexpr std::size_t BLOCK_SIZE = 65536;

  std::FILE* stream_;
  bool atEnd_ = false;
  bool failed_ = false;
  std::size_t begin_ = 0;  // what is not yet given out of the block
  std::size_t end_ = 0;
  std::size_t length_ = 0;
  char line_[LINE_READ_LIMIT + 1] = {};
  char block_[BLOCK_SIZE];
};

// Creates or empties a catalogue in text mode and writes to it. Nothing it does takes memory, so a rewrite
// that has begun cannot run short of it.
class CatalogueWriter {
 public:
  explicit CatalogueWriter(const char* path);
  ~CatalogueWriter() { Close(); }
  CatalogueWriter(const CatalogueWriter&) = delete;
  CatalogueWriter& operator=(const CatalogueWriter&) = delete;

  bool IsOpen() const { return stream_ != nullptr; }
  void Write(std::string_view text);

  // True when everything written has reached the system.
  bool Close();

 private:
  void Flush();

  static constexpr std::size_t BLOCK_SIZE = 65536;

  std::FILE* stream_;
  bool failed_ = false;
  std::size_t used_ = 0;
  char block_[BLOCK_SIZE];
};

// Writes the line and one newline behind it.
void WriteLibraryLine(std::string_view line, CatalogueWriter& stream);

}  // namespace brevanta
