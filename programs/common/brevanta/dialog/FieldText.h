// FieldText.h - values of the record's fields from text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brevanta {

// The text without blanks around it.
std::string_view Trimmed(std::string_view text);

// Cuts the part up to the separator off the front of `rest`, and the separator with it.
std::string_view CutField(std::string_view& rest, char separator);

// Each throws Refusal, naming the field, for a text that is no such value or does not fit.
double ParseReal(std::string_view field, std::string_view text);  // finite
std::int32_t ParseInteger(std::string_view field, std::string_view text);
void ParsePoints(std::string_view field, std::string_view text, std::size_t count,
                 void* place);  // "x,y,z;x,y,z"
void StoreText(std::string_view field, std::string_view text, std::size_t size, void* place);

}  // namespace brevanta
