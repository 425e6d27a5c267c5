// CatalogueTableCommands.cpp - the subcommands "catalogue import, export": catalogues from tables and as
// tables.
#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "platform/FileOperations.h"
#include "platform/FolderLock.h"
#include "teskarlt/Error.h"
#include "teskarlt/catalogue/CatalogueExport.h"
#include "teskarlt/catalogue/CatalogueFolder.h"
#include "teskarlt/catalogue/CatalogueImport.h"
#include "teskarlt/commands/CatalogueCommands.h"
#include "teskarlt/modules/DataFolder.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/terminal/ResultTarget.h"

namespace teskarlt {

namespace {

constexpr const char* DELIMITER_HELP = "what stands between cells: ; or , or tab";

struct ImportOptions {
  ResultTarget target = ResultTarget("catalogue");
  std::string table;
  std::string catalogue;
  std::vector<std::string> maps;
  std::vector<std::string> codes;
  std::string maker;
  std::string units;
  std::string delimiter;
  std::string encoding;
  std::string catalogueEncoding;
  bool replaces = false;
  bool isStrict = false;
  bool asJson = false;
};

struct ExportOptions {
  std::string file;
  std::string output;
  std::string delimiter = ",";
  bool asCsv = false;
  bool hasMark = false;
};

char DelimiterSaid(const std::string& said) {
  if (said == "tab" || said == "\\t") return '\t';
  if (said == ";" || said == "," || said == "\t") return said.front();
  throw UsageError(fmt::format("--delimiter {}: say ; or , or tab", said));
}

ImportForm FormOf(const ImportOptions& options) {
  ImportForm form;
  for (const std::string& map : options.maps)
    TakeMap(form, map);
  for (const std::string& codes : options.codes)
    TakeCodes(form, codes);
  form.maker = options.maker;
  if (!options.units.empty()) form.scale = ScaleOfUnit(options.units);
  return form;
}

ImportOrder OrderOf(const ImportOptions& options, const Catalogue& catalogue) {
  ImportOrder order{.file = options.table, .rows = {}, .form = FormOf(options)};
  const std::string text =
      CsvText(platform::ReadWholeFile(options.table).View(), options.encoding, options.table);
  const char delimiter = options.delimiter.empty() ? DelimiterIn(text) : DelimiterSaid(options.delimiter);
  order.rows = ReadCsv(text, delimiter, options.table);
  order.replacesWindows = options.replaces;
  if (order.form.maker.empty() && catalogue.sections.size() == 1)
    order.form.maker = CatalogueText(MakerOf(catalogue.sections.front()));
  return order;
}

// The catalogue that takes the windows: a new one where there is none yet, or only -o is given.
Catalogue CatalogueToFill(ImportOptions& options) {
  if (options.catalogue.empty() && options.target.IsNamed()) {
    options.target.ReadInstead(options.target.Path());
    return NewCatalogue(options.target.Path());
  }
  const std::string path = CatalogueIn(options.catalogue.empty() ? DataFolder() : options.catalogue);
  options.target.ReadInstead(path);
  return platform::StateOfFile(path).exists ? ReadCatalogue(path) : NewCatalogue(path);
}

void PrintImportJson(const ImportOptions& options, const ImportReport& report) {
  Json json = Json::Object({{"version", JSON_VERSION},
                            {"rows", report.rows},
                            {"added", report.added},
                            {"replaced", report.replaced},
                            {"sizes", report.sizes}});
  json["leftOut"] = Json::List();
  for (const LeftOutRow& row : report.leftOut)
    json["leftOut"].Add(Json::Object({{"line", row.line}, {"reason", row.reason}}));
  options.target.AddTo(json);
  PrintJson(json);
}

void PrintImport(const ImportOptions& options, const ImportReport& report) {
  for (const std::string& size : report.sizes)
    fmt::print("{}\n", size);
  const std::size_t taken = report.added + report.replaced;
  fmt::print("{} window{} of {} row{} {}", taken, taken == 1 ? "" : "s", report.rows,
             report.rows == 1 ? "" : "s", options.target.Ending("taken", "be taken"));
  fmt::print("{}.\n", report.replaced > 0 ? fmt::format("; {} of them replaced", report.replaced) : "");
}

void TellLeftOut(const ImportOptions& options, const ImportReport& report) {
  for (const LeftOutRow& row : report.leftOut) {
    const ErrorPlace place{.file = options.table, .unit = ErrorPlace::Unit::Line, .position = row.line};
    Tell(Error("left out: " + row.reason, place).what());
  }
}

void RunImport(ImportOptions& options) {
  platform::FolderLock lock;
  Catalogue catalogue = CatalogueToFill(options);
  if (!options.target.IsDryRun()) {
    LockFolderOf(options.target.Path(), lock);
    catalogue = CatalogueToFill(options);  // as it is now that nobody else changes it
  }
  const ImportReport report = ImportTable(OrderOf(options, catalogue), catalogue,
                                          EncodingForChanges(catalogue, options.catalogueEncoding));
  TellLeftOut(options, report);
  const std::size_t taken = report.added + report.replaced;
  const bool isWanted = taken > 0 && (report.leftOut.empty() || !options.isStrict);
  if (isWanted)
    options.target.Write([&](const std::string& path) { platform::WriteWholeFile(path, report.bytes); });
  if (options.asJson) {
    PrintImportJson(options, report);
  } else {
    PrintImport(options, report);
  }
  if (report.leftOut.empty()) return;
  throw Error(fmt::format("{} of {} rows left out{}", report.leftOut.size(), report.rows,
                          isWanted ? "" : "; nothing was written"));
}

void RunExport(const ExportOptions& options) {
  const Catalogue catalogue = ReadChosenCatalogue(options.file);
  std::string table = TableOf(catalogue, DelimiterSaid(options.delimiter));
  if (options.hasMark) table.insert(0, "\xEF\xBB\xBF");
  if (options.output.empty()) {
    fmt::print("{}", table);
    return;
  }
  platform::WriteWholeFile(options.output, table);
  fmt::print("{} windows of {} written to {}.\n", std::count(table.begin(), table.end(), '\n') - 1,
             catalogue.path, options.output);
}

void AddTableOptions(Subcommand& command, ImportOptions& options) {
  command
      .Repeated("--map", options.maps,
                "which column is which field, as key=Art.Nr,width=B_mm/10; without it columns are called as "
                "fields are")
      .Named("FIELD=COLUMN,...")
      .NotEmpty();
  command.Repeated("--codes", options.codes, "opening codes of the table's words, as Schwing=D,Fest=-")
      .Named("WORD=CODE,...")
      .NotEmpty();
  command.Value("--maker", options.maker, "the maker, where no column names it").Named("NAME").NotEmpty();
  command
      .Value("--units", options.units, "unit of sizes without a factor; else heads as B_mm tell it, else cm")
      .OneOfListed({"mm", "cm", "m"});
  command
      .Value("--delimiter", options.delimiter,
             fmt::format("{}; found in the first line without it", DELIMITER_HELP).c_str())
      .Named("CHARACTER")
      .NotEmpty();
  command
      .Value(
          "--encoding", options.encoding,
          "the encoding of CSV, utf-8 or a code page; without it a byte order mark tells, else UTF-8 where "
          "CSV is that, else cp1250")
      .Named("NAME")
      .NotEmpty();
}

void AddImportCommand(Subcommand& catalogue) {
  Subcommand command = catalogue.Add("import", "Take the windows of a maker's table into a catalogue");
  const auto options = std::make_shared<ImportOptions>();
  command.Argument("CSV", options->table, "the table, its first row the heads of its columns").Required();
  command.Argument("FILE", options->catalogue,
                   "the catalogue that takes them, made where there is none; without it a new one that -o "
                   "names, else the one in the data folder");
  AddTableOptions(command, *options);
  command
      .Value("--catalogue-encoding", options->catalogueEncoding,
             "utf-8 or cp1250, for a catalogue that is new or all ASCII; utf-8 without it")
      .Named("NAME")
      .NotEmpty();
  command.Flag("--replace", options->replaces,
               "windows that the catalogue has take the table's fields; else their rows are left out");
  command.Flag("--strict", options->isStrict, "take nothing where a row must be left out");
  options->target.AddOutput(command);
  options->target.AddDryRun(command);
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "Fields: maker, key, width, length, frameWidth, frameDepth, openingCode, description. Behind the\n"
      "column of a size a factor may stand: B_mm/10, Breite*2.54. Cells may have a decimal comma and a unit "
      "of\n"
      "their own, as 78,5 cm. In descriptions semicolons become commas, and line breaks blanks. Each row "
      "that\n"
      "is left out is told with its line and the reason.\n"
      "Exit status: 0 all rows taken; 1 nothing taken; 3 written, and rows were left out.\n"
      "Examples:\n"
      "  teskarlt catalogue import maker.csv mine.LIB --maker Cloudworks --map key=Art.Nr,width=B_mm/10\n"
      "  teskarlt catalogue import maker.csv mine.LIB --codes Schwing=D,Klapp=BO,Fest=- --dry-run");
  command.Run([options] { RunImport(*options); });
}

void AddExportCommand(Subcommand& catalogue) {
  Subcommand command = catalogue.Add("export", "Write a catalogue as a table");
  const auto options = std::make_shared<ExportOptions>();
  command.Argument("FILE", options->file,
                   "the catalogue, or its folder; without it the one in the data folder");
  command.Flag("--csv", options->asCsv, "as CSV in UTF-8, which is what there is for now").Required();
  command.Value("-o,--output", options->output, "the table to write; without it it is printed")
      .Named("FILE")
      .NotEmpty();
  command.Value("--delimiter", options->delimiter, DELIMITER_HELP).Named("CHARACTER").ShowDefault();
  command.Flag("--bom", options->hasMark, "begin with a byte order mark, which some spreadsheets need");
  command.Footer(
      "Sizes are centimetres. catalogue import takes the table back without further words.\n"
      "Example: teskarlt catalogue export mine.LIB --csv -o mine.csv --delimiter \";\"");
  command.Run([options] { RunExport(*options); });
}

}  // namespace

void AddCatalogueTableCommands(Subcommand& catalogue) {
  AddImportCommand(catalogue);
  AddExportCommand(catalogue);
}

}  // namespace teskarlt
