// Answers.cpp - takes the user's answers into the record.
#include "dialog/Answers.h"

#include <cmath>
#include <cstring>
#include <string_view>

#include "dialog/Refusal.h"

namespace brevanta {

namespace {

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// A number that fills the whole text, but for blanks around it and a plus sign.
template <typename Number>
bool ParseNumber(std::string_view text, Number& value) {
  text = Trimmed(text);
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  return error == std::errc() && stop == end;
}

double ParseReal(std::string_view field, std::string_view text) {
  double value = 0.0;
  if (!ParseNumber(text, value)) throw Refusal(std::string(field) + ": " + Quoted(text) + " is not a number");
  if (!std::isfinite(value))
    throw Refusal(std::string(field) + ": " + Quoted(text) + " is not a finite number");
  return value;
}

std::int32_t ParseInteger(std::string_view field, std::string_view text) {
  std::int32_t value = 0;
  if (!ParseNumber(text, value))
    throw Refusal(std::string(field) + ": " + Quoted(text) + " is not a whole number");
  return value;
}

// Cuts the text up to the separator off the front of `rest`.
std::string_view CutField(std::string_view& rest, char separator) {
  const auto end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  return part;
}

// `count` points as "x,y,z;x,y,z".
void ParsePoints(std::string_view field, std::string_view text, std::size_t count, void* place) {
  std::string_view rest = text;
  for (std::size_t i = 0; i < count; ++i) {
    std::string_view point = CutField(rest, ';');
    const double x = ParseReal(field, CutField(point, ','));
    const double y = ParseReal(field, CutField(point, ','));
    const double z = ParseReal(field, CutField(point, ','));
    if (!point.empty())
      throw Refusal(std::string(field) + ": " + Quoted(text) + " has a point of more than three numbers");
    const RecordPoint value{x, y, z};
    std::memcpy(static_cast<char*>(place) + i * sizeof value, &value, sizeof value);
  }
  if (!rest.empty()) throw Refusal(std::string(field) + ": " + Quoted(text) + " has too many points");
}

void StoreText(std::string_view field, std::string_view text, std::size_t size, void* place) {
  if (text.size() >= size) {
    throw Refusal(std::string(field) + " is too long: " + NumberText(text.size()) +
                  " bytes in the drawing's code page, at most " + NumberText(size - 1) + " fit");
  }
  std::memset(place, 0, size);
  std::memcpy(place, text.data(), text.size());
}

void Store(const RecordField& field, std::string_view text, WindowParams& record) {
  void* place = FieldPlace(record, field);
  switch (field.kind) {
    case FieldKind::Real: {
      const double value = ParseReal(field.name, text);
      std::memcpy(place, &value, sizeof value);
      break;
    }
    case FieldKind::Integer: {
      const std::int32_t value = ParseInteger(field.name, text);
      std::memcpy(place, &value, sizeof value);
      break;
    }
    case FieldKind::Text:
      StoreText(field.name, text, field.size, place);
      break;
    case FieldKind::Points:
      ParsePoints(field.name, text, field.size / sizeof(RecordPoint), place);
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
  for (const RecordField& field : RECORD_FIELDS) {
    if (Get(field.name.data(), text)) Store(field, text, record);
  }
}

}  // namespace brevanta
