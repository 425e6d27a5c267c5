// PreviewCommand.h - the subcommand "preview": makes a picture or a model of a drawing.
#pragma once

namespace CLI {
class App;
}

namespace teskarlt {

// Adds the subcommand, which runs when the command line names it and throws what goes wrong.
void AddPreviewCommand(CLI::App& app);

}  // namespace teskarlt
