// FeetInches.cpp - lengths out of texts, and feet and inches into them.
#include "teskarlt/drawing/FeetInches.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <numeric>

#include <fmt/format.h>

#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

constexpr char FOOT_MARK = '\'';
constexpr char INCH_MARK = '"';
constexpr std::int64_t INCHES_PER_FOOT = 12;
constexpr std::string_view DIGITS = "0123456789";

struct LengthUnit {
  std::string_view name;
  double metres;
};
constexpr std::array UNITS = {LengthUnit{"mm", 0.001}, LengthUnit{"cm", 0.01}, LengthUnit{METRES, 1.0},
                              LengthUnit{"in", METRES_PER_INCH}, LengthUnit{FEET, METRES_PER_FOOT}};

// A number without a sign that fills the text: "4", "4.5", "1/2", "4 1/2", "4-1/2".
std::optional<double> ParseAmount(std::string_view text) {
  text = dxf::Trimmed(text);
  if (text.empty() || text.find_first_not_of("0123456789./ -") != std::string_view::npos) return std::nullopt;
  const std::size_t slash = text.find('/');
  if (slash == std::string_view::npos) return text.front() == '-' ? std::nullopt : dxf::ParseReal(text);
  const std::size_t before = text.find_last_not_of(DIGITS, slash == 0 ? 0 : slash - 1);
  const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
  const auto numerator = dxf::ParseReal(text.substr(begin, slash - begin));
  const auto denominator = dxf::ParseReal(text.substr(slash + 1));
  if (!numerator || !denominator || *denominator <= 0.0) return std::nullopt;
  const double fraction = *numerator / *denominator;
  if (begin == 0) return fraction;
  const auto whole = ParseAmount(text.substr(0, before));
  return whole ? std::optional(*whole + fraction) : std::nullopt;
}

std::optional<double> ParseInches(std::string_view text) {
  if (!text.empty() && text.back() == INCH_MARK) text.remove_suffix(1);
  return ParseAmount(text);
}

// What stands behind the feet: inches, with a dash in front or none, or nothing.
std::optional<double> ParseInchesBehindFeet(std::string_view text) {
  text = dxf::Trimmed(text);
  if (text.empty()) return 0.0;
  if (text.front() == '-') text.remove_prefix(1);
  const std::optional<double> inches = ParseInches(text);
  return inches && *inches < static_cast<double>(INCHES_PER_FOOT) ? inches : std::nullopt;
}

}  // namespace

std::optional<double> ParseFeetInches(std::string_view text) {
  text = dxf::Trimmed(text);
  const bool isNegative = !text.empty() && text.front() == '-';
  if (isNegative) text.remove_prefix(1);
  const std::size_t mark = text.find(FOOT_MARK);
  const bool hasFeet = mark != std::string_view::npos;
  if (!hasFeet && (text.empty() || text.back() != INCH_MARK)) return std::nullopt;
  const auto feet = hasFeet ? ParseAmount(text.substr(0, mark)) : 0.0;
  const auto inches = hasFeet ? ParseInchesBehindFeet(text.substr(mark + 1)) : ParseInches(text);
  if (!feet || !inches) return std::nullopt;
  const double metres = (*feet * static_cast<double>(INCHES_PER_FOOT) + *inches) * METRES_PER_INCH;
  return isNegative ? -metres : metres;
}

std::optional<double> ParseLengthWithUnit(std::string_view text) {
  text = dxf::Trimmed(text);
  for (const LengthUnit& unit : UNITS) {
    if (!text.ends_with(unit.name)) continue;
    const std::optional<double> number = dxf::ParseReal(text.substr(0, text.size() - unit.name.size()));
    if (number) return *number * unit.metres;
  }
  return ParseFeetInches(text);
}

std::optional<double> ParseLengthIn(std::string_view text, LengthStyle style) {
  if (const std::optional<double> metres = ParseLengthWithUnit(text)) return metres;
  const std::optional<double> number = dxf::ParseReal(text);
  return number && style == LengthStyle::FeetAndInches ? *number * METRES_PER_FOOT : number;
}

std::string FeetInchesText(double metres) {
  constexpr std::int64_t PARTS = 64;  // of an inch
  constexpr double EXACT = 1e-6;      // metres
  constexpr double MOST = 1e12;       // metres; beyond, inches say nothing
  if (!(std::abs(metres) <= MOST)) return fmt::format("{:g} m", metres);
  const std::int64_t parts = std::llround(std::abs(metres) / METRES_PER_INCH * PARTS);
  const double written = static_cast<double>(parts) / PARTS * METRES_PER_INCH;
  const char* const about = std::abs(written - std::abs(metres)) > EXACT ? "~" : "";
  const char* const sign = metres < 0 && parts > 0 ? "-" : "";
  const std::int64_t feet = parts / (PARTS * INCHES_PER_FOOT);
  const std::int64_t inches = parts / PARTS % INCHES_PER_FOOT;
  const std::int64_t part = parts % PARTS;
  std::string text = fmt::format("{}{}", about, sign);
  if (feet > 0) text += fmt::format("{}'-", feet);
  text += fmt::format("{}", inches);
  if (part > 0) {
    const std::int64_t common = std::gcd(part, PARTS);
    text += fmt::format(" {}/{}", part / common, PARTS / common);
  }
  return text + INCH_MARK;
}

}  // namespace teskarlt
