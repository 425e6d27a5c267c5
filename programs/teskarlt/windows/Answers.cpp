// Answers.cpp - an order in the words of the dialog: a text for each field of the record.
#include "teskarlt/windows/Answers.h"

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/modules/DataFolder.h"
#include "window/Choices.h"
#include "window/RecordFields.h"

namespace teskarlt {

namespace {

void AddSetting(const FieldSetting& setting, const dxf::Document& drawing, DialogAnswers& answers) {
  const brevanta::RecordField* field = brevanta::FindRecordField(setting.field);
  if (field == nullptr) {
    throw Error(fmt::format("--set {}={}: there is no such field; teskarlt insert --fields lists them",
                            setting.field, setting.value),
                {.value = setting.field});
  }
  try {
    const bool isText = field->kind == brevanta::FieldKind::Text;
    const bool isFixed = setting.field == "openingCode" && setting.value == brevanta::FIXED_GLAZING;
    answers[setting.field] = isText ? drawing.Encode(isFixed ? "" : setting.value) : setting.value;
  } catch (const Error& error) {
    throw Error(fmt::format("--set {}: {}", setting.field, error.what()), {.value = setting.value});
  }
}

void AddCatalogueWindow(const WindowOrder& order, const dxf::Document& drawing, CatalogueShelf& shelf,
                        DialogAnswers& answers) {
  const Catalogue& catalogue = shelf.Get(order.catalogue);
  const CatalogueItem& item = ChooseItem(catalogue, order.window);
  try {
    answers[brevanta::ANSWER_CATALOGUE_ITEM] = drawing.Encode(CatalogueText(item.line));
    answers[brevanta::ANSWER_CATALOGUE_MAKER] =
        drawing.Encode(CatalogueText(MakerOf(catalogue.sections[item.section])));
  } catch (const Error& error) {
    throw Error(fmt::format("--window {}: {}", order.window, error.what()), {.value = order.window});
  }
}

}  // namespace

const Catalogue& CatalogueShelf::Get(const std::string& path) {
  const auto known = catalogues_.find(path);
  if (known != catalogues_.end()) return known->second;
  return catalogues_.emplace(path, ReadCatalogue(path.empty() ? DataFolder() : path)).first->second;
}

DialogAnswers AnswersOf(const WindowOrder& order, const dxf::Document& drawing, CatalogueShelf& shelf) {
  DialogAnswers answers;
  if (!order.window.empty()) AddCatalogueWindow(order, drawing, shelf, answers);
  for (const FieldSetting& setting : order.settings)
    AddSetting(setting, drawing, answers);
  return answers;
}

}  // namespace teskarlt
