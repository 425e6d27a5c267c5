// TagWriter.cpp - numbers and lines of tags.
#include "teskarlt/dxf/write/TagWriter.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Digits.h"

namespace teskarlt::dxf {
namespace {

constexpr std::size_t CODE_COLUMNS = 3;

// Between these, numbers are written without an exponent.
constexpr double SMALLEST_FIXED = 1e-20;
constexpr double LARGEST_FIXED = 1e20;

char* Scientific(char* begin, char* end, double value) {
  char* const last = std::to_chars(begin, end, value, std::chars_format::scientific).ptr;
  char* const letter = std::find(begin, last, 'e');
  *letter = 'E';
  if (std::find(begin, letter, '.') != letter) return last;
  std::copy_backward(letter, last, last + 2);
  letter[0] = '.';
  letter[1] = '0';
  return last + 2;
}

char* Fixed(char* begin, char* end, double value) {
  char* last = std::to_chars(begin, end, value, std::chars_format::fixed).ptr;
  if (std::find(begin, last, '.') == last) {
    *last++ = '.';
    *last++ = '0';
  }
  return last;
}

}  // namespace

void TagWriter::Code(int code) {
  char digits[LONGEST_NUMBER];
  const char* const end = std::to_chars(digits, digits + sizeof digits, code).ptr;
  const auto length = static_cast<std::size_t>(end - digits);
  if (length < CODE_COLUMNS) out_.append(CODE_COLUMNS - length, ' ');
  out_.append(digits, length).append(lineEnd_);
}

void TagWriter::Value(std::string_view text) {
  out_.append(text).append(lineEnd_);
}

void TagWriter::Text(int code, std::string_view raw) {
  Code(code);
  Value(raw);
}

void TagWriter::Integer(int code, std::int64_t value) {
  char digits[LONGEST_NUMBER];
  const char* const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  Text(code, {digits, static_cast<std::size_t>(end - digits)});
}

void TagWriter::Real(int code, double value) {
  char digits[LONGEST_NUMBER];
  const double size = std::abs(value);
  const bool isFixed = size == 0 || (size >= SMALLEST_FIXED && size < LARGEST_FIXED);
  const char* const end = isFixed ? Fixed(digits, digits + sizeof digits, value)
                                  : Scientific(digits, digits + sizeof digits, value);
  Text(code, {digits, static_cast<std::size_t>(end - digits)});
}

void TagWriter::Coordinates(int code, const Point& point) {
  Real(code, point.x);
  Real(code + Y_DISTANCE, point.y);
  Real(code + Z_DISTANCE, point.z);
}

void TagWriter::Handle(int code, std::uint64_t handle) {
  char digits[LONGEST_NUMBER];
  char* const end = std::to_chars(digits, digits + sizeof digits, handle, HEXADECIMAL).ptr;
  std::transform(digits, end, digits,
                 [](char digit) { return digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit; });
  Text(code, {digits, static_cast<std::size_t>(end - digits)});
}

}  // namespace teskarlt::dxf
