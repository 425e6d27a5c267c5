// JobsRun.cpp - "insert --jobs": many windows with one load and one save.
#include "teskarlt/commands/JobsRun.h"

#include <cstdio>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/commands/SaveDrawing.h"
#include "teskarlt/commands/WindowWords.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Progress.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/windows/InsertJobs.h"

namespace teskarlt {

namespace {

constexpr const char* STANDARD_INPUT = "-";

std::string ReadStandardInput() {
  std::string text;
  std::vector<char> block(1 << 16);
  while (const std::size_t read = std::fread(block.data(), 1, block.size(), stdin))
    text.append(block.data(), read);
  if (std::ferror(stdin) != 0) throw Error("standard input cannot be read");
  return text;
}

std::string ReadJobs(const std::string& file) {
  if (file == STANDARD_INPUT) return ReadStandardInput();
  return std::string(platform::ReadWholeFile(file).View());
}

// Tells what becomes of each job while they run, and gathers it for programs.
class JobsTeller {
 public:
  JobsTeller(std::string file, std::size_t jobs, bool asJson)
      : file_(std::move(file)), asJson_(asJson), progress_("windows", jobs) {}

  void Add(const Job& job, const JobResult& result) {
    if (const auto* windows = std::get_if<std::vector<PlacedWindow>>(&result)) {
      for (const PlacedWindow& window : *windows)
        AddWindow(job, window);
    } else {
      AddRefusal(job, std::get<Error>(result));
    }
    progress_.Step();
  }

  // For programs: the windows that came into the drawing, and the jobs that were refused.
  Json ReleaseAnswer() {
    Json answer = Json::Object({{"version", JSON_VERSION}});
    answer["windows"] = std::move(windows_);
    answer["refused"] = std::move(refused_);
    return answer;
  }

 private:
  void AddWindow(const Job& job, const PlacedWindow& window) {
    if (asJson_) {
      Json entry = Json::Object({{"line", job.line}});
      entry.AddMembers(WindowJson(window));
      windows_.Add(std::move(entry));
    }
    const std::string warning = MisfitWarning(window.record.markerValue, window.misfits);
    if (!warning.empty()) TellOf(job, "warning: " + warning);
  }

  void AddRefusal(const Job& job, const Error& error) {
    TellOf(job, error.what());
    refused_.Add(Json::Object({{"line", job.line}, {"message", error.what()}}));
  }

  void TellOf(const Job& job, const std::string& message) {
    progress_.Clear();
    const ErrorPlace place{.file = file_, .unit = ErrorPlace::Unit::Line, .position = job.line};
    Tell(Error(message, place).what());
  }

  std::string file_;
  bool asJson_;
  Progress progress_;
  Json windows_ = Json::List();  // filled for programs only
  Json refused_ = Json::List();
};

struct JobsReport {
  JobTotals totals;
  Json answer;
};

JobsReport RunAll(WindowInserter& inserter, const std::vector<Job>& jobs, const WindowOptions& defaults,
                  const std::string& file) {
  JobsTeller teller(file, jobs.size(), defaults.asJson);
  JobsReport report;
  report.totals = InsertJobs(inserter, jobs, OrderOf(defaults),
                             [&](const Job& job, const JobResult& result) { teller.Add(job, result); });
  report.answer = teller.ReleaseAnswer();
  return report;
}

void PrintTotals(const ResultTarget& target, const JobTotals& totals) {
  fmt::print("{} window{}: {} faces and {} lines {}.\n", totals.inserted, totals.inserted == 1 ? "" : "s",
             totals.faces, totals.lines, target.Ending("added", "be added"));
}

}  // namespace

void RunJobs(WindowOptions& defaults, const JobsOptions& options) {
  const WindowModule module;  // before jobs that may take hours to come; its files may be others by then
  const std::string text = ReadJobs(options.file);
  const std::string file = options.file == STANDARD_INPUT ? "standard input" : options.file;
  const std::vector<Job> jobs = JobsIn(text);
  if (jobs.empty()) throw Error(fmt::format("{} holds no jobs", file));

  dxf::Document drawing = dxf::Document::Load(defaults.target.File());
  const DrawingUnit& unit = ChooseUnitAndWarn(drawing, defaults.units);
  WindowInserter inserter(module, drawing, unit);
  auto [totals, answer] = RunAll(inserter, jobs, defaults, file);

  const bool isWanted = totals.refused == 0 || (options.keepGoing && totals.inserted > 0);
  WarnOfClosedLayers(drawing, totals.layers);
  WarnOfTexts(drawing);
  if (isWanted) SaveDrawing(drawing, defaults.target);
  if (defaults.asJson) {
    defaults.target.AddTo(answer);
    PrintJson(answer);
  } else {
    PrintTotals(defaults.target, totals);
  }
  if (totals.refused > 0) {
    throw Error(fmt::format("{} of {} jobs refused{}", totals.refused, jobs.size(),
                            isWanted ? "" : "; nothing was written"));
  }
}

}  // namespace teskarlt
