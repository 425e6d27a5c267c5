// Csv.cpp - encodings, rows and quotes of tables.
#include "teskarlt/catalogue/Csv.h"

#include <algorithm>
#include <array>
#include <optional>

#include <fmt/format.h>

#include "platform/CodePage.h"
#include "teskarlt/Error.h"
#include "teskarlt/catalogue/CatalogueEncoding.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

constexpr std::string_view UTF8_MARK = "\xEF\xBB\xBF";
constexpr std::string_view UTF16_LITTLE_MARK = "\xFF\xFE";
constexpr std::string_view UTF16_BIG_MARK = "\xFE\xFF";
constexpr char QUOTE = '"';

// Takes UTF-16 apart into characters.
class Utf16Reader {
 public:
  Utf16Reader(std::string_view bytes, bool isBigEndian) : bytes_(bytes), isBigEndian_(isBigEndian) {}

  std::string ToUtf8(const std::string& file) {
    std::string text;
    while (at_ < bytes_.size()) {
      const std::optional<char32_t> character = Next();
      if (!character) {
        const auto line = 1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
        throw Error("the line is not in UTF-16", {file, ErrorPlace::Unit::Line, line});
      }
      platform::AppendUtf8(text, *character);
    }
    return text;
  }

 private:
  std::optional<char32_t> Unit() {
    if (at_ + 2 > bytes_.size()) {
      at_ = bytes_.size();
      return std::nullopt;
    }
    const auto first = static_cast<unsigned char>(bytes_[at_]);
    const auto second = static_cast<unsigned char>(bytes_[at_ + 1]);
    at_ += 2;
    constexpr char32_t byteValues = 256;
    return isBigEndian_ ? first * byteValues + second : second * byteValues + first;
  }

  std::optional<char32_t> Next() {
    constexpr char32_t firstHigh = 0xD800;
    constexpr char32_t firstLow = 0xDC00;
    constexpr char32_t endOfLow = 0xE000;
    constexpr char32_t firstOfPairs = 0x10000;
    constexpr char32_t lowValues = 0x400;
    const std::optional<char32_t> unit = Unit();
    if (!unit || *unit < firstHigh || *unit >= endOfLow) return unit;
    const std::optional<char32_t> low = *unit < firstLow ? Unit() : std::nullopt;
    if (!low || *low < firstLow || *low >= endOfLow) return std::nullopt;
    return firstOfPairs + (*unit - firstHigh) * lowValues + (*low - firstLow);
  }

  std::string_view bytes_;
  bool isBigEndian_;
  std::size_t at_ = 0;
};

void RefuseMark(const std::string& encoding, const char* mark, const std::string& file) {
  if (encoding.empty() ||
      (mark == std::string_view("UTF-8") && EncodingNamed(encoding) == CatalogueEncoding::Utf8))
    return;
  throw Error(
      fmt::format("the file begins with the byte order mark of {}, and --encoding says {}", mark, encoding),
      {.file = file, .value = encoding});
}

bool IsLineEnd(char c) {
  return c == '\n' || c == '\r';
}

class CsvReader {
 public:
  CsvReader(std::string_view text, char delimiter, const std::string& file)
      : text_(text), delimiter_(delimiter), file_(file) {}

  bool AtEnd() const { return at_ >= text_.size(); }

  CsvRow NextRow() {
    CsvRow row{line_, {}};
    row.cells.push_back(Cell());
    while (!AtEnd() && text_[at_] == delimiter_) {
      ++at_;
      row.cells.push_back(Cell());
    }
    if (!AtEnd()) SkipLineEnd();
    return row;
  }

 private:
  // Ends at a delimiter, a line end or the end of the text.
  std::string Cell() {
    const std::size_t begin = at_;
    while (!AtEnd() && text_[at_] == ' ' && delimiter_ != ' ')
      ++at_;
    if (!AtEnd() && text_[at_] == QUOTE) return QuotedCell();
    at_ = begin;
    while (!AtEnd() && text_[at_] != delimiter_ && !IsLineEnd(text_[at_]))
      ++at_;
    return std::string(dxf::Trimmed(text_.substr(begin, at_ - begin)));
  }

