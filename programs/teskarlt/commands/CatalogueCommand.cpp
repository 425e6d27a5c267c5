// CatalogueCommand.cpp - the subcommand "catalogue": shows a window catalogue, unless one of its own
// subcommands is named.
#include <memory>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/catalogue/Catalogue.h"
#include "teskarlt/catalogue/CatalogueFolder.h"
#include "teskarlt/commands/CatalogueCommands.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/modules/DataFolder.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Report.h"

namespace teskarlt {

namespace {

struct CatalogueOptions {
  std::string file;
  std::string section;
  bool asJson = false;
};

std::vector<const CatalogueItem*> ItemsOf(const Catalogue& catalogue, std::size_t section) {
  std::vector<const CatalogueItem*> items;
  for (const CatalogueItem& item : catalogue.items) {
    if (item.section == section) items.push_back(&item);
  }
  return items;
}

// The sections to show: all, or the one that is named by its maker or its header line.
std::vector<std::size_t> ChosenSections(const Catalogue& catalogue, const std::string& name) {
  std::vector<std::size_t> chosen;
  for (std::size_t i = 0; i < catalogue.sections.size(); ++i) {
    const std::string header = CatalogueText(catalogue.sections[i]);
    const bool named = dxf::SameName(header, name) || dxf::SameName(MakerOf(header), name);
    if (name.empty() || named) chosen.push_back(i);
  }
  if (!chosen.empty()) return chosen;
  std::string makers;
  for (const std::string_view section : catalogue.sections) {
    makers += (makers.empty() ? "\"" : ", \"") + CatalogueText(MakerOf(section)) + "\"";
  }
  throw Error(fmt::format("--section {}: {} has no such section; it has {}", name, catalogue.path, makers));
}

void PrintCatalogue(const Catalogue& catalogue, const std::vector<std::size_t>& sections) {
  Json json;
  json["version"] = JSON_VERSION;
  json["file"] = catalogue.path;
  json["sections"] = Json::List();
  for (const std::size_t section : sections) {
    Json entry;
    entry["maker"] = CatalogueText(MakerOf(catalogue.sections[section]));
    entry["header"] = CatalogueText(catalogue.sections[section]);
    entry["items"] = Json::List();
    for (const CatalogueItem* item : ItemsOf(catalogue, section))
      entry["items"].Add(FieldsJson(TextsOf(item->line)));
    json["sections"].Add(entry);
  }
  PrintJson(json);
}

void PrintTables(const Catalogue& catalogue, const std::vector<std::size_t>& sections) {
  for (const std::size_t section : sections) {
    fmt::print("{}{}\n", section == sections.front() ? "" : "\n",
               CatalogueText(MakerOf(catalogue.sections[section])));
    Table table({"key", "width cm", "length cm", "frame cm", "depth cm", "code", "description"});
    for (const CatalogueItem* item : ItemsOf(catalogue, section)) {
      const ItemTexts texts = TextsOf(item->line);
      table.Add({texts.begin(), texts.end()});
    }
    table.Print();
  }
}

void RunCatalogue(const CatalogueOptions& options) {
  const Catalogue catalogue = ReadChosenCatalogue(options.file);
  const std::vector<std::size_t> sections = ChosenSections(catalogue, options.section);
  if (options.asJson) {
    PrintCatalogue(catalogue, sections);
  } else {
    PrintTables(catalogue, sections);
  }
}

}  // namespace

Json FieldsJson(const ItemTexts& texts) {
  Json json;
  for (std::size_t field = 0; field < FIELD_COUNT; ++field)
    json[FIELD_FORMS.at(field).inAnswers] = texts.at(field);
  return json;
}

Catalogue ReadChosenCatalogue(const std::string& file) {
  if (!file.empty()) return ReadCatalogue(file);
  const UsualCatalogue usual = FindUsualCatalogue();
  if (usual.isInstalled) {
    TellNote(
        fmt::format("the data folder {} has no catalogue; this is the example {}", DataFolder(), usual.path));
  }
  return ReadCatalogue(usual.path);
}

void AddCatalogueCommand(OptionParser& parser) {
  Subcommand command = parser.Add("catalogue", "Show, make, search and check window catalogues");
  const auto options = std::make_shared<CatalogueOptions>();
  command.Argument("FILE", options->file,
                   "the catalogue to show, or its folder; without it the one in the data folder");
  command.Value("--section", options->section, "show this maker's windows only").Named("MAKER");
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "Opening codes: hinges at B the top, C the bottom, E a side, D a pivot in the middle; behind B, C and "
      "E\n"
      "an I (inward) or O (outward), behind E also an L or R (left or right, seen from inside); - is fixed\n"
      "glazing, an empty code what a window has by itself, D.\n"
      "The data folder is $TESKAR_DATA, else \"teskar\" in the user's data folder; while it has no\n"
      "catalogue, the example beside the program is shown. A file that is called like a subcommand is shown\n"
      "by its path, as ./new.\n"
      "Example: teskarlt catalogue examples/BREVANTA.LIB");
  AddCatalogueChangeCommands(command);
  AddCatalogueTableCommands(command);
  AddCatalogueLookCommands(command);
  command.Run([options] { RunCatalogue(*options); });
}

}  // namespace teskarlt
