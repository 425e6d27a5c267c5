// EraseCommand.h - the subcommand "erase": takes a roof window out of a drawing.
#pragma once

namespace CLI {
class App;
}

namespace teskarlt {

// Adds the subcommand, which runs when the command line names it and throws what goes wrong.
void AddEraseCommand(CLI::App& app);

}  // namespace teskarlt