  std::string QuotedCell() {
    const std::size_t firstLine = line_;
    std::string cell;
    for (++at_; !AtEnd(); ++at_) {
      if (text_[at_] == QUOTE && !text_.substr(at_ + 1).starts_with(QUOTE)) {
        ++at_;
        CheckBehindQuote();
        return cell;
      }
      if (text_[at_] == QUOTE) ++at_;  // of a pair
      if (EndsLine()) ++line_;
      cell += text_[at_];
    }
    throw Error("a quote is opened and never closed", {file_, ErrorPlace::Unit::Line, firstLine});
  }

  void CheckBehindQuote() {
    while (!AtEnd() && text_[at_] == ' ')
      ++at_;
    if (AtEnd() || text_[at_] == delimiter_ || IsLineEnd(text_[at_])) return;
    throw Error("a text stands behind the quote that closes a cell; a quote within one is written twice",
                {file_, ErrorPlace::Unit::Line, line_});
  }

  // Whether the character ends a line; of CR LF, the LF does.
  bool EndsLine() const {
    return text_[at_] == '\n' || (text_[at_] == '\r' && !text_.substr(at_ + 1).starts_with('\n'));
  }

  void SkipLineEnd() {
    if (text_[at_] == '\r' && text_.substr(at_ + 1).starts_with('\n')) ++at_;
    ++at_;
    ++line_;
  }

  std::string_view text_;
  char delimiter_;
  const std::string& file_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
};

bool NeedsQuotes(const std::string& cell, char delimiter) {
  return cell.find_first_of(std::string("\"\r\n") + delimiter) != std::string::npos ||
         dxf::Trimmed(cell).size() != cell.size();
}

}  // namespace

std::string CsvText(std::string_view bytes, const std::string& encoding, const std::string& file) {
  for (const std::string_view mark : {UTF16_LITTLE_MARK, UTF16_BIG_MARK}) {
    if (!bytes.starts_with(mark)) continue;
    RefuseMark(encoding, "UTF-16", file);
    return Utf16Reader(bytes.substr(mark.size()), mark == UTF16_BIG_MARK).ToUtf8(file);
  }
  if (bytes.starts_with(UTF8_MARK)) {
    RefuseMark(encoding, "UTF-8", file);
    return Converted(bytes.substr(UTF8_MARK.size()), CatalogueEncoding::Utf8, CatalogueEncoding::Utf8, file);
  }
  const CatalogueEncoding found = EncodingOf(bytes).value_or(CatalogueEncoding::Utf8);
  return Converted(bytes, encoding.empty() ? found : EncodingNamed(encoding), CatalogueEncoding::Utf8, file);
}

char DelimiterIn(std::string_view text) {
  constexpr std::string_view delimiters = ";,\t";
  std::array<std::size_t, delimiters.size()> counts{};
  bool isQuoted = false;
  for (const char c : text) {
    if (c == QUOTE) isQuoted = !isQuoted;
    if (isQuoted) continue;
    if (IsLineEnd(c)) break;
    if (const auto found = delimiters.find(c); found != std::string_view::npos) ++counts.at(found);
  }
  return delimiters[static_cast<std::size_t>(std::max_element(counts.begin(), counts.end()) -
                                             counts.begin())];
}

std::vector<CsvRow> ReadCsv(std::string_view text, char delimiter, const std::string& file) {
  std::vector<CsvRow> rows;
  CsvReader reader(text, delimiter, file);
  while (!reader.AtEnd()) {
    CsvRow row = reader.NextRow();
    const bool isEmpty =
        std::all_of(row.cells.begin(), row.cells.end(), [](const std::string& cell) { return cell.empty(); });
    if (!isEmpty) rows.push_back(std::move(row));
  }
  return rows;
}

std::string CsvLine(const std::vector<std::string>& cells, char delimiter) {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) line += delimiter;
    if (!NeedsQuotes(cells[i], delimiter)) {
      line += cells[i];
      continue;
    }
    line += QUOTE;
    for (const char c : cells[i])
      line.append(c == QUOTE ? 2 : 1, c);
    line += QUOTE;
  }
  return line + "\n";
}

}  // namespace teskarlt
