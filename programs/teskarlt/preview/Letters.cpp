// Letters.cpp - the strokes of letters.
#include "teskarlt/preview/Letters.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <string_view>

#include "teskarlt/preview/RoofNames.h"

namespace teskarlt::preview {

namespace {

// The grid on which the letters are drawn.
constexpr double WIDTH = 40;
constexpr double HEIGHT = 60;

struct Letter {
  char character;
  std::string_view strokes;  // x,y of their points on the grid, a semicolon between two strokes
};

constexpr Letter LETTERS[] = {
    {'R', "0,0 0,60 28,60 40,51 40,39 28,30 0,30; 22,30 40,0"},
    {'0', "12,0 0,14 0,46 12,60 28,60 40,46 40,14 28,0 12,0"},
    {'1', "8,46 24,60 24,0"},
    {'2', "0,48 12,60 28,60 40,49 40,39 0,0 40,0"},
    {'3', "0,51 12,60 28,60 40,51 40,41 28,32 14,32; 28,32 40,23 40,11 28,0 12,0 0,9"},
    {'4', "30,0 30,60 0,19 40,19"},
    {'5', "37,60 4,60 2,33 12,38 28,38 40,27 40,12 28,0 12,0 0,9"},
    {'6', "38,52 28,60 12,60 0,46 0,14 12,0 28,0 40,12 40,24 28,36 12,36 0,24"},
    {'7', "0,60 40,60 14,0"},
    {'8', "12,32 2,41 2,51 12,60 28,60 38,51 38,41 28,32 12,32 0,22 0,11 12,0 28,0 40,11 40,22 28,32"},
    {'9', "2,8 12,0 28,0 40,14 40,46 28,60 12,60 0,48 0,36 12,24 28,24 40,36"}};

using Strokes = std::vector<std::vector<geometry::Vec3>>;

// Adds the strokes of a letter whose left edge lies there.
void AddLetter(const Letter& letter, double left, Strokes& strokes) {
  const auto numberAt = [&](std::size_t& place) {
    int number = 0;
    const char* const end = letter.strokes.data() + letter.strokes.size();
    place = static_cast<std::size_t>(std::from_chars(letter.strokes.data() + place, end, number).ptr -
                                     letter.strokes.data());
    return number;
  };
  strokes.emplace_back();
  for (std::size_t place = 0; place < letter.strokes.size();) {
    const char character = letter.strokes[place];
    if (character == ' ' || character == ';') {
      if (character == ';') strokes.emplace_back();
      ++place;
      continue;
    }
    const int x = numberAt(place);
    const int y = numberAt(++place);
    strokes.back().push_back({left + x / HEIGHT, y / HEIGHT - 0.5, 0});
  }
}

}  // namespace

std::vector<std::vector<geometry::Vec3>> StrokesOf(const std::string& text) {
  Strokes strokes;
  const double width = static_cast<double>(text.size()) * LETTER_ADVANCE;
  double left = (LETTER_ADVANCE - WIDTH / HEIGHT) / 2 - width / 2;
  for (const char character : text) {
    const auto* const letter = std::find_if(std::begin(LETTERS), std::end(LETTERS), [&](const Letter& known) {
      return known.character == character;
    });
    if (letter != std::end(LETTERS)) AddLetter(*letter, left, strokes);
    left += LETTER_ADVANCE;
  }
  return strokes;
}

}  // namespace teskarlt::preview
