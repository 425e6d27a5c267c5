// Letters.cpp - the strokes of letters.
#include "teskarlt/preview/Letters.h"

#include <algorithm>
#include <iterator>

#include "teskarlt/preview/RoofNames.h"

namespace teskarlt::preview {

namespace {

// The grid on which the letters are drawn.
constexpr double WIDTH = 4;
constexpr double HEIGHT = 6;

struct GridPoint {
  double x, y;
};

using Stroke = std::vector<GridPoint>;

struct Letter {
  char character;
  std::vector<Stroke> strokes;
};

const std::vector<Letter>& Letters() {
  static const std::vector<Letter> letters = {
      {'R', {{{0, 0}, {0, 6}, {2.8, 6}, {4, 5.1}, {4, 3.9}, {2.8, 3}, {0, 3}}, {{2.2, 3}, {4, 0}}}},
      {'0', {{{1.2, 0}, {0, 1.4}, {0, 4.6}, {1.2, 6}, {2.8, 6}, {4, 4.6}, {4, 1.4}, {2.8, 0}, {1.2, 0}}}},
      {'1', {{{0.8, 4.6}, {2.4, 6}, {2.4, 0}}}},
      {'2', {{{0, 4.8}, {1.2, 6}, {2.8, 6}, {4, 4.9}, {4, 3.9}, {0, 0}, {4, 0}}}},
      {'3',
       {{{0, 5.1}, {1.2, 6}, {2.8, 6}, {4, 5.1}, {4, 4.1}, {2.8, 3.2}, {1.4, 3.2}},
        {{2.8, 3.2}, {4, 2.3}, {4, 1.1}, {2.8, 0}, {1.2, 0}, {0, 0.9}}}},
      {'4', {{{3, 0}, {3, 6}, {0, 1.9}, {4, 1.9}}}},
      {'5',
       {{{3.7, 6},
         {0.4, 6},
         {0.2, 3.3},
         {1.2, 3.8},
         {2.8, 3.8},
         {4, 2.7},
         {4, 1.2},
         {2.8, 0},
         {1.2, 0},
         {0, 0.9}}}},
      {'6',
       {{{3.8, 5.2},
         {2.8, 6},
         {1.2, 6},
         {0, 4.6},
         {0, 1.4},
         {1.2, 0},
         {2.8, 0},
         {4, 1.2},
         {4, 2.4},
         {2.8, 3.6},
         {1.2, 3.6},
         {0, 2.4}}}},
      {'7', {{{0, 6}, {4, 6}, {1.4, 0}}}},
      {'8',
       {{{1.2, 3.2},
         {0.2, 4.1},
         {0.2, 5.1},
         {1.2, 6},
         {2.8, 6},
         {3.8, 5.1},
         {3.8, 4.1},
         {2.8, 3.2},
         {1.2, 3.2},
         {0, 2.2},
         {0, 1.1},
         {1.2, 0},
         {2.8, 0},
         {4, 1.1},
         {4, 2.2},
         {2.8, 3.2}}}},
      {'9',
       {{{0.2, 0.8},
         {1.2, 0},
         {2.8, 0},
         {4, 1.4},
         {4, 4.6},
         {2.8, 6},
         {1.2, 6},
         {0, 4.8},
         {0, 3.6},
         {1.2, 2.4},
         {2.8, 2.4},
         {4, 3.6}}}}};
  return letters;
}

}  // namespace

std::vector<std::vector<geometry::Vec3>> StrokesOf(const std::string& text) {
  std::vector<std::vector<geometry::Vec3>> strokes;
  const double width = static_cast<double>(text.size()) * LETTER_ADVANCE;
  double left = (LETTER_ADVANCE - WIDTH / HEIGHT) / 2 - width / 2;
  for (const char character : text) {
    const auto letter = std::find_if(Letters().begin(), Letters().end(),
                                     [&](const Letter& known) { return known.character == character; });
    if (letter != Letters().end()) {
      for (const Stroke& stroke : letter->strokes) {
        std::vector<geometry::Vec3>& placed = strokes.emplace_back();
        for (const auto& [x, y] : stroke)
          placed.push_back({left + x / HEIGHT, y / HEIGHT - 0.5, 0});
      }
    }
    left += LETTER_ADVANCE;
  }
  return strokes;
}

}  // namespace teskarlt::preview
