// Numbers.cpp - coordinates on the command line.
#include "teskarlt/terminal/Numbers.h"

#include <algorithm>
#include <optional>
#include <string_view>

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

}  // namespace

std::array<double, 2> ParsePlanPoint(const char* option, const std::string& text) {
  const auto numbers = ParseNumbers(text);
  if (!numbers || numbers->size() != 2) {
    throw Error(fmt::format("{} {}: a point is two finite numbers, X,Y, in drawing units", option, text));
  }
  return {(*numbers)[0], (*numbers)[1]};
}

geometry::Vec3 ParsePoint(const char* option, const std::string& text) {
  const auto numbers = ParseNumbers(text);
  if (!numbers || numbers->size() != 3) {
    throw Error(fmt::format("{} {}: a point is three finite numbers, X,Y,Z, in drawing units", option, text));
  }
  return {(*numbers)[0], (*numbers)[1], (*numbers)[2]};
}

std::string PlanExtents(const std::vector<RoofFace>& faces) {
  geometry::Vec3 low = faces[0].corners[0];
  geometry::Vec3 high = low;
  for (const RoofFace& face : faces) {
    for (const geometry::Vec3& corner : face.corners) {
      low = {std::min(low.x, corner.x), std::min(low.y, corner.y), 0};
      high = {std::max(high.x, corner.x), std::max(high.y, corner.y), 0};
    }
  }
  return fmt::format("x {:.12g} to {:.12g}, y {:.12g} to {:.12g}", low.x, high.x, low.y, high.y);
}

}  // namespace teskarlt
