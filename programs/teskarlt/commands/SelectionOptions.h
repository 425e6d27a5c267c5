// SelectionOptions.h - by which the user says which windows of a drawing a command works on.
#pragma once

#include <string>
#include <vector>

#include "teskarlt/terminal/Options.h"
#include "teskarlt/windows/WindowChoice.h"

namespace teskarlt {

// As the user wrote it; UTF-8, and empty where nothing was written.
struct SelectionOptions {
  std::vector<std::string> numbers;
  std::string where;
  std::string type;
};

// Adds NUMBER, --where and --type to the command. The options must outlive the parsing.
void AddSelectionOptions(Subcommand& command, SelectionOptions& options);

// The selection that the options stand for, plain lengths counting as said. Throws UsageError for a malformed
// number and where nothing is said, Error for a malformed condition.
WindowSelection SelectionOf(const SelectionOptions& options, LengthStyle lengths = LengthStyle::Metres);

}  // namespace teskarlt
