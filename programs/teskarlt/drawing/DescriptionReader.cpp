// DescriptionReader.cpp - reads the description of a window item by item.
#include "teskarlt/drawing/DescriptionReader.h"

#include <algorithm>
#include <limits>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

using brevanta::DESCRIPTION;
using brevanta::DescriptionItem;
using brevanta::FieldKind;

namespace {

// The codes of a point's y and z.
constexpr int ITEM_POINT_Y = brevanta::ITEM_POINT + dxf::Y_DISTANCE;
constexpr int ITEM_POINT_Z = brevanta::ITEM_POINT + dxf::Z_DISTANCE;

}  // namespace

std::optional<std::int32_t> IntegerOf(const dxf::Tag& tag) {
  using Limits = std::numeric_limits<std::int32_t>;
  const std::optional<std::int64_t> value = dxf::ParseInteger(tag.value);
  if (!value || *value < Limits::min() || *value > Limits::max()) return std::nullopt;
  return static_cast<std::int32_t>(*value);
}

void DescriptionReader::Read(const dxf::Tag& tag) {
  if (point_ != nullptr && tag.code == ITEM_POINT_Y) point_->y = Coordinate(tag);
  if (point_ != nullptr && tag.code == ITEM_POINT_Z) point_->z = Coordinate(tag);
  if (tag.code == brevanta::ITEM_POINT) point_ = nullptr;
  for (std::size_t i = 0; i < DESCRIPTION.size(); ++i) {
    if (isRead_[i] || DESCRIPTION[i].code != tag.code) continue;
    isRead_[i] = true;
    Store(DESCRIPTION[i], tag);
    return;
  }
}

bool DescriptionReader::IsComplete() const {
  return !isDamaged_ && std::all_of(isRead_.begin(), isRead_.end(), [](bool isRead) { return isRead; });
}

void DescriptionReader::Store(const DescriptionItem& item, const dxf::Tag& tag) {
  const brevanta::RecordField* const field = item.Field();
  if (field == nullptr) {
    Integer(tag);  // the version, of which there is one
    return;
  }
  brevanta::WindowParams& params = window_.params;
  switch (field->kind) {
    case FieldKind::Length:
    case FieldKind::Real:
      RealIn(params, *field) = Real(tag) / ItemFactor(*field, DrawingUnitsPerMetre(unit_));
      break;
    case FieldKind::Integer:
      IntegerIn(params, *field) = Integer(tag);
      break;
    case FieldKind::Text:
      window_.*TextMember(*field) = drawing_.Text(tag);
      break;
    case FieldKind::Points:
      point_ = &PointsIn(params, *field)[item.point];
      point_->x = Coordinate(tag);
      break;
  }
}

double DescriptionReader::Real(const dxf::Tag& tag) {
  const std::optional<double> value = dxf::ParseReal(tag.value);
  isDamaged_ = isDamaged_ || !value;
  return value.value_or(0.0);
}

double DescriptionReader::Coordinate(const dxf::Tag& tag) {
  return ToWorking(Real(tag), unit_);
}

std::int32_t DescriptionReader::Integer(const dxf::Tag& tag) {
  const std::optional<std::int32_t> value = IntegerOf(tag);
  isDamaged_ = isDamaged_ || !value;
  return value.value_or(0);
}

}  // namespace teskarlt
