// NewCommand.cpp - the subcommand "new": makes an empty drawing.
#include <algorithm>
#include <map>
#include <memory>

#include <fmt/format.h>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/NewDrawing.h"
#include "window/Parts.h"

namespace teskarlt {

namespace {

const std::map<std::string, int> VERSIONS = {
    {"R12", dxf::VERSION_R12}, {"R2000", dxf::VERSION_R2000}, {"R2018", dxf::VERSION_R2018}};

std::vector<std::string> VersionNames() {
  std::vector<std::string> names(VERSIONS.size());
  std::transform(VERSIONS.begin(), VERSIONS.end(), names.begin(),
                 [](const auto& version) { return version.first; });
  return names;
}

struct NewOptions {
  std::string file;
  std::string units = "mm";
  std::string version = "R2000";
  bool force = false;
};

void RunNew(const NewOptions& options) {
  if (!options.force && platform::StateOfFile(options.file).exists) {
    throw Error(fmt::format("{} exists already; --force replaces it", options.file));
  }
  dxf::NewDrawingOptions drawing;
  drawing.version = VERSIONS.at(options.version);
  const DrawingUnit& unit = UnitByName(options.units);
  drawing.units = unit.insUnits;
  drawing.layers = {"ROOF", "ROOF_WINDOW_BODY", "ROOF_WINDOW_OPENING", "ROOF_WINDOW_OUTLINE",
                    "ROOF_WINDOW_SYMBOL"};
  drawing.applications = {brevanta::ELEMENT_APPLICATION, brevanta::DESCRIPTION_APPLICATION};
  platform::WriteWholeFile(options.file, dxf::NewDrawing(drawing));
  fmt::print("Empty drawing in {} written to {}.\n", unit.name, options.file);
}

}  // namespace

void AddNewCommand(OptionParser& parser) {
  Subcommand command = parser.Add("new", "Make an empty drawing with units, layers and linetypes ready");
  const auto options = std::make_shared<NewOptions>();
  command.Argument("FILE", options->file, "the drawing to write").Required();
  command.Value("--units", options->units, fmt::format("unit of the drawing: {}", UNIT_NAMES).c_str())
      .Named("UNIT")
      .ShowDefault();
  command.Value("--dxf-version", options->version, "version of the drawing")
      .Named("VERSION")
      .OneOfAnyCase(VersionNames())
      .ShowDefault();
  command.Flag("--force", options->force, "replace a file that is there");
  command.Footer("Example: teskarlt new house.dxf --units m");
  command.Run([options] { RunNew(*options); });
}

}  // namespace teskarlt
