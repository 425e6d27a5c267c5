// WindowCondition.h - what the fields of windows must be for a command to work on them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/FeetInches.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/dxf/Document.h"
#include "window/RecordFields.h"

namespace teskarlt {

enum class Comparison { Less, LessOrEqual, Equal, NotEqual, GreaterOrEqual, Greater };

// "width<0.8": a field of the record and what it is compared with.
struct FieldComparison {
  const brevanta::RecordField* field;
  Comparison comparison;
  double number = 0.0;  // of a field that is none of text: metres, degrees, radians or a count
  std::string text;     // of a field of text, UTF-8
};

// Comparisons that must all hold.
class WindowCondition {
 public:
  // Reads "width<0.8 and text1="Maker"": fields of the record, one of < <= = != >= >, and a number or a text,
  // in quotation marks where it holds the word "and"; a plain length counts as said. Throws Error, naming
  // --where, for what is malformed, for a field that there is not or that is a point, and for a text that is
  // compared as a number.
  explicit WindowCondition(std::string_view text, LengthStyle lengths = LengthStyle::Metres);

  // As the user wrote it.
  const std::string& Text() const { return text_; }

  // Numbers within a micrometre or a millionth of a degree are equal. The record must be that of the window;
  // one whose description is damaged meets no condition.
  bool Holds(const dxf::Document& drawing, const DrawnWindow& window, const WindowReading& reading) const;

 private:
  std::string text_;
  std::vector<FieldComparison> comparisons_;
};

}  // namespace teskarlt
