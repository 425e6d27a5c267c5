// FieldText.cpp - values of the record's fields from text.
#include "dialog/FieldText.h"

#include <charconv>
#include <cmath>
#include <cstring>

#include "dialog/Refusal.h"
#include "inc/DialogServices.h"
#include "inc/WindowParams.h"

namespace brevanta {

namespace {

// A number that fills the whole text, but for blanks around it and a plus sign.
template <typename Number>
bool ParseNumber(std::string_view text, Number& value) {
  text = Trimmed(text);
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  return error == std::errc() && stop == end;
}

}  // namespace

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
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

std::string_view CutField(std::string_view& rest, char separator) {
  const auto end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  return part;
}

void ParsePoints(std::string_view field, std::string_view text, std::size_t count, void* place) {
  std::string_view rest = text;
  for (std::size_t i = 0; i < count; ++i) {
    std::string_view point = CutField(rest, POINT_DELIMITER);
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
                  " bytes as the drawing keeps it, at most " + NumberText(size - 1) + " fit");
  }
  std::memset(place, 0, size);
  std::memcpy(place, text.data(), text.size());
}

}  // namespace brevanta
