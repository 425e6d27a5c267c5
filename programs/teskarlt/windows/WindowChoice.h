// WindowChoice.h - the windows of a drawing that a command works on.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/windows/WindowCondition.h"

namespace teskarlt {

// The window with that number. Throws Error, with what there is, when no window or several bear it.
const DrawnWindow& ChooseWindow(const std::vector<DrawnWindow>& windows, const std::string& file, int number);

// Numbers of windows, from the first to the last one.
struct NumberRange {
  int first;
  int last;
};

// "4" or "4-9"; nothing for anything else.
std::optional<NumberRange> ParseNumberRange(std::string_view text);

// What the user says of the windows that a command works on: those that all of it is true of.
struct WindowSelection {
  std::vector<NumberRange> numbers = {};      // none: of any number
  std::optional<WindowCondition> where = {};  // none: whatever their fields are
  std::string type = {};  // as text2 has it, "KEY", or with text1 "MAKER/KEY"; empty: of any

  // Whether it is the number of a window and nothing else.
  bool IsOneNumber() const;
};

// The selected windows by their numbers, of which there is at least one. Throws Error, with what there is,
// when a number or a range names none, when nothing is selected, or when a selected window's number is that
// of another one too.
std::vector<const DrawnWindow*> ChooseWindows(const dxf::Document& drawing,
                                              const std::vector<DrawnWindow>& windows,
                                              const WindowSelection& selection);

}  // namespace teskarlt
