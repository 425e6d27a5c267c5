// LengthWords.cpp - lengths for people.
#include "teskarlt/commands/LengthWords.h"

#include <utility>

#include <fmt/format.h>

#include "teskarlt/drawing/UnitProposal.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/windows/PointText.h"

namespace teskarlt {

void AddLengthsOption(Subcommand& command, std::string& style) {
  command
      .Value("--lengths", style,
             "what lengths are read and said in: metres, or feet, and feet and inches to 1/64, with ~ where "
             "that "
             "is rounded; JSON has metres")
      .Named("m|ft")
      .OneOfListed({METRES, FEET});
}

void AddClearanceOption(Subcommand& command, std::string& clearance) {
  command
      .Value("--clearance", clearance,
             "tell of other windows, edges of the roof and obstacles that are nearer to a window than this")
      .Named("LENGTH");
}

double ClearanceSaid(const std::string& clearance, LengthStyle style) {
  return clearance.empty() ? 0.0 : ParseDistance("--clearance", clearance, style);
}

LengthStyle StyleSaid(std::string_view style) {
  return style == FEET ? LengthStyle::FeetAndInches : LengthStyle::Metres;
}

std::string LengthWords::Column(std::string_view name) const {
  if (!isStated_) return std::string(name);
  return fmt::format("{} {}", name, IsInFeet() ? "ft-in" : METRES);
}

std::string LengthWords::AreaColumn() const {
  return !isStated_ ? "area" : IsInFeet() ? "area sq ft" : "area m2";
}

std::string LengthWords::Cell(double length) const {
  return IsInFeet() ? FeetInchesText(length) : fmt::format("{:.3f}", length);
}

std::string LengthWords::Size(double length) const {
  return IsInFeet() ? FeetInchesText(length) : fmt::format("{:g}", length);
}

std::string LengthWords::Spoken(double length) const {
  return WithUnit(Cell(length));
}

std::string LengthWords::SpokenSize(double length) const {
  return WithUnit(Size(length));
}

std::string LengthWords::Exact(double length) const {
  return WithUnit(IsInFeet() ? FeetInchesText(length) : fmt::format("{:.9g}", length));
}

std::string LengthWords::AreaCell(double area) const {
  return fmt::format("{:.2f}", IsInFeet() ? area / (METRES_PER_FOOT * METRES_PER_FOOT) : area);
}

std::string LengthWords::WithUnit(std::string text) const {
  if (IsInFeet()) return text;
  return fmt::format("{} {}", std::move(text), isStated_ ? METRES : "units");
}

LookingUnit UnitToLookIn(const dxf::Document& drawing, const AskedUnit& asked) {
  if (const DrawingUnit* const unit = KnownUnit(drawing, asked)) return {*unit, RoofTolerance(*unit)};
  const std::optional<UnitProposal> proposal = ProposeUnit(drawing);
  TellNote(fmt::format("{} does not say its unit, and lengths are in drawing units; {}", drawing.FileName(),
                       UnitRemedy(proposal)));
  return {UNSTATED, ToleranceToLookWith(UNSTATED, proposal)};
}

}  // namespace teskarlt
