// InsertJobs.cpp - many windows with one load and one save: "insert --jobs".
#include "teskarlt/commands/InsertJobs.h"

#include <cstdio>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/commands/ClosedLayers.h"
#include "teskarlt/commands/WindowInserter.h"
#include "teskarlt/terminal/Progress.h"
#include "teskarlt/terminal/Report.h"

namespace teskarlt {

namespace {

using nlohmann::json;

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::string_view BLANKS = " \t";
constexpr std::string_view STANDARD_INPUT = "-";
constexpr std::size_t POINTS_OF_A_PLANE = 3;
constexpr int MOST_LEVELS = 10;            // a job needs four; what handles values calls itself for each
constexpr std::size_t LONGEST_QUOTE = 60;  // bytes of a value in a message

// A value as a message shows it.
std::string Shown(const json& value) {
  std::string text = value.dump(-1, ' ', true);
  if (text.size() <= LONGEST_QUOTE) return text;
  return text.substr(0, LONGEST_QUOTE) + "...";
}

// A text or number as the command line has it.
std::string ScalarText(const std::string& name, const json& value) {
  if (value.is_string()) return value.get<std::string>();
  if (value.is_number()) return value.dump();
  if (value.is_boolean()) return value.get<bool>() ? "1" : "0";
  throw Error(fmt::format("{}: {} is neither a text nor a number", name, Shown(value)));
}

// Lists become "X,Y,Z", lists of lists "X,Y,Z;X,Y,Z".
std::string ValueText(const std::string& name, const json& value) {
  if (!value.is_array()) return ScalarText(name, value);
  const bool isListOfLists = !value.empty() && value.front().is_array();
  std::string text;
  for (const json& item : value) {
    if (!text.empty()) text += isListOfLists ? ';' : ',';
    text += isListOfLists ? ValueText(name, item) : ScalarText(name, item);
  }
  return text;
}

std::string NameText(const std::string& name, const json& value) {
  std::string text = ScalarText(name, value);
  if (text.empty()) throw Error(fmt::format("{}: the name is empty", name));
  return text;
}

std::vector<std::string> PlaneText(const std::string& name, const json& value) {
  if (!value.is_array() || value.size() != POINTS_OF_A_PLANE)
    throw Error(fmt::format("{}: {} is no list of three points", name, Shown(value)));
  std::vector<std::string> points;
  for (const json& point : value)
    points.push_back(ValueText(name, point));
  return points;
}

// The settings of a job go behind those of the command line, so that they win.
void TakeSettings(const json& value, std::vector<std::string>& settings) {
  if (!value.is_object())
    throw Error(fmt::format("set: {} is no object, as {{\"width\": 0.78}} is one", Shown(value)));
  for (const auto& [field, setting] : value.items())
    settings.push_back(fmt::format("{}={}", field, ValueText("set: " + field, setting)));
}

void TakeMember(const std::string& name, const json& value, WindowOptions& options) {
  if (name == "at") {
    options.at = ValueText(name, value);
  } else if (name == "roof-face") {
    options.roofFace = NameText(name, value);
    options.roof.clear();
  } else if (name == "roof") {
    options.roof = PlaneText(name, value);
    options.roofFace.clear();
  } else if (name == "window") {
    options.window = NameText(name, value);
  } else if (name == "catalogue") {
    options.catalogue = NameText(name, value);
  } else if (name == "set") {
    TakeSettings(value, options.settings);
  } else {
    throw Error(fmt::format(
        "a job has no member \"{}\"; it can have at, roof-face, roof, window, catalogue and set", name));
  }
}

json ParseObject(std::string_view text) {
  json job;
  const auto boundDepth = [](int depth, json::parse_event_t, const json&) {
    if (depth > MOST_LEVELS)
      throw Error(fmt::format("more than {} levels of lists and objects", MOST_LEVELS));
    return true;
  };
  try {
    job = json::parse(text, boundDepth);
  } catch (const json::parse_error& error) {
    throw Error(fmt::format("this is no JSON: an error at column {}", error.byte));
  } catch (const json::exception&) {
    throw Error("a number is too large");
  }
  if (!job.is_object()) throw Error(fmt::format("{} is no JSON object", Shown(job)));
  return job;
}

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

struct Job {
  std::size_t line;
  std::string_view text;
};

struct JobsReport {
  Json windows = Json::List();  // filled for --json only
  Json refused = Json::List();
  std::size_t refusedCount = 0;
  std::size_t inserted = 0;
  std::size_t faces = 0;
  std::size_t lines = 0;
  std::set<std::string> layers;  // of the new entities
};

void Count(const Job& job, const InsertedWindow& window, const WindowOptions& defaults, JobsReport& report) {
  ++report.inserted;
  report.faces += window.outcome.faces;
  report.lines += window.outcome.lines;
  report.layers.insert(window.outcome.layers.begin(), window.outcome.layers.end());
  if (!defaults.asJson) return;
  Json entry = Json::Object({{"line", job.line}});
  entry.AddMembers(WindowJson(window.outcome, window.face, window.misfits));
  report.windows.Add(std::move(entry));
}

JobsReport RunAll(const std::vector<Job>& jobs, const WindowOptions& defaults, const std::string& file,
                  WindowInserter& inserter) {
  JobsReport report;
  Progress progress("windows", jobs.size());
  for (const Job& job : jobs) {
    try {
      const InsertedWindow window = inserter.Insert(ParseJob(job.text, defaults));
      Count(job, window, defaults, report);
      if (!window.misfits.empty()) progress.Clear();
      WarnOfMisfits(fmt::format("{}:{}: ", file, job.line), window.outcome.confirmed->markerValue,
                    window.misfits);
    } catch (const Error& error) {
      progress.Clear();
      fmt::print(stderr, "teskarlt: {}:{}: {}\n", file, job.line, error.what());
      ++report.refusedCount;
      report.refused.Add(Json::Object({{"line", job.line}, {"message", error.what()}}));
    }
    progress.Step();
  }
  return report;
}

void Print(const WindowOptions& options, JobsReport& report, bool isSaved) {
  const std::string& target = TargetOf(options);
  if (options.asJson) {
    Json answer = Json::Object({{"version", JSON_VERSION}});
    answer["windows"] = std::move(report.windows);
    answer["refused"] = report.refused;
    answer["file"] = isSaved ? Json(target) : Json(nullptr);
    answer["dryRun"] = options.dryRun;
    PrintJson(answer);
    return;
  }
  fmt::print("{} window{}: {} faces and {} lines {}.\n", report.inserted, report.inserted == 1 ? "" : "s",
             report.faces, report.lines,
             isSaved          ? "added; written to " + target
             : options.dryRun ? "would be added; nothing was written (dry run)"
                              : "could be added; nothing was written");
}

}  // namespace

WindowOptions ParseJob(std::string_view text, const WindowOptions& defaults) {
  const json job = ParseObject(text);
  WindowOptions options = defaults;
  for (const auto& [name, value] : job.items())
    TakeMember(name, value, options);
  return options;
}

void ForEachLine(std::string_view text,
                 const std::function<void(std::size_t number, std::string_view line)>& take) {
  if (text.starts_with(BYTE_ORDER_MARK)) text.remove_prefix(BYTE_ORDER_MARK.size());
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.find_first_not_of(BLANKS) != std::string_view::npos) take(number, line);
  }
}

void RunInsertJobs(const WindowOptions& defaults, const JobsOptions& options) {
  const std::string text = ReadJobs(options.file);
  const std::string file = options.file == STANDARD_INPUT ? "standard input" : options.file;
  std::vector<Job> jobs;
  ForEachLine(text, [&](std::size_t number, std::string_view line) { jobs.push_back({number, line}); });
  if (jobs.empty()) throw Error(fmt::format("{} holds no jobs", file));

  WindowInserter inserter(defaults);
  JobsReport report = RunAll(jobs, defaults, file, inserter);
  const std::size_t refused = report.refusedCount;
  const bool isWanted = refused == 0 || (options.keepGoing && report.inserted > 0);
  const bool isSaved = isWanted && !defaults.dryRun;
  WarnOfClosedLayers(inserter.Drawing(), report.layers);
  if (isSaved) inserter.Drawing().Save(TargetOf(defaults));
  Print(defaults, report, isSaved);
  if (refused > 0) {
    throw Error(fmt::format("{} of {} jobs refused{}", refused, jobs.size(),
                            isWanted ? "" : "; nothing was written"));
  }
}

}  // namespace teskarlt
