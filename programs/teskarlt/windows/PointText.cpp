// PointText.cpp - points, lengths and moves as users write them.
#include "teskarlt/windows/PointText.h"

#include <optional>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

// As many numbers as the text holds between commas; nothing when one of them is malformed or not finite.
std::optional<std::vector<double>> ParseNumbers(std::string_view text) {
  std::vector<double> numbers;
  for (;;) {
    const auto comma = text.find(',');
    const std::optional<double> number = dxf::ParseReal(text.substr(0, comma));
    if (!number) return std::nullopt;
    numbers.push_back(*number);
    if (comma == std::string_view::npos) return numbers;
    text.remove_prefix(comma + 1);
  }
}

// Who writes decimal commas learns how it is meant.
std::string HintAt(std::string_view text, const char* example) {
  const bool hasComma = text.find(',') != std::string_view::npos;
  const bool isOfNumbers =
      !text.empty() && text.find_first_not_of("0123456789+-., ;") == std::string_view::npos;
  if (!hasComma || !isOfNumbers) return {};
  return fmt::format("; decimals stand behind a point, as in {}", example);
}

}  // namespace

PlanPoint ParsePlanPoint(const char* option, const std::string& text) {
  const auto numbers = ParseNumbers(text);
  if (!numbers || numbers->size() != 2) {
    throw Error(fmt::format("{} {}: a point is two finite numbers, X,Y, in drawing units{}", option, text,
                            HintAt(text, "3000.5,2000")),
                {.value = text});
  }
  return {(*numbers)[0], (*numbers)[1], text, option};
}

double ParseLength(const char* option, const std::string& text, LengthStyle style) {
  if (const std::optional<double> metres = ParseLengthIn(text, style)) return *metres;
  const char* const counted = style == LengthStyle::Metres
                                  ? "metres, or has its unit behind it, as 30cm or 12in"
                                  : "feet, or feet and inches with their marks, as 5'-4 1/2\"";
  throw Error(
      fmt::format("{} {}: a length is a finite number of {}{}", option, text, counted, HintAt(text, "0.5")),
      {.value = text});
}

geometry::Vec3 ParsePoint(const char* option, const std::string& text) {
  const auto numbers = ParseNumbers(text);
  if (!numbers || numbers->size() != 3) {
    throw Error(fmt::format("{} {}: a point is three finite numbers, X,Y,Z, in drawing units{}", option, text,
                            HintAt(text, "3000.5,2000,2750")),
                {.value = text});
  }
  return {(*numbers)[0], (*numbers)[1], (*numbers)[2]};
}

double ParseDistance(const char* option, const std::string& text, LengthStyle style) {
  const double distance = ParseLength(option, text, style);
  if (distance < 0.0)
    throw Error(fmt::format("{} {}: a distance is not negative", option, text), {.value = text});
  return distance;
}

SlopeMove ParseSlopeMove(const char* option, const std::string& text, LengthStyle style) {
  const std::size_t comma = text.find(',');
  if (comma == std::string::npos || text.find(',', comma + 1) != std::string::npos) {
    throw Error(fmt::format("{} {}: a move is two lengths, ALONG,UP, along the eaves and up the slope{}",
                            option, text, HintAt(text, "0.2,0")),
                {.value = text});
  }
  return {ParseLength(option, text.substr(0, comma), style),
          ParseLength(option, text.substr(comma + 1), style)};
}

}  // namespace teskarlt
