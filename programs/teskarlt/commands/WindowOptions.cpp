// WindowOptions.cpp - what the command lines that insert and change a window have in common.
#include "teskarlt/commands/WindowOptions.h"

#include <span>

#include <fmt/format.h>

#include "inc/DialogServices.h"
#include "teskarlt/Error.h"
#include "teskarlt/commands/LengthWords.h"
#include "teskarlt/commands/UnitOptions.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/windows/PlaceWords.h"
#include "teskarlt/windows/PointText.h"

namespace teskarlt {

namespace {

FieldSetting ParseSetting(const std::string& text, LengthStyle lengths) {
  const auto equals = text.find('=');
  if (equals == std::string::npos) {
    throw Error(fmt::format("--set {}: a setting is FIELD=VALUE, as in --set width=0.94", text),
                {.value = text});
  }
  return {text.substr(0, equals), text.substr(equals + 1), lengths};
}

std::string Joined(const std::vector<std::string>& values) {
  std::string text;
  for (const std::string& value : values)
    text += (text.empty() ? "" : std::string(1, brevanta::POINT_DELIMITER)) + value;
  return text;
}

void AddPlaceWords(Subcommand& command, std::span<const PlaceWord> words, const char* heading,
                   WindowOptions& options) {
  for (const PlaceWord& word : words) {
    const std::string name = fmt::format("--{}", word.name);
    if (word.values == 0) {
      command.Flag(name.c_str(), options.placeFlags[word.name], word.help).Under(heading);
    } else {
      command.Values(name.c_str(), word.values, options.placeWords[word.name], word.help)
          .Named(word.valueName)
          .Under(heading);
    }
  }
}

void ApplyPlaceWords(const WindowOptions& options, WindowOrder& order) {
  for (const auto& [name, values] : options.placeWords) {
    const PlaceWord& word = *FindPlaceWord(name);
    if (!values.empty()) word.apply(word, Joined(values), order);
  }
  for (const auto& [name, isGiven] : options.placeFlags) {
    const PlaceWord& word = *FindPlaceWord(name);
    if (isGiven) word.apply(word, "1", order);
  }
}

}  // namespace

Option AddPlaceOptions(Subcommand& command, WindowOptions& options) {
  const Option point = command
                           .Value(options.pointOption, options.at,
                                  "the place in the drawing; the uppermost roof face over it is taken")
                           .Named("X,Y");
  const Option on = command
                        .Value("--on,--roof-face", options.roofName,
                               "the roof or one of its faces, as teskarlt roofs lists them")
                        .Named("NAME");
  command.Values("--roof", 3, options.roof, "three points of the roof's plane").Named("X,Y,Z").Excludes(on);
  AddPlaceWords(command, PlanRoofWords(), "A roof that is only drawn in plan", options);
  AddPlaceWords(command, PlacingWords(), "The place on the roof", options);
  return point;
}

Option AddWindowOptions(Subcommand& command, WindowOptions& options) {
  const Option at = AddPlaceOptions(command, options);
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
  AddMarkOption(command, options.mark);
  AddResultOptions(command, options);
  return at;
}

void AddResultOptions(Subcommand& command, WindowOptions& options) {
  options.target.AddOutput(command);
  AddUnitOptions(command, options.units);
  AddLengthsOption(command, options.lengths);
  command.Flag(
      "--strict", options.isStrict,
      "refuse a window in whose way something stands: another window, a chimney, an edge of its roof");
  const PlaceWord& clearance = ClearanceWord();
  command.Values("--clearance", clearance.values, options.placeWords[clearance.name], clearance.help)
      .Named(clearance.valueName);
  options.target.AddDryRun(command);
  command.Flag("--json", options.asJson, JSON_HELP);
}

Option AddMarkOption(Subcommand& command, std::string& mark) {
  return command
      .Value("--mark", mark,
             "the window's mark: a text, in which {number}, {roof} and {type} stand for the window's and "
             "{run} for "
             "the first number that is free; W{number:02} is W07 for window 7")
      .Named("MARK")
      .NotEmpty();
}

void AddLockedOption(Subcommand& command, bool& isLockedToo) {
  command.Flag("--locked", isLockedToo, "change the window though its layer is locked or frozen");
}

WindowOrder OrderOf(const WindowOptions& options) {
  WindowOrder order;
  order.lengths = StyleSaid(options.lengths);
  order.window = options.window;
  order.mark = options.mark;
  order.catalogue = options.catalogue;
  for (const std::string& setting : options.settings)
    order.settings.push_back(ParseSetting(setting, order.lengths));
  if (!options.at.empty()) order.at = ParsePlanPoint(options.pointOption, options.at);
  order.roofName = options.roofName;
  for (const std::string& point : options.roof)
    order.roof.push_back(ParsePoint("--roof", point));
  order.row = RowOf(options.row, order.lengths);
  const bool namesRoof = !order.roofName.empty() || !order.roof.empty();
  ApplyPlaceWords(options, order);
  if (namesRoof && order.planRoof.IsGiven())
    throw Error("--eaves and --ridge give the roof already; leave --on and --roof out");
  order.isStrict = options.isStrict;
  return order;
}

}  // namespace teskarlt
