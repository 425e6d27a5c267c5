// Heap.cpp - the real process heap. A test program that
// defines these two itself replaces this file at link time.
#include "platform/Heap.h"

#include <cstdlib>

void* HeapAllocate(std::size_t size) {
  return std::malloc(size);
}

void HeapRelease(void* block) {
  std::free(block);
}
