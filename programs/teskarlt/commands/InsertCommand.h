// InsertCommand.h - the subcommand "insert": inserts a roof window.
#pragma once

namespace CLI {
class App;
}

namespace teskarlt {

// Adds the subcommand, which runs when the command line names it and throws what goes wrong.
void AddInsertCommand(CLI::App& app);

}  // namespace teskarlt
