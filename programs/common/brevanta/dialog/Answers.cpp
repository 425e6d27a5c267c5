// Answers.cpp - takes the user's answers into the record.
#include "dialog/Answers.h"

#include <string_view>

#include "dialog/CatalogueItem.h"
#include "dialog/FieldText.h"

namespace brevanta {

namespace {

void Store(const RecordField& field, std::string_view text, WindowParams& record) {
  switch (field.kind) {
    case FieldKind::Length:
    case FieldKind::Real:
      RealIn(record, field) = ParseReal(field.name, text);
      break;
    case FieldKind::Integer:
      IntegerIn(record, field) = ParseInteger(field.name, text);
      break;
    case FieldKind::Text:
      StoreText(field.name, text, field.size, FieldPlace(record, field));
      break;
    case FieldKind::Points:
      ParsePoints(field.name, text, field.size / sizeof(RecordPoint), FieldPlace(record, field));
      break;
  }
}

}  // namespace

bool Answers::Has(const char* field) const {
  char first[1];
  return services_.answer(services_.context, field, first, sizeof first) >= 0;
}

bool Answers::Get(const char* field, std::string& text) const {
  text.resize(TEXT_FIELD_SIZE);
  std::int32_t length = services_.answer(services_.context, field, text.data(), TEXT_FIELD_SIZE);
  if (length >= TEXT_FIELD_SIZE) {
    text.resize(static_cast<std::size_t>(length) + 1);
    length = services_.answer(services_.context, field, text.data(), length + 1);
  }
  if (length < 0) return false;
  text.resize(static_cast<std::size_t>(length));
  return true;
}

void Answers::ApplyTo(WindowParams& record) const {
  std::string text;
  if (Get(ANSWER_CATALOGUE_MAKER, text)) StoreText("text1", text, sizeof record.text1, record.text1);
  if (Get(ANSWER_CATALOGUE_ITEM, text)) TakeCatalogueItem(text, record);
  for (const RecordField& field : RECORD_FIELDS) {
    if (Get(field.name.data(), text)) Store(field, text, record);
  }
}

}  // namespace brevanta
