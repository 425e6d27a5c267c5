// CheckCommand.h - the subcommand "check": tells what is wrong with a drawing.
#pragma once

namespace CLI {
class App;
}

namespace teskarlt {

// Adds the subcommand, which runs when the command line names it and throws what goes wrong. A drawing with
// errors sets `status`, which must outlive the app.
void AddCheckCommand(CLI::App& app, int& status);

}  // namespace teskarlt
