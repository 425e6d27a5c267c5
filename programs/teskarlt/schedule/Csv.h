// Csv.h - a sheet as comma-separated values.
#pragma once

#include <string>

#include "teskarlt/schedule/Sheet.h"

namespace teskarlt::schedule {

struct CsvOptions {
  char delimiter = ',';
  char decimalMark = '.';
  bool hasByteOrderMark = false;  // by which spreadsheet programs know UTF-8
};

// Records after RFC 4180, the headings first. A text that a spreadsheet program would take for a formula has
// an apostrophe in front; numbers are as they are.
std::string Csv(const Sheet& sheet, const CsvOptions& options);

}  // namespace teskarlt::schedule
