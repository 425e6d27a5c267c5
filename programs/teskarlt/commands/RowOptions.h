// RowOptions.h - by which the user orders windows in a row.
#pragma once

#include <string>

#include "teskarlt/drawing/FeetInches.h"
#include "teskarlt/terminal/Options.h"
#include "teskarlt/windows/RowOrder.h"

namespace teskarlt {

// As the user wrote it; empty where nothing was written.
struct RowOptions {
  std::string count;
  std::string spacing;
  std::string gap;
  std::string from;
  bool isColumn = false;
};

// Adds --row and all options behind it to the command. The options must outlive the parsing.
void AddRowOptions(Subcommand& command, RowOptions& options);

// The row that the options stand for, whose plain lengths count as said. Throws Error, naming the option, for
// a malformed one.
RowOrder RowOf(const RowOptions& options, LengthStyle lengths);

}  // namespace teskarlt
