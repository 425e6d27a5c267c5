// MergeCommand.h - the subcommand "merge": merges one window catalogue into another.
#pragma once

namespace CLI {
class App;
}

namespace teskarlt {

// Adds the subcommand, which runs when the command line names it and throws what goes wrong.
void AddMergeCommand(CLI::App& app);

}  // namespace teskarlt
