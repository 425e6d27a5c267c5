// WindowRules.cpp - ranges and combinations of a window's fields.
#include "dialog/WindowRules.h"

#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "dialog/Refusal.h"
#include "window/Choices.h"
#include "window/OpeningCode.h"

namespace brevanta {

namespace {

// In metres; far above any house, and far below what a drawing's numbers can still tell apart.
constexpr double LARGEST_LENGTH = 10000.0;

[[noreturn]] void Refuse(const char* field, double value, const std::string& must) {
  throw Refusal(std::string(field) + " must be " + must + ", not " + NumberText(value));
}

void MustBeFinite(const char* field, double value) {
  if (!std::isfinite(value)) Refuse(field, value, "a finite number");
}

void MustBeALength(const char* field, double value) {
  MustBeFinite(field, value);
  if (std::abs(value) > LARGEST_LENGTH) Refuse(field, value, "at most " + NumberText(LARGEST_LENGTH));
}

void MustBePositive(const char* field, double value) {
  MustBeALength(field, value);
  if (value <= 0.0) Refuse(field, value, "greater than 0");
}

void MustNotBeNegative(const char* field, double value) {
  MustBeALength(field, value);
  if (value < 0.0) Refuse(field, value, "0 or greater");
}

void MustBeWithin(const char* field, std::int32_t value, std::int32_t least, std::int32_t most) {
  if (least <= value && value <= most) return;
  Refuse(field, value, "from " + NumberText(least) + " to " + NumberText(most));
}

void CheckSizes(const WindowParams& record) {
  MustBePositive("width", record.width);
  MustBePositive("length", record.length);
  MustBePositive("frameWidth", record.frameWidth);
  MustBePositive("frameDepth", record.frameDepth);
  MustNotBeNegative("skirtHeight", record.skirtHeight);
  MustNotBeNegative("layerThickness", record.layerThickness);
  const double narrower = std::fmin(record.width, record.length);
  if (2 * record.frameWidth >= narrower) {
    Refuse("frameWidth", record.frameWidth, "less than half the window (" + NumberText(narrower / 2) + ")");
  }
  MustBeALength("lowerEdgeHeight", record.lowerEdgeHeight);
  MustBeALength("upperEdgeHeight", record.upperEdgeHeight);
  MustBeALength("pickOffset", record.pickOffset);
  MustBeALength("slopeOffset", record.slopeOffset);
  MustBeFinite("rotation", record.rotation);
  MustBeFinite("rotation2", record.rotation2);
}

void CheckChoices(const WindowParams& record) {
  MustBeWithin("placeByHeight", record.placeByHeight, PLACED_AT_POINT, PLACED_BY_HEIGHT);
  MustBeWithin("heightReference", record.heightReference, REVEALS_SQUARE, REVEALS_PLUMB_AND_SQUARE);
  MustBeWithin("widthAnchor", record.widthAnchor, ANCHOR_CENTRE, ANCHOR_END);
  MustBeWithin("roofBuildUp", record.roofBuildUp, BUILD_UP_SECOND_PLANE, BUILD_UP_SLOPE_OFFSET);
  MustBeWithin("bodyAsFaces", record.bodyAsFaces, LINES_ONLY, BODY_AS_FACES);
  // The drawing keeps 16 bits of it.
  MustBeWithin("drawOpeningSymbol", record.drawOpeningSymbol, std::numeric_limits<std::int16_t>::min(),
               std::numeric_limits<std::int16_t>::max());
}

void CheckOpeningCode(const WindowParams& record) {
  const std::string code(record.openingCode);
  const std::string_view rest = NotUnderstood(code);
  if (rest.empty()) return;
  throw Refusal(
      "openingCode: " + Quoted(code) + " is not understood from " + Quoted(rest) +
      " on; the letters are B (hinges at the top), C (bottom), D (pivot) and E (side), behind B, C and E "
      "an "
      "I (inward) or O (outward), behind E also an L or R (hinges left or right, seen from inside); - or "
      "no letter is fixed glazing");
}

}  // namespace

void CheckWindow(const WindowParams& record) {
  CheckSizes(record);
  CheckChoices(record);
  CheckOpeningCode(record);
}

}  // namespace brevanta
