// CatalogueCommand.h - the subcommand "catalogue": shows a window catalogue.
#pragma once

namespace CLI {
class App;
}

namespace teskarlt {

// Adds the subcommand, which runs when the command line names it and throws what goes wrong.
void AddCatalogueCommand(CLI::App& app);

}  // namespace teskarlt
