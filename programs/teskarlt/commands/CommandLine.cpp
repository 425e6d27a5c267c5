// CommandLine.cpp - parses the command line and runs the subcommand.
#include "teskarlt/commands/CommandLine.h"

#include <cerrno>
#include <cstdio>
#include <new>
#include <system_error>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "teskarlt/commands/CatalogueCommand.h"
#include "teskarlt/commands/CheckCommand.h"
#include "teskarlt/commands/EditCommand.h"
#include "teskarlt/commands/EraseCommand.h"
#include "teskarlt/commands/InsertCommand.h"
#include "teskarlt/commands/ListCommand.h"
#include "teskarlt/commands/MergeCommand.h"
#include "teskarlt/commands/NewCommand.h"
#include "teskarlt/commands/PreviewCommand.h"
#include "teskarlt/commands/RefitCommand.h"
#include "teskarlt/commands/RenumberCommand.h"
#include "teskarlt/commands/RoofsCommand.h"

namespace teskarlt {

namespace {

constexpr const char* VERSION = "teskarlt " TESKARLT_VERSION;

constexpr const char* ABOUT =
    "Roof windows for CAD drawings: puts windows into the roof planes of DXF drawings.\n"
    "Everything else in a drawing keeps its bytes.";

constexpr const char* EXAMPLES =
    "Examples:\n"
    "  teskarlt roofs house.dxf\n"
    "  teskarlt insert house.dxf --at 3000,2000 -o house-with-window.dxf\n"
    "  teskarlt list house-with-window.dxf\n"
    "  teskarlt preview house-with-window.dxf -o house.html\n"
    "  teskarlt check house-with-window.dxf\n"
    "\n"
    "Exit status: 0 done, 1 refused or failed with nothing changed, 2 wrong usage.";

// A command that has done its work and still has to say no sets `status`.
void AddCommands(CLI::App& app, int& status) {
  app.require_subcommand(1);
  app.set_version_flag("-V,--version", VERSION);
  app.footer(EXAMPLES);
  app.get_formatter()->column_width(34);
  app.failure_message([](const CLI::App*, const CLI::Error& error) {
    return fmt::format("teskarlt: {}; --help tells more\n", error.what());
  });
  AddRoofsCommand(app);
  AddInsertCommand(app);
  AddEditCommand(app);
  AddEraseCommand(app);
  AddListCommand(app);
  AddRefitCommand(app);
  AddRenumberCommand(app);
  AddCheckCommand(app, status);
  AddPreviewCommand(app);
  AddNewCommand(app);
  AddCatalogueCommand(app);
  AddMergeCommand(app);
}

// What was printed has to arrive: a full disk shows only when the last of it is written.
void FinishOutput() {
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return;
  throw std::system_error(errno, std::generic_category(), "the answer cannot be printed");
}

}  // namespace

int RunCommandLine(const std::vector<std::string>& arguments) {
  CLI::App app(ABOUT, "teskarlt");
  int status = EXIT_DONE;
  AddCommands(app, status);
  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    FinishOutput();
    return status;
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? EXIT_DONE : EXIT_USAGE;
  } catch (const std::bad_alloc&) {
    fmt::print(stderr, "teskarlt: not enough memory for files of this size\n");
    return EXIT_REFUSED;
  } catch (const std::exception& error) {
    fmt::print(stderr, "teskarlt: {}\n", error.what());
    return EXIT_REFUSED;
  }
}

}  // namespace teskarlt
