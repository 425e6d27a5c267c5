// ListCommand.h - the subcommand "list": lists the roof windows of a drawing.
#pragma once

namespace CLI {
class App;
}

namespace teskarlt {

// Adds the subcommand, which runs when the command line names it and throws what goes wrong.
void AddListCommand(CLI::App& app);

}  // namespace teskarlt
