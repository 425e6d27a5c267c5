// RoofsCommand.h - the subcommand "roofs": lists the roof faces of a drawing.
#pragma once

namespace CLI {
class App;
}

namespace teskarlt {

// Adds the subcommand, which runs when the command line names it and throws what goes wrong.
void AddRoofsCommand(CLI::App& app);

}  // namespace teskarlt
