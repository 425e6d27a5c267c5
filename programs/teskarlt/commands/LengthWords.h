// LengthWords.h - lengths for people: in metres, in feet and inches, or in units of a drawing that names
// none.
#pragma once

#include <string>
#include <string_view>

#include "teskarlt/drawing/FeetInches.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/terminal/Options.h"

namespace teskarlt {

// Adds --lengths to the command. The style must outlive the parsing.
void AddLengthsOption(Subcommand& command, std::string& style);

// What the user said of it; metres where that was nothing.
LengthStyle StyleSaid(std::string_view style);

// Adds --clearance to a command that looks at where windows stand. The
// text must outlive the parsing.
void AddClearanceOption(Subcommand& command, std::string& clearance);

// What the user said of it, in metres; 0 where that was nothing. Throws Error for what is no such length.
double ClearanceSaid(const std::string& clearance, LengthStyle style);

// Lengths are given in metres, areas in square metres, or in drawing units where no unit is stated.
class LengthWords {
 public:
  explicit LengthWords(LengthStyle style, bool isStated = true) : style_(style), isStated_(isStated) {}

  // Headings of columns: "width m", "area m2".
  std::string Column(std::string_view name) const;
  std::string AreaColumn() const;

  std::string Cell(double length) const;        // to the millimetre: "2.345"
  std::string Size(double length) const;        // with as many digits as it has: "0.94"
  std::string Spoken(double length) const;      // Cell with the unit: "2.345 m"
  std::string SpokenSize(double length) const;  // Size with the unit: "0.94 m"
  std::string Exact(double length) const;       // nine digits with the unit
  std::string AreaCell(double area) const;

 private:
  bool IsInFeet() const { return isStated_ && style_ == LengthStyle::FeetAndInches; }
  // The text with the unit's sign, where it has none itself.
  std::string WithUnit(std::string text) const;

  LengthStyle style_;
  bool isStated_;
};

// The unit of a drawing that is only looked at.
struct LookingUnit {
  const DrawingUnit& unit;  // that without a name where nothing tells it
  double tolerance;         // of its roofs, a millimetre in drawing units
};

// Tells a note of what the unit may be where nothing tells it. Throws Error as UnitOf does for a unit that
// the user says.
LookingUnit UnitToLookIn(const dxf::Document& drawing, const AskedUnit& asked);

}  // namespace teskarlt
