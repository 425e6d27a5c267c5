// WindowParams.h - the 944-byte record that describes one
// roof window, shared by the module and its dialog module.
#pragma once

#include <cstddef>
#include <cstdint>

namespace brevanta {

// Sizes of the text fields in bytes, the terminating zero included.
constexpr int TEXT_FIELD_SIZE = 200;
constexpr int OPENING_CODE_SIZE = 11;

// A point or vector of three doubles as it lies in the record.
struct RecordPoint {
  double x;
  double y;
  double z;
};

// One roof window. The layout is the interface between separately built modules: little-endian, natural
// alignment, every offset asserted below. Lengths are metres, each consumer multiplies them by `unitFactor`.
// Texts are zero-terminated bytes as the drawing's file has them; a reader never goes past the field's size.
// The values of its choices have names in window/Choices.h.
struct WindowParams {
  double width;            // 0    0.94   m, across the slope
  double length;           // 8    1.4    m, along the slope; the rise is length * sin(pitch)
  double frameWidth;       // 16   0.1    m, band of the frame
  double frameDepth;       // 24   0.08   m, depth of the frame body normal to the roof
  double skirtHeight;      // 32   0      m, outer band below the frame body; 0: none
  double lowerEdgeHeight;  // 40   0      m, lower edge above the base level (drawing units when written by
                           //             ComputeEdgeHeights in the mode that derives it)
  std::int32_t placeByHeight;    // 48   1   1: placed at `lowerEdgeHeight`; other: at the insertion point
  std::int32_t heightReference;  // 52   1   0 to 3: how the reveals of the opening run
  std::int32_t widthAnchor;      // 56   0   0 centred at the insertion point, 1 starting, 2 ending there
  std::int32_t padding60;        // 60   -   not used
  double pickOffset;             // 64   0   m, the insertion point is moved by it in the direction `rotation`
  std::int32_t roofBuildUp;      // 72   1   0 second plane fitted, 1 plain, 2 with `slopeOffset`
  std::int32_t bodyAsFaces;      // 76   1   1: the body is written as 3D faces
  double slopeOffset;            // 80   0.1 m along the slope, used when `roofBuildUp` is 2
  double upperEdgeHeight;        // 88   0      drawing units, upper edge above the base level; an output
  double layerThickness;         // 96   0.1    m, roof layer that the window sits in
  double pitch;                  // 104  30     degrees, pitch of the roof from the horizontal
  std::int32_t drawOpeningSymbol;       // 112  -1  non-zero: the opening symbol is drawn
  char text1[TEXT_FIELD_SIZE];          // 116  ""  first descriptive text
  char text2[TEXT_FIELD_SIZE];          // 316  ""  second descriptive text
  char text3[TEXT_FIELD_SIZE];          // 516  ""  third descriptive text
  char openingCode[OPENING_CODE_SIZE];  // 716  "D" letters of the opening symbol, at most 10
  char padding727;                      // 727  -   not used
  RecordPoint storedPoint;              // 728  -   a point that is only stored with the entities
  RecordPoint insertionPoint;           // 752  -   drawing units, in the roof's local frame
  double rotation;                      // 776  0   radians; in: direction of `pickOffset` in the local frame,
                                        //          out: angle of the window's X axis about Z, 0 up to 2 pi
  double rotation2;                     // 784  0   radians, only stored with the entities
  RecordPoint secondPlanePoints[3];     // 792  -   drawing coordinates, second plane (`roofBuildUp` 0)
  RecordPoint roofPlanePoints[3];       // 864  -   drawing coordinates, roof plane
  std::int32_t unitFactor;              // 936  1   drawing units per metre
  std::int32_t markerValue;             // 940  0   number of the window; must not be 0 when it is written
};

static_assert(sizeof(double) == 8 && sizeof(RecordPoint) == 24);
static_assert(offsetof(WindowParams, width) == 0);
static_assert(offsetof(WindowParams, length) == 8);
static_assert(offsetof(WindowParams, frameWidth) == 16);
static_assert(offsetof(WindowParams, frameDepth) == 24);
static_assert(offsetof(WindowParams, skirtHeight) == 32);
static_assert(offsetof(WindowParams, lowerEdgeHeight) == 40);
static_assert(offsetof(WindowParams, placeByHeight) == 48);
static_assert(offsetof(WindowParams, heightReference) == 52);
static_assert(offsetof(WindowParams, widthAnchor) == 56);
static_assert(offsetof(WindowParams, padding60) == 60);
static_assert(offsetof(WindowParams, pickOffset) == 64);
static_assert(offsetof(WindowParams, roofBuildUp) == 72);
static_assert(offsetof(WindowParams, bodyAsFaces) == 76);
static_assert(offsetof(WindowParams, slopeOffset) == 80);
static_assert(offsetof(WindowParams, upperEdgeHeight) == 88);
static_assert(offsetof(WindowParams, layerThickness) == 96);
static_assert(offsetof(WindowParams, pitch) == 104);
static_assert(offsetof(WindowParams, drawOpeningSymbol) == 112);
static_assert(offsetof(WindowParams, text1) == 116);
static_assert(offsetof(WindowParams, text2) == 316);
static_assert(offsetof(WindowParams, text3) == 516);
static_assert(offsetof(WindowParams, openingCode) == 716);
static_assert(offsetof(WindowParams, padding727) == 727);
static_assert(offsetof(WindowParams, storedPoint) == 728);
static_assert(offsetof(WindowParams, insertionPoint) == 752);
static_assert(offsetof(WindowParams, rotation) == 776);
static_assert(offsetof(WindowParams, rotation2) == 784);
static_assert(offsetof(WindowParams, secondPlanePoints) == 792);
static_assert(offsetof(WindowParams, roofPlanePoints) == 864);
static_assert(offsetof(WindowParams, unitFactor) == 936);
static_assert(offsetof(WindowParams, markerValue) == 940);
static_assert(sizeof(WindowParams) == 944);

}  // namespace brevanta
