// JobsRun.cpp - "apply" and "insert --jobs": many jobs with one load and one save.
#include "teskarlt/commands/JobsRun.h"

#include <cstdio>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/check/Proof.h"
#include "teskarlt/commands/SaveDrawing.h"
#include "teskarlt/commands/WindowWords.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Progress.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/windows/DoJobs.h"

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
  JobsTeller(const dxf::Document& drawing, std::string file, std::size_t jobs, bool asJson)
      : drawing_(drawing), file_(std::move(file)), asJson_(asJson), progress_("jobs", jobs) {}

  void Add(const Job& job, const JobResult& result) {
    std::visit([&](const auto& outcome) { AddOutcome(job, outcome); }, result);
    progress_.Step();
  }

  // For programs: what became of each window, and the jobs that were refused.
  Json ReleaseAnswer() {
    Json answer = Json::Object({{"version", JSON_VERSION}});
    answer["windows"] = std::move(windows_);
    answer["refused"] = std::move(refused_);
    return answer;
  }

 private:
  void AddOutcome(const Job& job, const InsertedWindows& inserted) {
    for (const PlacedWindow& window : inserted.windows) {
      if (asJson_) AddWindow(job, JobKind::Insert, WindowJson(window));
      WarnOfMisfits(job, window);
    }
  }

  void AddOutcome(const Job& job, const ChangedWindows& changed) {
    for (std::size_t i = 0; i < changed.windows.size(); ++i) {
      const EditedWindow& window = changed.windows[i];
      const WindowReading& before = changed.before[i].reading;
      for (const std::string& note : before.notes)
        TellOf(job, fmt::format("note: window {}: {}", window.placed.record.markerValue, note));
      if (asJson_) AddWindow(job, changed.kind, EditedJson(window, before, drawing_));
      WarnOfMisfits(job, window.placed);
    }
  }

  void AddOutcome(const Job& job, const std::vector<ErasedWindow>& erased) {
    if (!asJson_) return;
    for (const ErasedWindow& window : erased) {
      AddWindow(job, JobKind::Erase, Json::Object({{"number", window.number}, {"erased", window.entities}}));
    }
  }

  void AddOutcome(const Job& job, const Error& error) {
    TellOf(job, error.what());
    refused_.Add(Json::Object({{"line", job.line}, {"message", error.what()}}));
  }

  void AddWindow(const Job& job, JobKind kind, const Json& window) {
    Json entry = Json::Object({{"line", job.line}, {"do", WordOf(kind)}});
    entry.AddMembers(window);
    windows_.Add(std::move(entry));
  }

  void WarnOfMisfits(const Job& job, const PlacedWindow& window) {
    const std::string warning = MisfitWarning(window.record.markerValue, window.misfits);
    if (!warning.empty()) TellOf(job, "warning: " + warning);
  }

  void TellOf(const Job& job, const std::string& message) {
    progress_.Clear();
    const ErrorPlace place{.file = file_, .unit = ErrorPlace::Unit::Line, .position = job.line};
    Tell(Error(message, place).what());
  }

  const dxf::Document& drawing_;
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

JobsReport RunAll(JobSite& site, const std::vector<Job>& jobs, const WindowOptions& defaults,
                  const std::string& file) {
  JobsTeller teller(site.Work().drawing, file, jobs.size(), defaults.asJson);
  JobsReport report;
  report.totals = DoJobs(site, jobs, OrderOf(defaults),
                         [&](const Job& job, const JobResult& result) { teller.Add(job, result); });
  report.answer = teller.ReleaseAnswer();
  return report;
}

std::string Windows(std::size_t count) {
  return fmt::format("{} window{}", count, count == 1 ? "" : "s");
}

// "2 windows inserted, 1 changed and 3 erased: done; written to out.dxf."; of jobs that all insert, what was
// added.
void PrintTotals(const ResultTarget& target, const JobTotals& totals, bool isChanged) {
  if (!isChanged) {
    fmt::print("Nothing changes: the windows stand there as ordered; {}.\n", target.UnchangedEnding());
    return;
  }
  if (totals.changed + totals.erased == 0) {
    fmt::print("{}: {} faces and {} lines {}.\n", Windows(totals.inserted), totals.faces, totals.lines,
               target.Ending("added", "be added"));
    return;
  }
  std::vector<std::string> parts;
  for (const auto& [count, what] :
       {std::pair{totals.inserted, "inserted"}, std::pair{totals.changed, "changed"},
        std::pair{totals.erased, "erased"}}) {
    if (count > 0)
      parts.push_back(fmt::format("{} {}", parts.empty() ? Windows(count) : fmt::to_string(count), what));
  }
  fmt::print("{} job{} ({}) {}.\n", totals.done, totals.done == 1 ? "" : "s", fmt::join(parts, ", "),
             target.Ending("done", "be done"));
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
  JobSite site(module, drawing, unit, check::ProveChanges);
  auto [totals, answer] = RunAll(site, jobs, defaults, file);

  const bool isWanted = totals.refused == 0 || (options.keepGoing && totals.done > 0);
  const bool isChanged = drawing.IsChanged();
  WarnOfClosedLayers(drawing, totals.layers);
  WarnOfTexts(drawing);
  if (isWanted && (isChanged || defaults.target.IsNamed())) SaveDrawing(drawing, defaults.target);
  if (defaults.asJson) {
    defaults.target.AddTo(answer);
    PrintJson(answer);
  } else {
    PrintTotals(defaults.target, totals, isChanged || totals.done == 0);
  }
  if (totals.refused > 0) {
    throw Error(fmt::format("{} of {} jobs refused{}", totals.refused, jobs.size(),
                            isWanted ? "" : "; nothing was written"));
  }
}

}  // namespace teskarlt
