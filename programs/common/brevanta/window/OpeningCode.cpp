// OpeningCode.cpp - the grammar of opening codes.
#include "window/OpeningCode.h"

namespace brevanta {

namespace {

// Takes one of the letters off the front of the code; false when none stands there.
bool TakeOneOf(std::string_view letters, std::string_view& code) {
  if (code.empty() || letters.find(code.front()) == std::string_view::npos) return false;
  code.remove_prefix(1);
  return true;
}

// Takes one mark with its suffixes off the front: B, C (then
// I or O), D, or E (then I or O and L or R, either first).
bool TakeMark(std::string_view& code) {
  if (TakeOneOf("D", code)) return true;
  if (TakeOneOf("BC", code)) {
    TakeOneOf("IO", code);
    return true;
  }
  if (!TakeOneOf("E", code)) return false;
  if (TakeOneOf("IO", code)) {
    TakeOneOf("LR", code);
  } else if (TakeOneOf("LR", code)) {
    TakeOneOf("IO", code);
  }
  return true;
}

}  // namespace

std::string_view NotUnderstood(std::string_view code) {
  while (!code.empty() && TakeMark(code)) {
  }
  return code;
}

}  // namespace brevanta
