// resrel.cpp - growable arrays and the resource stack.
#include "lttools/resrel.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "inc/ValueList.h"
#include "lttools/Err.h"
#include "platform/Heap.h"

namespace lttools {

namespace {

// The sites of the reports.
constexpr const char* SOURCE_FILE = "resrel";
constexpr std::int32_t LINE_OWNERS_TOO_CLOSE = 75;
constexpr std::int32_t LINE_PUSH_TYPE = 96;
constexpr std::int32_t LINE_RELEASE_EMPTY = 109;
constexpr std::int32_t LINE_RELEASE_TYPE = 127;
constexpr std::int32_t LINE_NOT_EMPTY = 137;
constexpr std::int32_t LINE_APPEND_COPY = 159;
constexpr std::int32_t LINE_APPEND_STORAGE = 172;
constexpr std::int32_t LINE_INSERT_INDEX = 197;
constexpr std::int32_t LINE_INSERT_COPY = 201;
constexpr std::int32_t LINE_INSERT_STORAGE = 210;
constexpr std::int32_t LINE_REMOVE_INDEX = 233;
constexpr std::int32_t LINE_CREATE = 263;
constexpr std::int32_t LINE_RESIZE = 296;

void SetSite(std::int32_t line) {
  ErrFile = SOURCE_FILE;
  ErrLine = line;
}

void AbortForMemory(std::int32_t line) {
  SetSite(line);
  Err(ERR_FATAL, "Low memory");
}

void* Allocate(std::size_t size) {
  return HeapAllocate(std::max<std::size_t>(size, 1));
}

void* AllocateOrAbort(std::size_t size, std::int32_t line) {
  void* block = Allocate(size);
  if (block == nullptr) AbortForMemory(line);
  return block;
}

// A copy of an element that may lie in the storage about to move; released by the caller. A fatal report
// jumps past destructors, so nothing that is alive across one may own memory.
void* CopyElement(const void* element, std::size_t size, std::int32_t line) {
  void* copy = AllocateOrAbort(size, line);
  std::memcpy(copy, element, size);
  return copy;
}

// Bytes of n elements. A negative n is more than any heap gives.
std::size_t ByteCount(std::int32_t n, std::size_t elementSize) {
  return n < 0 ? SIZE_MAX : static_cast<std::size_t>(n) * elementSize;
}

// Gives the storage `newCapacity` elements of room. False: out of memory, and the array stays as it was.
bool Reallocate(std::int32_t newCapacity, std::size_t elementSize, std::int32_t& capacity, void*& storage) {
  void* moved = Allocate(ByteCount(newCapacity, elementSize));
  if (moved == nullptr) return false;
  const std::int32_t kept = std::min(capacity, newCapacity);
  if (storage != nullptr && kept > 0) std::memcpy(moved, storage, ByteCount(kept, elementSize));
  HeapRelease(storage);
  storage = moved;
  capacity = newCapacity;
  return true;
}

// Grows the storage while `copy` is held, which is released before the fatal report.
void GrowOrAbort(std::int32_t newCapacity, std::size_t elementSize, std::int32_t& capacity, void*& storage,
                 void* copy, std::int32_t line) {
  if (Reallocate(newCapacity, elementSize, capacity, storage)) return;
  HeapRelease(copy);
  AbortForMemory(line);
}

unsigned char* ElementAt(void* storage, std::size_t elementSize, std::int32_t index) {
  return static_cast<unsigned char*>(storage) + static_cast<std::size_t>(index) * elementSize;
}

}  // namespace

std::int32_t ArrayAppend(std::int32_t& count, std::int32_t& capacity, std::int32_t growth, void*& storage,
                         std::size_t elementSize, const void* element) {
  if (count >= capacity) {
    void* copy = CopyElement(element, elementSize, LINE_APPEND_COPY);
    GrowOrAbort(capacity + growth, elementSize, capacity, storage, copy, LINE_APPEND_STORAGE);
    std::memcpy(ElementAt(storage, elementSize, count), copy, elementSize);
    HeapRelease(copy);
  } else {
    std::memmove(ElementAt(storage, elementSize, count), element, elementSize);
  }
  return count++;
}

std::int32_t ArrayInsertAt(std::int32_t& count, std::int32_t& capacity, std::int32_t growth, void*& storage,
                           std::size_t elementSize, std::int32_t index, const void* element) {
  if (index > count) {
    SetSite(LINE_INSERT_INDEX);
    Err(ERR_FATAL, "Index outside range");
  }
  void* copy = CopyElement(element, elementSize, LINE_INSERT_COPY);
  if (count >= capacity) {
    GrowOrAbort(capacity + growth, elementSize, capacity, storage, copy, LINE_INSERT_STORAGE);
  }
  unsigned char* place = ElementAt(storage, elementSize, index);
  std::memmove(place + elementSize, place, ByteCount(count - index, elementSize));
  std::memcpy(place, copy, elementSize);
  HeapRelease(copy);
  return count++;
}

std::int32_t ArrayRemoveAt(std::int32_t& count, void* storage, std::size_t elementSize, std::int32_t index) {
  if (index > count) {
    SetSite(LINE_REMOVE_INDEX);
    Err(ERR_FATAL, "Index outside range");
  }
  --count;
  if (index < count) {
    unsigned char* place = ElementAt(storage, elementSize, index);
    std::memmove(place, place + elementSize, ByteCount(count - index, elementSize));
  }
  return count;
}

std::int32_t ArrayCreate(void*& storage, std::int32_t& count, std::int32_t& capacity, std::int32_t& growth,
                         std::size_t elementSize, const void* initialElements, std::int32_t initialCount,
                         std::int32_t initialCapacity, std::int32_t growthValue) {
  storage = AllocateOrAbort(ByteCount(std::max(initialCapacity, 0), elementSize), LINE_CREATE);
  if (initialCount > 0) std::memcpy(storage, initialElements, ByteCount(initialCount, elementSize));
  count = initialCount;
  capacity = initialCapacity;
  growth = growthValue;
  return count;
}

std::int32_t ArrayResize(std::int32_t newCapacity, std::size_t elementSize, std::int32_t& capacity,
                         void*& storage) {
  if (!Reallocate(newCapacity, elementSize, capacity, storage)) AbortForMemory(LINE_RESIZE);
  return capacity;
}

namespace {

// Owners closer than this are warned of.
constexpr std::uintptr_t OWNER_DISTANCE = 5;  // bytes
constexpr std::int32_t STACK_GROWTH = 20;     // entries

struct ResourceEntry {
  void* owner;  // the address of a pointer variable
  std::uint8_t type;
  std::uint8_t groupStart;  // 1: opens a group, 0: joins the group below
};

std::int32_t stackCount = 0;
std::int32_t stackCapacity = 0;
void* stackStorage = nullptr;
std::int64_t scratchWord = 0;

ResourceEntry TopEntry() {
  return static_cast<const ResourceEntry*>(stackStorage)[stackCount - 1];
}

bool TooClose(const void* ownerA, const void* ownerB) {
  const auto a = reinterpret_cast<std::uintptr_t>(ownerA);
  const auto b = reinterpret_cast<std::uintptr_t>(ownerB);
  return std::max(a, b) - std::min(a, b) < OWNER_DISTANCE;
}

// The variable may be a pointer of any type, so its bytes are copied.
void ReleaseResource(const ResourceEntry& entry) {
  void* resource = nullptr;
  std::memcpy(&resource, entry.owner, sizeof resource);
  if (entry.type == RES_HEAP_BLOCK) {
    HeapRelease(resource);
  } else if (entry.type == RES_VALUE_LIST) {
    brevanta::ReleaseValueList(static_cast<brevanta::ValueNode*>(resource), false);
  } else {
    SetSite(LINE_RELEASE_TYPE);
    Err(ERR_FATAL, "Wrong resource type: %d", entry.type);
  }
  std::memset(entry.owner, 0, sizeof resource);
}

}  // namespace

std::int64_t* ResPush(void* owner, std::uint8_t type) {
  ResourceEntry entry{owner, type, 1};
  if (stackCount > 0 && TooClose(TopEntry().owner, owner)) {
    SetSite(LINE_OWNERS_TOO_CLOSE);
    Err(ERR_NORMAL, "Resource releasing will fail under MSVC++ v1.10.");
    entry.groupStart = 0;
  }
  ArrayAppend(stackCount, stackCapacity, STACK_GROWTH, stackStorage, sizeof entry, &entry);
  if (type != RES_HEAP_BLOCK && type != RES_VALUE_LIST) {
    SetSite(LINE_PUSH_TYPE);
    Err(ERR_FATAL, "Wrong resource type: %d", type);
  } else {
    scratchWord = 0;
  }
  return &scratchWord;
}

std::uint8_t ResRelease() {
  if (stackCount == 0) {
    SetSite(LINE_RELEASE_EMPTY);
    Err(ERR_FATAL, "Releasing too much!");
  }
  std::uint8_t groupStart = 0;
  while (groupStart == 0 && stackCount > 0) {
    const ResourceEntry entry = TopEntry();
    ReleaseResource(entry);
    groupStart = entry.groupStart;
    ArrayRemoveAt(stackCount, stackStorage, sizeof entry, stackCount - 1);
  }
  return groupStart;
}

void ResCheckEmpty() {
  if (stackCount == 0) return;
  SetSite(LINE_NOT_EMPTY);
  Err(ERR_FATAL, "Resources releasing failed, cur_resource = %u", static_cast<unsigned>(stackCount));
}

}  // namespace lttools
