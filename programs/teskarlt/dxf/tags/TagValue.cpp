// TagValue.cpp - numbers as programs write them, read without regard to the locale.
#include "teskarlt/dxf/tags/TagValue.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "teskarlt/dxf/tags/Digits.h"

namespace teskarlt::dxf {
namespace {

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
  const auto letter = text.find_first_of("Dd");
  if (letter == std::string_view::npos || text.size() > LONGEST_NUMBER) return std::nullopt;
  std::array<char, LONGEST_NUMBER> copy{};
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
