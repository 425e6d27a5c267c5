// RenumberCommand.h - the subcommand "renumber": gives copies of roof windows numbers of their own.
#pragma once

namespace CLI {
class App;
}

namespace teskarlt {

// Adds the subcommand, which runs when the command line names it and throws what goes wrong.
void AddRenumberCommand(CLI::App& app);

}  // namespace teskarlt
