// JobsFile.cpp - a file of jobs: a JSON object a line, each a window to insert.
#include "teskarlt/windows/JobsFile.h"

#include <string>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "inc/DialogServices.h"
#include "teskarlt/Error.h"
#include "teskarlt/windows/PlaceWords.h"
#include "teskarlt/windows/PointText.h"

namespace teskarlt {

namespace {

using nlohmann::json;

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::string_view BLANKS = " \t";
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

// Spacing and gap go before each other, as the last one said of the row.
bool ApplyRowMember(const std::string& name, const json& value, WindowOrder& order) {
  RowOrder& row = order.row;
  if (name == "row") {
    row.count = ParseRowCount(ScalarText(name, value));
  } else if (name == "spacing") {
    row.spacing = ParseDistance("--spacing", ScalarText(name, value), order.lengths);
    row.gap.reset();
  } else if (name == "gap") {
    row.gap = ParseDistance("--gap", ScalarText(name, value), order.lengths);
    row.spacing.reset();
  } else if (name == "row-from") {
    row.from = NameText(name, value);
  } else if (name == "column") {
    if (!value.is_boolean()) throw Error(fmt::format("column: {} is neither true nor false", Shown(value)));
    row.isColumn = value.get<bool>();
  } else {
    return false;
  }
  return true;
}

// What the plain lengths of a job count.
LengthStyle StyleOf(const std::string& name, const json& value) {
  if (value == METRES) return LengthStyle::Metres;
  if (value == FEET) return LengthStyle::FeetAndInches;
  throw Error(fmt::format("{}: {} is neither \"{}\" nor \"{}\"", name, Shown(value), METRES, FEET));
}

void ApplyMember(const std::string& name, const json& value, WindowOrder& order) {
  if (name == LENGTHS) return;  // went before the others
  if (name == "at") {
    order.at = ParsePlanPoint("--at", ValueText(name, value));
  } else if (name == "on" || name == "roof-face") {
    order.roofName = NameText(name, value);
    order.roof.clear();
    order.planRoof = {};
  } else if (name == "roof") {
    order.roof = PlanePoints(name, value);
    order.roofName.clear();
    order.planRoof = {};
  } else if (name == "window") {
    order.window = NameText(name, value);
  } else if (name == "catalogue") {
    order.catalogue = NameText(name, value);
  } else if (name == "set") {
    AddSettings(value, order.lengths, order.settings);
  } else if (const PlaceWord* word = FindPlaceWord(name)) {
    word->apply(*word, ListText(name, value), order);
  } else if (!ApplyRowMember(name, value, order)) {
    throw Error(
        fmt::format(
            "a job has no member \"{}\"; it can have at, on, roof, window, catalogue, set, row, "
            "spacing, gap, column, row-from, lengths and the options of insert that say where a window "
            "goes, as from-eaves",
            name),
        {.value = name});
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

WindowOrder ParseJob(std::string_view text, const WindowOrder& defaults) {
  const json job = ParseObject(text);
  WindowOrder order = defaults;
  if (const auto style = job.find(LENGTHS); style != job.end()) order.lengths = StyleOf(LENGTHS, *style);
  for (const auto& [name, value] : job.items())
    ApplyMember(name, value, order);
  return order;
}

}  // namespace teskarlt
