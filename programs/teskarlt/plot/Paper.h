// Paper.h - sizes of paper and usual scales.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace teskarlt::plot {

// Millimetres.
struct Paper {
  std::string name;  // "A3", "500x300"
  double width = 0;
  double height = 0;
};

// The smallest on which frame and title block have room.
constexpr double LEAST_PAPER = 180;
constexpr double GREATEST_PAPER = 5000;

// A sheet of paper by its name, A4 to A0 without regard to case, which lies across or, upright, on its short
// side; or of a size of one's own, "500x300" for width and height, which `isUpright` does not turn. None for
// another text, and for a size with a side below LEAST_PAPER or above GREATEST_PAPER.
std::optional<Paper> PaperNamed(std::string_view name, bool isUpright);

// A4 to A0 that way round, the smallest first.
std::span<const Paper> UsualPapers(bool isUpright);

// 50 stands for 1:50; the largest drawings first.
std::span<const int> UsualScales();

}  // namespace teskarlt::plot
