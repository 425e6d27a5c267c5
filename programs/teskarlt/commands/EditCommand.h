// EditCommand.h - the subcommand "edit": changes a roof window.
#pragma once

namespace CLI {
class App;
}

namespace teskarlt {

// Adds the subcommand, which runs when the command line names it and throws what goes wrong.
void AddEditCommand(CLI::App& app);

}  // namespace teskarlt
