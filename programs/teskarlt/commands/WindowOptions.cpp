// WindowOptions.cpp - what the command lines that insert and change a window have in common.
#include "teskarlt/commands/WindowOptions.h"

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/commands/LengthWords.h"
#include "teskarlt/commands/UnitOptions.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/windows/PointText.h"

namespace teskarlt {

namespace {

FieldSetting ParseSetting(const std::string& text) {
  const auto equals = text.find('=');
  if (equals == std::string::npos) {
    throw Error(fmt::format("--set {}: a setting is FIELD=VALUE, as in --set width=0.94", text),
                {.value = text});
  }
  return {text.substr(0, equals), text.substr(equals + 1)};
}

}  // namespace

Option AddWindowOptions(Subcommand& command, WindowOptions& options) {
  const Option at =
      command.Value("--at", options.at, "the place in the drawing; the uppermost roof face over it is taken")
          .Named("X,Y");
  const Option on = command
                        .Value("--on,--roof-face", options.roofName,
                               "the roof or one of its faces, as teskarlt roofs lists them")
                        .Named("NAME");
  command.Values("--roof", 3, options.roof, "three points of the roof's plane").Named("X,Y,Z").Excludes(on);
  const Option window =
      command.Value("--window", options.window, "a catalogue's window, whose sizes and texts are taken")
          .Named("MAKER/KEY")
          .NotEmpty();
  command
      .Value("--catalogue", options.catalogue,
             "the catalogue, or its folder; without it the one in the data folder")
      .Named("FILE")
      .NotEmpty()
      .Needs(window);
  command.Repeated("--set", options.settings, "a value of the window, as often as needed")
      .Named("FIELD=VALUE");
  AddResultOptions(command, options);
  return at;
}

void AddResultOptions(Subcommand& command, WindowOptions& options) {
  options.target.AddOutput(command);
  AddUnitOptions(command, options.units);
  AddLengthsOption(command, options.lengths);
  command.Flag("--strict", options.isStrict,
               "refuse a window that overlaps another or does not lie on a roof face");
  options.target.AddDryRun(command);
  command.Flag("--json", options.asJson, JSON_HELP);
}

void AddLockedOption(Subcommand& command, bool& isLockedToo) {
  command.Flag("--locked", isLockedToo, "change the window though its layer is locked or frozen");
}

WindowOrder OrderOf(const WindowOptions& options) {
  WindowOrder order;
  order.window = options.window;
  order.catalogue = options.catalogue;
  for (const std::string& setting : options.settings)
    order.settings.push_back(ParseSetting(setting));
  if (!options.at.empty()) order.at = ParsePlanPoint("--at", options.at);
  order.roofName = options.roofName;
  for (const std::string& point : options.roof)
    order.roof.push_back(ParsePoint("--roof", point));
  order.row = RowOf(options.row);
  order.isStrict = options.isStrict;
  order.lengths = StyleSaid(options.lengths);
  return order;
}

}  // namespace teskarlt
