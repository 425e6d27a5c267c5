// PaperOptions.cpp - the options of previews for plans to scale on paper, and the making of such plans.
#include "teskarlt/commands/PaperOptions.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "teskarlt/commands/LengthWords.h"
#include "teskarlt/schedule/Columns.h"
#include "teskarlt/schedule/Sheet.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/windows/ReadPlanNotes.h"
#include "teskarlt/windows/ReadSchedule.h"

namespace teskarlt {

namespace {

constexpr const char* USUAL_PAPER = "A3";
constexpr int GREATEST_SCALE = 100000;

std::optional<plot::Paper> PaperOf(const PaperOptions& options) {
  return plot::PaperNamed(options.paper.empty() ? USUAL_PAPER : options.paper, options.isUpright);
}

// A narrow schedule, with the catalogue's key where windows have one.
schedule::Sheet SheetFor(schedule::Schedule schedule, LengthStyle lengths) {
  schedule::Sort(schedule::Order::Mark, schedule);
  const bool hasKeys = std::any_of(schedule.rows.begin(), schedule.rows.end(),
                                   [](const schedule::ScheduleRow& row) { return !row.key.empty(); });
  std::vector<const schedule::Column*> columns;
  for (const char* name :
       {"mark", "key", "width", "length", "code", "pitch", "roof", "sill", "head", "toEaves"}) {
    const schedule::Column* const column = schedule::FindColumn(name);
    if (hasKeys || column->text != &schedule::ScheduleRow::key) columns.push_back(column);
  }
  return schedule::SheetOf(schedule, columns, {&schedule::ENGLISH, lengths, false});
}

void TellWhatIsMissing(const plot::Plot& plot) {
  if (plot.labelsWithoutRoom > 0) {
    TellNote(fmt::format("{} label{} no free place in this plan; a larger scale may give it",
                         plot.labelsWithoutRoom, plot.labelsWithoutRoom == 1 ? " has" : "s have"));
  }
  if (!plot.hasSchedule) TellNote("the schedule has no room beside the plan; larger paper may give it");
}

}  // namespace

void AddPaperOptions(Subcommand& command, PaperOptions& options) {
  constexpr const char* heading = "On paper (.svg, plan)";
  command
      .Value("--scale", options.scale,
             "draw 1:N, exact when printed; with --paper alone the largest usual scale that fits")
      .Named("N")
      .Within(1, GREATEST_SCALE)
      .Under(heading);
  command
      .Value("--paper", options.paper,
             "A4, A3, A2, A1, A0 or WIDTHxHEIGHT in millimetres; with --scale alone A3")
      .Named("SIZE")
      .NotEmpty()
      .Under(heading);
  command.Flag("--portrait", options.isUpright, "the paper stands upright").Under(heading);
  command.Value("--project", options.project, "for the title block").Named("TEXT").Under(heading);
  command.Value("--title", options.title, "for the title block; \"Roof plan\" unless said")
      .Named("TEXT")
      .Under(heading);
  command.Value("--date", options.date, "for the title block, as it is to stand there")
      .Named("TEXT")
      .Under(heading);
  command
      .Value("--lengths", options.lengths, "dimensions, schedule and scale bar in metres, or feet and inches")
      .OneOfListed({METRES, FEET})
      .Under(heading);
}

void RefuseUnusable(const PaperOptions& options) {
  if (!PaperOf(options)) {
    throw UsageError(
        fmt::format("--paper: \"{}\" is neither A4, A3, A2, A1 or A0 nor a size such as 500x300 with sides "
                    "from {} to {} mm",
                    options.paper, plot::LEAST_PAPER, plot::GREATEST_PAPER));
  }
  if (options.IsGiven()) return;
  const std::pair<const char*, bool> given[] = {{"--portrait", options.isUpright},
                                                {"--project", !options.project.empty()},
                                                {"--title", !options.title.empty()},
                                                {"--date", !options.date.empty()},
                                                {"--lengths", !options.lengths.empty()}};
  for (const auto& [name, isGiven] : given) {
    if (isGiven)
      throw UsageError(fmt::format("{}: is for plans on paper; add --scale N or --paper SIZE", name));
  }
}

plot::Plot PlotOf(const dxf::Document& drawing, const DrawingUnit& unit, const preview::Scene& scene,
                  const preview::Zoom& zoom, const PaperOptions& options) {
  const LengthStyle lengths = StyleSaid(options.lengths);
  const plot::PlanNotes notes = ReadPlanNotes(drawing, unit);
  const schedule::Sheet sheet = SheetFor(ReadSchedule(drawing, unit, RoofTolerance(unit)), lengths);
  plot::Plot plot = plot::PlotOf({&scene, &notes, &sheet}, {.paper = *PaperOf(options),
                                                            .isUpright = options.isUpright,
                                                            .scale = options.scale,
                                                            .zoom = zoom,
                                                            .lengths = lengths,
                                                            .project = OneLine(options.project),
                                                            .title = OneLine(options.title),
                                                            .date = OneLine(options.date)});
  TellWhatIsMissing(plot);
  return plot;
}

}  // namespace teskarlt
