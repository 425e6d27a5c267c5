// JobsFile.cpp - a file of jobs: a JSON object a line, each windows to insert, edit, move or erase.
#include "teskarlt/windows/JobsFile.h"

#include <algorithm>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "inc/DialogServices.h"
#include "teskarlt/Error.h"
#include "teskarlt/windows/MoveOrder.h"
#include "teskarlt/windows/PlaceWords.h"
#include "teskarlt/windows/PointText.h"

namespace teskarlt {

namespace {

using nlohmann::json;

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::string_view BLANKS = " \t";
constexpr const char* DO = "do";
constexpr const char* LENGTHS = "lengths";
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
    if (!text.empty()) text += isListOfLists ? brevanta::POINT_DELIMITER : ',';
    text += isListOfLists ? ValueText(name, item) : ScalarText(name, item);
  }
  return text;
}

// The values of a word: those of a list, be they points or numbers, with delimiters between them.
std::string ListText(const std::string& name, const json& value) {
  const bool isList = value.is_array() && FindPlaceWord(name)->values > 1;
  if (!isList) return ValueText(name, value);
  std::string text;
  for (const json& item : value)
    text += (text.empty() ? "" : std::string(1, brevanta::POINT_DELIMITER)) + ValueText(name, item);
  return text;
}

std::string NameText(const std::string& name, const json& value) {
  std::string text = ScalarText(name, value);
  if (text.empty()) throw Error(fmt::format("{}: the name is empty", name));
  return text;
}

std::vector<geometry::Vec3> PlanePoints(const std::string& name, const json& value) {
  if (!value.is_array() || value.size() != POINTS_OF_A_PLANE)
    throw Error(fmt::format("{}: {} is no list of three points", name, Shown(value)));
  std::vector<geometry::Vec3> points;
  for (const json& point : value)
    points.push_back(ParsePoint("--roof", ValueText(name, point)));
  return points;
}

// The settings of a job go behind those of the defaults, so that they win.
void AddSettings(const json& value, LengthStyle lengths, std::vector<FieldSetting>& settings) {
  if (!value.is_object())
    throw Error(fmt::format("set: {} is no object, as {{\"width\": 0.78}} is one", Shown(value)));
  for (const auto& [field, setting] : value.items())
    settings.push_back({field, ValueText("set: " + field, setting), lengths});
}

bool Flag(const std::string& name, const json& value) {
  if (!value.is_boolean()) throw Error(fmt::format("{}: {} is neither true nor false", name, Shown(value)));
  return value.get<bool>();
}

// What the plain lengths of a job count.
LengthStyle StyleOf(const std::string& name, const json& value) {
  if (value == METRES) return LengthStyle::Metres;
  if (value == FEET) return LengthStyle::FeetAndInches;
  throw Error(fmt::format(R"({}: {} is neither "{}" nor "{}")", name, Shown(value), METRES, FEET));
}

JobKind KindOf(const json& value) {
  for (const JobKind kind : {JobKind::Insert, JobKind::Edit, JobKind::Move, JobKind::Erase})
    if (value == WordOf(kind)) return kind;
  throw Error(fmt::format("{}: {} is none of insert, edit, move and erase", DO, Shown(value)));
}

NumberRange RangeOf(const std::string& name, const json& value) {
  const std::string text = ScalarText(name, value);
  if (const auto range = ParseNumberRange(text)) return *range;
  throw Error(fmt::format("{}: {} is no window's number, nor a range as \"4-9\"", name, Shown(value)),
              {.value = text});
}

// A number, a range, or a list of them.
std::vector<NumberRange> RangesOf(const std::string& name, const json& value) {
  if (!value.is_array()) return {RangeOf(name, value)};
  if (value.empty()) throw Error(fmt::format("{}: the list is empty", name));
  std::vector<NumberRange> ranges;
  ranges.reserve(value.size());
  for (const json& range : value)
    ranges.push_back(RangeOf(name, range));
  return ranges;
}

// A member with a name of its own; the words for a place are in PlaceWords.h.
struct Member {
  const char* name;
  std::vector<JobKind> kinds;  // of the jobs that have it
  void (*apply)(const std::string& name, const json& value, JobOrder& job);
};

void ApplyPoint(const std::string& name, const json& value, JobOrder& job) {
  job.window.at = ParsePlanPoint(("--" + name).c_str(), ValueText(name, value));
}

void ApplyRoofName(const std::string& name, const json& value, JobOrder& job) {
  job.window.roofName = NameText(name, value);
  job.window.roof.clear();
  job.window.planRoof = {};
}

void ApplyRoof(const std::string& name, const json& value, JobOrder& job) {
  job.window.roof = PlanePoints(name, value);
  job.window.roofName.clear();
  job.window.planRoof = {};
}

// Spacing and gap go before each other, as the last one said of the row.
void ApplySpacing(const std::string& name, const json& value, JobOrder& job) {
  job.window.row.spacing = ParseDistance("--spacing", ScalarText(name, value), job.window.lengths);
  job.window.row.gap.reset();
}

void ApplyGap(const std::string& name, const json& value, JobOrder& job) {
  job.window.row.gap = ParseDistance("--gap", ScalarText(name, value), job.window.lengths);
  job.window.row.spacing.reset();
}

