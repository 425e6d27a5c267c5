// Paper.cpp - sizes of paper and usual scales.
#include "teskarlt/plot/Paper.h"

#include <algorithm>
#include <array>

#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::plot {

namespace {

constexpr std::array SCALES = {1,   2,   5,   10,   20,   25,   50,   75,   100,
                               200, 250, 500, 1000, 2000, 2500, 5000, 10000};

bool IsSide(double length) {
  return length >= LEAST_PAPER && length <= GREATEST_PAPER;
}

// A number of digits and at most one point.
std::optional<double> SideOf(std::string_view text) {
  const bool isPlain = !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
    return (c >= '0' && c <= '9') || c == '.';
  });
  return isPlain ? dxf::ParseReal(text) : std::nullopt;
}

std::optional<Paper> PaperOfSize(std::string_view text) {
  const std::size_t cross = text.find_first_of("xX");
  if (cross == std::string_view::npos) return std::nullopt;
  const std::optional<double> width = SideOf(text.substr(0, cross));
  const std::optional<double> height = SideOf(text.substr(cross + 1));
  if (!width || !height || !IsSide(*width) || !IsSide(*height)) return std::nullopt;
  return Paper{std::string(text), *width, *height};
}

}  // namespace

std::span<const Paper> UsualPapers(bool isUpright) {
  static const std::array<Paper, 5> across = {
      {{"A4", 297, 210}, {"A3", 420, 297}, {"A2", 594, 420}, {"A1", 841, 594}, {"A0", 1189, 841}}};
  static const std::array<Paper, 5> upright = {
      {{"A4", 210, 297}, {"A3", 297, 420}, {"A2", 420, 594}, {"A1", 594, 841}, {"A0", 841, 1189}}};
  return isUpright ? upright : across;
}

std::optional<Paper> PaperNamed(std::string_view name, bool isUpright) {
  for (const Paper& paper : UsualPapers(isUpright))
    if (dxf::SameName(paper.name, name)) return paper;
  return PaperOfSize(name);
}

std::span<const int> UsualScales() {
  return SCALES;
}

}  // namespace teskarlt::plot
