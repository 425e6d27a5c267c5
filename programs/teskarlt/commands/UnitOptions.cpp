// UnitOptions.cpp - the options by which the user says a drawing's unit.
#include "teskarlt/commands/UnitOptions.h"

namespace teskarlt {

void AddUnitOptions(Subcommand& command, AskedUnit& unit) {
  const Option units =
      command.Value("--units", unit.name, "unit of a drawing that does not say it: mm, cm, dm or m")
          .Named("UNIT");
  command.Flag("--force-units", unit.isForced, "take --units though the drawing says another unit")
      .Needs(units);
}

}  // namespace teskarlt
