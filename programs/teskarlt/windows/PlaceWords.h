// PlaceWords.h - the words by which an order says where a window goes: of command lines and of jobs alike.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// "from-eaves" is the option --from-eaves of a command line, and the member of that name in a job.
struct PlaceWord {
  const char* name;
  int values;             // how many it takes on a command line: 0 is a flag, whose text is "1" or "0"
  const char* valueName;  // what stands for them in the help
  const char* help;
  // Puts the text into the order; several values are joined by ';'. Throws Error, naming the word.
  void (*apply)(const PlaceWord& word, const std::string& text, WindowOrder& order);
};

// The words for a roof that is only drawn in plan, and those for a place on a roof.
std::span<const PlaceWord> PlanRoofWords();
std::span<const PlaceWord> PlacingWords();

// How far a window is to stay from what is in its way.
const PlaceWord& ClearanceWord();

// The word of that name; null when there is none.
const PlaceWord* FindPlaceWord(std::string_view name);

}  // namespace teskarlt
