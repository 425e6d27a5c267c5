// ScheduleCommand.cpp - the subcommand "schedule": a schedule of a drawing's windows, to order them by.
#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/commands/FileEnding.h"
#include "teskarlt/commands/LengthWords.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/UnitOptions.h"
#include "teskarlt/commands/WindowWords.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/schedule/Columns.h"
#include "teskarlt/schedule/Comparison.h"
#include "teskarlt/schedule/Csv.h"
#include "teskarlt/schedule/Html.h"
#include "teskarlt/schedule/Markdown.h"
#include "teskarlt/schedule/ScheduleJson.h"
#include "teskarlt/schedule/Xlsx.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/windows/ReadSchedule.h"

namespace teskarlt {

namespace {

using schedule::Column;
using schedule::Schedule;
using schedule::Sheet;

constexpr const char* TABLE = "table";
constexpr const char* FILE_FORMATS[] = {"csv", "json", "md", "html", "xlsx"};

struct ScheduleOptions {
  std::string file;
  std::string output;
  std::string format;
  std::string by = "window";
  std::string columns;
  std::string sort;
  std::string language = "en";
  std::string against;
  std::string delimiter;
  bool hasDecimalComma = false;
  bool hasByteOrderMark = false;
  bool hasNoTotals = false;
  bool asJson = false;
  AskedUnit units;
  std::string lengths;
};

// What is written: as the user says, as the file's ending says, else a table on the terminal.
std::string FormatOf(const ScheduleOptions& options) {
  if (options.asJson) return "json";
  if (!options.format.empty()) return options.format;
  if (options.output.empty()) return TABLE;
  if (const char* const format = FormatByEnding(options.output, FILE_FORMATS)) return format;
  throw UsageError(
      fmt::format("-o: the ending of {} names no format; end it in .csv, .json, .md, .html or .xlsx, or give "
                  "--format",
                  options.output));
}

// What cannot be meant together is wrong usage.
void RefuseUnusable(const ScheduleOptions& options, const std::string& format) {
  if (format == "xlsx" && options.output.empty())
    throw UsageError("--format xlsx: a workbook goes into a file; add -o FILE");
  if (format == TABLE && !options.output.empty())
    throw UsageError("--format table: a table goes to the terminal; leave -o out");
  const bool isCsv = format == "csv";
  const auto refuse = [&](bool isGiven, const char* option) {
    if (isGiven && !isCsv) throw UsageError(fmt::format("{}: is for .csv files", option));
  };
  refuse(!options.delimiter.empty(), "--delimiter");
  refuse(options.hasDecimalComma, "--decimal-comma");
  refuse(options.hasByteOrderMark, "--bom");
}

std::string ColumnNames() {
  std::vector<std::string_view> names;
  names.reserve(std::size(schedule::COLUMNS));
  for (const Column& column : schedule::COLUMNS)
    names.push_back(column.name);
  return fmt::format("{}", fmt::join(names, ", "));
}

// The columns that the user names; the usual ones without a word, and for programs all of them.
std::vector<const Column*> ChosenColumns(const ScheduleOptions& options, const std::string& format) {
  std::vector<const Column*> columns;
  if (options.columns.empty()) {
    for (const Column& column : schedule::COLUMNS)
      if (column.isUsual || format == "json") columns.push_back(&column);
    return columns;
  }
  std::string_view rest = options.columns;
  while (true) {
    const std::size_t end = std::min(rest.find(','), rest.size());
    const std::string_view name = dxf::Trimmed(rest.substr(0, end));
    const Column* const column = schedule::FindColumn(name);
    if (column == nullptr) {
      throw UsageError(
          fmt::format("--columns: no column is named \"{}\"; there are {}", name, ColumnNames()));
    }
    if (std::find(columns.begin(), columns.end(), column) != columns.end())
      throw UsageError(fmt::format("--columns: names {} twice", column->name));
    columns.push_back(column);
    if (end == rest.size()) return columns;
    rest.remove_prefix(end + 1);
  }
}

schedule::Order OrderOf(const ScheduleOptions& options) {
  if (options.sort == "roof") return schedule::Order::Roof;
  const bool isByType = options.sort == "type" || (options.sort.empty() && options.by == "type");
  return isByType ? schedule::Order::Type : schedule::Order::Mark;
}

// A semicolon where numbers have commas, as spreadsheet programs of such countries expect.
schedule::CsvOptions CsvOptionsOf(const ScheduleOptions& options) {
  schedule::CsvOptions csv;
  csv.decimalMark = options.hasDecimalComma ? ',' : '.';
  csv.hasByteOrderMark = options.hasByteOrderMark;
  if (options.delimiter == "tab") {
    csv.delimiter = '\t';
  } else if (!options.delimiter.empty()) {
    csv.delimiter = options.delimiter.front();
  } else if (options.hasDecimalComma) {
    csv.delimiter = ';';
  }
  return csv;
}

// A drawing with the schedule that was read from it.
struct ReadDrawing {
  Schedule schedule;
  const DrawingUnit& unit;
};

ReadDrawing Read(const std::string& file, const AskedUnit& units) {
  const dxf::Document drawing = dxf::Document::Load(file);
  const LookingUnit looking = UnitToLookIn(drawing, units);
  WarnOfTexts(drawing);
  ReadDrawing read{ReadSchedule(drawing, looking.unit, looking.tolerance), looking.unit};
  schedule::Sort(schedule::Order::Mark, read.schedule);
  for (const schedule::ScheduleRow& row : read.schedule.rows)
    if (!row.notes.empty()) TellWarning(fmt::format("{}: {}: {}", read.schedule.file, row.mark, row.notes));
  return read;
}

void PrintTable(const Sheet& sheet) {
  const auto cellsOf = [&](const std::vector<schedule::Cell>& cells) {
    std::vector<std::string> texts;
    texts.reserve(cells.size());
    for (const schedule::Cell& cell : cells)
      texts.push_back(schedule::Shown(cell, sheet.language->decimalMark));
    return texts;
  };
  std::vector<std::string> headings;
  headings.reserve(sheet.headings.size());
  for (const schedule::Heading& heading : sheet.headings)
    headings.push_back(heading.text);
  Table table(std::move(headings), Table::Headings::Broken);
  for (const std::vector<schedule::Cell>& row : sheet.rows)
    table.Add(cellsOf(row));
  if (!sheet.totals.empty()) table.Add(cellsOf(sheet.totals));
  table.Print();
}

std::string BytesOf(const Sheet& sheet, const std::string& format, const ScheduleOptions& options) {
  if (format == "csv") return schedule::Csv(sheet, CsvOptionsOf(options));
  if (format == "md") return schedule::Markdown(sheet);
  if (format == "html") return schedule::Html(sheet);
  return schedule::Xlsx(sheet);
}

// Into the file, whole, or onto the terminal, with the line ends of the system.
void Put(std::string bytes, const ScheduleOptions& options) {
  if (!options.output.empty()) {
    platform::WriteWholeFile(options.output, bytes);
    fmt::print("{} written.\n", options.output);
    return;
  }
  bytes.erase(std::remove(bytes.begin(), bytes.end(), '\r'), bytes.end());
  fmt::print("{}", bytes);
}

void PutSheet(const Sheet& sheet, const std::string& format, const ScheduleOptions& options) {
  if (format == TABLE) {
    PrintTable(sheet);
  } else {
    Put(BytesOf(sheet, format, options), options);
  }
}

// What both kinds of answers begin with.
Json JsonHead(const ReadDrawing& read) {
  return Json::Object(
      {{"version", JSON_VERSION}, {"file", read.schedule.file}, {"units", UnitJson(read.unit)}});
}

schedule::SheetStyle StyleOf(const ScheduleOptions& options) {
  return {&schedule::LanguageNamed(options.language), StyleSaid(options.lengths), !options.hasNoTotals};
}

void PutSchedule(ReadDrawing read, const std::string& format, const ScheduleOptions& options) {
  std::vector<const Column*> columns = ChosenColumns(options, format);
  if (format == TABLE && options.columns.empty()) {
    std::erase_if(columns, [&](const Column* column) { return !IsTold(*column, read.schedule); });
  }
  if (options.by == "type") read.schedule = schedule::ByType(read.schedule);
  schedule::Sort(OrderOf(options), read.schedule);
  const schedule::SheetStyle style = StyleOf(options);
  if (format == "json") {
    Json json = JsonHead(read);
    json.AddMembers(schedule::JsonOf(read.schedule, columns, *style.language));
    Put(json.Text() + "\n", options);
  } else if (format == TABLE && read.schedule.rows.empty()) {
    fmt::print("{} holds no roof window.\n", options.file);
  } else {
    PutSheet(schedule::SheetOf(read.schedule, columns, style), format, options);
  }
}

void PutComparison(ReadDrawing after, const std::string& format, const ScheduleOptions& options) {
  ReadDrawing before = Read(options.against, options.units);
  if (before.schedule.hasUnit != after.schedule.hasUnit) {
    throw Error(
        fmt::format("{}: only one of the two drawings says its unit; say it with --units", options.against));
  }
  const std::vector<const Column*> columns = ChosenColumns(options, format);
  for (Schedule* const schedule : {&before.schedule, &after.schedule}) {
    if (options.by == "type") *schedule = schedule::ByType(*schedule);
    schedule::Sort(OrderOf(options), *schedule);
  }
  const schedule::SheetStyle style = StyleOf(options);
  const auto by = options.by == "type" ? schedule::SameBy::Type : schedule::SameBy::Mark;
  const schedule::Comparison comparison = schedule::Compare(before.schedule, after.schedule, columns, by);
  const Sheet sheet = schedule::SheetOf(comparison, before.schedule, after.schedule, style);
  if (format == "json") {
    Json json = JsonHead(after);
    json["against"] = before.schedule.file;
    json.AddMembers(schedule::JsonOf(comparison, columns, *style.language));
    Put(json.Text() + "\n", options);
  } else if (format == TABLE && sheet.rows.empty()) {
    fmt::print("The windows of {} are those of {}.\n", options.file, options.against);
  } else {
    PutSheet(sheet, format, options);
  }
}

void RunSchedule(const ScheduleOptions& options) {
  const std::string format = FormatOf(options);
  RefuseUnusable(options, format);
  ChosenColumns(options, format);  // wrong usage is told before anything is read
  ReadDrawing read = Read(options.file, options.units);
  if (options.against.empty()) {
    PutSchedule(std::move(read), format, options);
  } else {
    PutComparison(std::move(read), format, options);
  }
}

void AddFormatOptions(Subcommand& command, ScheduleOptions& options) {
  command.Value("-o,--output", options.output, "the file to write: .csv, .json, .md, .html or .xlsx")
      .Named("FILE")
      .NotEmpty();
  command
      .Value("--format", options.format,
             "csv, json, md, html or xlsx, whatever the file's ending is; without -o onto the terminal")
      .Named("FORMAT")
      .OneOf({TABLE, "csv", "json", "md", "html", "xlsx"});
  command.Value("--delimiter", options.delimiter, "between the values of .csv files: , unless said, ; or tab")
      .Named("MARK")
      .OneOf({",", ";", "tab"});
  command.Flag("--decimal-comma", options.hasDecimalComma,
               "numbers of .csv files have a comma, and a semicolon stands between the values");
  command.Flag("--bom", options.hasByteOrderMark,
               "a byte order mark at the beginning of .csv files, by which spreadsheet programs know UTF-8");
  command.Flag("--json", options.asJson, JSON_HELP);
}

}  // namespace

void AddScheduleCommand(OptionParser& parser) {
  Subcommand command = parser.Add("schedule", "Make a schedule of the windows, to order them by");
  const auto options = std::make_shared<ScheduleOptions>();
  command.Argument("FILE", options->file, "the drawing").Required();
  AddFormatOptions(command, *options);
  command.Value("--by", options->by, "a row for each window, or one for each type with its quantity")
      .OneOfListed({"window", "type"});
  command.Value("--columns", options->columns, "the columns in their order, by the names below")
      .Named("NAME,...")
      .NotEmpty();
  command.Value("--sort", options->sort, "by mark, roof or type; by mark unless said, types by type")
      .OneOfListed({"mark", "roof", "type"});
  command.Value("--language", options->language, "English, Czech or German").OneOfListed({"en", "cs", "de"});
  command.Value("--against", options->against, "tell what came, went and changed since this drawing")
      .Named("FILE")
      .NotEmpty();
  command.Flag("--no-totals", options->hasNoTotals, "without the row of sums");
  AddUnitOptions(command, options->units);
  AddLengthsOption(command, options->lengths);
  command.Footer(
      "Columns: mark, quantity, maker, key, text, width, length, frameWidth, frameDepth, opening, pitch, "
      "roof,\n"
      "compass, sill, head, glassArea, frameArea, toEaves, toRidge, layer; and, where they are named, "
      "number,\n"
      "code, windowLayers, notes.\n"
      "Sizes are in millimetres, heights and distances in metres. The frame's area is without the glass; "
      "sums\n"
      "count each window.\n"
      "Examples:\n"
      "  teskarlt schedule house.dxf\n"
      "  teskarlt schedule house.dxf --by type --language de -o windows.xlsx\n"
      "  teskarlt schedule house.dxf --columns mark,width,length,opening --decimal-comma --bom -o "
      "windows.csv\n"
      "  teskarlt schedule house.dxf --against house-of-may.dxf");
  command.Run([options] { RunSchedule(*options); });
}

}  // namespace teskarlt
