// Answers.cpp - an order in the words of the dialog: a text for each field of the record.
#include "teskarlt/windows/Answers.h"

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/catalogue/CatalogueFolder.h"
#include "teskarlt/drawing/FeetInches.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/windows/SizeWords.h"
#include "window/Choices.h"
#include "window/RecordFields.h"

namespace teskarlt {

namespace {

// A length in metres, as the dialog reads it.
std::string LengthText(const FieldSetting& setting) {
  const std::string& value = setting.value;
  if (const auto metres = ParseLengthWithUnit(value)) return fmt::format("{}", *metres);
  if (value.find_first_of("'\"") != std::string::npos) {
    throw Error(fmt::format("--set {}={}: this is no length in feet and inches; they are written 5'-4 1/2\", "
                            "64.5\" or 5.375'",
                            setting.field, value),
                {.value = value});
  }
  const auto feet = setting.lengths == LengthStyle::FeetAndInches ? dxf::ParseReal(value) : std::nullopt;
  return feet ? fmt::format("{}", *feet * METRES_PER_FOOT) : value;
}

void AddSetting(const FieldSetting& setting, const dxf::Document& drawing, DialogAnswers& answers) {
  const brevanta::RecordField* field = brevanta::FindRecordField(setting.field);
  if (field == nullptr) {
    throw Error(fmt::format("--set {}={}: there is no such field; teskarlt insert --fields lists them",
                            setting.field, setting.value),
                {.value = setting.field});
  }
  std::string& answer = answers[setting.field] = setting.value;
  if (field->kind == brevanta::FieldKind::Length) answer = LengthText(setting);
  if (field->kind != brevanta::FieldKind::Text) return;
  try {
    const bool isFixed = setting.field == "openingCode" && setting.value == brevanta::FIXED_GLAZING;
    answer = drawing.Encode(isFixed ? "" : setting.value);
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
  return catalogues_.emplace(path, ReadCatalogue(path.empty() ? FindUsualCatalogue().path : path))
      .first->second;
}

DialogAnswers AnswersOf(const WindowOrder& order, const dxf::Document& drawing, CatalogueShelf& shelf) {
  DialogAnswers answers;
  if (!order.window.empty()) AddCatalogueWindow(order, drawing, shelf, answers);
  for (const FieldSetting& setting : order.settings) {
    if (setting.lengths == LengthStyle::Metres) RefuseOtherUnits(setting);
    AddSetting(setting, drawing, answers);
  }
  return answers;
}

}  // namespace teskarlt
