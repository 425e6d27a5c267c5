// CatalogueLookCommands.cpp - the subcommands "catalogue search, check": look at a catalogue.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "teskarlt/catalogue/CatalogueCheck.h"
#include "teskarlt/catalogue/CatalogueSearch.h"
#include "teskarlt/commands/CatalogueCommands.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Report.h"

namespace teskarlt {

namespace {

constexpr const char* FILE_HELP = "the catalogue, or its folder; without it the one in the data folder";

struct LookOptions {
  std::string file;
  std::string text;
  bool asJson = false;
};

void PrintFound(const Catalogue& catalogue, const std::vector<const CatalogueItem*>& items) {
  Table table({"maker", "key", "width cm", "length cm", "frame cm", "depth cm", "code", "description"});
  for (const CatalogueItem* item : items) {
    const ItemTexts texts = TextsOf(item->line);
    std::vector<std::string> row = {CatalogueText(MakerOf(catalogue.sections[item->section]))};
    row.insert(row.end(), texts.begin(), texts.end());
    table.Add(std::move(row));
  }
  table.Print();
}

void RunSearch(const LookOptions& options) {
  const Catalogue catalogue = ReadChosenCatalogue(options.file);
  const std::vector<const CatalogueItem*> items = FindItems(catalogue, options.text);
  if (options.asJson) {
    Json json = Json::Object({{"version", JSON_VERSION}, {"file", catalogue.path}});
    json["windows"] = Json::List();
    for (const CatalogueItem* item : items) {
      Json window = Json::Object(
          {{"maker", CatalogueText(MakerOf(catalogue.sections[item->section]))}, {"line", item->number}});
      window.AddMembers(FieldsJson(TextsOf(item->line)));
      json["windows"].Add(window);
    }
    PrintJson(json);
  } else if (items.empty()) {
    fmt::print("{} has no window with \"{}\" in its maker, key or description.\n", catalogue.path,
               options.text);
  } else {
    PrintFound(catalogue, items);
  }
}

const char* SeverityName(const CatalogueFinding& finding) {
  return finding.isError ? "error" : "warning";
}

void PrintFindingsJson(const Catalogue& catalogue, const std::vector<CatalogueFinding>& findings,
                       std::size_t errors) {
  Json json = Json::Object({{"version", JSON_VERSION},
                            {"file", catalogue.path},
                            {"errors", errors},
                            {"warnings", findings.size() - errors}});
  json["findings"] = Json::List();
  for (const CatalogueFinding& finding : findings) {
    json["findings"].Add(Json::Object({{"line", finding.line},
                                       {"severity", SeverityName(finding)},
                                       {"kind", KindName(finding.kind)},
                                       {"message", finding.message}}));
  }
  PrintJson(json);
}

std::string Counted(std::size_t count, const char* what) {
  return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

int RunCheck(const LookOptions& options) {
  const Catalogue catalogue = ReadChosenCatalogue(options.file);
  const std::vector<CatalogueFinding> findings = CheckCatalogue(catalogue);
  const auto errors = static_cast<std::size_t>(std::count_if(
      findings.begin(), findings.end(), [](const CatalogueFinding& finding) { return finding.isError; }));
  if (options.asJson) {
    PrintFindingsJson(catalogue, findings, errors);
  } else {
    for (const CatalogueFinding& finding : findings) {
      fmt::print("{}:{}: {}: {} [{}]\n", catalogue.path, finding.line, SeverityName(finding), finding.message,
                 KindName(finding.kind));
    }
    fmt::print("{}: {}, {}, {}\n", catalogue.path, Counted(catalogue.items.size(), "window"),
               Counted(errors, "error"), Counted(findings.size() - errors, "warning"));
  }
  return errors > 0 ? EXIT_REFUSED : EXIT_DONE;
}

}  // namespace

void AddCatalogueLookCommands(Subcommand& catalogue) {
  Subcommand search = catalogue.Add("search", "Find windows by words of their maker, key or description");
  const auto sought = std::make_shared<LookOptions>();
  search
      .Argument("TEXT", sought->text, "words that a window must have all of, whatever their case and accents")
      .Required()
      .NotEmpty();
  search.Argument("FILE", sought->file, FILE_HELP);
  search.Flag("--json", sought->asJson, JSON_HELP);
  search.Footer("Example: teskarlt catalogue search \"lhota 78\" BREVANTA.LIB");
  search.Run([sought] { RunSearch(*sought); });

  Subcommand check = catalogue.Add("check", "Tell what is wrong with a catalogue");
  const auto checked = std::make_shared<LookOptions>();
  check.Argument("FILE", checked->file, FILE_HELP);
  check.Flag("--json", checked->asJson, JSON_HELP);
  check.Footer(
      "An error is a window that cannot be chosen or inserted, or that is read as something else; a warning\n"
      "is doubtful. Each comes with its line and a name of its kind.\n"
      "Exit status: 0 no errors, perhaps warnings; 1 errors, or no catalogue; 2 wrong usage.\n"
      "Example: teskarlt catalogue check BREVANTA.LIB");
  check.RunWithStatus([checked] { return RunCheck(*checked); });
}

}  // namespace teskarlt
