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
    {'A', "0,0 20,60 40,0; 7,20 33,20"},
    {'B', "26,32 0,32 0,60 26,60 36,52 36,40 26,32 40,22 40,10 28,0 0,0 0,32"},
    {'C', "40,50 30,60 12,60 0,46 0,14 12,0 30,0 40,10"},
    {'D', "0,0 0,60 24,60 40,44 40,16 24,0 0,0"},
    {'E', "40,60 0,60 0,0 40,0; 0,31 30,31"},
    {'F', "40,60 0,60 0,0; 0,31 30,31"},
    {'G', "40,50 30,60 12,60 0,46 0,14 12,0 28,0 40,10 40,28 24,28"},
    {'H', "0,0 0,60; 40,0 40,60; 0,31 40,31"},
    {'I', "10,0 30,0; 20,0 20,60; 10,60 30,60"},
    {'J', "36,60 36,14 26,0 12,0 2,12"},
    {'K', "0,0 0,60; 40,60 0,24; 12,35 40,0"},
    {'L', "0,60 0,0 38,0"},
    {'M', "0,0 0,60 20,26 40,60 40,0"},
    {'N', "0,0 0,60 40,0 40,60"},
    {'O', "14,0 0,16 0,44 14,60 26,60 40,44 40,16 26,0 14,0"},
    {'P', "0,0 0,60 28,60 40,50 40,37 28,27 0,27"},
    {'Q', "14,0 0,16 0,44 14,60 26,60 40,44 40,16 26,0 14,0; 24,16 40,0"},
    {'R', "0,0 0,60 28,60 40,51 40,39 28,30 0,30; 22,30 40,0"},
    {'S', "39,50 28,60 12,60 1,50 1,42 10,33 30,28 40,19 40,10 28,0 12,0 0,10"},
    {'T', "0,60 40,60; 20,60 20,0"},
    {'U', "0,60 0,14 12,0 28,0 40,14 40,60"},
    {'V', "0,60 20,0 40,60"},
    {'W', "0,60 10,0 20,38 30,0 40,60"},
    {'X', "0,0 40,60; 0,60 40,0"},
    {'Y', "0,60 20,30 40,60; 20,30 20,0"},
    {'Z', "0,60 40,60 0,0 40,0"},
    {'-', "8,30 32,30"},
    {'.', "18,0 22,0 22,4 18,4 18,0"},
    {'/', "0,0 40,60"},
    {'_', "0,0 40,0"},
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

char Capital(char character) {
  constexpr char step = 'a' - 'A';
  return character >= 'a' && character <= 'z' ? static_cast<char>(character - step) : character;
}

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
      return known.character == Capital(character);
    });
    if (letter != std::end(LETTERS)) AddLetter(*letter, left, strokes);
    left += LETTER_ADVANCE;
  }
  return strokes;
}

}  // namespace teskarlt::preview
