// Subcommands.h - the subcommands of the program, each in a source of its own.
#pragma once

#include "teskarlt/terminal/Options.h"

namespace teskarlt {

// Each adds its subcommand, which runs when the command line names it and throws what goes wrong.
void AddApplyCommand(OptionParser& parser);
void AddCatalogueCommand(OptionParser& parser);
void AddCheckCommand(OptionParser& parser);
void AddEditCommand(OptionParser& parser);
void AddEraseCommand(OptionParser& parser);
void AddInsertCommand(OptionParser& parser);
void AddListCommand(OptionParser& parser);
void AddMarkCommand(OptionParser& parser);
void AddMergeCommand(OptionParser& parser);
void AddMoveCommand(OptionParser& parser);
void AddNewCommand(OptionParser& parser);
void AddPreviewCommand(OptionParser& parser);
void AddRefitCommand(OptionParser& parser);
void AddRenumberCommand(OptionParser& parser);
void AddRoofsCommand(OptionParser& parser);
void AddScheduleCommand(OptionParser& parser);
void AddUndoCommand(OptionParser& parser);

}  // namespace teskarlt
