// PreviewCommand.cpp - the subcommand "preview": makes a picture or a model of a drawing.
#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include <fmt/format.h>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/commands/FileEnding.h"
#include "teskarlt/commands/PaperOptions.h"
#include "teskarlt/commands/PictureSize.h"
#include "teskarlt/commands/PreviewSchedule.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/UnitOptions.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/preview/Glb.h"
#include "teskarlt/preview/Page.h"
#include "teskarlt/preview/Png.h"
#include "teskarlt/preview/Raster.h"
#include "teskarlt/preview/SceneReader.h"
#include "teskarlt/preview/Svg.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Report.h"

namespace teskarlt {

namespace {

constexpr int SVG_WIDTH = 1000;
constexpr int PNG_WIDTH = 1600;
constexpr const char* FORMATS[] = {"svg", "png", "html", "glb"};

struct PreviewOptions {
  std::string file;
  std::string output;
  std::string format;
  std::string view;
  AskedUnit units;
  std::vector<std::string> layers;
  std::optional<int> window;
  std::optional<int> width;
  std::string size;  // width and height
  bool isTransparent = false;
  bool withTags = false;
  bool withRoofs = false;
  std::string roof;  // to zoom to
  PaperOptions paper;
};

std::string FormatOf(const PreviewOptions& options) {
  if (!options.format.empty()) return options.format;
  if (const char* const format = FormatByEnding(options.output, FORMATS)) return format;
  throw UsageError(fmt::format(
      "-o: the ending of {} names no format; end it in .svg, .png, .html or .glb, or give --format",
      options.output));
}

bool IsPicture(const std::string& format) {
  return format == "svg" || format == "png";
}

// What a plan on paper has no use for is wrong usage.
void RefuseBesidePaper(const PreviewOptions& options, const std::string& format) {
  const char* const asked = options.paper.scale ? "--scale" : "--paper";
  if (format != "svg") throw UsageError(fmt::format("{}: is for .svg files, not for .{}", asked, format));
  if (!options.view.empty() && options.view != "plan")
    throw UsageError(fmt::format("{}: is for the plan; leave --view {} out", asked, options.view));
  if (options.width) throw UsageError(fmt::format("{}: says the size already; leave --width out", asked));
}

// What a format has no use for is wrong usage.
void RefuseUnusable(const PreviewOptions& options, const std::string& format) {
  const bool isFlat = IsPicture(format);
  const auto refuse = [&](const char* option) {
    throw UsageError(fmt::format("{}: has no meaning for a .{} file", option, format));
  };
  if (!isFlat && !options.view.empty()) refuse("--view");
  if (!isFlat && options.width) refuse("--width");
  if (!isFlat && options.withRoofs) refuse("--roofs");
  if (!isFlat && !options.roof.empty()) refuse("--on");
  if (format != "png" && !options.size.empty()) refuse("--size");
  if (format != "png" && options.isTransparent) refuse("--transparent");
  if (format != "png" && options.withTags) refuse("--tags");
  if (options.width && !options.size.empty())
    throw UsageError("--size: says the width already; leave --width out");
  if (!options.size.empty()) ReadPictureSize(options.size);
  if (format == "glb" && options.window) refuse("--window");
  RefuseUnusable(options.paper);
  if (options.paper.IsGiven()) RefuseBesidePaper(options, format);
}

std::optional<std::size_t> WindowIndex(const PreviewOptions& options, const preview::Scene& scene) {
  if (!options.window) return std::nullopt;
  const auto found = std::find_if(scene.windows.begin(), scene.windows.end(), [&](const auto& window) {
    return window.number == *options.window && !window.box.IsEmpty();
  });
  if (found == scene.windows.end())
    throw Error(fmt::format("{}: no window with the number {} is to be seen", options.file, *options.window));
  return static_cast<std::size_t>(found - scene.windows.begin());
}

std::optional<std::size_t> RoofIndex(const PreviewOptions& options, const preview::Scene& scene) {
  if (options.roof.empty()) return std::nullopt;
  const auto found = std::find_if(scene.roofs.begin(), scene.roofs.end(),
                                  [&](const auto& roof) { return dxf::SameName(roof.name, options.roof); });
  if (found == scene.roofs.end()) {
    throw Error(fmt::format("{}: no roof with the name {} is to be seen; teskarlt roofs lists them",
                            options.file, options.roof));
  }
  return static_cast<std::size_t>(found - scene.roofs.begin());
}

void ReportUntagged(std::size_t count) {
  if (count == 0) return;
  TellNote(fmt::format("{} window{} no room for {} in this picture; a greater --size may give it", count,
                       count == 1 ? " has" : "s have", count == 1 ? "its tag" : "their tags"));
}

void ReportUnnamed(std::size_t count) {
  if (count == 0) return;
  TellNote(fmt::format(
      "{} roof{} {} no room for {} in this picture; a greater --width or another --view may give it", count,
      count == 1 ? "" : "s", count == 1 ? "has" : "have", count == 1 ? "its name" : "their names"));
}

std::string MadePng(const PreviewOptions& options, const preview::Scene& scene,
                    preview::PictureOptions picture) {
  if (!options.size.empty()) {
    const PictureSize size = ReadPictureSize(options.size);
    picture.width = size.width;
    picture.height = size.height;
  }
  picture.isTransparent = options.isTransparent;
  picture.withTags = options.withTags;
  const preview::Picture made = preview::Render(scene, picture);
  ReportUnnamed(made.unnamedRoofs);
  ReportUntagged(made.untaggedWindows);
  return preview::Png(made);
}

std::string MadePicture(const PreviewOptions& options, const std::string& format,
                        const preview::Scene& scene) {
  const std::optional<std::size_t> window = WindowIndex(options, scene);
  const bool isSvg = format == "svg";
  preview::PictureOptions picture;
  picture.view = preview::FindView(!options.view.empty() ? options.view : isSvg ? "plan" : "iso");
  picture.width = options.width.value_or(isSvg ? SVG_WIDTH : PNG_WIDTH);
  picture.zoom = {window, RoofIndex(options, scene)};
  if (isSvg) {
    preview::VectorPicture made = preview::Svg(scene, picture);
    ReportUnnamed(made.unnamedRoofs);
    return std::move(made.text);
  }
  return MadePng(options, scene, picture);
}

// What the schedule says of the windows is only read where it is shown.
std::string Made(const PreviewOptions& options, const std::string& format, const dxf::Document& drawing,
                 preview::Scene& scene) {
  if (IsPicture(format) && !options.withTags) return MadePicture(options, format, scene);
  WindowIndex(options, scene);  // a window that is not there is refused
  schedule::Schedule schedule = DescribeWindows(drawing, options.units, scene);
  if (format == "glb") return preview::Glb(scene);
  if (format == "html") return preview::Page(scene, PageScheduleOf(std::move(schedule)), options.window);
  return MadePicture(options, format, scene);
}

// What the picture leaves out of the drawing.
void ReportLeftOut(const preview::Scene& scene, bool isPlan) {
  std::map<std::string, std::size_t> leftOut = scene.leftOut;
  if (!isPlan) {
    for (const auto& [type, count] : scene.planOnly)
      leftOut[type] += count;
  }
  std::string list;
  for (const auto& [type, count] : leftOut)
    list += fmt::format("{}{} {}", list.empty() ? "" : ", ", count, type);
  if (!list.empty()) Tell("not shown: " + list);
}

// A plan to scale; what is told of it.
std::string PutOnPaper(const PreviewOptions& options, const dxf::Document& drawing) {
  const DrawingUnit& unit = UnitOf(drawing, options.units);
  const preview::Scene scene = preview::ReadScene(drawing, {options.units, options.layers, true});
  const preview::Zoom zoom{WindowIndex(options, scene), RoofIndex(options, scene)};
  const plot::Plot plot = PlotOf(drawing, unit, scene, zoom, options.paper);
  platform::WriteWholeFile(options.output, plot.text);
  ReportLeftOut(scene, true);
  return fmt::format("{} written, 1:{} on {}.\n", options.output, plot.scale, plot.paper);
}

void RunPreview(const PreviewOptions& options) {
  const std::string format = FormatOf(options);
  RefuseUnusable(options, format);
  const dxf::Document drawing = dxf::Document::Load(options.file);
  if (options.paper.IsGiven()) {
    fmt::print("{}", PutOnPaper(options, drawing));
    return;
  }
  preview::Scene scene = preview::ReadScene(
      drawing, {options.units, options.layers, options.withRoofs || !options.roof.empty()});
  platform::WriteWholeFile(options.output, Made(options, format, drawing, scene));
  ReportLeftOut(scene, format == "svg" && (options.view.empty() || options.view == "plan"));
  fmt::print("{} written.\n", options.output);
}

void AddPictureOptions(Subcommand& command, PreviewOptions& options, const Option& window) {
  command.Value("--width", options.width, "width of the picture, from 100 to 10000")
      .Named("PIXELS")
      .Within(LEAST_PIXELS, MOST_PIXELS);
  command
      .Value("--size", options.size,
             "width and height of the picture, in which the drawing stands in the middle (.png)")
      .Named("WxH")
      .NotEmpty();
  command.Flag("--transparent", options.isTransparent,
               "leave the ground out, so that the picture can be put onto another (.png)");
  command.Value("--on", options.roof, "zoom to the roof of this name, with the names of --roofs")
      .Named("ROOF")
      .Excludes(window);
  command.Flag("--roofs", options.withRoofs,
               "write the names of the roofs, as teskarlt roofs lists them, onto them (.svg, .png)");
  command.Flag("--tags", options.withTags,
               "write the windows' names onto them, as schedules have them (.png)");
}

}  // namespace

void AddPreviewCommand(OptionParser& parser) {
  Subcommand command = parser.Add("preview", "Make a picture, a page or a 3D model of a drawing");
  const auto options = std::make_shared<PreviewOptions>();
  command.Argument("FILE", options->file, "the drawing").Required();
  command.Value("-o,--output", options->output, "the file to write: .svg, .png, .html or .glb")
      .Required()
      .Named("FILE");
  command.Value("--format", options->format, "svg, png, html or glb, whatever the file's ending is")
      .Named("FORMAT")
      .OneOf({std::begin(FORMATS), std::end(FORMATS)});
  command.Value("--view", options->view, "plan, iso, south, north, east or west; plan for .svg, iso for .png")
      .Named("VIEW")
      .OneOf({"plan", "iso", "south", "north", "east", "west"});
  const Option window =
      command.Value("--window", options->window, "zoom to the window with this number").Named("NUMBER");
  command.Many("--layer", options->layers, "show this layer only; several may be given").Named("LAYER");
  AddPictureOptions(command, *options, window);
  AddUnitOptions(command, options->units);
  AddPaperOptions(command, options->paper);
  command.Footer(
      "A .svg is a drawing with title, scale bar and a group for each layer; a .png is seen from the "
      "south-east;\n"
      "a .html is a page of its own in which the drawing can be turned; a .glb is a model for other "
      "programs.\n"
      "Examples:\n"
      "  teskarlt preview house.dxf -o plan.svg\n"
      "  teskarlt preview house.dxf -o south.svg --view south\n"
      "  teskarlt preview house.dxf -o roofs.svg --roofs\n"
      "  teskarlt preview house.dxf -o plan.svg --scale 50 --paper A2 --project \"House B\" --date "
      "2026-05-04\n"
      "  teskarlt preview house.dxf -o window.png --window 3\n"
      "  teskarlt preview house.dxf -o slide.png --size 1920x1080 --transparent");
  command.Run([options] { RunPreview(*options); });
}

}  // namespace teskarlt
