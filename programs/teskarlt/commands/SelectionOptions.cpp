// SelectionOptions.cpp - by which the user says which windows of a drawing a command works on.
#include "teskarlt/commands/SelectionOptions.h"

#include <fmt/format.h>

namespace teskarlt {

void AddSelectionOptions(Subcommand& command, SelectionOptions& options) {
  command.Arguments("NUMBER", options.numbers,
                    "the windows' numbers, as teskarlt list shows them; 4-9 names those from 4 to 9");
  command
      .Value("--where", options.where,
             "only windows whose fields are so: \"width<0.8 and openingCode=D\", with < <= = != >= >; "
             "without numbers, all such windows")
      .Named("CONDITION")
      .NotEmpty();
  command
      .Value("--type", options.type,
             "only windows of that type, as their second text has it; without numbers, all of them")
      .Named("TYPE")
      .NotEmpty();
}

WindowSelection SelectionOf(const SelectionOptions& options, LengthStyle lengths) {
  if (options.numbers.empty() && options.where.empty() && options.type.empty())
    throw UsageError("say which windows: by NUMBER, --where or --type");
  WindowSelection selection;
  for (const std::string& text : options.numbers) {
    const auto range = ParseNumberRange(text);
    if (!range) throw UsageError(fmt::format("NUMBER: {} is no window's number, nor a range as 4-9", text));
    selection.numbers.push_back(*range);
  }
  if (!options.where.empty()) selection.where = WindowCondition(options.where, lengths);
  selection.type = options.type;
  return selection;
}

}  // namespace teskarlt
