// UnitOptions.cpp - the options by which the user says a drawing's unit.
#include "teskarlt/commands/UnitOptions.h"

#include <fmt/format.h>

namespace teskarlt {

void AddUnitOptions(Subcommand& command, AskedUnit& unit) {
  const Option units =
      command
          .Value("--units", unit.name,
                 fmt::format("unit of a drawing that does not say it: {}", UNIT_NAMES).c_str())
          .Named("UNIT");
  command.Flag("--force-units", unit.isForced, "take --units though the drawing says another unit")
      .Needs(units);
}

}  // namespace teskarlt
