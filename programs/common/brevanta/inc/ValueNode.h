// ValueNode.h - one node of the typed value lists in which entities are handed to the host.
#pragma once

#include <cstddef>
#include <cstdint>

namespace brevanta {

// The value of one node, read according to the kind of its type code (ValueList.h). The node owns `text` of
// a text kind and the bytes of a binary chunk; both come from the process heap (std::malloc).
union NodeValue {
  char* text;       // zero-terminated, may be null
  double point[3];  // x, y, z
  double real;
  std::int16_t shortInteger;  // short, 16-bit integer and flag kinds
  std::int32_t longInteger;
  std::int64_t wideInteger;
  std::int64_t entityName[2];
  struct {
    std::int16_t length;  // bytes at `data`
    unsigned char* data;
  } chunk;
};

// One node of a singly linked list. A list is named by its first node and belongs to whoever built it.
struct ValueNode {
  ValueNode* next;  // following node; null ends the list
  // A group code of the drawing interchange format, or one of the host's codes (-5 to -1, 5001 to 5023).
  std::int16_t typeCode;
  NodeValue value;
};

static_assert(sizeof(void*) == 8, "the record formats are those of 64-bit systems");
static_assert(sizeof(NodeValue) == 24);
static_assert(offsetof(ValueNode, typeCode) == 8);
static_assert(offsetof(ValueNode, value) == 16);
static_assert(sizeof(ValueNode) == 40);

}  // namespace brevanta
