// ListBuilder.cpp - appends nodes to a typed value list.
#include "arx/BvMakeWindow/ListBuilder.h"

#include "arx/BvMakeWindow/ValueNodes.h"

namespace brevanta {

ListBuilder::ListBuilder(std::int16_t typeCode, const char* text)
    : head_(NewValueNode(typeCode)), tail_(head_) {
  head_->value.text = CopyValueString(text);
}

void ListBuilder::Append(std::int16_t typeCode) {
  tail_->next = NewValueNode(typeCode);
  tail_ = tail_->next;
}

void ListBuilder::Text(std::int16_t typeCode, const char* text) {
  Append(typeCode);
  tail_->value.text = CopyValueString(text);
}

void ListBuilder::Point(std::int16_t typeCode, double x, double y, double z) {
  Append(typeCode);
  tail_->value.point[0] = x;
  tail_->value.point[1] = y;
  tail_->value.point[2] = z;
}

void ListBuilder::Real(std::int16_t typeCode, double value) {
  Append(typeCode);
  tail_->value.real = value;
}

void ListBuilder::Short(std::int16_t typeCode, std::int32_t value) {
  Append(typeCode);
  tail_->value.shortInteger = static_cast<std::int16_t>(value);
}

void ListBuilder::Marker(std::int16_t typeCode) {
  Append(typeCode);
}

}  // namespace brevanta
