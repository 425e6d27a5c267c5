// NewCommand.cpp - the subcommand "new": makes an empty drawing.
#include "teskarlt/commands/NewCommand.h"

#include <map>
#include <memory>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/NewDrawing.h"

namespace teskarlt {

namespace {

const std::map<std::string, int> VERSIONS = {
    {"R12", dxf::VERSION_R12}, {"R2000", dxf::VERSION_R2000}, {"R2018", dxf::VERSION_R2018}};

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
  drawing.units = UnitByName(options.units).insUnits;
  drawing.layers = {"ROOF", "ROOF_WINDOW_BODY", "ROOF_WINDOW_OPENING", "ROOF_WINDOW_OUTLINE",
                    "ROOF_WINDOW_SYMBOL"};
  drawing.applications = {"TK_LT_ELEM", "TK_LT_DESC"};
  platform::WriteWholeFile(options.file, dxf::NewDrawing(drawing));
  fmt::print("Empty drawing in {} written to {}.\n", options.units, options.file);
}

}  // namespace

void AddNewCommand(CLI::App& app) {
  CLI::App* command =
      app.add_subcommand("new", "Make an empty drawing with units, layers and linetypes ready");
  const auto options = std::make_shared<NewOptions>();
  command->add_option("FILE", options->file, "the drawing to write")->required()->type_name("");
  command->add_option("--units", options->units, "unit of the drawing, mm, cm, dm or m")
      ->type_name("UNIT")
      ->capture_default_str();
  command->add_option("--dxf-version", options->version, "version of the drawing")
      ->type_name("VERSION")
      ->transform(CLI::IsMember(VERSIONS, CLI::ignore_case))
      ->capture_default_str();
  command->add_flag("--force", options->force, "replace a file that is there");
  command->footer("Example: teskarlt new house.dxf --units m");
  command->callback([options] { RunNew(*options); });
}

}  // namespace teskarlt
