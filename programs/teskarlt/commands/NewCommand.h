// NewCommand.h - the subcommand "new": makes an empty drawing.
#pragma once

namespace CLI {
class App;
}

namespace teskarlt {

// Adds the subcommand, which runs when the command line names it and throws what goes wrong.
void AddNewCommand(CLI::App& app);

}  // namespace teskarlt
