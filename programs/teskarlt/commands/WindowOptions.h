// WindowOptions.h - what the command lines that insert and change a window have in common.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "teskarlt/commands/RowOptions.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/terminal/Options.h"
#include "teskarlt/terminal/ResultTarget.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// As the user wrote it; UTF-8, and empty where nothing was written.
struct WindowOptions {
  ResultTarget target;
  const char* pointOption = "--at";  // what the command calls `at`
  std::string at;
  std::string roofName;
  std::vector<std::string> roof;                               // no or three points
  std::map<std::string, std::vector<std::string>> placeWords;  // values by the names of PlaceWords.h
  std::map<std::string, bool> placeFlags;
  std::string window;
  std::string catalogue;
  std::vector<std::string> settings;
  std::string mark;
  RowOptions row;  // of a command that has them
  AskedUnit units;
  std::string lengths;
  bool isStrict = false;
  bool asJson = false;
};

// Adds the options for a window's place to the command: the one for a point, which it gives, those for a
// roof, and the words. The options must outlive the parsing.
Option AddPlaceOptions(Subcommand& command, WindowOptions& options);

// The same, and all options for the window itself and for the result.
Option AddWindowOptions(Subcommand& command, WindowOptions& options);

// Adds -o with --backup, --units, --strict, --dry-run and --json to a command that changes windows. The
// options must outlive the parsing.
void AddResultOptions(Subcommand& command, WindowOptions& options);

// Adds --mark to a command that marks windows, and gives it. The text must outlive the parsing.
Option AddMarkOption(Subcommand& command, std::string& mark);

// Adds --locked to a command that changes a window. The flag must outlive the parsing.
void AddLockedOption(Subcommand& command, bool& isLockedToo);

// The order that the options stand for. Throws Error, naming the option, for a malformed point or setting.
WindowOrder OrderOf(const WindowOptions& options);

}  // namespace teskarlt