const std::vector<Member>& Members() {
  using enum JobKind;
  static const std::vector<JobKind> INSERTING = {Insert};
  static const std::vector<JobKind> DRAWING = {Insert, Edit};
  static const std::vector<JobKind> PLACING = {Insert, Edit, Move};
  static const std::vector<JobKind> CHOOSING = {Edit, Move, Erase};
  using Text = const std::string&;
  using Value = const json&;
  static const std::vector<Member> MEMBERS = {
      {DO, {Insert, Edit, Move, Erase}, [](Text, Value, JobOrder&) {}},       // was read before
      {LENGTHS, {Insert, Edit, Move, Erase}, [](Text, Value, JobOrder&) {}},  // likewise
      {"windows", CHOOSING, [](Text n, Value v, JobOrder& job) { job.selection.numbers = RangesOf(n, v); }},
      {"where", CHOOSING,
       [](Text n, Value v, JobOrder& job) {
         job.selection.where = WindowCondition(NameText(n, v), job.window.lengths);
       }},
      {"type", CHOOSING, [](Text n, Value v, JobOrder& job) { job.selection.type = NameText(n, v); }},
      {"locked", CHOOSING, [](Text n, Value v, JobOrder& job) { job.isLockedToo = Flag(n, v); }},
      {"at", DRAWING, ApplyPoint},
      {"to", {Move}, ApplyPoint},
      {"by",
       {Move},
       [](Text n, Value v, JobOrder& job) {
         job.window.by = ParseSlopeMove("--by", ValueText(n, v), job.window.lengths);
       }},
      {"on", PLACING, ApplyRoofName},
      {"roof-face", PLACING, ApplyRoofName},
      {"roof", PLACING, ApplyRoof},
      {"window", DRAWING, [](Text n, Value v, JobOrder& job) { job.window.window = NameText(n, v); }},
      {"catalogue", DRAWING, [](Text n, Value v, JobOrder& job) { job.window.catalogue = NameText(n, v); }},
      {"mark", DRAWING, [](Text n, Value v, JobOrder& job) { job.window.mark = NameText(n, v); }},
      {"set", DRAWING,
       [](Text, Value v, JobOrder& job) { AddSettings(v, job.window.lengths, job.window.settings); }},
      {"row", INSERTING,
       [](Text n, Value v, JobOrder& job) { job.window.row.count = ParseRowCount(ScalarText(n, v)); }},
      {"spacing", INSERTING, ApplySpacing},
      {"gap", INSERTING, ApplyGap},
      {"column", INSERTING, [](Text n, Value v, JobOrder& job) { job.window.row.isColumn = Flag(n, v); }},
      {"row-from", INSERTING, [](Text n, Value v, JobOrder& job) { job.window.row.from = NameText(n, v); }},
  };
  return MEMBERS;
}

bool Has(JobKind kind, const Member& member) {
  return std::find(member.kinds.begin(), member.kinds.end(), kind) != member.kinds.end();
}

[[noreturn]] void RefuseMember(const std::string& name, JobKind kind) {
  std::string known;
  for (const Member& member : Members())
    if (Has(kind, member)) known += (known.empty() ? "" : ", ") + std::string(member.name);
  throw Error(fmt::format("a job to {} has no member \"{}\"; it can have {}{}", WordOf(kind), name, known,
                          kind == JobKind::Erase ? "" : ", and the words for a place, as from-eaves"),
              {.value = name});
}

void ApplyMember(const std::string& name, const json& value, JobOrder& job) {
  const std::vector<Member>& members = Members();
  const auto member =
      std::find_if(members.begin(), members.end(), [&](const Member& m) { return m.name == name; });
  const PlaceWord* const word = job.kind == JobKind::Erase ? nullptr : FindPlaceWord(name);
  if (member != members.end() && Has(job.kind, *member)) {
    member->apply(name, value, job);
  } else if (word != nullptr) {
    word->apply(*word, ListText(name, value), job.window);
  } else {
    RefuseMember(name, job.kind);
  }
}

// What the members must say together.
void Check(const JobOrder& job) {
  const WindowSelection& selection = job.selection;
  if (job.kind == JobKind::Insert) return;
  if (selection.numbers.empty() && !selection.where && selection.type.empty())
    throw Error(R"(say which windows: by "windows", "where" or "type")");
  const std::string mistake = job.kind == JobKind::Move ? MoveMistake(job.window) : "";
  if (!mistake.empty()) throw Error(mistake);
}

// Of what the command line says of windows to insert, what is meant for other jobs, too.
WindowOrder ForOtherJobs(const WindowOrder& defaults) {
  WindowOrder order;
  order.lengths = defaults.lengths;
  order.clearance = defaults.clearance;
  order.isStrict = defaults.isStrict;
  return order;
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

}  // namespace

std::vector<Job> JobsIn(std::string_view text) {
  std::vector<Job> jobs;
  if (text.starts_with(BYTE_ORDER_MARK)) text.remove_prefix(BYTE_ORDER_MARK.size());
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.find_first_not_of(BLANKS) != std::string_view::npos) jobs.push_back({number, line});
  }
  return jobs;
}

const char* WordOf(JobKind kind) {
  switch (kind) {
    case JobKind::Insert:
      return "insert";
    case JobKind::Edit:
      return "edit";
    case JobKind::Move:
      return "move";
    case JobKind::Erase:
      break;
  }
  return "erase";
}

JobOrder ParseJob(std::string_view text, const WindowOrder& defaults) {
  const json members = ParseObject(text);
  JobOrder job;
  if (const auto kind = members.find(DO); kind != members.end()) job.kind = KindOf(*kind);
  job.window = job.kind == JobKind::Insert ? defaults : ForOtherJobs(defaults);
  if (const auto style = members.find(LENGTHS); style != members.end())
    job.window.lengths = StyleOf(LENGTHS, *style);
  for (const auto& [name, value] : members.items())
    ApplyMember(name, value, job);
  Check(job);
  return job;
}

}  // namespace teskarlt
