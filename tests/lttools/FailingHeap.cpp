// FailingHeap.cpp - stands in for the process heap of platform/Heap.h.
#include "FailingHeap.h"

#include <cstdlib>

#include "platform/Heap.h"

namespace {

int failing = 0;
int live = 0;

}  // namespace

void FailAllocation(int number) {
  failing = number;
}

int LiveBlocks() {
  return live;
}

void* HeapAllocate(std::size_t size) {
  if (failing > 0 && --failing == 0) return nullptr;
  ++live;
  return std::malloc(size);
}

void HeapRelease(void* block) {
  if (block != nullptr) --live;
  std::free(block);
}
