// Markdown.h - a sheet as a table in Markdown.
#pragma once

#include <string>

#include "teskarlt/schedule/Sheet.h"

namespace teskarlt::schedule {

// A heading and a table, numbers to the right. What would mean something in Markdown is escaped.
std::string Markdown(const Sheet& sheet);

}  // namespace teskarlt::schedule
