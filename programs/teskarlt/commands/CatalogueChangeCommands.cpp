// CatalogueChangeCommands.cpp - the subcommands "catalogue new, add, edit, remove": change a catalogue.
#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <vector>

#include <fmt/format.h>

#include "platform/FileOperations.h"
#include "platform/FolderLock.h"
#include "teskarlt/Error.h"
#include "teskarlt/catalogue/CatalogueChanges.h"
#include "teskarlt/catalogue/CatalogueEditor.h"
#include "teskarlt/catalogue/CatalogueFolder.h"
#include "teskarlt/commands/CatalogueCommands.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/terminal/ResultTarget.h"

namespace teskarlt {

namespace {

constexpr const char* ENCODING_HELP =
    "the encoding of a catalogue that is all ASCII yet; else it has its own";

// What add and edit say of a window, each field under an option of its own.
class FieldOptions {
 public:
  // `first`: the field from which on there are options.
  explicit FieldOptions(std::size_t first) : first_(first) {}

  // The object must outlive the parsing.
  void AddTo(Subcommand& command) {
    constexpr std::array options = {"--key",         "--width", "--length",     "--frame-width",
                                    "--frame-depth", "--code",  "--description"};
    constexpr std::array helps = {"another key",
                                  "centimetres across the slope",
                                  "centimetres along the slope",
                                  "centimetres, band of the frame",
                                  "centimetres, depth of the frame square to the roof",
                                  "opening code; - is fixed glazing",
                                  "for people"};
    static_assert(options.size() == FIELD_COUNT && helps.size() == FIELD_COUNT);
    given_.reserve(FIELD_COUNT);
    for (std::size_t field = first_; field < FIELD_COUNT; ++field) {
      given_.push_back(command.Value(options.at(field), texts_.at(field), helps.at(field))
                           .Named(FIELD_FORMS.at(field).IsSize() ? "CM" : "TEXT"));
    }
  }

  bool IsAnyGiven() const {
    return std::any_of(given_.begin(), given_.end(), [](const Option& option) { return option.IsGiven(); });
  }

  // Puts the fields that are given into the texts of a window.
  void PutInto(ItemTexts& texts) const {
    for (std::size_t i = 0; i < given_.size(); ++i) {
      if (given_[i].IsGiven()) texts.at(first_ + i) = texts_.at(first_ + i);
    }
  }

 private:
  std::size_t first_;
  ItemTexts texts_;
  std::vector<Option> given_;
};

struct ChangeOptions {
  explicit ChangeOptions(std::size_t firstField) : fields(firstField) {}

  ResultTarget target = ResultTarget("catalogue");
  FieldOptions fields;
  std::string name;  // of the window: its key to be, or what chooses it
  std::vector<std::string> names;
  std::string maker;
  std::string encoding;
  bool asJson = false;
};

struct NewOptions {
  std::string file;
  std::vector<std::string> makers;
  std::string encoding;
  bool force = false;
};

// Keeps others out of the folder that is written, from before the catalogue is read.
class ChangingCatalogue {
 public:
  explicit ChangingCatalogue(ResultTarget& target) {
    target.ReadInstead(CatalogueIn(target.File()));
    if (!target.IsDryRun()) LockFolderOf(target.Path(), lock_);
    catalogue_ = ReadCatalogue(target.File());
  }
  const Catalogue& Get() const { return catalogue_; }

