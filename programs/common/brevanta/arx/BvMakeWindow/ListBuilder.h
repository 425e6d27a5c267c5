// ListBuilder.h - appends nodes to a typed value list.
#pragma once

#include <cstdint>

#include "inc/ValueNode.h"
#include "platform/GcGePoint3d.h"

namespace brevanta {

// Builds one list behind its head. The list belongs to whoever takes it with Head().
class ListBuilder {
 public:
  // Starts the list with a text.
  ListBuilder(std::int16_t typeCode, const char* text);

  void Text(std::int16_t typeCode, const char* text);
  void Point(std::int16_t typeCode, double x, double y, double z);
  void Real(std::int16_t typeCode, double value);
  void Short(std::int16_t typeCode, std::int32_t value);  // takes the low 16 bits
  void Marker(std::int16_t typeCode);                     // a node without a value

  // A new node at the end, its value unset.
  void Append(std::int16_t typeCode);

  ValueNode* Head() const { return head_; }
  ValueNode* Tail() const { return tail_; }

 private:
  ValueNode* head_;
  ValueNode* tail_;
};

}  // namespace brevanta
