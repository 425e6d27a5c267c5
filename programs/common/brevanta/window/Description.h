// Description.h - the items with which the extended data of every entity of a window describes it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "window/RecordFields.h"

namespace brevanta {

// Group codes of the items.
constexpr std::int16_t ITEM_TEXT = 1000;
constexpr std::int16_t ITEM_POINT = 1011;
constexpr std::int16_t ITEM_REAL = 1040;
constexpr std::int16_t ITEM_DISTANCE = 1041;  // this and the next are used as plain reals
constexpr std::int16_t ITEM_SCALE = 1042;
constexpr std::int16_t ITEM_SHORT = 1070;

constexpr std::int32_t DESCRIPTION_VERSION = 1;

constexpr std::size_t NO_FIELD = RECORD_FIELDS.size();

struct DescriptionItem {
  std::int16_t code;
  std::size_t fieldNumber;  // in RECORD_FIELDS, of the field whose value it is; NO_FIELD: DESCRIPTION_VERSION
  std::size_t point = 0;    // of the field's points, the one that it is

  // The field; null for the version.
  const RecordField* Field() const { return fieldNumber == NO_FIELD ? nullptr : &RECORD_FIELDS[fieldNumber]; }
};

// The number of a description's field; a name that no field has does not compile.
consteval std::size_t DescribedField(std::string_view name) {
  for (std::size_t number = 0; number < NO_FIELD; ++number)
    if (RECORD_FIELDS[number].name == name) return number;
  throw "no field of the record has this name";
}

// The description, in the order in which it is written. A length is written in drawing units, an integer by
// its low 16 bits. Two numbers have codes of their own, so each code's items can also be told by their order.
inline constexpr std::array DESCRIPTION = {
    DescriptionItem{ITEM_SHORT, NO_FIELD},
    DescriptionItem{ITEM_REAL, DescribedField("length")},
    DescriptionItem{ITEM_DISTANCE, DescribedField("width")},
    DescriptionItem{ITEM_SCALE, DescribedField("frameWidth")},
    DescriptionItem{ITEM_TEXT, DescribedField("text1")},
    DescriptionItem{ITEM_TEXT, DescribedField("text3")},
    DescriptionItem{ITEM_TEXT, DescribedField("openingCode")},
    DescriptionItem{ITEM_SHORT, DescribedField("drawOpeningSymbol")},
    DescriptionItem{ITEM_REAL, DescribedField("frameDepth")},
    DescriptionItem{ITEM_REAL, DescribedField("lowerEdgeHeight")},
    DescriptionItem{ITEM_SHORT, DescribedField("heightReference")},
    DescriptionItem{ITEM_SHORT, DescribedField("widthAnchor")},
    DescriptionItem{ITEM_SHORT, DescribedField("roofBuildUp")},
    DescriptionItem{ITEM_POINT, DescribedField("storedPoint")},
    DescriptionItem{ITEM_POINT, DescribedField("insertionPoint")},
    DescriptionItem{ITEM_REAL, DescribedField("rotation")},
    DescriptionItem{ITEM_REAL, DescribedField("rotation2")},
    DescriptionItem{ITEM_REAL, DescribedField("layerThickness")},
    DescriptionItem{ITEM_REAL, DescribedField("pitch")},
    DescriptionItem{ITEM_POINT, DescribedField("secondPlanePoints"), 0},
    DescriptionItem{ITEM_POINT, DescribedField("roofPlanePoints"), 0},
    DescriptionItem{ITEM_POINT, DescribedField("secondPlanePoints"), 1},
    DescriptionItem{ITEM_POINT, DescribedField("roofPlanePoints"), 1},
    DescriptionItem{ITEM_POINT, DescribedField("secondPlanePoints"), 2},
    DescriptionItem{ITEM_POINT, DescribedField("roofPlanePoints"), 2},
    DescriptionItem{ITEM_TEXT, DescribedField("text2")},
};

// What a length or another real of the record is multiplied by for its item.
constexpr double ItemFactor(const RecordField& field, double unitFactor) {
  return field.kind == FieldKind::Length ? unitFactor : 1.0;
}

}  // namespace brevanta
