// ValueNodes.cpp - nodes and heap copies for typed value lists.
#include "arx/BvMakeWindow/ValueNodes.h"

#include <cstdlib>
#include <cstring>
#include <string>

#include "lttools/Err.h"
#include "platform/Heap.h"

namespace brevanta {

namespace {

void* HeapCopy(const void* data, std::size_t size) {
  void* copy = HeapAllocate(size);
  if (copy != nullptr) std::memcpy(copy, data, size);
  return copy;
}

}  // namespace

ValueNode* AllocValueNode() {
  return static_cast<ValueNode*>(HeapAllocate(sizeof(ValueNode)));
}

ValueNode* NewValueNode(std::int16_t typeCode) {
  ValueNode* node = AllocValueNode();
  node->typeCode = typeCode;
  node->next = nullptr;
  return node;
}

char* CopyValueString(const char* text) {
  auto* copy = static_cast<char*>(HeapCopy(text, std::strlen(text) + 1));
  if (copy == nullptr) {
    lttools::ErrFile = "BvMakeWindow";
    lttools::ErrLine = 40;
    lttools::Err(lttools::ERR_FATAL, "Low memory");
    std::exit(0);  // GCOVR_EXCL_LINE: behind the report's own exit, kept
  }
  return copy;
}

char* DupString(const char* text) {
  if (text == nullptr) text = "";
  return static_cast<char*>(HeapCopy(text, std::strlen(text) + 1));
}

char16_t* DupWideString(const char16_t* text) {
  if (text == nullptr) text = u"";
  const std::size_t size = (std::char_traits<char16_t>::length(text) + 1) * sizeof(char16_t);
  return static_cast<char16_t*>(HeapCopy(text, size));
}

void* DupBytes(const void* data, std::size_t size) {
  return data == nullptr ? nullptr : HeapCopy(data, size);
}

}  // namespace brevanta
