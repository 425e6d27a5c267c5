// Html.h - a sheet as a page for browsers and printers.
#pragma once

#include <string>

#include "teskarlt/schedule/Sheet.h"

namespace teskarlt::schedule {

// One file that needs no other. It prints across the paper, whatever its size is, with the headings on every
// page.
std::string Html(const Sheet& sheet);

// The sheet alone, an element <table>; cells of numbers are of the class "n".
std::string HtmlTable(const Sheet& sheet);

}  // namespace teskarlt::schedule
