// RefitCommand.h - the subcommand "refit": puts windows back onto roofs that have changed.
#pragma once

namespace CLI {
class App;
}

namespace teskarlt {

// Adds the subcommand, which runs when the command line names it and throws what goes wrong.
void AddRefitCommand(CLI::App& app);

}  // namespace teskarlt
