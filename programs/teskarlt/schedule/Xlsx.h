// Xlsx.h - a sheet as a workbook of spreadsheet programs.
#pragma once

#include <string>

#include "teskarlt/schedule/Sheet.h"

namespace teskarlt::schedule {

// The bytes of an Office Open XML workbook with one sheet. Numbers are numbers, the headings stay in sight
// and stand on every printed page, which is as wide as the table. The same sheet gives the same bytes.
std::string Xlsx(const Sheet& sheet);

}  // namespace teskarlt::schedule
