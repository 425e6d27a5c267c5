// WindowOrder.h - what the user wants of a window that is inserted or edited.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/windows/FeetInches.h"
#include "teskarlt/windows/RowOrder.h"

namespace teskarlt {

// A place in the plan, in drawing units.
struct PlanPoint {
  double x;
  double y;
  std::string text;  // as the user wrote it, for messages
};

// How far a window moves in its roof, metres.
struct SlopeMove {
  double across;  // along the eaves, to the right as seen from below them
  double up;      // up the slope
};

// A value for a field of the record; UTF-8.
struct FieldSetting {
  std::string field;
  std::string value;
};

// Texts are UTF-8 and empty where the user said nothing.
struct WindowOrder {
  std::optional<PlanPoint> at;
  std::optional<SlopeMove> by;  // of a window that is changed, from where it stands
  RowOrder row;                 // of windows that are inserted
  std::string roofName;         // of a surface or face; without it the uppermost face at the point is taken
  std::vector<geometry::Vec3> roof;  // three points of a plane in place of a face, in drawing units; or none
  std::string window;                // of a catalogue, "MAKER/KEY"
  std::string catalogue;             // its file or folder; without it the one in the data folder
  std::vector<FieldSetting> settings;  // of the same field the last one holds
  // What plain numbers of settings that are lengths count; marked ones are feet and inches in either case.
  LengthStyle lengths = LengthStyle::Metres;
  bool isStrict = false;  // a window that does not fit is refused
};

}  // namespace teskarlt
