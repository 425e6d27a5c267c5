// ItemFields.h - the fields of a window in a catalogue: their names and order, and lines made of them.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace teskarlt {

// Places of the fields in a line.
constexpr std::size_t FIELD_KEY = 0;
constexpr std::size_t FIELD_WIDTH = 1;
constexpr std::size_t FIELD_LENGTH = 2;
constexpr std::size_t FIELD_FRAME_WIDTH = 3;
constexpr std::size_t FIELD_FRAME_DEPTH = 4;
constexpr std::size_t FIELD_OPENING_CODE = 5;
constexpr std::size_t FIELD_DESCRIPTION = 6;
constexpr std::size_t FIELD_COUNT = 7;

// What people begin a comment with. The module knows no comments: behind a heading each line is a window.
constexpr char COMMENT_MARK = '#';

struct FieldForm {
  const char* name;       // for maps and the heads of tables
  const char* inAnswers;  // for programs
  double usualCm = 0.0;   // what an empty size stands for; 0: the field is no size

  constexpr bool IsSize() const { return usualCm > 0.0; }
};

inline constexpr std::array<FieldForm, FIELD_COUNT> FIELD_FORMS = {{{"key", "key"},
                                                                    {"width", "widthCm", 94.0},
                                                                    {"length", "lengthCm", 140.0},
                                                                    {"frameWidth", "frameWidthCm", 10.0},
                                                                    {"frameDepth", "frameDepthCm", 8.0},
                                                                    {"openingCode", "openingCode"},
                                                                    {"description", "description"}}};

// The fields of one window, UTF-8, sizes in centimetres; an empty one is left to what a window has by itself.
using ItemTexts = std::array<std::string, FIELD_COUNT>;

struct CatalogueWindow {
  std::string maker;  // UTF-8
  ItemTexts texts;
};

// The fields of a line of a catalogue; blanks behind the key belong to it.
ItemTexts TextsOf(std::string_view line);

// The line, UTF-8, without empty fields at its end. A semicolon and a blank stand behind the key in any case:
// some readers look for them.
std::string LineOf(const ItemTexts& texts);

// The line, in the catalogue's bytes, with another text in one field; the bytes of all others stay. A field
// that the line lacks comes with those before it.
std::string WithField(std::string_view line, std::size_t field, std::string_view text);

}  // namespace teskarlt
