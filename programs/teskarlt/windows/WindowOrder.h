// WindowOrder.h - what the user wants of a window that is inserted or edited.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/drawing/FeetInches.h"
#include "teskarlt/windows/RowOrder.h"

namespace teskarlt {

// A place in the plan, in drawing units.
struct PlanPoint {
  double x;
  double y;
  std::string text;             // as the user wrote it, for messages
  std::string option = "--at";  // by which he said it, likewise

  bool operator==(const PlanPoint&) const = default;
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
  // What a plain number counts where the field is a length; marked ones are feet and inches in either case.
  LengthStyle lengths = LengthStyle::Metres;
};

// A roof that is only drawn in plan: one of its edges, the edge's height and the pitch.
struct PlanRoof {
  std::vector<PlanPoint> eaves;       // no or two ends; the roof lies to the left of the way between them
  std::vector<PlanPoint> ridge;       // likewise
  std::optional<double> pitch;        // degrees
  std::optional<double> eavesHeight;  // metres
  std::optional<double> ridgeHeight;
  std::optional<PlanPoint> risesTo;  // lies on the side to which the roof rises

  bool IsGiven() const {
    return !eaves.empty() || !ridge.empty() || pitch || eavesHeight || ridgeHeight || risesTo;
  }
};

enum class AlignedEdge { Top, Bottom, Axis };

// Where on its roof a window goes, by words besides or in place of a point. Lengths in metres.
struct Placing {
  std::optional<double> fromEaves = {};  // along the slope, to the frame
  std::optional<double> fromRidge = {};
  std::optional<double> sill = {};  // height of the frame's lower edge, and of its upper one
  std::optional<double> head = {};
  std::optional<double> fromVerge = {};  // the left one as seen from below the eaves
  std::optional<double> fromRightVerge = {};
  bool isCentred = false;
  std::optional<std::array<int, 2>> between = {};  // the numbers of two windows
  std::optional<PlanPoint> over = {};
  std::optional<int> align = {};  // the number of a window
  std::optional<AlignedEdge> edge = {};
  std::optional<double> snap = {};

  bool operator==(const Placing&) const = default;
};

// Texts are UTF-8 and empty where the user said nothing.
struct WindowOrder {
  std::optional<PlanPoint> at;
  std::optional<SlopeMove> by;  // of a window that is changed, from where it stands
  RowOrder row;                 // of windows that are inserted
  std::string roofName;         // of a surface or face; without it the uppermost face at the point is taken
  std::vector<geometry::Vec3> roof;  // three points of a plane in place of a face, in drawing units; or none
  PlanRoof planRoof;                 // the same
  Placing placing;
  std::string window;                         // of a catalogue, "MAKER/KEY"
  std::string catalogue;                      // its file or folder; without it the one in the data folder
  std::vector<FieldSetting> settings;         // of the same field the last one holds
  std::string mark;                           // its pattern (WindowMarks.h); else none, or as it was
  LengthStyle lengths = LengthStyle::Metres;  // what plain lengths count that are still to be read
  double clearance = 0.0;                     // metres that windows keep to what is in their way
  bool isStrict = false;                      // a window that does not fit is refused
};

}  // namespace teskarlt
