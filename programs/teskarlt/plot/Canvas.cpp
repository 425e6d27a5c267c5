// Canvas.cpp - writes a vector picture whose unit is the millimetre of the paper.
#include "teskarlt/plot/Canvas.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/preview/SvgText.h"

namespace teskarlt::plot {

namespace {

using preview::Escaped;
using preview::Number;

constexpr double SMALLEST = 2.0 / 3;  // size of a text against what it should be

// The text without its last character of UTF-8.
std::string Shortened(std::string text) {
  constexpr unsigned char kind = 0xC0;
  constexpr unsigned char continued = 0x80;
  while (!text.empty() && (static_cast<unsigned char>(text.back()) & kind) == continued)
    text.pop_back();
  if (!text.empty()) text.pop_back();
  return text;
}

}  // namespace

std::string At(const PaperPoint& p) {
  return Number(p.x) + "," + Number(p.y);
}

Canvas::Canvas(const Paper& paper, const std::string& title) {
  const std::string width = Number(paper.width);
  const std::string height = Number(paper.height);
  fmt::format_to(
      std::back_inserter(text_),
      "<svg xmlns=\"http://www.w3.org/2000/svg\" "
      "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\"\n"
      "  width=\"{0}mm\" height=\"{1}mm\" viewBox=\"0 0 {0} {1}\" font-family=\"Helvetica, Arial, "
      "sans-serif\">\n<title>{2}</title>\n<style>@page {{ size: {0}mm {1}mm; margin: 0 }}</style>\n"
      "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n",
      width, height, Escaped(title));
}

void Canvas::BeginGroup(std::string_view id, std::string_view attributes) {
  fmt::format_to(std::back_inserter(text_), "<g id=\"{}\"{}>\n", id, attributes);
}

void Canvas::EndGroup() {
  text_ += "</g>\n";
}

void Canvas::Line(const PaperLine& line, std::string_view attributes) {
  fmt::format_to(std::back_inserter(text_), "<path{} d=\"M{}L{}\"/>\n", attributes, At(line.from),
                 At(line.to));
}

void Canvas::Shape(const std::vector<PaperPoint>& corners, std::string_view attributes) {
  std::string path;
  for (const PaperPoint& corner : corners)
    path += (path.empty() ? "M" : "L") + At(corner);
  fmt::format_to(std::back_inserter(text_), "<path{} d=\"{}Z\"/>\n", attributes, path);
}

void Canvas::Box(const PaperBox& box, std::string_view attributes) {
  fmt::format_to(std::back_inserter(text_), "<rect{} x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\"/>\n",
                 attributes, Number(box.left), Number(box.top), Number(box.Width()), Number(box.Height()));
}

void Canvas::Text(const TextLine& line) {
  std::string more;
  if (line.anchor != Anchor::Start)
    more += fmt::format(" text-anchor=\"{}\"", line.anchor == Anchor::End ? "end" : "middle");
  if (line.isBold) more += " font-weight=\"bold\"";
  if (Number(line.turn) != "0")
    more += fmt::format(" transform=\"rotate({} {})\"", Number(line.turn), At(line.at));
  fmt::format_to(std::back_inserter(text_), "<text x=\"{}\" y=\"{}\" font-size=\"{}\"{}>{}</text>\n",
                 Number(line.at.x), Number(line.at.y), Number(line.size), more, Escaped(line.text));
}

void Canvas::TextWithin(TextLine line, double width) {
  const double wanted = TextWidth(line.text, line.size);
  if (wanted > width) line.size *= std::max(SMALLEST, width / wanted);
  if (TextWidth(line.text, line.size) > width) {
    while (!line.text.empty() && TextWidth(line.text + "…", line.size) > width)
      line.text = Shortened(std::move(line.text));
    line.text += "…";
  }
  Text(line);
}

std::string Canvas::Finished() && {
  text_ += "</svg>\n";
  return std::move(text_);
}

}  // namespace teskarlt::plot