 private:
  platform::FolderLock lock_;
  Catalogue catalogue_;
};

void Save(ResultTarget& target, const std::string& bytes) {
  target.Write([&](const std::string& path) { platform::WriteWholeFile(path, bytes); });
}

std::string NameOf(const CatalogueWindow& window) {
  return window.maker + "/" + window.texts[FIELD_KEY];
}

Json WindowJson(const CatalogueWindow& window) {
  Json json = Json::Object({{"maker", window.maker}});
  json.AddMembers(FieldsJson(window.texts));
  return json;
}

void PrintDone(const ChangeOptions& options, const std::vector<CatalogueWindow>& windows, const char* done,
               const char* planned) {
  if (options.asJson) {
    Json json = Json::Object({{"version", JSON_VERSION}});
    json["windows"] = Json::List();
    for (const CatalogueWindow& window : windows)
      json["windows"].Add(WindowJson(window));
    options.target.AddTo(json);
    PrintJson(json);
    return;
  }
  for (const CatalogueWindow& window : windows)
    fmt::print("{} {}.\n", NameOf(window), options.target.Ending(done, planned));
}

// The maker as the catalogue calls it. Where there is one alone, it need not be named.
std::string MakerFor(const Catalogue& catalogue, const std::string& said) {
  const auto nameOf = [&](std::size_t section) {
    return CatalogueText(MakerOf(catalogue.sections[section]));
  };
  if (said.empty() && catalogue.sections.size() == 1) return nameOf(0);
  if (said.empty()) throw UsageError("--maker is required: the catalogue has several");
  const std::optional<std::size_t> section = SectionOf(catalogue, said);
  return section ? nameOf(*section) : said;
}

void RunNew(const NewOptions& options) {
  const std::string path = CatalogueIn(options.file);
  if (!options.force && platform::StateOfFile(path).exists)
    throw Error(fmt::format("{} exists already; --force replaces it", path));
  const Catalogue empty = NewCatalogue(path);
  CatalogueEditor editor(empty, EncodingForChanges(empty, options.encoding));
  for (const std::string& maker : options.makers)
    editor.AddMaker(maker);
  platform::WriteWholeFile(path, editor.Bytes());
  fmt::print("Catalogue without windows yet written to {}; teskarlt catalogue add puts some into it.\n",
             path);
}

void RunAdd(ChangeOptions& options) {
  const ChangingCatalogue changing(options.target);
  CatalogueWindow window{MakerFor(changing.Get(), options.maker), {options.name}};
  options.fields.PutInto(window.texts);
  Save(options.target,
       WithWindow(changing.Get(), window, EncodingForChanges(changing.Get(), options.encoding)));
  PrintDone(options, {window}, "added", "be added");
}

void RunEdit(ChangeOptions& options) {
  if (!options.fields.IsAnyGiven())
    throw UsageError("nothing to change is given, as --width 78 or --description TEXT");
  const ChangingCatalogue changing(options.target);
  const Catalogue& catalogue = changing.Get();
  const CatalogueItem& item = ChooseItem(catalogue, options.name, "window");
  CatalogueWindow window{CatalogueText(MakerOf(catalogue.sections[item.section])), TextsOf(item.line)};
  options.fields.PutInto(window.texts);
  Save(options.target,
       WithChanged(catalogue, item, window.texts, EncodingForChanges(catalogue, options.encoding)));
  PrintDone(options, {window}, "changed", "be changed");
}

void RunRemove(ChangeOptions& options) {
  const ChangingCatalogue changing(options.target);
  const Catalogue& catalogue = changing.Get();
  const std::vector<const CatalogueItem*> items = ItemsNamed(catalogue, options.names);
  std::vector<CatalogueWindow> removed;
  removed.reserve(items.size());
  for (const CatalogueItem* item : items)
    removed.push_back({CatalogueText(MakerOf(catalogue.sections[item->section])), TextsOf(item->line)});
  Save(options.target, Without(catalogue, items));
  PrintDone(options, removed, "removed", "be removed");
}

// What add, edit and remove share behind their arguments.
void AddResultOptions(Subcommand& command, ChangeOptions& options) {
  options.target.AddOutput(command);
  options.target.AddDryRun(command);
  command.Flag("--json", options.asJson, JSON_HELP);
}

void AddNewCommand(Subcommand& catalogue) {
  Subcommand command = catalogue.Add("new", "Make a catalogue without windows");
  const auto options = std::make_shared<NewOptions>();
  command.Argument("FILE", options->file, "the catalogue to write").Required();
  command.Repeated("--maker", options->makers, "a maker that gets a section; may stand several times")
      .Named("NAME")
      .Required();
  command.Value("--encoding", options->encoding, "utf-8 or cp1250, for names beyond ASCII; without it utf-8")
      .Named("NAME")
      .NotEmpty();
  command.Flag("--force", options->force, "replace a file that is there");
  command.Footer("Example: teskarlt catalogue new mine.LIB --maker Cloudworks");
  command.Run([options] { RunNew(*options); });
}

void AddAddCommand(Subcommand& catalogue) {
  Subcommand command = catalogue.Add("add", "Add a window to a catalogue");
  const auto options = std::make_shared<ChangeOptions>(FIELD_WIDTH);
  options->target.AddFile(command);
  command.Argument("KEY", options->name, "the key of the window, which its maker has not yet").Required();
  command
      .Value("--maker", options->maker,
             "its maker, who gets a section where there is none; not needed where FILE has one maker only")
      .Named("NAME")
      .NotEmpty();
  options->fields.AddTo(command);
  command.Value("--encoding", options->encoding, ENCODING_HELP).Named("NAME").NotEmpty();
  AddResultOptions(command, *options);
  command.Footer(
      "What is not given is left to what a window has by itself: 94 by 140 cm, a frame of 10 by 8 cm, the\n"
      "opening code D. The window comes behind the last one of its maker; all else keeps its bytes.\n"
      "Example: teskarlt catalogue add mine.LIB \"CW 78x140\" --width 78 --length 140 --code BO");
  command.Run([options] { RunAdd(*options); });
}

void AddEditCommand(Subcommand& catalogue) {
  Subcommand command = catalogue.Add("edit", "Change a window of a catalogue");
  const auto options = std::make_shared<ChangeOptions>(FIELD_KEY);
  options->target.AddFile(command);
  command.Argument("WINDOW", options->name, "its key, or MAKER/KEY").Required();
  options->fields.AddTo(command);
  command.Value("--encoding", options->encoding, ENCODING_HELP).Named("NAME").NotEmpty();
  AddResultOptions(command, *options);
  command.Footer(
      "An empty text leaves the field to what a window has by itself. All other bytes stay what they are.\n"
      "Example: teskarlt catalogue edit mine.LIB \"Cloudworks/CW 78x140\" --frame-width 9 --code -");
  command.Run([options] { RunEdit(*options); });
}

void AddRemoveCommand(Subcommand& catalogue) {
  Subcommand command = catalogue.Add("remove", "Take windows out of a catalogue");
  const auto options = std::make_shared<ChangeOptions>(FIELD_COUNT);
  options->target.AddFile(command);
  command.Arguments("WINDOW", options->names, "keys, or MAKER/KEY; all are removed or none").Required();
  AddResultOptions(command, *options);
  command.Footer(
      "A key that stands several times in its section goes with all its lines.\n"
      "Example: teskarlt catalogue remove mine.LIB \"CW 78x140\" \"CW 94x60\"");
  command.Run([options] { RunRemove(*options); });
}

}  // namespace

void AddCatalogueChangeCommands(Subcommand& catalogue) {
  AddNewCommand(catalogue);
  AddAddCommand(catalogue);
  AddEditCommand(catalogue);
  AddRemoveCommand(catalogue);
}

}  // namespace teskarlt
