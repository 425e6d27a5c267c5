// CommandLine.cpp - parses the command line and runs the subcommand.
#include "teskarlt/commands/CommandLine.h"

#include <cerrno>
#include <cstdio>
#include <new>
#include <system_error>

#include "platform/FileOperations.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/terminal/Messages.h"

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
    "Exit status: 0 done, 1 refused or failed with nothing changed, 2 wrong usage, 3 written and then "
    "failed.";

void AddCommands(OptionParser& parser) {
  AddRoofsCommand(parser);
  AddInsertCommand(parser);
  AddEditCommand(parser);
  AddMoveCommand(parser);
  AddEraseCommand(parser);
  AddApplyCommand(parser);
  AddListCommand(parser);
  AddScheduleCommand(parser);
  AddRefitCommand(parser);
  AddRenumberCommand(parser);
  AddMarkCommand(parser);
  AddUndoCommand(parser);
  AddCheckCommand(parser);
  AddPreviewCommand(parser);
  AddNewCommand(parser);
  AddCatalogueCommand(parser);
  AddMergeCommand(parser);
}

// What was printed has to arrive: a full disk shows only when the last of it is written.
void FinishOutput() {
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return;
  throw std::system_error(errno, std::generic_category(), "the answer cannot be printed");
}

// The status of a failure; a file that was written stays.
int Failed(const std::string& message) {
  Tell(message);
  return platform::HasWrittenFile() ? EXIT_WRITTEN : EXIT_REFUSED;
}

}  // namespace

int RunCommandLine(const std::vector<std::string>& arguments) {
  OptionParser parser("teskarlt", ABOUT, VERSION, EXAMPLES);
  AddCommands(parser);
  try {
    const int status = parser.Run(arguments);
    FinishOutput();
    return status;
  } catch (const std::bad_alloc&) {
    return Failed("not enough memory for files of this size");
  } catch (const std::system_error& error) {  // most often of printing
    return Failed(std::string(error.what()) + (platform::HasWrittenFile() ? "; the file is written" : ""));
  } catch (const std::exception& error) {
    return Failed(error.what());
  }
}

}  // namespace teskarlt
