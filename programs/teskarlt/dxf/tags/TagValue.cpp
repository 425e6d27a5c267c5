// TagValue.cpp - numbers as programs write them, read without regard to the locale.
#include "teskarlt/dxf/tags/TagValue.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace teskarlt::dxf {
namespace {

struct KindRange {
  int first;
  int last;
  ValueKind kind;
};

// Of the codes of entities and of extended data, in ascending order.
constexpr KindRange KIND_RANGES[] = {
    {0, 4, ValueKind::Text},          {5, 5, ValueKind::Handle},          {6, 9, ValueKind::Text},
    {10, 18, ValueKind::Point},       {19, 59, ValueKind::Real},          {60, 79, ValueKind::Integer16},
    {90, 99, ValueKind::Integer32},   {100, 102, ValueKind::Text},        {105, 105, ValueKind::Handle},
    {110, 112, ValueKind::Point},     {113, 149, ValueKind::Real},        {160, 169, ValueKind::Integer64},
    {170, 179, ValueKind::Integer16}, {210, 210, ValueKind::Point},       {211, 239, ValueKind::Real},
    {270, 289, ValueKind::Integer16}, {290, 299, ValueKind::Boolean},     {300, 319, ValueKind::Text},
    {320, 369, ValueKind::Handle},    {370, 389, ValueKind::Integer16},   {390, 399, ValueKind::Handle},
    {400, 409, ValueKind::Integer16}, {410, 419, ValueKind::Text},        {420, 429, ValueKind::Integer32},
    {430, 439, ValueKind::Text},      {440, 459, ValueKind::Integer32},   {460, 469, ValueKind::Real},
    {470, 479, ValueKind::Text},      {480, 481, ValueKind::Handle},      {1000, 1004, ValueKind::Text},
    {1005, 1005, ValueKind::Handle},  {1006, 1009, ValueKind::Text},      {1010, 1013, ValueKind::Point},
    {1014, 1059, ValueKind::Real},    {1060, 1070, ValueKind::Integer16}, {1071, 1071, ValueKind::Integer32},
};

bool IsBlank(char byte) {
  return byte == ' ' || byte == '\t';
}

std::string_view WithoutPlus(std::string_view text) {
  return text.size() > 1 && text[0] == '+' && text[1] != '-' ? text.substr(1) : text;
}

bool HasNegativeExponent(std::string_view text) {
  const auto letter = text.find_first_of("eE");
  return letter != std::string_view::npos && text.substr(letter + 1).starts_with('-');
}

std::optional<double> ParseTrimmedReal(std::string_view text) {
  double value = 0;
  const char* const end = text.data() + text.size();
  const auto parsed = std::from_chars(text.data(), end, value);
  // Numbers too small for a double are no reason to refuse a drawing.
  if (parsed.ec == std::errc::result_out_of_range && parsed.ptr == end && HasNegativeExponent(text))
    return 0.0;
  if (parsed.ec != std::errc() || parsed.ptr != end || !std::isfinite(value)) return std::nullopt;
  return value;
}

}  // namespace

ValueKind KindOf(int code) {
  const auto* const range =
      std::lower_bound(std::begin(KIND_RANGES), std::end(KIND_RANGES), code,
                       [](const KindRange& candidate, int wanted) { return candidate.last < wanted; });
  return range != std::end(KIND_RANGES) && range->first <= code ? range->kind : ValueKind::None;
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && (IsBlank(text.back()) || text.back() == '\r'))
    text.remove_suffix(1);
  while (!text.empty() && IsBlank(text.front()))
    text.remove_prefix(1);
  return text;
}

std::optional<double> ParseReal(std::string_view text) {
  text = WithoutPlus(Trimmed(text));
  if (const auto value = ParseTrimmedReal(text)) return value;
  // Fortran's exponent letter.
  constexpr std::size_t LONGEST = 64;
  const auto letter = text.find_first_of("Dd");
  if (letter == std::string_view::npos || text.size() > LONGEST) return std::nullopt;
  std::array<char, LONGEST> copy{};
  text.copy(copy.data(), text.size());
  copy[letter] = 'E';
  return ParseTrimmedReal({copy.data(), text.size()});
}

std::optional<std::int64_t> ParseInteger(std::string_view text) {
  text = WithoutPlus(Trimmed(text));
  std::int64_t value = 0;
  const char* const end = text.data() + text.size();
  const auto parsed = std::from_chars(text.data(), end, value);
  if (parsed.ec != std::errc()) return std::nullopt;
  if (parsed.ptr == end) return value;
  if (*parsed.ptr != '.') return std::nullopt;
  return std::all_of(parsed.ptr + 1, end, [](char digit) { return digit == '0'; }) ? std::optional(value)
                                                                                   : std::nullopt;
}

std::optional<std::uint64_t> ParseHandle(std::string_view text) {
  constexpr int HEXADECIMAL = 16;
  text = Trimmed(text);
  std::uint64_t value = 0;
  const char* const end = text.data() + text.size();
  const auto parsed = std::from_chars(text.data(), end, value, HEXADECIMAL);
  return parsed.ec == std::errc() && parsed.ptr == end ? std::optional(value) : std::nullopt;
}

std::string Quoted(std::string_view text) {
  constexpr std::size_t LONGEST = 40;
  constexpr char DELETE = 0x7F;
  std::string quoted = "\"";
  for (const char byte : text.substr(0, LONGEST))
    quoted += byte >= ' ' && byte < DELETE ? byte : '?';
  return quoted + (text.size() > LONGEST ? "...\"" : "\"");
}

bool SameName(std::string_view a, std::string_view b) {
  const auto upper = [](char byte) { return byte >= 'a' && byte <= 'z' ? byte - 'a' + 'A' : byte; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char left, char right) { return upper(left) == upper(right); });
}

}  // namespace teskarlt::dxf
