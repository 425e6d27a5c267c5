// TestHeap.cpp - the counting heap: defining the seam's functions here keeps the real ones out of the
// program.
#include "tests/xsort/TestHeap.h"

#include <cstdlib>
#include <utility>

#include "platform/Heap.h"

namespace test_heap {

namespace {

int attempts = 0;
int allocations = 0;
int releases = 0;
int failAt = 0;
std::function<void(std::size_t)> watch;

}  // namespace

void Reset() {
  attempts = 0;
  allocations = 0;
  releases = 0;
  failAt = 0;
  watch = nullptr;
}

void FailAt(int n) {
  failAt = attempts + n;
}

void Watch(std::function<void(std::size_t)> watcher) {
  watch = std::move(watcher);
}

int Allocations() {
  return allocations;
}

int Releases() {
  return releases;
}

}  // namespace test_heap

void* HeapAllocate(std::size_t size) {
  if (test_heap::watch) test_heap::watch(size);
  if (++test_heap::attempts == test_heap::failAt) return nullptr;
  ++test_heap::allocations;
  return std::malloc(size);
}

void HeapRelease(void* block) {
  if (block != nullptr) ++test_heap::releases;
  std::free(block);
}
