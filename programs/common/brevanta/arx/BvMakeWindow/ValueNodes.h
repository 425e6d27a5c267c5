// ValueNodes.h - makes the nodes and texts of typed value lists, and heap copies of texts and bytes.
#pragma once

#include <cstddef>
#include <cstdint>

#include "inc/ValueNode.h"

namespace brevanta {

// A node on the process heap with everything unset. The allocation is not checked, on purpose.
ValueNode* AllocValueNode();

// A node with its code set, its end marked and its value unset.
ValueNode* NewValueNode(std::int16_t typeCode);

// A heap copy of the text, which a list then owns. A failed allocation is fatal ("Low memory").
char* CopyValueString(const char* text);

// Heap copies, null when the heap is exhausted. A null text gives an empty one, null data gives null.
char* DupString(const char* text);
char16_t* DupWideString(const char16_t* text);
void* DupBytes(const void* data, std::size_t size);

}  // namespace brevanta
