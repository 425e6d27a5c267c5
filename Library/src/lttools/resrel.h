// resrel.h - growable arrays kept as loose variables, and
// the resource stack that releases groups of heap memory.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lttools {

// A growable array is four variables of its user: `count` elements in use, `capacity` elements of room,
// `growth` elements added whenever it is full, and `storage`, one block of the process heap or null.
// Elements are copied bytewise. Every failure is a fatal report.

// Appends the element, which may lie inside the array itself, and returns its index.
std::int32_t ArrayAppend(std::int32_t& count, std::int32_t& capacity, std::int32_t growth, void*& storage,
                         std::size_t elementSize, const void* element);

// Puts the element, which may lie inside the array itself, at `index` (at most `count`, else fatal) and moves
// the later ones up. Returns the old count.
std::int32_t ArrayInsertAt(std::int32_t& count, std::int32_t& capacity, std::int32_t growth, void*& storage,
                           std::size_t elementSize, std::int32_t index, const void* element);

// Removes the element at `index` (above `count`: fatal) and moves the later ones down; storage keeps its
// size. Returns the new count. An index equal to the count is let through and drops the last element.
std::int32_t ArrayRemoveAt(std::int32_t& count, void* storage, std::size_t elementSize, std::int32_t index);

// Makes an array with room for `initialCapacity` elements that holds the initial ones. The old storage is not
// released. Returns the count.
std::int32_t ArrayCreate(void*& storage, std::int32_t& count, std::int32_t& capacity, std::int32_t& growth,
                         std::size_t elementSize, const void* initialElements, std::int32_t initialCount,
                         std::int32_t initialCapacity, std::int32_t growthValue);

// Gives the array room for exactly `newCapacity` elements and returns that. The count is not adjusted.
std::int32_t ArrayResize(std::int32_t newCapacity, std::size_t elementSize, std::int32_t& capacity,
                         void*& storage);

// Kinds of resource: a block of the process heap, and a typed value list.
constexpr std::uint8_t RES_HEAP_BLOCK = 1;
constexpr std::uint8_t RES_VALUE_LIST = 2;

// Puts the pointer variable at `owner` on the stack, so that ResRelease releases what it then points to and
// clears it. Every variable opens a group of its own, but one that lies within four bytes of the variable
// below it joins that one's group, after a warning. An unknown type is fatal, with the variable already on
// the stack. Returns the address of the library's scratch word, which the push has cleared.
std::int64_t* ResPush(void* owner, std::uint8_t type);

// Releases the topmost group; on an empty stack fatal. Returns 1 when a whole group was released, 0 when the
// stack ended before its first variable.
std::uint8_t ResRelease();

// Fatal unless the stack is empty.
void ResCheckEmpty();

}  // namespace lttools
