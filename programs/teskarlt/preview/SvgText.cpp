// SvgText.cpp - numbers, texts and round lengths as vector pictures have them.
#include "teskarlt/preview/SvgText.h"

#include <cmath>

#include <fmt/format.h>

namespace teskarlt::preview {

std::string Number(double value) {
  return fmt::format("{}", std::round(value * 100) / 100 + 0.0);
}

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        escaped += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
    }
  }
  return escaped;
}

std::string TextElement(const SceneText& text, const TextPlace& place) {
  constexpr double capital = 0.72;  // height of a capital letter against the size of the font
  constexpr double least = 1e-6;
  constexpr const char* anchors[] = {"start", "middle", "end"};
  const double height = std::sqrt(place.up.x * place.up.x + place.up.y * place.up.y);
  const double area = place.along.x * place.up.y - place.along.y * place.up.x;
  if (!(std::abs(area) > least * height * height) || !(height > 0)) return {};
  const auto share = [&](double length) { return std::round(length / height * 10000) / 10000 + 0.0; };
  return fmt::format(
      "<text transform=\"matrix({} {} {} {} {} {})\" font-size=\"{}\" text-anchor=\"{}\" fill=\"{}\" "
      "xml:space=\"preserve\">{}</text>\n",
      share(place.along.x), share(place.along.y), share(-place.up.x), share(-place.up.y), Number(place.at.x),
      Number(place.at.y), Number(height / capital), anchors[static_cast<std::size_t>(text.anchor)],
      Hex(Ink(text.colour)), Escaped(text.text));
}

double RoundLength(double most) {
  double step = 1;
  while (step > most)
    step /= 10;
  while (step * 10 <= most)
    step *= 10;
  return step * 5 <= most ? step * 5 : step * 2 <= most ? step * 2 : step;
}

}  // namespace teskarlt::preview
