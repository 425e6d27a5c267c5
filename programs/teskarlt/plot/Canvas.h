// Canvas.h - writes a vector picture whose unit is the millimetre of the paper.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/plot/Paper.h"
#include "teskarlt/plot/Shapes.h"

namespace teskarlt::plot {

enum class Anchor { Start, Middle, End };

// A text in one line; `at` is on its baseline.
struct TextLine {
  std::string text;  // UTF-8
  PaperPoint at;
  double size = 0;  // of the font
  Anchor anchor = Anchor::Start;
  bool isBold = false;
  double turn = 0;  // about `at`, degrees clockwise
};

// Heights of capital letters against the size of the font, for texts that stand around a middle.
constexpr double CAPITAL = 0.72;

// Attributes are those of SVG, with a blank in front of each.
class Canvas {
 public:
  // Printed by any program, it fills the paper; `title` is for people who see the file.
  Canvas(const Paper& paper, const std::string& title);

  void BeginGroup(std::string_view id, std::string_view attributes = {});
  void EndGroup();

  void Line(const PaperLine& line, std::string_view attributes = {});
  void Shape(const std::vector<PaperPoint>& corners, std::string_view attributes = {});
  void Box(const PaperBox& box, std::string_view attributes = {});
  void Text(const TextLine& line);

  // The text with a size at which it is no wider than that: smaller than the line says, down to two thirds,
  // and then cut off.
  void TextWithin(TextLine line, double width);

  // Elements as they are.
  void Put(std::string_view elements) { text_ += elements; }

  // Ends the picture.
  std::string Finished() &&;

 private:
  std::string text_;
};

// "12.5,3", as paths have it.
std::string At(const PaperPoint& p);

}  // namespace teskarlt::plot
