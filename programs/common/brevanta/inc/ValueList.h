// ValueList.h - the kinds of the type codes in a typed value list, and the release of a list by kind.
#pragma once

#include <cstdint>

#include "inc/HostStatus.h"
#include "inc/ValueNode.h"

namespace brevanta {

// Kind words: bits 8 to 15 number the kind, bits 0 to 7 are
// the width of one element in bytes, bits 16 to 19 flags.
constexpr std::uint32_t KIND_NONE = 0;  // a code outside the table; matches no kind
constexpr std::uint32_t KIND_TEXT = 0x100;
constexpr std::uint32_t KIND_LONG = 0x204;
constexpr std::uint32_t KIND_SHORT = 0x302;
constexpr std::uint32_t KIND_INTEGER16 = 0x402;
constexpr std::uint32_t KIND_CHUNK = 0x500;
constexpr std::uint32_t KIND_POINT = 0x608;
constexpr std::uint32_t KIND_REAL = 0x708;
constexpr std::uint32_t KIND_FLAG = 0x802;
constexpr std::uint32_t KIND_ENTITY_NAME = 0x910;
constexpr std::uint32_t KIND_INTEGER64 = 0xA08;

constexpr std::uint32_t KIND_HANDLE = 0x10000;     // a text that is a handle
constexpr std::uint32_t KIND_ANGLE = 0x20000;      // a real that is an angle
constexpr std::uint32_t KIND_REFERENCE = 0x40000;  // a text that refers to an object
constexpr std::uint32_t KIND_UNDEFINED =
    0x80000;  // a code without a kind of its own; it has the point layout

// The codes for which a kind is known.
constexpr int FIRST_TYPE_CODE = -5;
constexpr int LAST_TYPE_CODE = 5023;

// The kind word of a code; KIND_NONE outside FIRST_TYPE_CODE to LAST_TYPE_CODE.
std::uint32_t TypeCodeKind(int code);

// True when both words number the same kind; widths and flags have no part in it.
bool SameValueKind(std::uint32_t kindA, std::uint32_t kindB);

// Releases the list's nodes with the texts and chunks that they own; with `keepReferences` the texts that
// refer to objects are left alone. A null list is empty. Returns STATUS_NORMAL in every case.
std::int32_t ReleaseValueList(ValueNode* list, bool keepReferences);

// Releases the list with everything that it owns.
void FreeValueList(ValueNode* list);

}  // namespace brevanta
