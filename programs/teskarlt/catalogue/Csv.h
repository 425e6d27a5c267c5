// Csv.h - tables as text with a delimiter between the cells and quotes around cells that need them (RFC
// 4180).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace teskarlt {

struct CsvRow {
  std::size_t line = 0;            // at which it begins, from 1
  std::vector<std::string> cells;  // without blanks around them, unless they stood in quotes
};

// The bytes of a file in UTF-8, without a byte order mark. `encoding` is what the user says, by a name of
// CatalogueEncoding.h; where it is empty, the byte order mark tells, else UTF-8 where the bytes are that,
// else the code page of Czech catalogues. Throws Error, naming `file` and the line, for bytes that are not in
// it.
std::string CsvText(std::string_view bytes, const std::string& encoding, const std::string& file);

// The semicolon, comma or tab that stands most often in the first line outside quotes.
char DelimiterIn(std::string_view text);

// All rows but empty ones. Lines end with LF, CR LF or CR. Throws Error, naming `file` and the line, for a
// quote that is not closed and for a text behind a closed one.
std::vector<CsvRow> ReadCsv(std::string_view text, char delimiter, const std::string& file);

// One row with its line end, LF. Cells are put in quotes where ReadCsv would not bring them back else.
std::string CsvLine(const std::vector<std::string>& cells, char delimiter);

}  // namespace teskarlt
