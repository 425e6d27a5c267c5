// ValueList.cpp - the kind table of the type codes, and the release of a list.
#include "inc/ValueList.h"

#include <array>

#include "platform/Heap.h"

namespace brevanta {

namespace {

constexpr int CODE_COUNT = LAST_TYPE_CODE - FIRST_TYPE_CODE + 1;

struct CodeRange {
  int first;
  int last;
  std::uint32_t kind;
};

// In the order in which they are tried; the first range that holds a code decides.
constexpr CodeRange RANGES[] = {
    {-3, -1, KIND_ENTITY_NAME},
    {-5, -4, KIND_TEXT},
    {5, 5, KIND_TEXT | KIND_HANDLE},
    {0, 9, KIND_TEXT},
    {100, 102, KIND_TEXT},
    {105, 105, KIND_TEXT},
    {300, 309, KIND_TEXT},
    {320, 329, KIND_TEXT | KIND_HANDLE},
    {330, 369, KIND_TEXT | KIND_HANDLE | KIND_REFERENCE},
    {390, 399, KIND_TEXT | KIND_REFERENCE},
    {410, 419, KIND_TEXT},
    {430, 439, KIND_TEXT},
    {470, 479, KIND_TEXT},
    {999, 1003, KIND_TEXT},
    {1005, 1005, KIND_TEXT},
    {310, 319, KIND_CHUNK},
    {1004, 1004, KIND_CHUNK},
    {270, 289, KIND_INTEGER16},
    {370, 389, KIND_INTEGER16},
    {290, 299, KIND_FLAG},
    {60, 79, KIND_SHORT},
    {170, 179, KIND_SHORT},
    {400, 409, KIND_SHORT},
    {1060, 1070, KIND_SHORT},
    {90, 99, KIND_LONG},
    {420, 429, KIND_LONG},
    {440, 459, KIND_LONG},
    {1071, 1071, KIND_LONG},
    {10, 19, KIND_POINT},
    {110, 119, KIND_POINT},
    {210, 219, KIND_POINT},
    {1010, 1019, KIND_POINT},
    {160, 169, KIND_INTEGER64},
    {50, 58, KIND_REAL | KIND_ANGLE},
    {20, 59, KIND_REAL},
    {120, 149, KIND_REAL},
    {220, 239, KIND_REAL},
    {460, 469, KIND_REAL},
    {1020, 1059, KIND_REAL},
    {5001, 5001, KIND_REAL},
    {5002, 5002, KIND_POINT},
    {5003, 5003, KIND_SHORT},
    {5004, 5004, KIND_REAL | KIND_ANGLE},
    {5005, 5005, KIND_TEXT},
    {5006, 5006, KIND_ENTITY_NAME},
    {5009, 5009, KIND_POINT},
    {5010, 5010, KIND_LONG},
};

std::uint32_t KindByRange(int code) {
  for (const CodeRange& range : RANGES) {
    if (range.first <= code && code <= range.last) return range.kind;
  }
  return KIND_UNDEFINED | KIND_POINT;
}

std::array<std::uint32_t, CODE_COUNT> BuildKindTable() {
  std::array<std::uint32_t, CODE_COUNT> kinds{};
  for (int code = FIRST_TYPE_CODE; code <= LAST_TYPE_CODE; ++code)
    kinds[code - FIRST_TYPE_CODE] = KindByRange(code);
  return kinds;
}

}  // namespace

std::uint32_t TypeCodeKind(int code) {
  static const auto kinds = BuildKindTable();
  if (code < FIRST_TYPE_CODE || code > LAST_TYPE_CODE) return KIND_NONE;
  return kinds[code - FIRST_TYPE_CODE];
}

bool SameValueKind(std::uint32_t kindA, std::uint32_t kindB) {
  return ((kindA ^ kindB) & 0xFF00U) == 0;
}

std::int32_t ReleaseValueList(ValueNode* list, bool keepReferences) {
  while (list != nullptr) {
    ValueNode* next = list->next;
    const std::uint32_t kind = TypeCodeKind(list->typeCode);
    if (SameValueKind(kind, KIND_TEXT)) {
      const bool kept = keepReferences && (kind & KIND_REFERENCE) != 0;
      if (!kept) HeapRelease(list->value.text);
    } else if (SameValueKind(kind, KIND_CHUNK)) {
      HeapRelease(list->value.chunk.data);
    }
    HeapRelease(list);
    list = next;
  }
  return STATUS_NORMAL;
}

void FreeValueList(ValueNode* list) {
  ReleaseValueList(list, false);
}

}  // namespace brevanta
