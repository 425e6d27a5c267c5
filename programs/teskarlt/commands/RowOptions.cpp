// RowOptions.cpp - by which the user orders windows in a row.
#include "teskarlt/commands/RowOptions.h"

#include "teskarlt/windows/PointText.h"

namespace teskarlt {

void AddRowOptions(Subcommand& command, RowOptions& options) {
  command.Value("--row", options.count, "so many windows in a row along the eaves, all or none")
      .Named("N")
      .NotEmpty();
  const Option spacing =
      command.Value("--spacing", options.spacing, "the windows' distance from axis to axis")
          .Named("LENGTH")
          .NotEmpty();
  command.Value("--gap", options.gap, "their distance from frame to frame")
      .Named("LENGTH")
      .NotEmpty()
      .Excludes(spacing);
  command.Flag("--column", options.isColumn, "the row runs up the slope");
  command
      .Value("--row-from", options.from,
             "which window stands at the point: left (the default), centre or right as seen from below the "
             "eaves; of a column bottom (the default), centre or top")
      .Named("WORD")
      .NotEmpty();
}

RowOrder RowOf(const RowOptions& options, LengthStyle lengths) {
  RowOrder row;
  if (!options.count.empty()) row.count = ParseRowCount(options.count);
  if (!options.spacing.empty()) row.spacing = ParseDistance("--spacing", options.spacing, lengths);
  if (!options.gap.empty()) row.gap = ParseDistance("--gap", options.gap, lengths);
  if (!options.from.empty()) row.from = options.from;
  if (options.isColumn) row.isColumn = true;
  return row;
}

}  // namespace teskarlt
