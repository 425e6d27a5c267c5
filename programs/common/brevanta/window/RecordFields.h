// RecordFields.h - the fields of the window record as data: name, kind and place.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "inc/WindowParams.h"

namespace brevanta {

enum class FieldKind {
  Length,   // a double in metres
  Real,     // another double
  Integer,  // a signed 32-bit integer
  Text,     // zero-terminated bytes, `size` with the terminator
  Points,   // `size` / 24 points of three doubles
};

struct RecordField {
  std::string_view name;
  FieldKind kind;
  std::size_t offset;
  std::size_t size;          // bytes
  std::string_view meaning;  // for people, with the unit
};

// Every field of the record, in the order in which they lie in it.
inline constexpr std::array RECORD_FIELDS = {
    RecordField{"width", FieldKind::Length, offsetof(WindowParams, width), 8, "m, width across the slope"},
    RecordField{"length", FieldKind::Length, offsetof(WindowParams, length), 8, "m, length along the slope"},
    RecordField{"frameWidth", FieldKind::Length, offsetof(WindowParams, frameWidth), 8,
                "m, band of the frame"},
    RecordField{"frameDepth", FieldKind::Length, offsetof(WindowParams, frameDepth), 8,
                "m, depth of the frame normal to the roof"},
    RecordField{"skirtHeight", FieldKind::Length, offsetof(WindowParams, skirtHeight), 8,
                "m, outer band below the frame"},
    RecordField{"lowerEdgeHeight", FieldKind::Length, offsetof(WindowParams, lowerEdgeHeight), 8,
                "m, height of the anchor; moves the window up or down the slope"},
    RecordField{"placeByHeight", FieldKind::Integer, offsetof(WindowParams, placeByHeight), 4,
                "1 placed at lowerEdgeHeight, 0 at the point"},
    RecordField{"heightReference", FieldKind::Integer, offsetof(WindowParams, heightReference), 4,
                "0 to 3, how the reveals of the opening are cut"},
    RecordField{"widthAnchor", FieldKind::Integer, offsetof(WindowParams, widthAnchor), 4,
                "0 centred at the point, 1 starting, 2 ending there"},
    RecordField{"pickOffset", FieldKind::Length, offsetof(WindowParams, pickOffset), 8,
                "m, moves the point in the direction rotation"},
    RecordField{"roofBuildUp", FieldKind::Integer, offsetof(WindowParams, roofBuildUp), 4,
                "anchor: 0 on the second plane, 1 at the frame's lower edge, 2 slopeOffset below it"},
    RecordField{"bodyAsFaces", FieldKind::Integer, offsetof(WindowParams, bodyAsFaces), 4,
                "1 the body is drawn, 0 lines only"},
    RecordField{"slopeOffset", FieldKind::Length, offsetof(WindowParams, slopeOffset), 8,
                "m, moves the window up the slope when roofBuildUp is 2"},
    RecordField{"upperEdgeHeight", FieldKind::Length, offsetof(WindowParams, upperEdgeHeight), 8,
                "m, height of the opening's upper edge; instead of lowerEdgeHeight"},
    RecordField{"layerThickness", FieldKind::Length, offsetof(WindowParams, layerThickness), 8,
                "m, roof layer that the window sits in"},
    RecordField{"pitch", FieldKind::Real, offsetof(WindowParams, pitch), 8,
                "degrees from the horizontal; comes from the roof"},
    RecordField{"drawOpeningSymbol", FieldKind::Integer, offsetof(WindowParams, drawOpeningSymbol), 4,
                "not 0: opening symbol, 0: opening with cross"},
    RecordField{"text1", FieldKind::Text, offsetof(WindowParams, text1), TEXT_FIELD_SIZE,
                "first text, at most 199"},
    RecordField{"text2", FieldKind::Text, offsetof(WindowParams, text2), TEXT_FIELD_SIZE,
                "second text, at most 199"},
    RecordField{"text3", FieldKind::Text, offsetof(WindowParams, text3), TEXT_FIELD_SIZE,
                "third text, at most 199"},
    RecordField{"openingCode", FieldKind::Text, offsetof(WindowParams, openingCode), OPENING_CODE_SIZE,
                "hinges: B top, C bottom, D pivot, E side; B C E with I inward or O outward, E with L or R "
                "from inside"},
    RecordField{"storedPoint", FieldKind::Points, offsetof(WindowParams, storedPoint), 24,
                "x,y,z that is only stored; the window's point in the drawing"},
    RecordField{"insertionPoint", FieldKind::Points, offsetof(WindowParams, insertionPoint), 24,
                "x,y,z in the roof's own frame, instead of a point in the drawing"},
    RecordField{"rotation", FieldKind::Real, offsetof(WindowParams, rotation), 8,
                "radians, direction of pickOffset in the roof's own frame"},
    RecordField{"rotation2", FieldKind::Real, offsetof(WindowParams, rotation2), 8, "radians, only stored"},
    RecordField{"secondPlanePoints", FieldKind::Points, offsetof(WindowParams, secondPlanePoints), 72,
                "x,y,z;x,y,z;x,y,z of the second plane when roofBuildUp is 0"},
    RecordField{"roofPlanePoints", FieldKind::Points, offsetof(WindowParams, roofPlanePoints), 72,
                "x,y,z;x,y,z;x,y,z of the roof plane"},
    RecordField{"unitFactor", FieldKind::Integer, offsetof(WindowParams, unitFactor), 4,
                "drawing units per metre; comes from the drawing"},
    RecordField{"markerValue", FieldKind::Integer, offsetof(WindowParams, markerValue), 4,
                "number of the window, not 0, one a window"},
};

// Every field in the order in which windows are listed: the upper edge's height behind that of the lower one.
inline constexpr auto LISTED_FIELDS = [] {
  std::array<const RecordField*, RECORD_FIELDS.size()> listed{};
  std::transform(RECORD_FIELDS.begin(), RECORD_FIELDS.end(), listed.begin(),
                 [](const RecordField& field) { return &field; });
  const auto named = [&](std::string_view name) {
    return std::find_if(listed.begin(), listed.end(), [&](auto* field) { return field->name == name; });
  };
  const auto upper = named("upperEdgeHeight");
  std::rotate(named("lowerEdgeHeight") + 1, upper, upper + 1);
  return listed;
}();

// The field of that name, or null.
constexpr const RecordField* FindRecordField(std::string_view name) {
  for (const RecordField& field : RECORD_FIELDS) {
    if (field.name == name) return &field;
  }
  return nullptr;
}

// The field's place in a record.
inline void* FieldPlace(WindowParams& record, const RecordField& field) {
  return reinterpret_cast<char*>(&record) + field.offset;
}
inline const void* FieldPlace(const WindowParams& record, const RecordField& field) {
  return reinterpret_cast<const char*>(&record) + field.offset;
}

// The field's value, for a field of the kind that the function names. A length is a real.
inline double& RealIn(WindowParams& record, const RecordField& field) {
  return *static_cast<double*>(FieldPlace(record, field));
}
inline double RealIn(const WindowParams& record, const RecordField& field) {
  return *static_cast<const double*>(FieldPlace(record, field));
}
inline std::int32_t& IntegerIn(WindowParams& record, const RecordField& field) {
  return *static_cast<std::int32_t*>(FieldPlace(record, field));
}
inline std::int32_t IntegerIn(const WindowParams& record, const RecordField& field) {
  return *static_cast<const std::int32_t*>(FieldPlace(record, field));
}
inline std::span<RecordPoint> PointsIn(WindowParams& record, const RecordField& field) {
  return {static_cast<RecordPoint*>(FieldPlace(record, field)), field.size / sizeof(RecordPoint)};
}
inline std::span<const RecordPoint> PointsIn(const WindowParams& record, const RecordField& field) {
  return {static_cast<const RecordPoint*>(FieldPlace(record, field)), field.size / sizeof(RecordPoint)};
}

// The bytes up to the terminator, or all of the field where it is missing.
inline std::string_view TextIn(const WindowParams& record, const RecordField& field) {
  const std::string_view bytes(static_cast<const char*>(FieldPlace(record, field)), field.size);
  return bytes.substr(0, bytes.find('\0'));
}

}  // namespace brevanta
