// UnitOptions.h - the options by which the user says a drawing's unit.
#pragma once

#include "teskarlt/drawing/Units.h"
#include "teskarlt/terminal/Options.h"

namespace teskarlt {

// Adds --units and --force-units to the command. The unit must outlive the parsing.
void AddUnitOptions(Subcommand& command, AskedUnit& unit);

}  // namespace teskarlt
